// Port and parameters of the serial line to the controller.
#pragma once

#include "link/anschlussmaske.h"

class frmInterface : public Anschlussmaske {
  public:
    static constexpr frm id = frm::Interface;
    frmInterface();

  protected:
    void Form_Load() override;
    void Form_Unload() override;
    void pbok_Click() override;

  private:
    void fnc_Zurücknehmen() const;
    void pbSS2_Click();

    bool mGespeichert = false;
    int mVorher = 0; ///< the port in force before the trial
};
