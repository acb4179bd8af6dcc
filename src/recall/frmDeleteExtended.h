// Lists archived protocols through filters and deletes all that are left.
#pragma once

#include "recall/filtermaske.h"

class frmDeleteExtended : public Filtermaske {
  public:
    static constexpr frm id = frm::DeleteExtended;
    frmDeleteExtended();

  protected:
    void Form_Load() override;
    void füllen(int position) override;
    void fnc_Abfrage() override;

  private:
    void fnc_FillCmbKunden();
    void fnc_FillCmbID();
    void fnc_FillCmbTyp();
    void fnc_fillcmbIdent();
    void auflisten(std::vector<Schlüssel> protokolle);
    bool bestätigt() const;
    void pbDelete_Click();
    void löschen();

    std::vector<Schlüssel> mProtokolle; ///< in the order of the list
};
