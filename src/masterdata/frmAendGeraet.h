// Changes the unit that the list of units shows.
#pragma once

#include "masterdata/geraetemaske.h"

class frmÄndGerät : public Gerätemaske {
  public:
    static constexpr frm id = frm::ÄndGerät;
    frmÄndGerät();

  private:
    void laden() override;
    void speichern(const Gerätedaten &gerät) override;
};
