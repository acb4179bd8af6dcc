#include "measure/bewertung.h"

#include <algorithm>
#include <cmath>

#include "platform/fehler.h"
#include "platform/runtime.h"
#include "session/sprache.h"

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

/// What the row says of the uncertainty: a share of the value, or of a power in W.
struct Anteil {
    double relative = 0;
    double absolute = 0;
};

/// `muProz` stays as it is where no row applies.
Anteil shareOfPower(const Unsicherheiten &rows, const QString &soll_P, double &muProz) {
    Anteil share;
    const double base = Val(soll_P);
    const Unsicherheit *row = rowFor(rows, base);
    if (!row)
        return share;
    share.relative = *row->wert / 100;
    muProz = *row->wert;
    if (row != &rows.front())
        return share;
    share.absolute = *row->wert;
    if (base == 0) {
        throw Fehler(fehlernummer::DivisionByZero,
                     {"Division durch Null: Bei 0 W gibt es keine relative "
                      "Messunsicherheit.",
                      "Division by zero: at 0 W there is no relative uncertainty."});
    }
    muProz = *row->wert * 100 / base;
    return share;
}

Abstand ofPower(const SchrittTexte &texte, Spezifikation spezifikation, const Anteil &share) {
    if (spezifikation.prozent > 0)
        spezifikation.prozent /= 100;
    const double soll = hundredths(texte.soll_P) / 100;
    const double limit = soll * spezifikation.prozent;
    return {difference(texte.ist_P_torvena, texte.soll_P),
            share.absolute == 0 ? soll * share.relative : share.absolute,
            limit >= spezifikation.watt ? limit : spezifikation.watt};
}

Abstand ofSpeed(const SchrittTexte &texte, const Spezifikation &spezifikation,
                const Unsicherheiten &rows, double &muProz) {
    double relative = 0;
    if (const Unsicherheit *row = rowFor(rows, Val(texte.soll_n))) {
        relative = *row->wert / 100;
        muProz = *row->wert;
    }
    const double uncertainty = hundredths(texte.ist_n_ergom) / 100 * relative;
    return {difference(texte.ist_n_ergom, texte.ist_n_torvena), uncertainty,
            double(spezifikation.grenzAbw)};
}

void judge(Urteil &urteil, const Abstand &abstand) {
    urteil.ohne = spruchOhne(abstand) == Spruch::Ja;
    const Spruch mit = spruchMit(abstand);
    if (mit != Spruch::Ja)
        urteil.mit = "?";
    if (mit != Spruch::Offen && spracheGewählt())
        urteil.mit = wort(mit);
}

} // namespace

Spruch spruchOhne(const Abstand &abstand) {
    return std::fabs(abstand.d) <= abstand.t ? Spruch::Ja : Spruch::Nein;
}

Spruch spruchMit(const Abstand &abstand) {
    const double deviation = std::fabs(abstand.d);
    if (deviation + abstand.u <= abstand.t)
        return Spruch::Ja;
    return deviation - abstand.u > abstand.t ? Spruch::Nein : Spruch::Offen;
}

QString wort(Spruch spruch) {
    return spruch == Spruch::Offen ? "?"
           : spruch == Spruch::Ja  ? inSprache({"ja", "yes"})
                                   : inSprache({"nein", "no"});
}

QString längstesWort(const QString &wort) {
    constexpr qsizetype kurz = 4; // nein
    return wort.size() > kurz || wort == "OK" ? inSprache({"Außer Toleranz", "Out of tolerance"})
                                              : inSprache({"nein", "no"});
}

std::optional<Spruch> ausWort(const QString &wort) {
    if (wort.isEmpty())
        return std::nullopt;
    if (wort == "?")
        return Spruch::Offen;
    return wort == "ja" || wort == "yes" || wort == "OK" ? Spruch::Ja : Spruch::Nein;
}

Abstand schrittAbstand(const SchrittTexte &texte, const Spezifikation &spezifikation,
                       const Unsicherheiten &tabelle) {
    double unused = 0;
    return texte.prüfart == Prüfart::Leistung
               ? ofPower(texte, spezifikation, shareOfPower(tabelle, texte.soll_P, unused))
               : ofSpeed(texte, spezifikation, tabelle, unused);
}

void leistungBewerten(Urteil &urteil, SchrittTexte &texte, const Spezifikation &spezifikation,
                      const Unsicherheiten &muLeistung) {
    const Anteil share = shareOfPower(muLeistung, texte.soll_P, urteil.muProz);
    texte.ist_n_ergom = "0";
    judge(urteil, ofPower(texte, spezifikation, share));
}

void drehzahlBewerten(Urteil &urteil, const SchrittTexte &texte, const Spezifikation &spezifikation,
                      const Unsicherheiten &muDrehzahl) {
    judge(urteil, ofSpeed(texte, spezifikation, muDrehzahl, urteil.muProz));
}

Abstand endprüfungLeistung(const SchrittTexte &texte, const Spezifikation &spezifikation) {
    // Through its decimal text as well: 3 % of 106 W is 3.18 W and not a trifle less.
    const double share = Val(Str(hundredths(texte.soll_P) / 100 * spezifikation.prozent));
    return {difference(texte.ist_P_torvena, texte.soll_P), 0, std::max(share, spezifikation.watt)};
}

Abstand endprüfungDrehzahl(const SchrittTexte &texte, const Spezifikation &spezifikation) {
    return {difference(texte.ist_n_ergom, texte.ist_n_torvena), 0, double(spezifikation.grenzAbw)};
}

bool endprüfungBewerten(const SchrittTexte &texte, const Spezifikation &spezifikation) {
    const bool power = spruchOhne(endprüfungLeistung(texte, spezifikation)) == Spruch::Ja;
    if (spezifikation.grenzAbw == 0)
        return power;
    return spruchOhne(endprüfungDrehzahl(texte, spezifikation)) == Spruch::Ja && power;
}

double fnc_LeistungsToleranz(double prozent, double watt, const QString &soll_P) {
    if (prozent > 0)
        prozent /= 100;
    const double share = Val(soll_P) * prozent;
    return share >= watt ? share : watt;
}
