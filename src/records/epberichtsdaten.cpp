#include "records/epberichtsdaten.h"

#include <algorithm>
#include <optional>

#include "platform/clock.h"
#include "platform/runtime.h"
#include "records/berichtsfelder.h"
#include "records/nachweis.h"
#include "records/toleranzklasse.h"
#include "session/sprache.h"
#include "store/sqltext.h"

using namespace platform;

namespace {

// Of a step; what else the table has is of the head.
constexpr const char *schrittspalten[] = {
    "Prüfschritt", "Soll_n",   "Soll_P", "Ist_n_torvena", "Ist_D_torvena", "Ist_P_torvena",
    "Ist_n_ergom", "Toleranz", "Klasse", "ZulAbwP",       "ZulAbwN"};

/// A text that was a number when it was typed or measured, under whatever number format; the
/// leading blank of a reading does not count.
std::optional<double> zahl(const QString &text) {
    bool ist = false;
    const double wert = text.trimmed().replace(',', '.').toDouble(&ist);
    return ist ? std::optional(wert) : std::nullopt;
}

/// With the decimal sign of the session, and at least so many decimals; what is no number as it is.
QString mitStellen(const QString &text, qsizetype stellen) {
    const auto wert = zahl(text);
    return wert ? genau(*wert, stellen) : text.trimmed();
}

/// As it was typed, but for the decimal sign.
QString wieEingegeben(const QString &text) {
    return zahl(text) ? text.trimmed().replace(',', '.').replace('.', numberLocale().decimalPoint())
                      : text.trimmed();
}

enum class Urteil { OK, AußerToleranz, Keins };

Urteil urteil(const QString &wort) {
    return wort.isEmpty() ? Urteil::Keins : wort == "OK" ? Urteil::OK : Urteil::AußerToleranz;
}

QString wort(Urteil urteil) {
    return urteil == Urteil::OK              ? QString("OK")
           : urteil == Urteil::AußerToleranz ? inSprache({"außer Toleranz", "out of tolerance"})
                                             : inSprache({"nicht beurteilt", "not judged"});
}

QString abweichung(const QString &ist, const QString &soll) {
    const auto a = zahl(ist), b = zahl(soll);
    return a && b ? mitVorzeichen(Round(*a - *b, 6)) : QString();
}

LayoutFields schritt(const LayoutFields &zeile) {
    LayoutFields felder;
    for (const char *spalte : schrittspalten)
        felder[spalte] = zeile[spalte];
    felder["AbweichungP"] = abweichung(felder["Ist_P_torvena"], felder["Soll_P"]);
    felder["AbweichungN"] = abweichung(felder["Ist_n_ergom"], felder["Ist_n_torvena"]);
    for (const auto &[spalte, stellen] : {std::pair{"Soll_n", 1},
                                          {"Soll_P", 1},
                                          {"Ist_n_torvena", 2},
                                          {"Ist_D_torvena", 2},
                                          {"Ist_P_torvena", 2},
                                          {"Ist_n_ergom", 0},
                                          {"ZulAbwP", 2},
                                          {"ZulAbwN", 0}})
        felder[spalte] = mitStellen(felder[spalte], stellen);
    const Urteil ist = urteil(felder["Toleranz"]);
    felder["Urteil"] = wort(ist);
    felder["AußerToleranz"] = marke(ist == Urteil::AußerToleranz);
    felder["Klasse"] = klasseInSprache(felder["Klasse"]);
    return felder;
}

/// The class of the steps with its numbers; empty fields where they do not agree on one, or it has
/// none.
void klasseErgänzen(LayoutFields &felder, const QStringList &klassen) {
    felder["MehrereKlassen"] = marke(klassen.size() > 1);
    felder["Klasse"] = klassen.size() == 1 ? klasseInSprache(klassen.front()) : QString();
    for (const char *name : {"KlasseProzent", "KlasseWatt", "KlasseGrenzAbw"})
        felder[name].clear();
    const auto klasse = klassen.size() == 1 ? toleranzklasse(klassen.front()) : std::nullopt;
    if (!klasse || !klasse->beurteilt)
        return;
    felder["KlasseProzent"] = CStr(Round(klasse->grenzen.prozent * 100, 6));
    felder["KlasseWatt"] = CStr(klasse->grenzen.watt);
    felder["KlasseGrenzAbw"] = anzahl(klasse->grenzen.grenzAbw);
}

/// How the run went; a test of an older build knows nothing of that.
void laufErgänzen(LayoutFields &felder, const Recordset &zeilen) {
    const auto feld = [&](const char *spalte) {
        return Feld(zeilen.at(0, zeilen.columnIndex(spalte)));
    };
    const bool bekannt = !feld("Begonnen").isNull();
    felder["Begonnen"] = zeitpunktText(zeitpunktAus(feld("Begonnen").text())).section(':', 0, 1);
    felder["Dauer"] = feld("Dauer").isNull() ? QString() : dauerText(feld("Dauer").whole());
    felder["Abgebrochen"] = marke(bekannt && feld("Vollständig").whole() == 0);
    felder["Drehrichtung"] = richtungswort(feld("Drehrichtung").whole());
    const QDate gültig = datumAus(felder["NormalBis"]);
    const QDate gemessen = datumAus(feld("Begonnen").text());
    felder["NormalAbgelaufen"] = marke(gültig.isValid() && gemessen > gültig);
    for (const char *spalte : {"NormalVon", "NormalBis"})
        felder[spalte] = datumText(datumAus(felder[spalte]));
}

} // namespace

LayoutData epBerichtsdaten(const Recordset &zeilen, const Seitendaten &seite) {
    LayoutData daten{felder(zeilen, 0), {}};
    LayoutFields &kopf = daten.fields;
    LayoutList liste;
    QStringList klassen;
    int außerToleranz = 0, unbeurteilt = 0;
    for (int zeile = 0; zeile < zeilen.count(); ++zeile) {
        const LayoutFields roh = felder(zeilen, zeile);
        klassen += roh["Klasse"];
        außerToleranz += urteil(roh["Toleranz"]) == Urteil::AußerToleranz;
        unbeurteilt += urteil(roh["Toleranz"]) == Urteil::Keins;
        liste.rows.push_back(schritt(roh));
    }
    klassen.removeDuplicates();
    for (const char *spalte : schrittspalten)
        kopf.remove(spalte);
    if (const QDate datum = datumAus(kopf["Prüfdatum"]); datum.isValid())
        kopf["Prüfdatum"] = datumText(datum);
    // What the parts of all pages show.
    kopf["ProtokollID"] = "EP-" + kopf["ProtokollID"];
    kopf["ErstellDatum"] = kopf["Prüfdatum"];
    kopf["Prüfername"] = kopf["Prüfer"];
    kopf["Ausstelldatum"] = datumText(now().date());
    kopf["Blatt"] = inSprache(seite.blatt);
    kopf["Nachweis"] = nachweisStand();
    for (const char *spalte : {"GeräteableitI", "SchutzleiterR", "IsolationsR", "auf0", "auf50",
                               "auf100", "auf150", "auf200", "auf250", "auf300", "Ablassrate"})
        kopf[spalte] = wieEingegeben(kopf[spalte]);
    laufErgänzen(kopf, zeilen);
    klasseErgänzen(kopf, klassen);
    kopf["Gemessen"] = QString::number(zeilen.count());
    kopf["Summe"] = epSumme(zeilen.count(), außerToleranz, unbeurteilt);
    kopf["NichtBeurteilt"] = anzahl(unbeurteilt);
    liste.columns = liste.rows.front().keys();
    daten.lists[seite.tabelle] = std::move(liste);
    return daten;
}

QString dauerText(int sekunden) {
    const int minuten = sekunden / 60, stunden = minuten / 60;
    if (stunden > 0)
        return QString("%1 h %2 min").arg(stunden).arg(minuten % 60, 2, 10, QChar('0'));
    return minuten > 0 ? QString("%1 min %2 s").arg(minuten).arg(sekunden % 60, 2, 10, QChar('0'))
                       : QString("%1 s").arg(sekunden);
}

QString epSumme(int gemessen, int außerToleranz, int unbeurteilt) {
    const QString schritte =
        gemessen == 1 ? inSprache({"Schritt", "step"}) : inSprache({"Schritte", "steps"});
    return inSprache({"%1 %2 gemessen, %3 OK, %4 außer Toleranz, %5 nicht beurteilt",
                      "%1 %2 measured, %3 OK, %4 out of tolerance, %5 not judged"})
        .arg(gemessen)
        .arg(schritte)
        .arg(gemessen - außerToleranz - unbeurteilt)
        .arg(außerToleranz)
        .arg(unbeurteilt);
}
