// The trail: who changed which row when, newest first, narrowed by protocol, day and person. It is
// read in pieces, so that a long one keeps nobody waiting.
#pragma once

#include "controls/recordsetmodel.h"
#include "records/nachweis.h"
#include "session/screens.h"
#include "ui_frmNachweis.h"

class frmNachweis : public Screen {
  public:
    static constexpr frm id = frm::Nachweis;
    frmNachweis();

  protected:
    void Form_Load() override;
    bool Form_QueryUnload() override;

  private:
    void beschriften();
    void suchen();
    void pbBack_Click();
    void pbÄltere_Click();
    void lesen();
    void standZeigen();
    void änderungZeigen();
    void pbExcel_Click();

    Ui::frmNachweis ui;
    RecordsetModel mZeilen;
    Nachweisfilter mFilter; ///< of the rows shown; `vor` says where they go on
    bool mMehr = false;
};
