// Enters a new unit of the chosen customer.
#pragma once

#include "masterdata/geraetemaske.h"

class frmNeuGerät : public Gerätemaske {
  public:
    static constexpr frm id = frm::NeuGerät;
    frmNeuGerät()
        : Gerätemaske({.titel = {"Neues Gerät", "New Unit"},
                       .laden = "1061 - ",
                       .speichern = "1060 - ",
                       .gespeichert = {"Daten wurden gespeichert!", "Data have been saved!"},
                       .änderung = false}) {}

    void showInfo(const QString &text) override { bemerken(text); }

  protected:
    void Form_Unload() override { gNeuModus = false; }

  private:
    void speichern(const Gerätedaten &gerät) override {
        gerätEinfügen(gKundenID, gerät);
        if (gNeuModus) // the customer's first: the list of units was skipped, and comes now
            gDesktopFolge = Desktopfolge::Gerät;
    }
};
