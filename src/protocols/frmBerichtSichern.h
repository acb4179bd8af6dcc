// A question: shall the protocol be printed, or saved?
#pragma once

#include "session/screens.h"
#include "ui_frmBerichtSichern.h"

class frmBerichtSichern : public Screen {
  public:
    static constexpr frm id = frm::BerichtSichern;
    frmBerichtSichern();

  protected:
    void Form_Load() override;

  private:
    void antworten(std::int16_t antwort);

    Ui::frmBerichtSichern ui;
};
