// Instruction behind the zero-point correction, and in the lever-arm sequence.
#pragma once

#include "measure/anweisungsbild.h"
#include "platform/fehler.h"
#include "session/screens.h"
#include "ui_frmNachStatNPK.h"

class frmNachStatNPK : public Screen {
  public:
    static constexpr frm id = frm::NachStatNPK;
    frmNachStatNPK();

    /// Another caption, text and picture than the ones that the stage of the sequence gives.
    void anzeigen(const Text &titel, const Text &text, Anweisung bild);

  protected:
    void Form_Load() override;
    void Form_Unload() override;

  private:
    void pbok_Click();

    Ui::frmNachStatNPK ui;
};
