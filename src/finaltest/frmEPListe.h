// All final tests, the newest first; what is typed narrows them. The report of one opens from here.
#pragma once

#include <QDate>

#include "controls/recordsetmodel.h"
#include "records/epliste.h"
#include "session/screens.h"
#include "ui_frmEPListe.h"

/// What became of a test, in the language of the session: "3 Schritte, 2 OK, 1 außer Toleranz".
/// What there is none of is not told, but for what is OK.
QString epErgebnis(const EPZeile &zeile);

class frmEPListe : public Screen {
  public:
    static constexpr frm id = frm::EPListe;
    frmEPListe();

  protected:
    void Form_Load() override;

  private:
    void spaltenSetzen();
    void lesen();
    void filtern();
    void berichtFreigeben();
    void pbBericht_Click();
    /// The test of the current row; 0 without one.
    Schlüssel gewählt() const;

    Ui::frmEPListe ui;
    RecordsetModel dataListe;
    std::vector<EPZeile> mAlle;
};
