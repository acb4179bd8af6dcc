// Instruction before the zero-point correction.
#pragma once

#include "session/screens.h"
#include "ui_frmVorStatNPK.h"

class frmVorStatNPK : public Screen {
  public:
    static constexpr frm id = frm::VorStatNPK;
    frmVorStatNPK();

  protected:
    void Form_Load() override;

  private:
    Ui::frmVorStatNPK ui;
};
