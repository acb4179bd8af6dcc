// A screen for port and parameters of a serial line. Moving the scroll bar tries the port at once,
// so it is shown modal and never while an exchange is under way.
#pragma once

#include <optional>

#include "link/anschluss.h"
#include "session/screens.h"
#include "ui_anschlussmaske.h"

class Anschlussmaske : public Screen {
  protected:
    explicit Anschlussmaske(const Anschluss &anschluss);

    virtual void pbok_Click() = 0;
    /// The port may not be taken: told here, and the bar goes elsewhere.
    virtual bool anschlussVergeben(int) { return false; }
    /// Puts the row into the fields, or its parameters and another port; nothing is tried. Raises
    /// as leitungLesen.
    void einstellungZeigen(std::optional<int> port = {});
    Schnittstelle felder() const;
    /// Whether the port is there. While it is not, Label4 has mOhneAnschluss and the ports that
    /// are.
    void zustandZeigen();

    Ui::anschlussmaske ui;
    const Anschluss &mAnschluss;
    QString mOhneAnschluss; ///< what cannot be done without the port

  private:
    void SbCOM_Change();
    QString fehlendesZeigen() const;

    bool mVersuchLäuft = false;
};
