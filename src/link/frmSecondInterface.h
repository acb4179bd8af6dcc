// Port and parameters of the line to the ergometer. The port shown is that of the line, which
// takes the row at saving only; a port that was tried stays the line's.
#pragma once

#include "link/anschlussmaske.h"

class frmSecondInterface : public Anschlussmaske {
  public:
    static constexpr frm id = frm::SecondInterface;
    frmSecondInterface();

  protected:
    void Form_Load() override;
    void pbok_Click() override;
    bool anschlussVergeben(int port) override;

  private:
    void beschriften();
    void pbSS1_Click();

    int mStartwert = 0; ///< port of the line when the screen opened
};
