// The road of the desktop, from the first choice to the measurement: which station is next.
#pragma once

#include <optional>
#include <set>

/// In the order of the road; each has a button.
enum class Station { Kunde, Gerät, Rezept, Drehrichtung, MotorEin, Messen };

struct Wegstand {
    bool kunde = false, gerät = false, rezept = false, drehrichtung = false; ///< chosen
    bool dreht = false; ///< the shaft may be turning
    bool eingelaufen = false;
};

/// Nothing is left to do there. Direction and motor serve the running-in.
bool erledigt(Station station, const Wegstand &stand);

/// The station that waits for the operator, if its button can be pressed. None while the motor
/// runs in.
std::optional<Station> nächsterSchritt(const Wegstand &stand, const std::set<Station> &bedienbar);
