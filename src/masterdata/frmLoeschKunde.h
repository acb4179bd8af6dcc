// Asks before the customer that the list of customers shows is deleted, and deletes it with all
// its units and protocols.
#pragma once

#include "masterdata/loeschabfrage.h"
#include "session/session.h"
#include "ui_frmLoeschKunde.h"

class frmLöschKunde : public Löschabfrage {
  public:
    static constexpr frm id = frm::LöschKunde;
    frmLöschKunde();

  protected:
    void Form_Load() override;

  private:
    void beschriften();
    void fnc_FrageZeigen();
    void pbok_Click();
    void nachFehler();

    Ui::frmLöschKunde ui;
    Schlüssel mKundenID = 0;
    int mGeräte = 0; ///< units of the customer
};
