#include "records/bericht.h"

#include "records/spalte.h"
#include "session/sprache.h"
#include "store/database.h"

namespace {

/// The tables carry numbers of their own.
char nummer(Berichtsseite seite) {
    switch (seite) {
    case Berichtsseite::Deckblatt:
        return '1';
    case Berichtsseite::Messergebnisse:
        return '2';
    case Berichtsseite::SecControl:
        return '3';
    case Berichtsseite::Blutdruck:
        return '4';
    }
    return '1';
}

QString quelle(Berichtsseite seite, Bestand bestand) {
    return stufentabelle(seite) + (bestand == Bestand::Arbeit ? "neu" : "alt");
}

void messergebnisseStufen(Bestand bestand, Schlüssel protokollID, bool mit) {
    const QString von = quelle(Berichtsseite::Messergebnisse, bestand);
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

QString stufentabelle(Berichtsseite seite) {
    return QString("Bericht") + nummer(seite);
}

void stufen(Berichtsseite seite, Bestand bestand, Schlüssel protokollID, bool konform) {
    gDatenbank.together([&] {
        const QString tabelle = stufentabelle(seite);
        gDatenbank.execute("DELETE FROM " + tabelle);
        if (seite == Berichtsseite::Messergebnisse)
            messergebnisseStufen(bestand, protokollID, konform);
        else
            gDatenbank.execute("INSERT INTO " + tabelle + " SELECT * FROM " +
                                   quelle(seite, bestand) + " WHERE ProtokollID = ?",
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
