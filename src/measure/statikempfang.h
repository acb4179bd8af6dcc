// The reception of a static stream: raw samples of the torque channel at rest or under a load.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

#include "platform/text.h"

struct Statikstrom {
    std::uint8_t code;   ///< codeOffset or codeGain
    int verworfen = 150; ///< samples that are dropped first, while the reading settles
    int anzahl = 25;     ///< samples that are wanted behind them
    /// What is told under which title when the time is over though samples had come.
    platform::Text mittendrin = {"Nach 15 Sek kein Empfang", "No reception after 15 sec!"};
    platform::Text mittendrinTitel = {"Meldung", "Message"};
};

/// Asks for the stream and answers the raw values wanted, or nothing when 15 s have passed, the
/// program ends or `abbruch` says so. Ends the stream in any case. `fortschritt` is told the number
/// of samples so far, the dropped ones among them, from 1. Pumps events, tells a time-out in a box
/// unless `abbruch`; raises what the line raises.
std::optional<std::vector<double>> statikEmpfangen(const Statikstrom &strom,
                                                   const std::function<void(int)> &fortschritt,
                                                   const std::function<bool()> &abbruch);

/// Of one value at least.
double mittelwert(const std::vector<double> &werte);
