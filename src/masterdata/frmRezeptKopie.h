// Fills a new recipe, which has no steps yet, with the steps of another one. The recipe of the
// session stays the new one whatever is looked at here.
#pragma once

#include "masterdata/rezepttafel.h"
#include "ui_frmRezeptKopie.h"

class frmRezeptKopie : public Rezepttafel {
  public:
    static constexpr frm id = frm::RezeptKopie;
    frmRezeptKopie();

  protected:
    void Form_Load() override;
    void Form_Activate() override;
    void Form_Unload() override;

  private:
    void fnc_ListeFüllen();
    void cmbRezeptname_Change();
    bool fnc_SchrittAnlegen(const Recordset &schritt);
    void pbok_Click();

    Ui::frmRezeptKopie ui;
};
