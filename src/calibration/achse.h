// The value axis of the charts of a calibration history.
#pragma once

struct Achse {
    double unten = 0, oben = 0; ///< N m, three decimals
};

/// Limits for values between the two, in N m without sign, with half of their distance as air on
/// either side.
Achse achsengrenzen(double größter, double kleinster);
