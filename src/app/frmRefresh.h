// Moves the rows of the database in use into the one of an update file, which takes its place when
// the program ends.
#pragma once

#include <QElapsedTimer>

#include "session/screens.h"
#include "store/rowcopy.h"
#include "ui_frmRefresh.h"

class frmRefresh : public Screen {
  public:
    static constexpr frm id = frm::Refresh;
    frmRefresh();

  protected:
    void Form_Load() override;
    bool Form_QueryUnload() override;

  private:
    void pbSearch_Click();
    void pbUpdateDb_Click();
    void pbexit_Click();

    bool fnc_SecCopy();
    void fnc_CopyTableContent();
    void fnc_CopyTableContent_v203(RowCopy &kopie);
    void fnc_CopyTableContent_v301(RowCopy &kopie);
    void fnc_CopyTableContent_v470(RowCopy &kopie);
    bool fnc_CopyTableContent_nkd(RowCopy &kopie);
    static bool fnc_TableSystemExists();

    void version203Kopieren(RowCopy &kopie);
    void abweichendeUnsicherheitMelden(const QStringList &tabellen);
    bool weiter();
    bool fortschritt(const CopyState &stand);
    void arbeitZeigen(bool läuft);
    void schrittZeigen(const Text &text);
    void freigeben();

    Ui::frmRefresh ui;
    QString mOrdner; ///< the program folder
    QElapsedTimer mGezeigt;
    bool mKopiert = false;
    bool mAbbruch = false; ///< asked for
};
