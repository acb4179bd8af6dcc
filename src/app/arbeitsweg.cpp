#include "app/arbeitsweg.h"

bool erledigt(Station station, const Wegstand &stand) {
    switch (station) {
    case Station::Kunde:
        return stand.kunde;
    case Station::Gerät:
        return stand.gerät;
    case Station::Rezept:
        return stand.rezept;
    case Station::Drehrichtung:
        return stand.drehrichtung || stand.eingelaufen;
    case Station::MotorEin:
        return stand.dreht || stand.eingelaufen;
    case Station::Messen:
        break;
    }
    return false;
}

std::optional<Station> nächsterSchritt(const Wegstand &stand, const std::set<Station> &bedienbar) {
    for (const Station station : {Station::Kunde, Station::Gerät, Station::Rezept,
                                  Station::Drehrichtung, Station::MotorEin, Station::Messen}) {
        if (erledigt(station, stand))
            continue;
        const bool läuftEin = station == Station::Messen && !stand.eingelaufen;
        return läuftEin || !bedienbar.contains(station) ? std::nullopt : std::optional(station);
    }
    return {};
}
