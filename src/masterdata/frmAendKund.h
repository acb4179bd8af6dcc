// Changes the customer that the list of customers shows.
#pragma once

#include "masterdata/kundenmaske.h"
#include "session/auswahl.h"

class frmÄndKund : public Kundenmaske {
  public:
    static constexpr frm id = frm::ÄndKund;
    frmÄndKund()
        : Kundenmaske({.titel = {"Kunde ändern", "Edit Customer"},
                       .laden = "1140 - ",
                       .speichern = "1140 - ",
                       .gespeichert = {" Daten wurden geändert. ", " Data have been changed!"},
                       .änderung = true}) {}

  private:
    void speichern(const Kundendaten &kunde) override {
        kundeÄndern(kunde);
        if (gKundenID == kunde.kundenID)
            kundeUmbenennen(kunde.name);
    }
};
