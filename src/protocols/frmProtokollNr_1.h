// The dialog for the protocol of a measurement reduced to the name of a new protocol.
#pragma once

#include "protocols/protokolldialog.h"
#include "ui_frmProtokollNr_1.h"

class frmProtokollNr_1 : public Protokolldialog {
  public:
    static constexpr frm id = frm::ProtokollNr_1;
    frmProtokollNr_1();

  protected:
    void Form_Load() override;
    QString titel() const override;

  private:
    void beschriften();
    void fnc_ProtokollNrNeu();
    void pbok_Click();
    void pbexit_Click();

    Ui::frmProtokollNr_1 ui;
};
