// Enters a new customer.
#pragma once

#include "masterdata/kundenmaske.h"

class frmNeuKunde : public Kundenmaske {
  public:
    static constexpr frm id = frm::NeuKunde;
    frmNeuKunde()
        : Kundenmaske({.titel = {"Neuer Kunde", "New Customer"},
                       .laden = "1051 - ",
                       .speichern = "1050 - ",
                       .gespeichert = {"Daten wurden gespeichert!", "Data have been saved!"},
                       .änderung = false}) {}

  private:
    void speichern(const Kundendaten &kunde) override { kundeEinfügen(kunde); }
};
