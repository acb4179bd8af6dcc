// Static zero-point correction and gain check: stops the motor, has the shaft uncoupled, reads
// offset and gain at rest, judges them and writes them to the controller.
#pragma once

#include "measure/statik.h"
#include "session/screens.h"
#include "ui_frmStatMessen.h"

class frmStatMessen : public Screen {
  public:
    static constexpr frm id = frm::StatMessen;
    frmStatMessen();

    void showInfo(const QString &text) override { ui.laInfo->setText(text); }

  protected:
    void Form_Load() override;
    void Form_Activate() override;
    bool Form_QueryUnload() override;
    void Form_Unload() override;

  private:
    void fnc_StatVorbereiten();
    void fnc_StatMessen();
    bool fnc_Messung(std::uint8_t code);
    void fnc_StatAbschluss();
    void fnc_StatSchreiben();
    void pbWeiter_Click();
    void pbAbbrechen_Click();

    Ui::frmStatMessen ui;
    bool mSollGelesen = false; ///< the working standard's own values are there
    bool mKorrigiert = false;  ///< the controller has the new values
};
