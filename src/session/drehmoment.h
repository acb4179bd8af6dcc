// The torque that a set-point asks of the stand.
#pragma once

inline constexpr double grenzDrehmoment = 60; ///< N m, permissible

/// Torque in N m from speed in 1/min and power in W, with 3.14 for π as everywhere in the system:
/// M = P / n * 60 / 2 / 3.14 (power = torque times angular speed). 0 at standstill.
constexpr double drehmoment(double drehzahl, double leistung) {
    return drehzahl == 0 ? 0 : leistung / drehzahl * 60 / 2 / 3.14;
}
