// A new recipe: first its name and specification, then its steps one by one, each stored at once.
// From the moment the name is saved the recipe exists, so leaving decides whether it stays.
#pragma once

#include "masterdata/schritteditor.h"
#include "session/screens.h"
#include "ui_frmNeuRezept.h"

class frmNeuRezept : public Screen {
  public:
    static constexpr frm id = frm::NeuRezept;
    frmNeuRezept();

    // For the copy of another recipe's steps
    void fnc_GitterAktualisieren();
    void neuenSchrittFreigeben();

  protected:
    void Form_Load() override;
    void Form_Activate() override;
    bool Form_QueryUnload() override;
    void Form_Unload() override;

  private:
    void beschriften();

    // Name and specification
    void txtRezName_Change();
    void fnc_RezeptnameSpeichern();
    bool fnc_RezeptnameVorhanden();
    void schritteFreigeben();

    // Leaving
    void pbok_Click();
    bool verlassen();
    bool fnc_FrageVerwerfen();
    void fnc_RezeptlisteAktualisieren();

    // The step at hand. What ends in a failure box answers false.
    void schritteVerdrahten();
    void aktualisieren();
    bool neuerSchritt() const;
    void gitterZeigen(int zeile);
    void gitterGelesen();
    void gitterNachFehler();
    void fnc_SchrittAnzeigen();
    bool speichernMöglich();
    void fnc_SpeichernFreigeben();
    void hinweisNeuerSchritt();
    void fnc_NeuerSchritt();
    void pbSave_Click();
    void pbEinfuegen_Click();
    void pbLoeschen_Click();

    // Moving
    void fnc_NavigationFreigeben();
    void schrittWählen(int zeile);
    void gespeichertenZeigen();
    void DBGridRez_RowColChange();

    /// What the fields of the step hold.
    enum class Stand {
        Gesperrt, ///< nothing: no recipe name is saved
        Neu,      ///< a new step
        Nichts,   ///< nothing; a new step may be begun
        Gespeichert,
    };

    Ui::frmNeuRezept ui;
    Schritteditor mEditor{neuesRezept};
    Stand mStand = Stand::Gesperrt;
    bool mSpeicherbar = false; ///< all fields of the step hold text
    bool mBewegbar = false;    ///< among the stored steps
    bool mKopierbar = false;   ///< another recipe may go in: there has been no step yet
    bool mFertigbar = false;   ///< the grid shows the steps as they are stored, one at least
    bool mbKopiert = false;    ///< back from the copy, to be shown at the activation
    bool mbFertig = false;     ///< closes by pbok
};
