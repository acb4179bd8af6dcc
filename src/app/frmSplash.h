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
    void systemZeigen();
    void tiPrüfung_Timer();
    void tiFormVisible_Timer();

    Ui::frmSplash ui;
    bool mPrüft = false;
    Timer tiFormVisible{2000};
    Timer tiPrüfung{300}; ///< behind the first picture of this window
};
