#include "measure/vorschau.h"

#include <algorithm>
#include <cmath>

#include "platform/runtime.h"
#include "session/sprache.h"

using namespace platform;

Vorschau::Vergleich leistungsVergleich(const Abstand &abstand) {
    return {inSprache({"Abweichung: Normal P − Soll P", "Deviation: standard P − setpoint P"}), "W",
            abstand};
}

Vorschau::Vergleich drehzahlVergleich(const Abstand &abstand) {
    return {
        inSprache({"Abweichung: Ergometer n − Normal n", "Deviation: ergometer n − standard n"}),
        inSprache({"1/min", "rpm"}), abstand};
}

Streifen streifen(Phase phase, const SchrittTexte &schritt, bool bedient) {
    switch (phase) {
    case Phase::Ruht:
        return Streifen::Leer;
    case Phase::Eingabe:
        return Streifen::Eingeben;
    case Phase::Ungesendet:
        return Streifen::Senden;
    case Phase::Abgearbeitet:
        return Streifen::Summe;
    case Phase::Misst:
        break;
    }
    if (schritt.ist_n_torvena.isEmpty() || schritt.ist_D_torvena.isEmpty() ||
        schritt.ist_P_torvena.isEmpty())
        return Streifen::Messwerte;
    if (anlauf(schritt) != 0)
        return Streifen::Anlauf;
    if (bedient && schritt.prüfart == Prüfart::Drehzahl && schritt.ist_n_ergom.isEmpty())
        return Streifen::Ablesung;
    return Streifen::Urteil;
}

QString streifenText(Streifen streifen) {
    switch (streifen) {
    case Streifen::Eingeben:
        return inSprache({"Drehzahl, Leistung und Messart eingeben, dann Ausführen",
                          "Enter speed, power and type of measurement, then Execute"});
    case Streifen::Senden:
        return inSprache({"Sollwerte noch nicht gesendet", "Setpoints not sent yet"});
    case Streifen::Messwerte:
        return inSprache({"Wartet auf Messwerte", "Waiting for measured values"});
    case Streifen::Anlauf:
        return inSprache({"Drehzahl noch nicht erreicht", "Speed not reached yet"});
    case Streifen::Ablesung:
        return inSprache({"Wartet auf die abgelesene Drehzahl", "Waiting for the speed reading"});
    case Streifen::Leer:
    case Streifen::Urteil:
    case Streifen::Summe:
        break;
    }
    return {};
}

double anlauf(const SchrittTexte &schritt) {
    constexpr double erreicht = 1; // 1/min
    if (schritt.ist_n_torvena.isEmpty())
        return 0;
    const double fehlt = Round(ValBeider(schritt.soll_n) - ValBeider(schritt.ist_n_torvena), 6);
    return std::fabs(fehlt) > erreicht ? fehlt : 0;
}

std::optional<Spruch> Summe::schlimmster() const {
    return nein > 0    ? std::optional(Spruch::Nein)
           : offen > 0 ? std::optional(Spruch::Offen)
           : ja > 0    ? std::optional(Spruch::Ja)
                       : std::nullopt;
}

QString Summe::text() const {
    return inSprache({"Rezept abgearbeitet: %1 × ja, %2 × ?, %3 × nein",
                      "Recipe finished: %1 × yes, %2 × ?, %3 × no"})
        .arg(ja)
        .arg(offen)
        .arg(nein);
}

Summe summe(const QStringList &wörter) {
    Summe summe;
    for (const QString &wort : wörter) {
        if (const auto spruch = ausWort(wort))
            ++(*spruch == Spruch::Ja      ? summe.ja
               : *spruch == Spruch::Offen ? summe.offen
                                          : summe.nein);
    }
    return summe;
}

Taktstand taktstand(double drehzahl, double alter) {
    const double dauer = 360'000 / drehzahl; // ms of six turns
    return {std::min(alter / dauer, 1.0), alter > 3 * dauer};
}
