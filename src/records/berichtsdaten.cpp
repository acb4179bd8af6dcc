#include "records/berichtsdaten.h"

#include <array>
#include <cmath>

#include "platform/clock.h"
#include "platform/fehler.h"
#include "platform/runtime.h"
#include "session/session.h"
#include "session/sprache.h"
#include "store/database.h"
#include "store/sqltext.h"

using namespace platform;

namespace {

constexpr std::array stufentabellen{"Bericht1", "Bericht2", "Bericht3", "Bericht4"};

bool ja(const QString &urteil) {
    return urteil == "ja" || urteil == "yes";
}
bool nein(const QString &urteil) {
    return urteil == "nein" || urteil == "no";
}
bool mitAussage(const QString &konform) {
    return konform == "mit" || konform == "with";
}

/// As the layouts show it; an ISO date as dd.mm.yyyy, a number in the format of the session.
QString gezeigt(const QVariant &wert) {
    if (wert.typeId() == QMetaType::Double)
        return CStr(wert.toDouble());
    const QString text = wert.toString();
    static const QRegularExpression iso(R"(^\d{4}-\d{2}-\d{2}( .*)?$)");
    return iso.match(text).hasMatch() ? datumText(datumAus(text)) : text;
}

LayoutFields felder(const Recordset &zeilen, int zeile) {
    LayoutFields felder;
    for (int spalte = 0; spalte < zeilen.columns().size(); ++spalte)
        felder[zeilen.columns()[spalte]] = gezeigt(zeilen.at(zeile, spalte));
    return felder;
}

QString marke(bool gilt) {
    return gilt ? QStringLiteral("1") : QString();
}

/// The head of the protocol by its number, never the stage table of another page.
LayoutFields kopffelder(Bestand bestand, Schlüssel protokollID) {
    const Recordset kopf = gDatenbank.open(QString("SELECT * FROM Bericht1%1 WHERE ProtokollID = ?")
                                               .arg(bestand == Bestand::Arbeit ? "neu" : "alt"),
                                           {protokollID});
    if (kopf.empty()) {
        throw Fehler(fehlernummer::NoCurrentRecord, {"Das Protokoll gibt es nicht mehr.",
                                                     "The protocol does not exist any more."});
    }
    LayoutFields kopfzeile = felder(kopf, 0);
    const int richtung = kopf["Drehrichtung"].whole();
    kopfzeile["Drehrichtung"] = richtung == 1   ? inSprache({"Rechtslauf", "Right"})
                                : richtung == 2 ? inSprache({"Linkslauf", "Left"})
                                                : QString();
    kopfzeile["Ausstelldatum"] = datumText(now().date());
    const QDate erstellt = datumAus(kopf["ErstellDatum"].text());
    const QDate gültig = datumAus(kopf["kalibriertBis"].text());
    kopfzeile["NormalAbgelaufen"] = marke(gültig.isValid() && erstellt > gültig);
    const QString klasse = kopf["GKlasse"].text();
    kopfzeile["Medizinisch"] =
        marke(klasse == "Medizinische Geräte" || klasse == "Medical Devices");
    for (const char *zeit : {"gemessenVon", "gemessenBis"})
        kopfzeile[zeit] = datumText(datumAus(kopf[zeit].text()));
    kopfzeile["AnMehrerenTagen"] = marke(kopfzeile["gemessenVon"] != kopfzeile["gemessenBis"]);
    return kopfzeile;
}

/// Numbers with their decimals, and what is reckoned from a row.
void ergebnisErgänzen(LayoutFields &felder, const Recordset &zeilen, int zeile) {
    const auto wert = [&](const char *spalte) {
        return Feld(zeilen.at(zeile, zeilen.columnIndex(spalte)));
    };
    const auto zahl = [&](const char *spalte, const char *muster) {
        felder[spalte] = wert(spalte).isNull() ? QString() : Format(wert(spalte).number(), muster);
    };
    const bool leistung = wert("Gruppe").whole() == 1;
    for (const char *spalte : {"Soll_n", "Soll_P", "ZulAbw", "TolAusN"})
        zahl(spalte, "0.0");
    for (const char *spalte : {"TorvenaMW", "TorvenaMW2", "TorvenaM", "RelAbw", "MU_Proz"})
        zahl(spalte, "0.00");
    if (leistung)
        zahl("ErgometerMW", "0.0"); // a reading stands as it was read

    Ergebniszeile ergebnis;
    ergebnis.ergometer = wert("ErgometerMW").number();
    ergebnis.normal = wert("TorvenaMW").number();
    if (!wert("ZulAbw").isNull())
        ergebnis.grenze = wert("ZulAbw").number();
    ergebnis.muProz = wert("MU_Proz").number();
    ergebnis.ohne = wert("MU_ohne").text();
    ergebnis.mit = wert("MU_mit").text();
    const double u = std::fabs(ergebnis.ergometer * ergebnis.muProz / 100);
    const double abweichung = ergebnis.ergometer - ergebnis.normal;
    felder["Abweichung"] = (abweichung > 0 ? "+" : "") + Format(abweichung, "0.00");
    felder["Unsicherheit"] = Format(u, "0.00");
    felder["Einheit"] = leistung ? QString("W") : inSprache({"1/min", "rpm"});
    felder["Leistung"] = marke(leistung);
    felder["Fußnote"] = marke(!urteilFolgt(ergebnis));
}

/// Sums of the page, and the rows apart by what they measured.
void ergebnisseErgänzen(LayoutData &daten) {
    LayoutList &alle = daten.lists["Bericht2"];
    LayoutList leistung{alle.columns, {}}, drehzahl{alle.columns, {}};
    int eingehalten = 0, bedingt = 0, nicht = 0, gut = 0, fußnoten = 0;
    for (const LayoutFields &zeile : alle.rows) {
        (zeile["Leistung"].isEmpty() ? drehzahl : leistung).rows.push_back(zeile);
        eingehalten += ja(zeile["MU_mit"]);
        nicht += nein(zeile["MU_mit"]);
        bedingt += zeile["MU_mit"] == "?";
        gut += ja(zeile["MU_ohne"]);
        fußnoten += !zeile["Fußnote"].isEmpty();
    }
    const qsizetype punkte = qsizetype(alle.rows.size());
    for (const auto &[name, anzahl] : {std::pair<const char *, qsizetype>{"Messpunkte", punkte},
                                       {"Eingehalten", eingehalten},
                                       {"Bedingt", bedingt},
                                       {"NichtEingehalten", nicht},
                                       {"OhneMUEingehalten", gut},
                                       {"OhneMUNichtEingehalten", punkte - gut}})
        daten.fields[name] = QString::number(anzahl);
    daten.fields["Fußnoten"] = marke(fußnoten > 0);
    daten.fields["MitAussage"] = marke(!alle.rows.empty() && mitAussage(alle.rows[0]["Konform"]));
    daten.lists["Leistungsmessung"] = std::move(leistung);
    daten.lists["Drehzahlmessung"] = std::move(drehzahl);
}

} // namespace

QString gelesen(const Layout &layout) {
    for (const QString &abschnitt : layout.sections()) {
        if (std::find(stufentabellen.begin(), stufentabellen.end(), abschnitt) !=
            stufentabellen.end())
            return abschnitt;
        if (abschnitt == "Leistungsmessung" || abschnitt == "Drehzahlmessung")
            return "Bericht2";
    }
    throw Fehler(fehlernummer::LayoutBroken,
                 {"Das Layout liest keine der Tabellen Bericht1 bis Bericht4.",
                  "The layout reads none of the tables Bericht1 to Bericht4."});
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
    LayoutData daten{kopffelder(bestand, protokollID), {}};
    LayoutList liste;
    for (int zeile = 0; zeile < zeilen.count(); ++zeile) {
        liste.rows.push_back(felder(zeilen, zeile));
        if (stufentabelle == "Bericht2")
            ergebnisErgänzen(liste.rows.back(), zeilen, zeile);
        liste.rows.back()["Drehrichtung"] = daten.fields["Drehrichtung"];
    }
    liste.columns = liste.rows.front().keys();
    daten.lists[stufentabelle] = std::move(liste);
    if (stufentabelle == "Bericht2")
        ergebnisseErgänzen(daten);
    return daten;
}

bool urteilFolgt(const Ergebniszeile &zeile) {
    if (!zeile.grenze)
        return zeile.ohne.isEmpty() && zeile.mit.isEmpty();
    constexpr double spiel = 1e-9;
    const double d = std::fabs(zeile.ergometer - zeile.normal);
    const double u = std::fabs(zeile.ergometer * zeile.muProz / 100);
    const double t = *zeile.grenze;
    const bool ohneFolgt =
        (ja(zeile.ohne) && d <= t + spiel) || (nein(zeile.ohne) && d > t - spiel);
    const bool mitFolgt = (ja(zeile.mit) && d + u <= t + spiel) ||
                          (nein(zeile.mit) && d - u > t - spiel) ||
                          (zeile.mit == "?" && d + u > t - spiel && d - u <= t + spiel);
    return ohneFolgt && mitFolgt;
}
