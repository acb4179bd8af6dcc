// Lines to an ergometer by hand, and what comes back. Its captions are the same in both languages.
#pragma once

#include "session/screens.h"
#include "ui_frmTest.h"

class frmTest : public Screen {
  public:
    static constexpr frm id = frm::Test;
    frmTest();

    /// As that of the line, with a failure box of its own.
    QByteArray fnc_Transformation(const QString &text);

  protected:
    void Form_Load() override;

  private:
    void pbSend_Click();
    void senden(const QString &zeile);
    void pbSave_Click();

    Ui::frmTest ui;
};
