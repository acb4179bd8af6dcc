// Asks before the unit that the list of units shows is deleted, and deletes it with all its
// protocols.
#pragma once

#include "masterdata/loeschabfrage.h"
#include "session/session.h"
#include "ui_frmLoeschGeraet.h"

class frmLöschGerät : public Löschabfrage {
  public:
    static constexpr frm id = frm::LöschGerät;
    frmLöschGerät();

  protected:
    void Form_Load() override;

  private:
    void beschriften();
    void fnc_FrageZeigen();
    void pbYes_Click();
    void nachFehler();

    Ui::frmLöschGerät ui;
    Schlüssel mGerätID = 0;
};
