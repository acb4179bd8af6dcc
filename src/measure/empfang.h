// The receiving end of the six-round stream: asks for it, decodes it, and hands each value on as it
// comes. Runs until the measurement's status says otherwise.
#pragma once

#include "platform/clock.h"

/// Where the values go, and who may end the reception.
class Messanzeige {
  public:
    virtual ~Messanzeige() = default;
    virtual void zeigeDrehzahl(double drehzahl) = 0;     // 1/min
    virtual void zeigeDrehmoment(double drehmoment) = 0; // N m
    virtual void zeigeLeistung(double leistung) = 0;     // W
    /// A frame is complete.
    virtual void rahmenFertig() = 0;
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
