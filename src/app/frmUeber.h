// What this program is: version, licence, the libraries it stands on, where it works. The text can
// be copied.
#pragma once

#include "session/screens.h"
#include "ui_frmUeber.h"

class frmÜber : public Screen {
  public:
    static constexpr frm id = frm::Über;
    frmÜber();

  protected:
    void Form_Load() override;

  private:
    Ui::frmUeber ui;
};
