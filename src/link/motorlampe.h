// The motor as a picture on the window that runs it.
#pragma once

#include "windows/zeichen.h"

/// Whether the shaft may be turning: a hollow ring with a square, or a filled disc with the arrow
/// of the direction. The lamp reads gMotorEin whenever it is painted; call this when that, the
/// direction or the language has changed.
void motorZeigen(platform::Bild &lampe);

/// The arrow of the chosen direction, and nothing without one.
void richtungZeigen(platform::Bild &pfeil);
