// Changes the steps of a recipe on their working copy in ÄndRez_temp, which whoever opens this
// screen has filled; the recipe stands in the key of its Rezeptart and in gRezeptWahl. Leaving
// decides whether the copy goes back. The tolerance of the recipe is no part of the copy: a new one
// is written at once and stays. The screens derived from it say what that is.
#pragma once

#include <optional>

#include "controls/kuerzelfeld.h"
#include "masterdata/schritteditor.h"
#include "records/arbeitskopie.h"
#include "session/screens.h"
#include "ui_rezeptaenderung.h"

class Rezeptänderung : public Screen {
  protected:
    struct Art {
        const Rezeptart &schritte;
        Rezepttabellen tabellen;
        frm liste; ///< from where the screen is opened
        /// A key in the box of the tolerance.
        std::optional<QString> (*zurTaste)(const QString &taste);
        struct Kennungen {
            const char *aktivieren, *anzeigen, *übernehmen, *verwerfen, *toleranz, *neu, *speichern,
                *einfügen, *löschen, *drehzahl, *leistung, *anzahl;
        } kennung; ///< of the failure boxes
    };
    explicit Rezeptänderung(const Art &art);

    void Form_Activate() override;
    bool Form_QueryUnload() override;
    void Form_Unload() override;

    /// Captions, also those of a screen that is activated again.
    virtual void beschriften();
    /// All that can be picked, into the box.
    virtual void toleranzenFüllen() = 0;
    /// The one of the recipe. Raises what fails.
    virtual QString toleranzInKraft() = 0;
    /// Gives it to the recipe. Raises what fails.
    virtual void toleranzSpeichern(const QString &name) = 0;
    virtual void toleranzGespeichert() {}
    virtual void tasteUnbekannt() = 0;
    /// A field was left with another value.
    virtual void angenommen(const QWidget *) { mbGeändert = true; }
    /// Asked before the copy goes back. False after a box that told why not.
    virtual bool übernehmbar() { return true; }
    /// The fields show what is stored, or nothing.
    virtual void nichtsOffen() {}

    Ui::Rezeptänderung ui;
    Schritteditor mEditor;
    bool mbGeändert = false; ///< by a field or the tolerance; steps put in or taken out don't

  private:
    enum class Abschluss { Offen, Übernehmen, Verwerfen, NeuerSchritt };

    void felderVerdrahten();
    void toleranzVerdrahten();
    void zeigen();
    bool kopieAbschließen(bool übernehmen);
    void aktualisieren();

    void cmbToleranz_Click();
    void cmbToleranz_LostFocus();
    void letztesFeldVerlassen();

    void fnc_SchrittAnzeigen();
    void pbSpeichern_Click();
    void pbNeu_Click();
    void pbEinfuegen_Click();
    void pbLoeschen_Click();
    void schrittWählen(int zeile);
    void pbok_Click();
    void pbexit_Click();

    const Art mArt;
    Arbeitskopie mKopie;
    Kürzelfeld mToleranzKürzel;

    Abschluss mnAbschluss = Abschluss::Offen;
    QString mToleranz;          ///< the tolerance as it is stored
    QString msAltToleranz;      ///< its text at focus
    bool mGezeigt = false;      ///< recipe and copy stand on the screen
    bool mOhneSchritt = true;   ///< no step is shown that could be saved, moved or deleted
    bool mNeuerSchritt = false; ///< the step shown is not stored yet
};
