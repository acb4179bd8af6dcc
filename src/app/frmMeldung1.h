// The notice that the running-in time is over. Closes by itself.
#pragma once

#include "platform/clock.h"
#include "session/screens.h"
#include "ui_frmMeldung1.h"

class frmMeldung1 : public Screen {
  public:
    static constexpr frm id = frm::Meldung1;
    frmMeldung1();

  protected:
    void Form_Load() override;
    void Form_Unload() override;

  private:
    Ui::frmMeldung1 ui;
    Timer mTimer1{2000};
};
