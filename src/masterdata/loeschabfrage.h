// What the two screens that ask before a deletion have in common.
#pragma once

#include "platform/text.h"
#include "records/loeschung.h"
#include "session/screens.h"
#include "windows/zeichen.h"

class QLabel;
class QPushButton;

/// The question before. Two sentences have a carriage return between them.
platform::Text kundenfrage(int geräte, int protokolle, const QString &name);
platform::Text gerätefrage(int protokolle, const QString &name);

/// Counts and asks when it opens, deletes on Yes the record that its list shows, and asks anew
/// about what a failure has left.
class Löschabfrage : public Screen {
  protected:
    struct Aufbau {
        Löschziel ziel;
        frm liste; ///< a Listenmaske
        platform::Bild *achtung;
        QLabel *frage;
        QPushButton *ja, *nein;
        platform::Text gelöscht; ///< told at the end
        const char *fragen;      ///< tag of the failure box
    };
    /// Called once.
    void verdrahten(const Aufbau &aufbau);

    void Form_Load() override;

    virtual void beschriften() = 0;
    /// The question about the record of this key. Raises what fails.
    virtual platform::Text frage(Schlüssel schlüssel) = 0;
    /// The record is gone: no longer chosen for the session.
    virtual void abwählen(Schlüssel schlüssel) = 0;
    /// Something of it may be left; the question stands anew.
    virtual void nachFehler(Schlüssel) {}

  private:
    void fnc_FrageZeigen();
    void ja_Click();
    void löschen();

    Aufbau mAufbau{};
    Schlüssel mSchlüssel = 0;
};
