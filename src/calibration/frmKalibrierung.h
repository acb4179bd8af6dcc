// The calibration of the stand by its lever arm: the motor runs in, the zero point is corrected,
// gravity is entered, the mode is checked, both sides are measured. The stages are those of
// Formstatus; the screens above set one, the activation here goes on with it.
#pragma once

#include "link/motorbedienung.h"
#include "session/screens.h"
#include "ui_frmKalibrierung.h"

class frmKalibrierung : public Screen, public Motorfenster {
  public:
    static constexpr frm id = frm::Kalibrierung;
    frmKalibrierung();
    ~frmKalibrierung() override;

    /// How many sides have a value, 0 to 2.
    void seitenZeigen(int anzahl);

    // Motorfenster
    void focusMotaus() override { ui.pbAbbrechen->setFocus(); } // which stops the motor, too
    void showDrehrichtung(const QString &wort) override { ui.laDrehrichtung->setText(wort); }
    void showEinlauf(const QString &rest) override { ui.lbEinlauf->setText(rest); }
    QString drehrichtung() const override { return ui.laDrehrichtung->text(); }
    void showMotorInfo(const QString &text) override { ui.laInfo->setText(text); }
    void showMotorEin(const QString &text) override { showMotorInfo(text); }
    void showWelle() override;
    void enableFront() override { enable(); }
    void disableFront() override { disable(); }

  protected:
    void Form_Load() override;
    void Form_Activate() override;
    bool Form_QueryUnload() override;
    void Form_Unload() override;

  private:
    void pbStart_Click();
    void korrekturBeginnen();
    void schwereErfragen();
    void betriebsartPrüfen();
    void abgebrochenZeigen();
    void fertig(QLabel *stufe);

    Ui::frmKalibrierung ui;
    Motorbedienung mMotor;
};
