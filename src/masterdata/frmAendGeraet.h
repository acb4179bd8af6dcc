// Changes the unit that the list of units shows.
#pragma once

#include "masterdata/geraetemaske.h"

class frmÄndGerät : public Gerätemaske {
  public:
    static constexpr frm id = frm::ÄndGerät;
    frmÄndGerät() : Gerätemaske({"Gerät ändern", "Edit Unit"}) {}

  protected:
    void Form_Load() override;
    void pbSave_Click() override;

  private:
    Schlüssel mGerätID = 0; ///< 0 when nothing was loaded that could be saved
};
