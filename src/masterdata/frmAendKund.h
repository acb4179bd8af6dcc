// Changes the customer that the list of customers shows.
#pragma once

#include "masterdata/kundenmaske.h"

class frmÄndKund : public Kundenmaske {
  public:
    static constexpr frm id = frm::ÄndKund;
    frmÄndKund();

  private:
    void laden() override;
    void speichern(const Kundendaten &kunde) override;
};
