#include "largedatabase.h"

#include <QDir>
#include <QFile>

#include <cstdio>

#include "store/database.h"
#include "store/scripts.h"
#include "store/trail.h"

namespace bench {

namespace {

// Names of customers are made of a kind of house, a place and a number. The archive
// has the lower half of the protocol numbers, the working tables the upper one.
constexpr auto fill = R"sql(
CREATE TEMP TABLE Haus (Nr INTEGER PRIMARY KEY, Wort);
INSERT INTO Haus VALUES (0, 'Klinikum'), (1, 'Herzzentrum'), (2, 'Reha-Klinik'), (3, 'Praxis'),
    (4, 'Fitnessstudio'), (5, 'Sportinstitut'), (6, 'Kurhaus'), (7, 'Übungszentrum');
CREATE TEMP TABLE Ortsname (Nr INTEGER PRIMARY KEY, Wort);
INSERT INTO Ortsname
SELECT row_number() OVER () - 1, Anfang.column1 || Ende.column1
FROM (VALUES ('Ahorn'), ('Birken'), ('Eichen'), ('Föhren'), ('Linden'), ('Mühl'), ('Quell'),
             ('Sonnen'), ('Tannen'), ('Weiden'), ('Ähren'), ('Stein')) AS Anfang,
     (VALUES ('au'), ('bach'), ('berg'), ('brück'), ('feld'), ('hausen'), ('höhe'), ('rode'),
             ('tal'), ('walde')) AS Ende;

CREATE TEMP TABLE Zahl (i INTEGER PRIMARY KEY);
INSERT INTO Zahl
WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 60000) SELECT i FROM n;

INSERT INTO Kunden (KundenID, Name, Straße, PLZ, Ort)
SELECT 1000 + i, Haus.Wort || ' ' || Ortsname.Wort || ' ' || i, 'Hauptstraße ' || (1 + i % 200),
       printf('%05d', 10000 + i), Ortsname.Wort
FROM Zahl JOIN Haus ON Haus.Nr = i % 8 JOIN Ortsname ON Ortsname.Nr = i * 7 % 120
WHERE i <= 20000 ORDER BY i;

INSERT INTO Ergometer (GerätID, KundenID, Gerätetyp, Hersteller, SerienNr, IdentNr)
SELECT 1000 + i, 1001 + i % 20000, 'Typ ' || (1 + i % 40), 'Hersteller ' || (1 + i % 9),
       'S' || i, printf('ID-%05d', i)
FROM Zahl;

INSERT INTO Rezeptnamen (RezeptID, RezName, ToleranzID)
SELECT 1000 + i, printf('Rezept %04d bis %d W', i, 100 + i % 8 * 50), 1 + i % 2
FROM Zahl WHERE i <= 2000;
INSERT INTO Rezepte (RezeptID, Prüfschritt, Drehzahl, Leistung, Prüfart)
SELECT 1000 + Rezept.i, Schritt.i, '60', 25 * Schritt.i, '1'
FROM Zahl AS Rezept, Zahl AS Schritt WHERE Rezept.i <= 2000 AND Schritt.i <= 20;

INSERT INTO Protokoll_temp (ProtokollID, Protokollname, Prüfername, GerätID, KundenID,
                            Drehrichtung, PrüfungsArt, NK_ID, Messverfahren, ErstellDatum)
SELECT 1000 + i, 'Wiederholung ' || i, 'M. Prüfer', 1000 + i * 2, 1001 + i * 2 % 20000, 1, 1, 2,
       'Vergleich', date('now', 'localtime', (-(i % 9000)) || ' days')
FROM Zahl WHERE i <= 25000;
INSERT INTO Protokoll SELECT * FROM Protokoll_temp WHERE ProtokollID > 1000;
UPDATE Protokoll_temp SET ProtokollID = ProtokollID + 25000 WHERE ProtokollID > 1000;

INSERT INTO Messwerte_temp (ProtokollID, Prüfschritt, Soll_n, Soll_P, Ist_n_torvena, Ist_D_torvena,
                            Ist_P_torvena, Ist_n_ergom, MU_ohne, MU_mit, MU_Proz)
SELECT 1000 + Nr.i, Schritt.i, '60,0', (25 * Schritt.i) || ',0', '60,0' || (Nr.i % 10), '15,92',
       (25 * Schritt.i) || ',17', '0', 'ja', 'ja', 0.3
FROM Zahl AS Nr, Zahl AS Schritt WHERE Nr.i <= 25000 AND Schritt.i <= 20
ORDER BY Nr.i, Schritt.i;
INSERT INTO Messwerte SELECT * FROM Messwerte_temp WHERE ProtokollID > 1000;
UPDATE Messwerte_temp SET ProtokollID = ProtokollID + 25000 WHERE ProtokollID > 1000;

DROP TABLE Zahl; DROP TABLE Haus; DROP TABLE Ortsname;
)sql";

} // namespace

void prepareLargeDatabase(const QString &directory) {
    const QString path = QDir(directory).absoluteFilePath(datenbankName);
    if (QFile::exists(path))
        return;
    std::printf("making the large database\n");
    std::fflush(stdout);
    QDir().mkpath(directory);
    const QString unfinished = path + ".new";
    QFile::remove(unfinished);
    std::vector<QString> scripts = databaseScripts(true);
    scripts.push_back(fill);
    Datenbank::createFile(unfinished, scripts);
    {
        Datenbank store;
        store.openFile(unfinished);
        store.together([&] { layTrail(store, "Neue Datenbank"); });
    }
    QFile::rename(unfinished, path);
}

} // namespace bench
