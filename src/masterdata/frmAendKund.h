// Changes the customer that the list of customers shows.
#pragma once

#include "masterdata/kundenmaske.h"

class frmÄndKund : public Kundenmaske {
  public:
    static constexpr frm id = frm::ÄndKund;
    frmÄndKund() : Kundenmaske({"Kunde ändern", "Edit Customer"}) {}

  protected:
    void Form_Load() override;
    void pbSave_Click() override;

  private:
    Schlüssel mKundenID = 0; ///< 0 when nothing was loaded that could be saved
};
