// The entries of the running-in parameters.
#pragma once

#include <QString>

#include <optional>

inline constexpr double einlaufzeitGrenze = 60;      ///< minutes.seconds, itself refused
inline constexpr double einlaufLeistungGrenze = 800; ///< W, itself refused

/// The number in the text if it lies from 0 to below the limit. The session's decimal sign and the
/// other one are both taken, so 10.30 and 10,30 are the same time; 1.000 is a thousand where the
/// point groups digits.
std::optional<double> einlaufWert(const QString &text, double grenze);
