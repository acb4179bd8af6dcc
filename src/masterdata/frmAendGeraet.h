// Changes the unit that the list of units shows.
#pragma once

#include "masterdata/geraetemaske.h"
#include "session/auswahl.h"

class frmÄndGerät : public Gerätemaske {
  public:
    static constexpr frm id = frm::ÄndGerät;
    frmÄndGerät()
        : Gerätemaske({.titel = {"Gerät ändern", "Edit Unit"},
                       .laden = "1150 - ",
                       .speichern = "1150 - ",
                       .gespeichert = {" Daten wurden geändert. ", " Data have been changed!"},
                       .änderung = true}) {}

  private:
    void speichern(const Gerätedaten &gerät) override {
        gerätÄndern(gerät);
        if (gGerätID == gerät.gerätID)
            gerätUmbenennen(gerät.typ, gerät.identNr);
    }
};
