// The receiving end of the six-round stream: asks for it, decodes it, and hands each value on as it
// comes. Runs until the measurement's status says otherwise.
#pragma once

#include <functional>

#include "measure/sechsrunden.h"
#include "platform/clock.h"

/// Sends "6" and waits a moment. Shows its failures in a box.
void fnc_SechsRundenStarten();

/// Watches over the stream: a frame that was begun must end within 18 s.
class SechsRundenEmpfang {
  public:
    SechsRundenEmpfang();
    using Zeigen = std::function<void(SechsRundenDecoder::Ereignis, double wert)>;
    /// Hands on each value: speed in 1/min, torque in N m, and power in W, which completes a frame.
    /// Returns when gMessStatus is above 0, gTimeoutTimer1 is set, the desktop is gone, or a newer
    /// pass wants the line (`abgelöst`): then without touching anything. Where nobody watches
    /// (`allein`), a line that is silent for 18 s ends it, too. Pumps events, so buttons act
    /// meanwhile. Shows its failures in a box.
    void fnc_SechsRundenEmpfang(const Zeigen &zeigen, const std::function<bool()> &abgelöst,
                                bool allein = false);

  private:
    void stop();

    Timer
        Timer1_6R; ///< armed by data, or at once where nobody watches; a complete frame disarms it
    Timer Timer2_6R; ///< for the length of one transmission; armed by nobody so far
};
