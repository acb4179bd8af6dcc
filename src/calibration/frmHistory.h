// All calibrations by the lever arm: their distance from the reference over time, the list, which
// may be thinned, and the way into a spreadsheet.
#pragma once

#include "calibration/verlauf.h"
#include "controls/recordsetmodel.h"
#include "session/screens.h"
#include "ui_frmHistory.h"

class frmHistory : public Screen {
  public:
    static constexpr frm id = frm::History;
    frmHistory();

  protected:
    void Form_Load() override;
    bool Form_QueryUnload() override;

  private:
    void spaltenSetzen();
    void kurvenAnlegen();
    void aktualisieren();
    void verlaufZeigen();
    void zeileMarkieren();
    QString punkttext(int kurve, int wert) const;

    void pbDSLöschen_Click();
    void pbExcel_Click();

    enum Kurve { Rechts, Links, Oben, Unten, Marke };

    Ui::frmHistory ui;
    RecordsetModel dataHistory;
    Verlauf mVerlauf[2]; ///< Rechts, Links
};
