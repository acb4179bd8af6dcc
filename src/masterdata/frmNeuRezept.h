// A new recipe: first its name and specification, then its steps one by one, each stored at once.
// From the moment the name is saved the recipe exists, so leaving decides whether it stays.
#pragma once

#include "controls/schrittgitter.h"
#include "masterdata/pruefschritt.h"
#include "records/schrittliste.h"
#include "session/screens.h"
#include "ui_frmNeuRezept.h"

#include <optional>

class frmNeuRezept : public Screen {
  public:
    static constexpr frm id = frm::NeuRezept;
    frmNeuRezept();

    // For the copy of another recipe's steps
    void fnc_GitterAktualisieren();
    void neuenSchrittFreigeben() { ui.pbAddNew->setEnabled(true); }

  protected:
    void Form_Load() override;
    void Form_Activate() override;
    bool Form_QueryUnload() override;
    void Form_Unload() override;

  private:
    void beschriften();

    // Name and specification
    void fnc_Fill_CmbToleranz();
    void txtRezName_Change();
    void fnc_RezeptnameSpeichern();
    bool fnc_RezeptnameVorhanden();
    void schritteFreigeben();

    // Leaving
    void pbok_Click();
    bool verlassen();
    bool fnc_EingabeLeer() const;
    bool fnc_FrageVerwerfen();
    void fnc_RezeptlisteAktualisieren();

    // The step at hand. What ends in a failure box answers false or nothing.
    void schritteVerdrahten();
    Schritt gezeigterSchritt() const;
    void schrittnummerZeigen(int nummer);
    void felderLeeren();
    static void ohneTausenderpunkte(QLineEdit *feld);
    bool neuerSchritt() const;
    void gitterZeigen(int zeile);
    /// What a failed statement has left; a second failure is not told.
    void gitterNachFehler();
    void fnc_SchrittAnzeigen();
    bool txtDrehzahl_LostFocus();
    bool txtLeistung_LostFocus();
    bool feldGeprüft();
    bool wertAnnehmen(QLineEdit *feld, Wertprüfung prüfung, const platform::Text &nichtNumerisch,
                      const platform::Text &außerhalb);
    void cmbPrArt_Change();
    bool speichernMöglich();
    void fnc_SpeichernFreigeben();
    bool fnc_SchrittPrüfen();
    bool fnc_DrehmomentPrüfen();
    std::optional<bool> fnc_SchrittVorhanden();
    bool fnc_SchrittAnlegen();
    bool fnc_SchrittÄndern();
    void fnc_SchrittEinfügen(int nummer);
    void fnc_SchrittLöschen(int nummer);
    void hinweisNeuerSchritt();
    void fnc_NeuerSchritt();
    void pbSave_Click();
    void pbEinfuegen_Click();
    void pbLoeschen_Click();

    // Moving
    void fnc_NavigationFreigeben();
    void gehen(int zeile);
    void pbFirst_Click();
    void pbLast_Click();
    void pbNext_Click();
    void pbPrevious_Click();
    void schrittÄndern();
    void DBGridRez_RowColChange();
    void pbKopie_Click();

    Ui::frmNeuRezept ui;
    Schrittgitter mGitter;
    std::int16_t mnSchritt = 0; ///< number of the step being entered; 0 for none
    std::int16_t mnPrüfart = Prüfart::Keine;
    QString msPrArtTaste;      ///< last key in cmbPrArt
    bool mbPrArtTaste = false; ///< a key was pressed in cmbPrArt
    bool mbNavigation = false; ///< a stored step is shown: leaving txtDrehzahl is not checked once
    bool mbKopiert = false;    ///< back from the copy, to be shown at the activation
    bool mbFertig = false;     ///< closes by pbok
};
