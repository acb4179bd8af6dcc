#include "records/bericht.h"

#include <algorithm>

#include "records/spalte.h"
#include "session/sprache.h"
#include "store/database.h"

namespace {

// The stage tables carry numbers of their own.
const Seitendaten seiten[] = {
    {Berichtsseite::Deckblatt,
     Inhalt::Messwerte,
     "Bericht1",
     "Bericht1neu",
     "Bericht1alt",
     {"Bericht1"},
     {"Deckblatt", "Cover sheet"},
     {"_Deckblatt.pdf", "_CoverSheet.pdf"}},
    {Berichtsseite::Messergebnisse,
     Inhalt::Messwerte,
     "Bericht2",
     "Bericht2neu",
     "Bericht2alt",
     {"Bericht2", "Leistungsmessung", "Drehzahlmessung"},
     {"Messergebnisse", "Measuring results"},
     {"_Messergebnisse.pdf", "_MeasuringResults.pdf"}},
    {Berichtsseite::Blutdruck,
     Inhalt::Blutdruck,
     "Bericht4",
     "Bericht4neu",
     "Bericht4alt",
     {"Bericht4"},
     {"Blutdruck-Messsystem", "Blood-pressure system"},
     {"_Blutdruck.pdf", "_BloodPressure.pdf"}},
    {Berichtsseite::SecControl,
     Inhalt::SecControl,
     "Bericht3",
     "Bericht3neu",
     "Bericht3alt",
     {"Bericht3"},
     {"Elektrische Sicherheit", "Electrical safety"},
     {"_STK.pdf", "_EST.pdf"}},
    {Berichtsseite::Endprüfung,
     std::nullopt,
     "EP_Bericht5",
     "EP_Bericht",
     "EP_Bericht",
     {"EP_Bericht5"},
     {"Endprüfung", "Final test"},
     {}},
};

void messergebnisseStufen(const QString &von, Bestand bestand, Schlüssel protokollID, bool mit) {
    const bool englischesArchiv = bestand == Bestand::Archiv && !inDeutsch();
    const QString konform = englischesArchiv ? (mit ? "with" : "out") : (mit ? "mit" : "ohne");
    gDatenbank.execute(
        "INSERT INTO Bericht2 SELECT ProtokollID, ProtokollName, Drehrichtung, Gruppe, "
        "Prüfschritt, ErgometerMW, TorvenaMW, ZulAbw, RelAbw, TolAusN, TorvenaMW2, MU_ohne, "
        "MU_mit, MU_Proz, ? AS Konform, Soll_n, Soll_P, TorvenaM FROM " +
            von + " WHERE ProtokollID = ? ORDER BY Gruppe, Prüfschritt, ErgometerMW, TorvenaMW",
        {konform, protokollID});
    if (bestand == Bestand::Archiv || inDeutsch())
        return; // an archived protocol shows the words that were stored
    for (const auto &[spalte, deutsch, englisch] : {std::tuple{"MU_ohne", "ja", "yes"},
                                                    {"MU_ohne", "nein", "no"},
                                                    {"MU_mit", "ja", "yes"},
                                                    {"MU_mit", "nein", "no"},
                                                    {"Konform", "mit", "with"},
                                                    {"Konform", "ohne", "without"}})
        gDatenbank.execute(QString("UPDATE Bericht2 SET %1 = ? WHERE %1 = ?").arg(spalte),
                           {englisch, deutsch});
}

} // namespace

std::span<const Seitendaten> seitendaten() {
    return std::span(seiten).first(std::size(seiten) - 1);
}

std::span<const Seitendaten> alleSeitendaten() {
    return seiten;
}

const Seitendaten &seitendaten(Berichtsseite seite) {
    return *std::find_if(std::begin(seiten), std::end(seiten),
                         [seite](const Seitendaten &daten) { return daten.seite == seite; });
}

QString stufentabelle(Berichtsseite seite) {
    return seitendaten(seite).tabelle;
}

void stufen(Berichtsseite seite, Bestand bestand, Schlüssel protokollID, bool konform) {
    const Seitendaten &daten = seitendaten(seite);
    const QString &von = bestand == Bestand::Arbeit ? daten.arbeit : daten.archiv;
    gDatenbank.together([&] {
        gDatenbank.execute("DELETE FROM " + daten.tabelle);
        if (seite == Berichtsseite::Messergebnisse)
            messergebnisseStufen(von, bestand, protokollID, konform);
        else
            gDatenbank.execute("INSERT INTO " + daten.tabelle + " SELECT * FROM " + von +
                                   " WHERE ProtokollID = ?",
                               {protokollID});
    });
}

std::int16_t geräteklasse(Bestand bestand, Schlüssel protokollID) {
    const QString kopf = kopftabelle(bestand);
    const Recordset klasse = gDatenbank.open("SELECT Toleranzen.GKlasse FROM " + kopf +
                                                 " INNER JOIN Toleranzen ON " + kopf +
                                                 ".PrüfungsArt = Toleranzen.ID "
                                                 "WHERE ProtokollID = ?",
                                             {protokollID});
    if (klasse.empty())
        return 0;
    const QString text = klasse[0].text();
    if (text == "Medizinische Geräte" || text == "Medical Devices")
        return 1;
    return text == "Stationäre Trainingsgeräte" ? 2 : 0;
}

QStringList arbeitsprotokolle() {
    return spalte(gDatenbank.open(
        "SELECT COALESCE(strftime('%d.%m.%Y', ErstellDatum), '          ') || '   ' || ProtokollID "
        "|| ' - ' || "
        "COALESCE(Protokollname, '') AS prot FROM Protokoll_temp ORDER BY ProtokollID DESC"));
}

QStringList archivprotokolle(Schlüssel kundenID) {
    return spalte(gDatenbank.open(
        "SELECT ProtokollID || ' - ' || COALESCE(Protokollname, '') AS prot, ErstellDatum, "
        "ProtokollID FROM Protokoll WHERE KundenID = ? ORDER BY ProtokollID",
        {kundenID}));
}

QStringList archivkunden() {
    const Recordset kunden =
        gDatenbank.open("SELECT DISTINCT Kunden.KundenID, Kunden.Name FROM Protokoll INNER JOIN "
                        "Kunden ON Protokoll.KundenID = Kunden.KundenID ORDER BY Kunden.Name");
    QStringList namen;
    for (int zeile = 0; zeile < kunden.count(); ++zeile)
        namen += kunden.at(zeile, 1).toString();
    return namen;
}

Schlüssel kundeMitNamen(const QString &name) {
    const Recordset kunde = gDatenbank.open("SELECT KundenID FROM Kunden WHERE Name = ?", {name});
    return kunde.empty() ? 0 : kunde[0].whole();
}
