// Port and parameters of the serial line to the controller. Moving the scroll bar tries the port at
// once, so it is shown modal and never while an exchange is under way.
#pragma once

#include "session/screens.h"
#include "ui_frmInterface.h"

class frmInterface : public Screen {
  public:
    static constexpr frm id = frm::Interface;
    frmInterface();

  protected:
    void Form_Load() override;
    void Form_Unload() override;

  private:
    void beschriften();
    void fnc_InterfaceAnzeigen();
    void fnc_Zurücknehmen();
    void zustandZeigen();

    void SbCOM_Change();
    void pbok_Click();
    void pbSS2_Click();

    Ui::frmInterface ui;
    bool mVersuchLäuft = false;
    bool mGespeichert = false;
    int mVorher = 1; ///< the port in force before the trial
};
