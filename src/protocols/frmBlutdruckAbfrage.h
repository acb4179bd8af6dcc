// Asks under which protocol a sheet is entered, a new one or any that is not archived, and opens
// the sheet with it. Stands in front of the sheet's window; left without an answer it takes that
// along.
#pragma once

#include "protocols/protokollwahl.h"
#include "session/screens.h"
#include "ui_frmBlutdruckAbfrage.h"

class Prüfblatt;

class frmBlutdruckAbfrage : public Wahldialog<Screen> {
  public:
    static constexpr frm id = frm::BlutdruckAbfrage;
    frmBlutdruckAbfrage();

    /// Shows the window of the sheet, frm::Blutdruck or frm::SecControl, and this dialog before it.
    static void fragen(frm blatt);

  protected:
    void Form_Load() override;
    void Form_Activate() override;
    void Form_Unload() override;

  private:
    void fürBlatt(frm blatt);
    Prüfblatt *blatt() const;
    void fnc_ProtokollNrNeu();
    void fnc_VorschlagLaden();

    void obVorhanden_Click() override;
    void cmbVorhanden_KeyPress() override;
    void pbok_Click() override;

    Ui::frmBlutdruckAbfrage ui;
    frm mBlatt = frm::Blutdruck;
    bool mGewählt = false; ///< the sheet has its protocol
};
