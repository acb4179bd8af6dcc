// Changes the steps of a recipe on their working copy in ÄndRez_temp, which whoever opens this
// screen has filled. Leaving decides whether the copy goes back. The specification is no part of
// the copy: a new one is written at once and stays.
#pragma once

#include "controls/schrittgitter.h"
#include "masterdata/pruefschritt.h"
#include "records/arbeitskopie.h"
#include "records/rezept.h"
#include "records/schrittliste.h"
#include "session/screens.h"
#include "ui_frmAendRez.h"

#include <optional>

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
    Schritt eingegeben() const;
    void altWerteMerken();
    void felderLeeren();

    void fnc_Fill_CmbToleranz();
    void fnc_SchrittAnzeigen();
    bool fnc_SchrittPrüfen();
    bool fnc_DrehmomentPrüfen();
    std::optional<bool> fnc_SchrittVorhanden(const Schritt &schritt);
    void fnc_SchrittÄndern(const Schritt &schritt);

    void cmbToleranz_Change();
    void cmbToleranz_Click();
    void cmbToleranz_LostFocus();
    void cmbPrArt_Change();
    void cmbPrArt_LostFocus();
    void txtDrehzahl_LostFocus();
    void txtLeistung_LostFocus();
    struct Wertmeldung {
        platform::Text keineZahl, außerhalb, titel;
    };
    void wertAnnehmen(QLineEdit *feld, const QString &altWert, Wertprüfung prüfung,
                      const Wertmeldung &meldungen);

    void pbSpeichern_Click();
    void pbNeu_Click();
    void pbEinfuegen_Click();
    void pbLoeschen_Click();
    void gitterNachFehler();
    void schrittWählen(int zeile);
    void pbok_Click();
    void pbexit_Click();

    Ui::frmÄndRez ui;
    Schrittliste mListe{"ÄndRez_temp"};
    Arbeitskopie mKopie{ordentlicheRezepte.schritte};
    Schrittgitter mGitter;

    bool mbGeändert = false; ///< by a field or the specification; steps put in or taken out don't
    Abschluss mnAbschluss = Abschluss::Offen;
    QString mToleranz;          ///< the specification as it is stored
    bool mGezeigt = false;      ///< recipe and copy stand on the screen
    bool mOhneSchritt = true;   ///< no step is shown that could be saved, moved or deleted
    bool mNeuerSchritt = false; ///< the step shown is not stored yet

    // Text at focus
    QString msAltDrehzahl;
    QString msAltLeistung;
    QString msAltPrArt;
    QString msAltToleranz;
    // Last key, upper-cased, until the change of the text has used it up
    QString msToleranzTaste;
    QString msPrArtTaste;
};
