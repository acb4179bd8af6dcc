// Changes the steps of a recipe on their working copy in ÄndRez_temp, which whoever opens this
// screen has filled: recipe and specification stand in gRezeptID, gRezeptWahl and gRezeptName.
// Leaving decides whether the copy goes back. The specification is no part of the copy: a new one
// is written at once and stays.
#pragma once

#include "controls/kuerzelfeld.h"
#include "masterdata/schritteditor.h"
#include "records/arbeitskopie.h"
#include "records/rezept.h"
#include "session/screens.h"
#include "ui_frmAendRez.h"

class frmÄndRez : public Screen {
  public:
    static constexpr frm id = frm::ÄndRez;
    frmÄndRez();

  protected:
    void Form_Activate() override;
    bool Form_QueryUnload() override;
    void Form_Unload() override;

  private:
    enum class Abschluss { Offen, Übernehmen, Verwerfen, NeuerSchritt };

    void felderVerdrahten();
    void beschriften();
    void zeigen();
    bool kopieAbschließen(bool übernehmen);
    void aktualisieren();

    void cmbToleranz_Click();
    void cmbToleranz_LostFocus();
    void cmbPrArt_LostFocus();

    void fnc_SchrittAnzeigen();
    void pbSpeichern_Click();
    void pbNeu_Click();
    void pbEinfuegen_Click();
    void pbLoeschen_Click();
    void schrittWählen(int zeile);
    void pbok_Click();
    void pbexit_Click();

    Ui::frmÄndRez ui;
    Schritteditor mEditor{geändertesRezept};
    Arbeitskopie mKopie{ordentlicheRezepte.schritte};
    Kürzelfeld mToleranzKürzel;

    bool mbGeändert = false; ///< by a field or the specification; steps put in or taken out don't
    Abschluss mnAbschluss = Abschluss::Offen;
    QString mToleranz;          ///< the specification as it is stored
    QString msAltToleranz;      ///< its text at focus
    bool mGezeigt = false;      ///< recipe and copy stand on the screen
    bool mOhneSchritt = true;   ///< no step is shown that could be saved, moved or deleted
    bool mNeuerSchritt = false; ///< the step shown is not stored yet
};
