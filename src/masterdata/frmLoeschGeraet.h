// Asks before the unit that the list of units shows is deleted, and deletes it with all its
// protocols.
#pragma once

#include "screens.h"
#include "ui_frmLoeschGeraet.h"

class frmLöschGerät : public Screen {
  public:
    static constexpr frm id = frm::LöschGerät;
    frmLöschGerät();

  protected:
    void Form_Load() override;

  private:
    void beschriften();
    void fnc_FrageZeigen();
    void pbYes_Click();

    Ui::frmLöschGerät ui;
    int mGerätID = 0;
};
