// Enters a new unit of the chosen customer.
#pragma once

#include "masterdata/geraetemaske.h"

class frmNeuGerät : public Gerätemaske {
  public:
    static constexpr frm id = frm::NeuGerät;
    frmNeuGerät() : Gerätemaske({"Neues Gerät", "New Unit"}) {}

    void showInfo(const QString &text) override { bemerken(text); }

  protected:
    void Form_Load() override;
    void Form_Unload() override;
    void pbSave_Click() override;
};
