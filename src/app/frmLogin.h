// Asks for the inspector's name.
#pragma once

#include "session/screens.h"
#include "ui_frmLogin.h"

class frmLogin : public Screen {
  public:
    static constexpr frm id = frm::Login;
    frmLogin();

  protected:
    void Form_Load() override;
    void Form_Unload() override;

  private:
    void pbok_Click();
    void pbCancel_Click();

    Ui::frmLogin ui;
    bool mAngemeldet = false;
};
