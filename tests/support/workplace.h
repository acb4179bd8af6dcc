// A whole workplace for a test: a workshop with the program started, and the roads that journeys
// have in common: login, choose [CUSTOMER | ]IDENT, RECIPE, select, direction, begin, correct,
// protocol NAME, measure, leave, whole NAME.
#pragma once

#include "way.h"

namespace support {

/// With the program started, at its first screen.
class Workplace : public Way {
  protected:
    Workplace();

    void start();
    Journey logIn();
    /// Nothing is left over: the desktop has the front and takes input, the motor is told to stand.
    void expectIdleDesktop();

  private:
    /// Direction if there is none, recipe anew if the desktop asks for it, "not yet run in" waived,
    /// up to the instruction to uncouple.
    Journey begin();
};

/// The demo's own: customer, ident number and recipe that journeys measure.
struct DemoNames {
    QString customer = "Klinikum Ährenfeld", ident = "AEH-001", recipe = "Kurzprüfung";
};

} // namespace support
