// The receiving end of the six-round stream: asks for it, decodes it, and hands each value on as it
// comes. Runs until the measurement's status says otherwise.
#pragma once

#include "measure/sechsrunden.h"
#include "platform/clock.h"

/// Where the values go, and who may end the reception.
class Messanzeige {
  public:
    virtual ~Messanzeige() = default;
    /// A value has come: speed in 1/min, torque in N m, power in W. With the power the frame is
    /// complete.
    virtual void zeige(SechsRundenDecoder::Ereignis was, double wert) = 0;
    /// A newer pass wants the line: leave without touching anything.
    virtual bool abgelöst() const = 0;
};

/// Sends "6" and waits a moment. Shows its failures in a box.
void fnc_SechsRundenStarten();

/// Watches over the stream: a frame that was begun must end within 18 s.
class SechsRundenEmpfang {
  public:
    SechsRundenEmpfang();
    /// Returns when gMessStatus is above 0, gTimeoutTimer1 is set, the desktop is gone or a newer
    /// pass asks. Pumps events, so buttons act meanwhile. Shows its failures in a box.
    void fnc_SechsRundenEmpfang(Messanzeige &anzeige);

  private:
    void stop();

    Timer Timer1_6R; ///< armed by data, disarmed by a complete frame
    Timer Timer2_6R; ///< for the length of one transmission; armed by nobody so far
};
