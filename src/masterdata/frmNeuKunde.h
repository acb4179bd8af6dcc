// Enters a new customer.
#pragma once

#include "masterdata/kundenmaske.h"

class frmNeuKunde : public Kundenmaske {
  public:
    static constexpr frm id = frm::NeuKunde;
    frmNeuKunde() : Kundenmaske({"Neuer Kunde", "New Customer"}) {}

  protected:
    void Form_Load() override;
    void pbSave_Click() override;
};
