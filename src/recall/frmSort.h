// The recall list: customers and units with the date of their calibration and the month in which
// the next one falls due, into a spreadsheet and into letters.
#pragma once

#include <memory>

#include "recall/faelligkeit.h"
#include "recall/filtermaske.h"

class frmSort : public Filtermaske {
  public:
    static constexpr frm id = frm::Sort;
    frmSort();

  protected:
    void Form_Load() override;
    void füllen(int position) override;
    void fnc_Abfrage() override;

  private:
    void fnc_FillCmbKunden();
    void fnc_FillCmbPLZ();
    void fnc_FillCmbOrt();
    void fnc_FillCmbTyp();
    void fnc_FillCmbHerst();
    void auflisten(std::vector<Wiedervorlage> zeilen);
    void pbExcel_Click();
    void pbBriefe_Click();
    void gespeichert(const QString &pfad);
    Trefferliste::Zeile zeile(const Wiedervorlage &vorlage) const;

    std::shared_ptr<const std::vector<Wiedervorlage>> mZeilen;
};
