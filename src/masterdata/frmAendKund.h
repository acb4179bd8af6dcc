// Changes the customer that the list of customers shows.
#pragma once

#include "masterdata/kundenmaske.h"
#include "session/auswahl.h"

class frmÄndKund : public Kundenmaske {
  public:
    static constexpr frm id = frm::ÄndKund;
    frmÄndKund()
        : Kundenmaske({{"Kunde ändern", "Edit Customer"},
                       "1140 - ",
                       "1140 - ",
                       {" Daten wurden geändert. ", " Data have been changed!"},
                       true}) {}

  private:
    void speichern(const Kundendaten &kunde) override {
        kundeÄndern(kunde);
        if (gKundenID == kunde.kundenID)
            kundeUmbenennen(kunde.name);
    }
};
