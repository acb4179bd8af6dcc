// The notice between two steps: closes by itself, and its closing lets the next step begin.
#pragma once

#include "platform/clock.h"
#include "session/screens.h"
#include "ui_frmMeldung.h"

class frmMeldung : public Screen {
  public:
    static constexpr frm id = frm::Meldung;
    frmMeldung();

  protected:
    void Form_Load() override;
    void Form_Unload() override;

  private:
    Ui::frmMeldung ui;
    Timer mTimer1{2000};
};
