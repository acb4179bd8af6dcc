// Enters a new customer.
#pragma once

#include "masterdata/kundenmaske.h"

class frmNeuKunde : public Kundenmaske {
  public:
    static constexpr frm id = frm::NeuKunde;
    frmNeuKunde()
        : Kundenmaske({{"Neuer Kunde", "New Customer"},
                       "1051 - ",
                       "1050 - ",
                       {"Daten wurden gespeichert!", "Data have been saved!"},
                       false}) {}

  private:
    void speichern(const Kundendaten &kunde) override { kundeEinfügen(kunde); }
};
