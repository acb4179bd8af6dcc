#include "records/berichtsdaten.h"

#include <algorithm>
#include <cmath>

#include "platform/clock.h"
#include "platform/fehler.h"
#include "platform/runtime.h"
#include "records/berichtsfelder.h"
#include "records/epberichtsdaten.h"
#include "records/nachweis.h"
#include "session/session.h"
#include "session/sprache.h"
#include "store/database.h"
#include "store/sqltext.h"

using namespace platform;

namespace {

/// Nothing for a list of another kind.
const Seitendaten *seiteMitListe(const QString &liste) {
    const auto seiten = alleSeitendaten();
    const auto seite = std::find_if(seiten.begin(), seiten.end(), [&](const Seitendaten &daten) {
        return daten.listen.contains(liste);
    });
    return seite == seiten.end() ? nullptr : &*seite;
}

constexpr double spiel = 1e-9; // W or 1/min that are no difference

bool ja(const QString &urteil) {
    return urteil == "ja" || urteil == "yes";
}
bool nein(const QString &urteil) {
    return urteil == "nein" || urteil == "no";
}
bool mitAussage(const QString &konform) {
    return konform == "mit" || konform == "with";
}

/// A row of the cover sheet, and what all pages show of their head.
LayoutFields kopffelder(const Recordset &kopf, Bestand bestand) {
    LayoutFields kopfzeile = felder(kopf, 0);
    const auto protokollID = static_cast<Schlüssel>(kopf["ProtokollID"].whole());
    kopfzeile["ProtokollName"] = kopfzeile["ProtokollName"].trimmed();
    kopfzeile["Drehrichtung"] = richtungswort(kopf["Drehrichtung"].whole());
    kopfzeile["Ausstelldatum"] = datumText(now().date());
    const QDate erstellt = datumAus(kopf["ErstellDatum"].text());
    const QDate gültig = datumAus(kopf["kalibriertBis"].text());
    kopfzeile["NormalAbgelaufen"] = marke(gültig.isValid() && erstellt > gültig);
    kopfzeile["Medizinisch"] = {};
    for (const Text &klasse : {klasseMedizin, klasseStationär})
        if (kopfzeile["GKlasse"] == klasse.german || kopfzeile["GKlasse"] == klasse.english) {
            kopfzeile["Medizinisch"] = marke(klasse.german == klasseMedizin.german);
            kopfzeile["GKlasse"] = inSprache(klasse);
        }
    kopfzeile["AnMehrerenTagen"] = marke(kopfzeile["gemessenVon"] != kopfzeile["gemessenBis"]);
    const double grenzAbw = kopf["GrenzAbw"].number();
    kopfzeile["GrenzAbwGanz"] =
        Round(grenzAbw) == grenzAbw ? QString() : CStr(Round(grenzAbw)); // what is judged by
    for (const auto &[name, inhalt] : {std::pair{"MitMesswerten", Inhalt::Messwerte},
                                       {"MitBlutdruck", Inhalt::Blutdruck},
                                       {"MitSecControl", Inhalt::SecControl}})
        kopfzeile[name] = marke(vorhanden(bestand, inhalt, protokollID));
    return kopfzeile;
}

/// The head of the protocol by its number, never the stage table of another page.
Recordset kopfLesen(Bestand bestand, Schlüssel protokollID) {
    const Seitendaten &deckblatt = seitendaten(Berichtsseite::Deckblatt);
    Recordset kopf = gDatenbank.open(
        "SELECT * FROM " + (bestand == Bestand::Arbeit ? deckblatt.arbeit : deckblatt.archiv) +
            " WHERE ProtokollID = ?",
        {protokollID});
    if (kopf.empty()) {
        throw Fehler(fehlernummer::NoCurrentRecord, {"Das Protokoll gibt es nicht mehr.",
                                                     "The protocol does not exist any more."});
    }
    return kopf;
}

/// As the head kept it; nothing where it has none.
std::optional<Spezifikation> spezifikationAus(const Recordset &kopf) {
    if (kopf["Prozent"].isNull() || kopf["Watt"].isNull() || kopf["GrenzAbw"].isNull())
        return {};
    return Spezifikation{kopf["Prozent"].number(), kopf["Watt"].number(),
                         static_cast<std::int16_t>(Round(kopf["GrenzAbw"].number()))};
}

/// An uncertainty bears two digits that count.
QString zweiStellen(const std::optional<double> &wert) {
    if (!wert)
        return {};
    return Format(*wert, *wert < 0.995 ? "0.00" : *wert < 9.95 ? "0.0" : "0");
}

/// Numbers with their decimals, and what is reckoned from a row.
void ergebnisErgänzen(LayoutFields &felder, const Recordset &zeilen, int zeile,
                      const std::optional<Spezifikation> &spezifikation) {
    const auto wert = [&](const char *spalte) -> std::optional<double> {
        const Feld feld(zeilen.at(zeile, zeilen.columnIndex(spalte)));
        return feld.isNull() ? std::optional<double>() : feld.number();
    };
    const bool leistung = wert("Gruppe") == 1;
    const auto zahl = [&](const char *spalte, int stellen) {
        felder[spalte] = wert(spalte) ? genau(*wert(spalte), stellen) : QString();
    };
    for (const char *spalte : {"Soll_n", "Soll_P"})
        zahl(spalte, 1);
    for (const char *spalte : {"TorvenaMW", "TorvenaMW2", "TorvenaM", "ZulAbw", "TolAusN"})
        zahl(spalte, 2);
    if (leistung)
        zahl("ErgometerMW", 1); // a reading stands as it was read

    Ergebniszeile ergebnis;
    ergebnis.leistung = leistung;
    ergebnis.ergometer = wert("ErgometerMW").value_or(0);
    ergebnis.normal = wert("TorvenaMW").value_or(0);
    ergebnis.grenze = wert("ZulAbw");
    ergebnis.muProz = wert("MU_Proz");
    ergebnis.ohne = felder["MU_ohne"];
    ergebnis.mit = felder["MU_mit"];
    const std::optional<double> u = unsicherheit(ergebnis);
    felder["Abweichung"] = mitVorzeichen(ergebnis.ergometer - ergebnis.normal);
    felder["RelAbw"] = wert("RelAbw") ? mitVorzeichen(*wert("RelAbw")) : QString();
    felder["Unsicherheit"] = zweiStellen(u);
    felder["MU_Proz"] = u ? zweiStellen(ergebnis.muProz) : QString();
    felder["Einheit"] = leistung ? QString("W") : inSprache({"1/min", "rpm"});
    felder["Leistung"] = marke(leistung);
    felder["UnsicherheitGroß"] = marke(u && ergebnis.grenze && *u > *ergebnis.grenze / 3);
    felder["Fußnote"] = marke(!urteilFolgt(ergebnis));
    felder["AndereGrenze"] = marke(andereGrenze(ergebnis, spezifikation));
}

/// Sums of the page, and the rows apart by what they measured.
void ergebnisseErgänzen(LayoutData &daten) {
    const LayoutList &alle = daten.lists["Bericht2"];
    const auto zeilen = [&](const auto &gezählt) {
        return std::count_if(alle.rows.begin(), alle.rows.end(), gezählt);
    };
    const auto urteile = [&](const char *spalte, bool (*gefällt)(const QString &)) {
        return zeilen([=](const LayoutFields &zeile) { return gefällt(zeile[spalte]); });
    };
    const auto mit = [&](const char *feld) {
        return zeilen([=](const LayoutFields &zeile) { return !zeile[feld].isEmpty(); });
    };
    const auto offen = [](const QString &urteil) { return urteil == "?"; };
    const auto fehlt = [](const QString &urteil) { return urteil.isEmpty(); };
    const auto fremd = [](const QString &urteil) {
        return inDeutsch() ? urteil == "yes" || urteil == "no" : urteil == "ja" || urteil == "nein";
    };
    const qsizetype punkte = qsizetype(alle.rows.size()), leistung = mit("Leistung");
    LayoutFields &felder = daten.fields;
    for (const auto &[name, zahl] : {std::pair<const char *, qsizetype>{"Messpunkte", punkte},
                                     {"Eingehalten", urteile("MU_mit", ja)},
                                     {"NichtEingehalten", urteile("MU_mit", nein)},
                                     {"Unentschieden", urteile("MU_mit", offen)},
                                     {"OhneMUEingehalten", urteile("MU_ohne", ja)},
                                     {"OhneMUNichtEingehalten", urteile("MU_ohne", nein)}})
        felder[name] = QString::number(zahl);
    for (const auto &[name, zahl] :
         {std::pair<const char *, qsizetype>{"Leistungspunkte", leistung},
          {"Drehzahlpunkte", punkte - leistung},
          {"FreieSchritte", zeilen([](const LayoutFields &z) { return z["Prüfschritt"] == "FR"; })},
          {"OhneUrteil", urteile("MU_mit", fehlt)},
          {"OhneUnsicherheit", punkte - mit("Unsicherheit")},
          {"UnsicherheitenGroß", mit("UnsicherheitGroß")},
          {"Fußnoten", mit("Fußnote")},
          {"AndereGrenzen", mit("AndereGrenze")}})
        felder[name] = anzahl(zahl);
    felder["AndereSprache"] = marke(urteile("MU_ohne", fremd) + urteile("MU_mit", fremd) > 0);
    felder["MitAussage"] = marke(mitAussage(alle.rows.front()["Konform"]));

    LayoutList nachLeistung{alle.columns, {}}, nachDrehzahl{alle.columns, {}};
    for (const LayoutFields &zeile : alle.rows)
        (zeile["Leistung"].isEmpty() ? nachDrehzahl : nachLeistung).rows.push_back(zeile);
    daten.lists["Leistungsmessung"] = std::move(nachLeistung);
    daten.lists["Drehzahlmessung"] = std::move(nachDrehzahl);
}

} // namespace

QString gelesen(const Layout &layout) {
    for (const QString &abschnitt : layout.sections()) {
        if (const Seitendaten *seite = seiteMitListe(abschnitt))
            return seite->tabelle;
    }
    throw Fehler(fehlernummer::LayoutBroken,
                 {"Das Layout liest keine der Tabellen Bericht1 bis Bericht4 und EP_Bericht5.",
                  "The layout reads none of the tables Bericht1 to Bericht4 and EP_Bericht5."});
}

LayoutData berichtsdaten(const QString &stufentabelle, Bestand bestand, Schlüssel protokollID) {
    const Recordset zeilen = gDatenbank.open("SELECT * FROM " + stufentabelle);
    bool fremd = zeilen.empty();
    for (int zeile = 0; zeile < zeilen.count(); ++zeile)
        fremd |= zeilen.at(zeile, 0).toInt() != protokollID;
    if (fremd) {
        throw Fehler(fehlernummer::NoCurrentRecord,
                     {"Die Seite ist für dieses Protokoll nicht bereitgestellt. Bitte drucken Sie "
                      "sie noch einmal.",
                      "The page was not prepared for this protocol. Please print it again."});
    }
    const Seitendaten &seite = *seiteMitListe(stufentabelle);
    if (seite.seite == Berichtsseite::Endprüfung)
        return epBerichtsdaten(zeilen, seite);
    const Recordset kopf = kopfLesen(bestand, protokollID);
    LayoutData daten{kopffelder(kopf, bestand), {}};
    daten.fields["Blatt"] = inSprache(seite.blatt);
    daten.fields["Nachweis"] = nachweisStand();
    LayoutList liste;
    for (int zeile = 0; zeile < zeilen.count(); ++zeile) {
        liste.rows.push_back(felder(zeilen, zeile));
        if (seite.seite == Berichtsseite::Messergebnisse)
            ergebnisErgänzen(liste.rows.back(), zeilen, zeile, spezifikationAus(kopf));
        if (liste.rows.back().contains("Drehrichtung"))
            liste.rows.back()["Drehrichtung"] = daten.fields["Drehrichtung"];
    }
    if (seite.seite == Berichtsseite::Deckblatt)
        liste.rows.front() = kopffelder(zeilen, bestand);
    liste.columns = liste.rows.front().keys();
    for (const QString &spalte : liste.columns) // the sheets repeat their standard in each row
        if (spalte.endsWith("_BD") || spalte.endsWith("_STK"))
            daten.fields[spalte] = liste.rows.front()[spalte];
    daten.lists[stufentabelle] = std::move(liste);
    if (seite.seite == Berichtsseite::Messergebnisse)
        ergebnisseErgänzen(daten);
    return daten;
}

bool andereGrenze(const Ergebniszeile &zeile, const std::optional<Spezifikation> &kopf) {
    if (!zeile.grenze || !kopf)
        return false;
    const double genannt = zeile.leistung
                               ? std::max(zeile.ergometer * kopf->prozent / 100, kopf->watt)
                               : kopf->grenzAbw;
    return std::fabs(*zeile.grenze - genannt) > spiel;
}

std::optional<double> unsicherheit(const Ergebniszeile &zeile) {
    // 0 is what a step leaves behind for which the tables had no row.
    if (!zeile.muProz || *zeile.muProz == 0 || (zeile.leistung && zeile.ergometer == 0))
        return {};
    return std::fabs(zeile.ergometer * *zeile.muProz / 100);
}

bool urteilFolgt(const Ergebniszeile &zeile) {
    if (zeile.ohne.isEmpty() && zeile.mit.isEmpty())
        return true;
    const std::optional<double> anteil = unsicherheit(zeile);
    if (!zeile.grenze || !anteil)
        return false;
    const double d = std::fabs(zeile.ergometer - zeile.normal);
    const double t = *zeile.grenze;
    const auto mitFolgt = [&](double u) {
        return (ja(zeile.mit) && d + u <= t + spiel) || (nein(zeile.mit) && d - u > t - spiel) ||
               (zeile.mit == "?" && d + u > t - spiel && d - u <= t + spiel);
    };
    const bool ohneFolgt =
        (ja(zeile.ohne) && d <= t + spiel) || (nein(zeile.ohne) && d > t - spiel);
    // A fixed uncertainty in W is stored as a share of the set-point's whole watts when this was
    // typed with a decimal comma.
    const double ganze = zeile.leistung ? std::trunc(zeile.ergometer) : 0;
    const double fest = ganze == 0 ? *anteil : std::fabs(ganze * *zeile.muProz / 100);
    return ohneFolgt && (mitFolgt(*anteil) || mitFolgt(fest));
}
