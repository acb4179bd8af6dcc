// What the set-point boxes of the measurement screen have in common.
#pragma once

#include <QString>

#include "platform/fehler.h"

inline const Text drehzahlAußerhalb{"Drehzahl liegt außerhalb des gültigen Bereiches",
                                    "The permissible number of revolutions has been exeeded!"};
