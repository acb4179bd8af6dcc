// What the set-point boxes of the measurement screen have in common. No widget.
#pragma once

#include <QString>

#include "platform/fehler.h"

inline const Text drehzahlAußerhalb{"Drehzahl liegt außerhalb des gültigen Bereiches",
                                    "The permissible number of revolutions has been exeeded!"};

/// The number that goes to the controller for the text of a box, with comma or point; 0 for no
/// number.
double boxWert(QString text);
