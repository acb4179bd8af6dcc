// The entry of a unit of the chosen customer: layout, captions, order of the fields, and what is
// refused. The screens derived from it say what is loaded and what is saved.
#pragma once

#include "platform/text.h"
#include "records/geraetedaten.h"
#include "session/screens.h"
#include "ui_geraetemaske.h"

#include <optional>

class Gerätemaske : public Screen {
  protected:
    explicit Gerätemaske(const platform::Text &titel);

    virtual void pbSave_Click() = 0;

    /// Captions, the customer's name, and the keyboard to the type.
    void vorbereiten();
    void eintragen(const Gerätedaten &gerät);
    Gerätedaten eingabe() const;
    /// False, and told why, when something is missing or another unit has the ident number; not if
    /// it was so before. `gerätID` is the unit that is changed, 0 for a new one.
    bool prüfen(Schlüssel gerätID);
    /// Closes, and lets the list of units show this one.
    void schließen(const QString &identNr);
    void setSpeichernEnabled(bool enabled) { ui.pbSave->setEnabled(enabled); }
    /// A remark above the fields; none without a text.
    void bemerken(const QString &text);

  private:
    Ui::Gerätemaske ui;
    platform::Text mTitel;
    std::optional<Gerätedaten> mVorher; ///< of the unit that is changed
};
