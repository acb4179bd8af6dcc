// The local gravity, before the lever arm is measured.
#pragma once

#include "session/screens.h"
#include "ui_frmOberfl.h"

class frmOberfl : public Screen {
  public:
    static constexpr frm id = frm::Oberfl;
    frmOberfl();

  protected:
    void Form_Load() override;
    bool Form_QueryUnload() override;

  private:
    void pbAbbrechen_Click();

    Ui::frmOberfl ui;
};
