// Asks before the unit that the list of units shows is deleted, and deletes it with all its
// protocols.
#pragma once

#include "masterdata/loeschabfrage.h"
#include "ui_frmLoeschGeraet.h"

class frmLöschGerät : public Löschabfrage {
  public:
    static constexpr frm id = frm::LöschGerät;
    frmLöschGerät();

  private:
    void beschriften() override;
    platform::Text frage(Schlüssel gerätID) override;
    void abwählen(Schlüssel gerätID) override;

    Ui::frmLöschGerät ui;
};
