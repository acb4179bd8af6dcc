// The main window: shows what is selected, runs the motor for the running-in, starts everything
// else. Screens report back through session variables, which the activation here reads.
#pragma once

#include <map>
#include <optional>

#include "app/arbeitsweg.h"
#include "app/erstertag.h"
#include "app/seriennummer.h"
#include "link/motorbedienung.h"
#include "records/unterbrechung.h"
#include "session/motorfenster.h"
#include "session/screens.h"
#include "ui_frmDesktop.h"

class frmDesktop : public Screen, public Motorfenster {
  public:
    static constexpr frm id = frm::Desktop;
    frmDesktop();
    ~frmDesktop() override;

    /// What the selection allows.
    void DesktopButton_Freigeben();
    /// Asks the instrument for its serial number and takes its calibration data.
    void Seriennummer_ermitteln() { mSeriennummer.Seriennummer_ermitteln(); }

    // Motorfenster
    void setMoteinEnabled(bool enabled) override;
    void setMotausEnabled(bool enabled) override { ui.pbMotaus->setEnabled(enabled); }
    void setDrehREnabled(bool enabled) override;
    void focusMotein() override { ui.pbMotein->setFocus(); }
    void focusMotaus() override { ui.pbMotaus->setFocus(); }
    void setMessenEnabled(bool enabled) override;
    void showDrehrichtung(const QString &wort) override;
    void showEinlauf(const QString &rest) override;
    QString drehrichtung() const override { return ui.lbDrehrichtung->text(); }
    void showMotorInfo(const QString &text) override;
    void showMotorEin(const QString &text) override;
    void showWelle() override;
    void enableFront() override { enable(); }
    void disableFront() override { disable(); }
    void focusBeenden() override { ui.pbBeenden->setFocus(); }

  protected:
    void Form_Load() override;
    void Form_Activate() override;
    bool Form_QueryUnload() override;
    void Form_Unload() override;
    void keyPressEvent(QKeyEvent *event) override;

  private:
    void verdrahten();
    void öffnet(QPushButton *button, QAction *action, frm ziel, void (frmDesktop::*weg)());
    void beschriften();
    void systemNachlesen();
    void messenFreigeben(bool frei);
    void prüfstandFreigeben();
    void infoZeigen();
    void motorbilderZeigen();
    Wegstand wegstand() const;
    void wegZeigen();
    void tastaturFühren();
    void normalUndHebelarmZeigen();
    void hebelarmZeigen();
    void auswahlZeigen();
    void spracheSetzen(std::int16_t sprache);
    void hilfeÖffnen();

    // A session that was cut off (frmDesktop_unterbrechung.cpp)
    void unterbrechungLesen();
    void unterbrechungZeigen();
    void unterbrechungBeiWahl();
    void pbFortsetzen_Click();

    void mnuGerät_Click();
    void mnuRezept_Click();
    void mnuRezepte_Click();
    void mnuKalibrierung_Click();
    void mnuHelp_Click();
    void pbReset_Click();

    void pbMotein_Click();
    void pbMotaus_Click();
    void pbMessen_Click();
    void pbBlutdruck_Click();
    void pbSecControl_Click();
    void pbEndprüf_Click();

    Ui::frmDesktop ui;
    ErsterTag mErsterTag;
    Motorbedienung mMotor;
    Seriennummer mSeriennummer;
    int mAntwort = 0; ///< to the question whether the program shall end
    std::map<Station, QPushButton *> mWeg;
    std::optional<Unterbrechung> mUnterbrechung;
    QString mMotorInfo;
    bool mMeldetEin = false;      ///< the line tells that the motor is switched on
    bool mKorrekturFehlt = false; ///< the zero-point correction failed: measuring is locked
};
