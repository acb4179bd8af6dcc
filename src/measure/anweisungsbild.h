// The pictures of what is to be done at the shaft.
#pragma once

#include "windows/zeichen.h"

enum class Anweisung {
    Abkoppeln, ///< the shaft apart from the standard, with an arrow away from it
    Ankoppeln, ///< the shaft joined and aligned, with an arrow to the standard
    Hebelarm,  ///< the lever arm level on the hexagon, on the left
    HebelarmRechts,
    Halt, ///< not with this unit: the cross of a refusal
};
/// For a picture of 220 by 150.
void anweisungZeigen(platform::Bild &bild, Anweisung anweisung);
