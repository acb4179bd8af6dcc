// Prints, hands out and deletes archived protocols.
#pragma once

#include "protocols/berichtsmaske.h"
#include "records/herausgabe.h"

class frmBericht1 : public Berichtsmaske {
  public:
    static constexpr frm id = frm::Bericht1;
    frmBericht1();

  protected:
    void Form_Load() override;
    void Form_Activate() override;
    void fnc_ProtokollListe() override;
    void auswahlGeändert() override;

  private:
    void kundeGewählt();
    void pbDelete_Click();
    void exportieren(HandoutFormat format);

    bool mNeuLesen = false; ///< the archive may have changed since the lists were filled
};
