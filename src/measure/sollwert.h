// What may be typed into the set-point boxes of the measurement screen.
#pragma once

#include "platform/fehler.h"

struct Sollwertgrenze {
    double höchstens; ///< 1/min or W; not below 0
    Text keineZahl;
    Text außerhalb;

    /// What is wrong with a text, or nullptr.
    const Text *mangel(const QString &text) const;
};

extern const Sollwertgrenze drehzahlgrenze;
extern const Sollwertgrenze leistungsgrenze;

/// The speed that a pass may send at most, 1/min: 10 % above the limit, for the correction.
inline constexpr double höchsterSollwert = 143;
