// The desktop of the final test: the head of one tested device, running-in under load, the start of
// the unattended measurement. While it is loaded the whole program is in the mode of the final
// test.
#pragma once

#include <optional>
#include <vector>

#include "finaltest/kopffelder.h"
#include "link/motorbedienung.h"
#include "session/screens.h"
#include "ui_frmEndpruef.h"

class frmEndprüf : public Screen, public Motorfenster {
  public:
    static constexpr frm id = frm::Endprüf;
    frmEndprüf();
    ~frmEndprüf() override;

    // Motorfenster. The motor's buttons of the desktop below follow.
    void setMoteinEnabled(bool enabled) override;
    void setMotausEnabled(bool enabled) override;
    void setDrehREnabled(bool enabled) override;
    void focusMotein() override { ui.pbMotein->setFocus(); }
    void focusMotaus() override { ui.pbMotaus->setFocus(); }
    /// The device has to be saved anew before it can be measured.
    void setMessenEnabled(bool enabled) override;
    void showDrehrichtung(const QString &wort) override;
    void showEinlauf(const QString &rest) override;
    QString drehrichtung() const override { return ui.lbDrehrichtung->text(); }
    void showMotorInfo(const QString &text) override;
    void showMotorEin(const QString &text) override;
    void showWelle() override;
    void enableFront() override { enable(); }
    void disableFront() override { disable(); }
    void focusBeenden() override;

  protected:
    void Form_Load() override;
    void Form_Activate() override;
    bool Form_QueryUnload() override;
    void Form_Unload() override;

  private:
    void felderVerdrahten();
    void rezeptVerdrahten();

    // What the boxes say
    QStringList texte() const;
    /// The same and the recipe: what a saved device is compared by.
    QStringList stand() const;
    bool pflichtDa() const;
    bool wieGespeichert() const { return mGespeichert && *mGespeichert == stand(); }

    void fnc_KalDatSetzen();
    /// Lists the recipes; the text stays, or without one the recipe to begin with is shown.
    void fnc_RezepteFüllen(const QString &text = {});
    void fnc_GerätetypVorbelegen();
    // True when it was done; a failure is told.
    bool fnc_RezeptÜbernehmen();
    bool fnc_EPEinfügen();
    bool fnc_EPÄndern(Schlüssel vorhandenes);
    void fnc_SpeichernFreigeben();
    void fnc_EinlaufLastSenden();
    void speichern();
    void leeren();
    bool messrezeptEinsetzen();
    void wegZeigen();
    void laufZeigen();

    void cmbRezName_Change();
    void cmbRezName_Enter();
    void cmbRezName_LostFocus();
    void pbok_Click();
    void pbEingNeu_Click();
    void pbMessen_Click();
    void pbMotein_Click();
    void pbMotaus_Click();
    void pbProtokoll_Click();

    Ui::frmEndprüf ui;
    Motorbedienung mMotor;
    std::vector<QLineEdit *> mBoxen; ///< in the order of kopffelder()
    bool mRezeptOK = false;
    bool mNeueEingabe = false;               ///< the next saving ends in a new entry
    bool mMeldetEin = false;                 ///< the line tells that the motor is switched on
    bool mBericht = false;                   ///< a measurement has just ended
    bool mGemessen = false;                  ///< the saved device has been through a measurement
    std::optional<QStringList> mGespeichert; ///< stand() of the saved device
};
