// Keeps the specifications: new ones, changes, deletion. Three states: idle, new (mbNeu) and edit
// (mbBearbeiten), which picking an entry begins.
//
// Only pbSave and the questions of pbok write. A Yes to a question of the picker drops the input as
// a No does.
#pragma once

#include <functional>

#include "controls/kuerzelfeld.h"
#include "records/toleranz.h"
#include "session/screens.h"
#include "ui_frmToleranzen.h"

class frmToleranzen : public Screen {
  public:
    static constexpr frm id = frm::Toleranzen;
    frmToleranzen();

    // Saving asks neither: the values of another specification are allowed. True when a box told of
    // a duplicate, or of values out of range.
    bool func_Test_Double();
    bool func_Test_Interval();

  protected:
    void Form_Load() override;
    void Form_Unload() override;

  private:
    void verdrahten();
    void beschriften();
    void aktualisieren();
    void speicherbar(bool möglich);
    void blockZeigen(bool sichtbar);
    void zeileZeigen();
    void felderLeeren();
    void felderZeigen();
    Toleranz eingabe() const;

    void altWertMerken();
    void änderungPrüfen(const QLineEdit *feld);
    void vollständigkeitPrüfen();
    bool speichernFreigeben();
    void zurückweisen(QLineEdit *feld, const QString &text);
    void zahlPrüfen(QLineEdit *feld, double größter, const Text &text, const Text &titel,
                    const std::function<void(const QString &)> &runden);

    void fnc_Fill_CmbBezTol();
    void fnc_Fill_CmbGKlasse();
    void fnc_Find_ToleranzID();
    void func_Round_Procent(const QString &text);
    void func_Round_Watt(const QString &text);

    void cmbBezTol_Click();
    void auswahlImNeuModus();
    void auswahlNachÄnderung();
    void cmbGKlasse_Change();
    void txtTolBez_LostFocus();
    void txtTolProz_LostFocus();
    void txtTolWatt_LostFocus();
    void txtAbw_LostFocus();
    void txtMessverfahren_LostFocus();
    void pbNew_Click();
    void pbEdit_Click();
    void pbDelete_Click();
    void pbSave_Click();
    void neueSpeichern();
    void änderungSpeichern();
    void pbok_Click();

    Ui::frmToleranzen ui;
    Schlüssel mnToleranzID = 0; ///< of the row picked last
    bool mbNeu = false;
    bool mbBearbeiten = false;
    bool mNeuBegonnen = false; ///< a new one stands in the fields, also one that saving refused
    bool mAusgewählt = false;  ///< the picker has shown a row that may be deleted
    bool mSpeicherbar = false;
    bool mbGeändert = false; ///< in edit mode, a field differs from when it took the keyboard
    QString msAltWert;       ///< in edit mode, what it held then; for txtTolWatt the percentage
    Kürzelfeld mKlasse;
    Recordset mrsToleranzen; ///< behind cmbBezTol, in its order
};
