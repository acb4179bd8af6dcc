#include "records/protokollnummer.h"

#include "records/berichtsdateien.h"
#include "records/blatt.h"
#include "records/spalte.h"
#include "records/unterbrechung.h"

#include <algorithm>
#include <limits>

#include "platform/clock.h"
#include "platform/runtime.h"
#include "store/database.h"
#include "store/sqltext.h"

namespace {

constexpr Schlüssel höchsteNummer = std::numeric_limits<Schlüssel>::max();

/// What a head does not hold agrees with nothing.
bool gleich(const Feld &feld, int wert) {
    return !feld.isNull() && feld.whole() == wert;
}

/// Of the chosen customer and unit, as "12 - name".
QStringList köpfe(const QString &bedingung) {
    return spalte(gDatenbank.open("SELECT ProtokollID || ' - ' || COALESCE(Protokollname, '') "
                                  "FROM Protokoll_temp WHERE KundenID = ? AND GerätID = ?" +
                                      bedingung + " ORDER BY ProtokollID",
                                  {gKundenID, gGerätID}));
}

/// What only a measurement knows.
struct Messeinstellung {
    QVariant drehrichtung, toleranzID, messverfahren;
};

/// Clears what was left over under the number, by a move that ended half-way for instance.
void kopfSchreiben(Schlüssel nummer, const QString &name, const Messeinstellung &messung) {
    const Feld normal = gDatenbank.open("SELECT MAX(NK_ID) FROM Normalkalibrierdaten")[0];
    gDatenbank.execute("INSERT INTO Protokoll_temp (ProtokollID, Protokollname, Prüfername, "
                       "GerätID, KundenID, Drehrichtung, PrüfungsArt, NK_ID, Messverfahren) "
                       "VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?)",
                       {nummer, name, gPrüfer, gGerätID, gKundenID, messung.drehrichtung,
                        messung.toleranzID, normal.value(), messung.messverfahren});
    const bool archiviert = kopfVorhanden(Bestand::Archiv, nummer);
    for (const Inhalt inhalt : alleInhalte) {
        inhaltLöschen(Bestand::Arbeit, inhalt, nummer);
        if (!archiviert)
            inhaltLöschen(Bestand::Archiv, inhalt, nummer);
    }
    if (!archiviert)
        seitenAblegen(nummer);
    sitzungVergessen(nummer); // it was of the protocol that had the number before
}

} // namespace

Schlüssel nächsteProtokollNr() {
    const double offen = gDatenbank.open("SELECT MAX(ProtokollID) FROM Protokoll_temp")[0].number();
    const double archiviert = gDatenbank.open("SELECT MAX(ProtokollID) FROM Protokoll")[0].number();
    const double höchste = std::max(offen, archiviert);
    if (höchste >= höchsteNummer) {
        throw Fehler(platform::fehlernummer::Overflow,
                     {"Überlauf: Alle Protokollnummern sind vergeben.",
                      "Overflow: All protocol numbers have been used."});
    }
    return static_cast<Schlüssel>(höchste + 1);
}

QStringList leereProtokolle() {
    return köpfe(" AND NOT EXISTS (SELECT 1 FROM Messwerte_temp "
                 "WHERE Messwerte_temp.ProtokollID = Protokoll_temp.ProtokollID)");
}

QStringList offeneProtokolle() {
    return köpfe({});
}

QStringList mitNummer(QStringList einträge, Schlüssel nummer) {
    einträge.removeIf(
        [nummer](const QString &eintrag) { return protokollNrAus(eintrag) != nummer; });
    return einträge;
}

Schlüssel protokollNrAus(const QString &eintrag) {
    const double nummer = Val(eintrag);
    const bool möglich = nummer >= 1 && nummer <= höchsteNummer && nummer == Int(nummer);
    return möglich ? static_cast<Schlüssel>(nummer) : 0;
}

LetztesProtokoll letztesProtokollPrüfen() {
    LetztesProtokoll letztes;
    letztes.nummer = gDatenbank
                         .open("SELECT MAX(Protokoll_temp.ProtokollID) "
                               "FROM Protokoll_temp INNER JOIN Messwerte_temp "
                               "ON Protokoll_temp.ProtokollID = Messwerte_temp.ProtokollID")[0]
                         .whole();
    if (letztes.nummer < 1)
        return letztes;
    // Of the standard that is connected, unlike the head of a new protocol.
    const Feld kalibrierung = gDatenbank.open(
        "SELECT MAX(NK_ID) FROM Normalkalibrierdaten WHERE SerienNr = ?", {gSeriennummer})[0];
    const Recordset kopf =
        gDatenbank.open("SELECT * FROM Protokoll_temp WHERE ProtokollID = ?", {letztes.nummer});
    const QDate erstellt = datumAus(kopf["ErstellDatum"].text());
    letztes.name = kopf["Protokollname"].text();
    letztes.fortsetzbar =
        gleich(kopf["KundenID"], gKundenID) && gleich(kopf["GerätID"], gGerätID) &&
        gleich(kopf["Drehrichtung"], gDrehrichtung) && gleich(kopf["PrüfungsArt"], gToleranzID) &&
        !kopf["Messverfahren"].isNull() && kopf["Messverfahren"].text() == gMessverfahren &&
        !kalibrierung.isNull() && gleich(kopf["NK_ID"], kalibrierung.whole()) &&
        erstellt == platform::now().date();
    return letztes;
}

void kopfAnlegen(Schlüssel nummer, const QString &name) {
    gDatenbank.together([&] {
        kopfSchreiben(nummer, name, {gDrehrichtung, gToleranzID, gMessverfahren});
    });
}

void blattkopfAnlegen(Schlüssel nummer, const QString &name, Inhalt blatt) {
    gDatenbank.together([&] {
        kopfSchreiben(nummer, name, {});
        if (blatt == Inhalt::SecControl)
            sicherheitszeileAnlegen(nummer);
    });
}

bool kopfNachführen(Schlüssel nummer) {
    return gDatenbank.execute("UPDATE Protokoll_temp SET Drehrichtung = ?, PrüfungsArt = ?, "
                              "Messverfahren = ? WHERE ProtokollID = ?",
                              {gDrehrichtung, gToleranzID, gMessverfahren, nummer}) > 0;
}
