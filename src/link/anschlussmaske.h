// A screen for port and parameters of a serial line. Moving the scroll bar tries the port at once,
// so it is shown modal and never while an exchange is under way.
#pragma once

#include "link/anschluss.h"
#include "session/screens.h"
#include "ui_anschlussmaske.h"

class Anschlussmaske : public Screen {
  protected:
    explicit Anschlussmaske(const Anschluss &anschluss);

    virtual void pbok_Click() = 0;
    /// Puts the row into the fields; nothing is tried. Raises as leitungLesen.
    void einstellungZeigen();
    Schnittstelle felder() const;
    /// Whether the port is there.
    void zustandZeigen();

    Ui::anschlussmaske ui;
    const Anschluss &mAnschluss;

  private:
    void SbCOM_Change();

    bool mVersuchLäuft = false;
};
