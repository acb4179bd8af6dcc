// Time and load of running-in.
#pragma once

#include "session/screens.h"
#include "ui_frmEinlaufen.h"

class frmEinlaufen : public Screen {
  public:
    static constexpr frm id = frm::Einlaufen;
    frmEinlaufen();

  protected:
    void Form_Load() override;

  private:
    void pbok_Click();

    Ui::frmEinlaufen ui;
};
