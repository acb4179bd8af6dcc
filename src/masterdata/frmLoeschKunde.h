// Asks before the customer that the list of customers shows is deleted, and deletes it with all
// its units and protocols.
#pragma once

#include "screens.h"
#include "ui_frmLoeschKunde.h"

class frmLöschKunde : public Screen {
  public:
    static constexpr frm id = frm::LöschKunde;
    frmLöschKunde();

  protected:
    void Form_Load() override;

  private:
    void beschriften();
    void fnc_FrageZeigen();
    void pbok_Click();

    Ui::frmLöschKunde ui;
    int mKundenID = 0;
};
