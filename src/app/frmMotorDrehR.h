// Choice of the motor's direction of rotation.
#pragma once

#include "session/screens.h"
#include "ui_frmMotorDrehR.h"

class frmMotorDrehR : public Screen {
  public:
    static constexpr frm id = frm::MotorDrehR;
    frmMotorDrehR();

  protected:
    void Form_Load() override;
    void Form_Activate() override;
    void Form_Unload() override;
    void mousePressEvent(QMouseEvent *event) override;

  private:
    void wählen(std::int16_t richtung);
    void bildZeigen(platform::Bild &bild, const QRadioButton &eigene, const QRadioButton &andere);
    void pbok_Click();
    void pbAbbrechen_Click();

    Ui::frmMotorDrehR ui;
    std::int16_t mVorher = 0; ///< direction before the choice
    bool mEntschieden = false;
};
