#include "masterdata/pruefschritt.h"

#include "platform/runtime.h"

using namespace platform;

namespace {

Wertprüfung wertPrüfen(const QString &text, double smallest, bool smallestToo, double greatest) {
    // Thousands in groups, as in "0,600", are another number to the torque check.
    if (!IsNumeric(text) || CDbl(text) != ValBeider(text))
        return Wertprüfung::NichtNumerisch;
    const double value = CDbl(text);
    const bool low = smallestToo ? value < smallest : value <= smallest;
    return low || value > greatest ? Wertprüfung::AußerhalbBereich : Wertprüfung::Gültig;
}

} // namespace

Wertprüfung drehzahlPrüfen(const QString &text, const Schrittgrenzen &grenzen) {
    return wertPrüfen(text, 0, grenzen.stillstand, grenzen.drehzahl);
}

Wertprüfung leistungPrüfen(const QString &text, const Schrittgrenzen &grenzen) {
    return wertPrüfen(text, 0, true, grenzen.leistung);
}

bool drehmomentZulässig(const QString &drehzahl, const QString &leistung,
                        const Schrittgrenzen &grenzen) {
    return drehmoment(ValBeider(drehzahl), ValBeider(leistung)) <= grenzen.drehmoment;
}
