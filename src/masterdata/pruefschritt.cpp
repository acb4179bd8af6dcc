#include "masterdata/pruefschritt.h"

#include "platform/runtime.h"
#include "session/sprache.h"
#include "windows/msgbox.h"

using namespace platform;

namespace {

Wertprüfung prüfen(const QString &text, double smallest, bool smallestToo, double greatest) {
    // Thousands in groups, as in "0,600", are another number to the torque check.
    if (!IsNumeric(text) || CDbl(text) != ValBeider(text))
        return Wertprüfung::NichtNumerisch;
    const double value = CDbl(text);
    const bool low = smallestToo ? value < smallest : value <= smallest;
    return low || value > greatest ? Wertprüfung::AußerhalbBereich : Wertprüfung::Gültig;
}

} // namespace

Wertprüfung drehzahlPrüfen(const QString &text, const Schrittgrenzen &grenzen) {
    return prüfen(text, 0, grenzen.stillstand, grenzen.drehzahl);
}

Wertprüfung leistungPrüfen(const QString &text, const Schrittgrenzen &grenzen) {
    return prüfen(text, 0, true, grenzen.leistung);
}

bool drehmomentZulässig(const QString &drehzahl, const QString &leistung,
                        const Schrittgrenzen &grenzen) {
    return drehmoment(ValBeider(drehzahl), ValBeider(leistung)) <= grenzen.drehmoment;
}

void drehmomentMelden(const Schrittgrenzen &grenzen) {
    const QString limit = QString::number(grenzen.drehmoment);
    meldung({"Das zulässige Drehmoment ist überschritten!\r\nBitte geben Sie andere Werte ein!",
             "The permissible torque has been exeeded!\r\nPlease enter other values!"},
            OKOnly, {"Drehmoment<=" + limit + "Nm", "Torque<=" + limit + "Nm"});
}

QString fehlendeAngaben(bool drehzahl, bool leistung, bool prüfart) {
    QString missing;
    if (drehzahl)
        missing = " die Drehzahl";
    if (leistung)
        missing += missing.isEmpty() ? " die Leistung" : ", Leistung";
    if (prüfart)
        missing += missing.isEmpty() ? " die Prüfart" : " und Prüfart";
    return missing;
}
