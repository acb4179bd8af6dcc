// Asks before the customer that the list of customers shows is deleted, and deletes it with all
// its units and protocols.
#pragma once

#include "masterdata/loeschabfrage.h"
#include "ui_frmLoeschKunde.h"

class frmLöschKunde : public Löschabfrage {
  public:
    static constexpr frm id = frm::LöschKunde;
    frmLöschKunde();

  private:
    void beschriften() override;
    platform::Text frage(Schlüssel kundenID) override;
    void abwählen(Schlüssel kundenID) override;
    void nachFehler(Schlüssel kundenID) override;

    Ui::frmLöschKunde ui;
    int mGeräte = 0; ///< units of the customer when it was asked last
    int mGeräteZuvor = 0;
};
