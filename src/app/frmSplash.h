// The first screen: opens the database, reads the settings of the system, leads to the login.
#pragma once

#include "platform/clock.h"
#include "session/screens.h"
#include "ui_frmSplash.h"

class frmSplash : public Screen {
  public:
    static constexpr frm id = frm::Splash;
    frmSplash();

  protected:
    void Form_Load() override;
    bool Form_QueryUnload() override;

  private:
    void tiFormVisible_Timer();

    Ui::frmSplash ui;
    Timer tiFormVisible{2000};
};
