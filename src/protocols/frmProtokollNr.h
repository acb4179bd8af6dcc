// Asks under which protocol the measurement runs: a new one, an existing one that has no measured
// values yet, or the last one if nothing has changed since. Shown modally before a measurement.
#pragma once

#include "protocols/protokolldialog.h"
#include "protocols/protokollwahl.h"
#include "session/session.h"
#include "ui_frmProtokollNr.h"

class frmProtokollNr : public Wahldialog<Protokolldialog> {
  public:
    static constexpr frm id = frm::ProtokollNr;
    frmProtokollNr();

  protected:
    void Form_Load() override;
    QString titel() const override;

  private:
    void fnc_LeereProtokolle();
    bool fnc_LetztesProtokollPrüfen();
    void fnc_ProtokollNrNeu();
    void vorwählen(Schlüssel nummer);
    void listeLegen(int zeile);

    void obVorhanden_Click() override;
    void obLetztes_Click();
    void cmbVorhanden_KeyPress() override;
    void pbok_Click() override;

    Ui::frmProtokollNr ui;
    Schlüssel mnLetztesProtokoll = 0;   // highest with measured values
    Schlüssel mnLetztesProtokollID = 0; // the same once it may be continued
    QString msLetzterName;
};
