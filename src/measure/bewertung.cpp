#include "measure/bewertung.h"

#include <algorithm>
#include <cmath>

#include "platform/fehler.h"
#include "platform/runtime.h"
#include "session/session.h"

using namespace platform;

namespace {

/// The hundredfold of the number in a box, through its decimal text of 15 digits, so that 180.1
/// less 180 is exactly 0.1.
double hundredths(const QString &text) {
    return Val(Str(CDbl(text) * 100));
}

double difference(const QString &a, const QString &b) {
    return (hundredths(a) - hundredths(b)) / 100;
}

double vorhanden(const std::optional<double> &value) {
    if (!value) {
        throw Fehler(fehlernummer::InvalidUseOfNull,
                     {"Unzulässige Verwendung von Null: In der Tabelle der Messunsicherheiten "
                      "fehlt ein Wert.",
                      "Invalid use of Null: a value is missing in the table of uncertainties."});
    }
    return *value;
}

/// The row that applies at `value`, or none.
const Unsicherheit *rowFor(const Unsicherheiten &rows, double value) {
    for (const Unsicherheit &row : rows) {
        if (value <= vorhanden(row.grenze)) {
            vorhanden(row.wert);
            return &row;
        }
    }
    return nullptr;
}

void judge(Urteil &urteil, double deviation, double uncertainty, double limit) {
    urteil.ohne = deviation <= limit;
    const auto verdict = [&urteil](const char *german, const char *english) {
        if (gSprache == 1)
            urteil.mit = german;
        else if (gSprache == 2)
            urteil.mit = english;
    };
    if (deviation + uncertainty <= limit) {
        verdict("ja", "yes");
        return;
    }
    urteil.mit = "?";
    if (deviation - uncertainty > limit)
        verdict("nein", "no");
}

} // namespace

void leistungBewerten(Urteil &urteil, SchrittTexte &texte, Spezifikation spezifikation,
                      const Unsicherheiten &muLeistung) {
    if (spezifikation.prozent > 0)
        spezifikation.prozent /= 100;

    double relative = 0;
    double absolute = 0;
    if (const Unsicherheit *row = rowFor(muLeistung, Val(texte.soll_P))) {
        relative = *row->wert / 100;
        urteil.muProz = *row->wert;
        if (row == &muLeistung.front()) {
            absolute = *row->wert;
            const double base = Val(texte.soll_P);
            if (base == 0) {
                throw Fehler(fehlernummer::DivisionByZero,
                             {"Division durch Null: Bei 0 W gibt es keine relative "
                              "Messunsicherheit.",
                              "Division by zero: at 0 W there is no relative uncertainty."});
            }
            urteil.muProz = *row->wert * 100 / base;
        }
    }
    texte.ist_n_ergom = "0";

    const double soll = hundredths(texte.soll_P) / 100;
    if (absolute == 0)
        absolute = soll * relative;
    const double deviation = std::fabs(difference(texte.ist_P_torvena, texte.soll_P));
    const double share = soll * spezifikation.prozent;
    judge(urteil, deviation, absolute, share >= spezifikation.watt ? share : spezifikation.watt);
}

void drehzahlBewerten(Urteil &urteil, const SchrittTexte &texte, const Spezifikation &spezifikation,
                      const Unsicherheiten &muDrehzahl) {
    double relative = 0;
    if (const Unsicherheit *row = rowFor(muDrehzahl, Val(texte.soll_n))) {
        relative = *row->wert / 100;
        urteil.muProz = *row->wert;
    }
    const double uncertainty = hundredths(texte.ist_n_ergom) / 100 * relative;
    const double deviation = std::fabs(difference(texte.ist_n_ergom, texte.ist_n_torvena));
    judge(urteil, deviation, uncertainty, spezifikation.grenzAbw);
}

bool endprüfungBewerten(const SchrittTexte &texte, const Spezifikation &spezifikation) {
    const double deviation = std::fabs(difference(texte.soll_P, texte.ist_P_torvena));
    const double share = hundredths(texte.soll_P) / 100 * spezifikation.prozent;
    const bool power = deviation <= std::max(share, spezifikation.watt);
    if (spezifikation.grenzAbw == 0)
        return power;
    const double speed = std::fabs(difference(texte.ist_n_torvena, texte.ist_n_ergom));
    return speed <= spezifikation.grenzAbw && power;
}

double fnc_LeistungsToleranz(double prozent, double watt, const QString &soll_P) {
    if (prozent > 0)
        prozent /= 100;
    const double share = Val(soll_P) * prozent;
    return share >= watt ? share : watt;
}
