#include "calibration/achse.h"

#include "platform/runtime.h"

namespace {

// Decimal values have no exact binary ones: 10.02 × 1000 must not fall below 10020.
double tausendstel(double wert) {
    return Int(Round(wert * 1000, 6)) / 1000;
}

} // namespace

Achse achsengrenzen(double größter, double kleinster) {
    größter += 0.005;
    kleinster -= 0.005;
    double abstand = Round(größter - kleinster, 9);
    if (abstand < 0.04)
        abstand = 0.04 - abstand;
    return {tausendstel(kleinster - abstand / 2), tausendstel(abstand / 2 + größter)};
}
