// Running-in: the countdown behind the motor, shown on the window that runs it.
#pragma once

#include "platform/clock.h"

inline Timer tiEinlauf(1000); ///< one tick a second while the countdown runs

/// Connects the timer; called once before the first use, and again after the clock was replaced.
void einlaufVorbereiten();

/// Sets the countdown from gEinlaufzeit, minutes.seconds: 10.75 gives 10 minutes and 75 seconds.
void einlaufzeitSetzen();
/// The same from gLaufzeitMin, whole minutes.
void laufzeitSetzen();

/// The motor has started: the countdown runs and gMotorStart is now.
void einlaufStarten();

/// One second of the countdown in gEinlaufMin and gEinlaufSek. True when it is over.
bool einlaufSekunde();

/// How long the motor ran goes to gRestMinuten and gRestSekunden.
void motorzeitMerken();
