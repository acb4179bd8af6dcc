#include "records/rezept.h"

#include "records/satz.h"
#include "records/schluessel.h"
#include "records/schrittliste.h"
#include "records/spalte.h"
#include "records/toleranz.h"
#include "store/database.h"

QStringList rezeptnamen(const Rezepttabellen &tabellen) {
    return spalte(gDatenbank.open(QString("SELECT RezName FROM %1").arg(tabellen.namen)));
}

bool rezeptnameVergeben(const QString &name, const Rezepttabellen &tabellen) {
    return !gDatenbank
                .open(
                    QString("SELECT RezeptID FROM %1 WHERE Gleich(RezName, ?)").arg(tabellen.namen),
                    {name})
                .empty();
}

Schlüssel rezeptSchlüssel(const QString &name, const Rezepttabellen &tabellen) {
    return schlüsselAus(gDatenbank.open(
        QString("SELECT RezeptID FROM %1 WHERE RezName = ?").arg(tabellen.namen), {name})[0]);
}

void rezeptLöschen(Schlüssel rezeptID, const Rezepttabellen &tabellen) {
    for (const char *tabelle : {tabellen.schritte, tabellen.namen})
        gDatenbank.execute(QString("DELETE FROM %1 WHERE RezeptID = ?").arg(tabelle), {rezeptID});
}

RezeptKopf rezeptKopf(const QString &name) {
    const Recordset row = gDatenbank.open(
        "SELECT RezeptID, ID, Bezeichnung, GKlasse, Messverfahren "
        "FROM Rezeptnamen INNER JOIN Toleranzen ON Rezeptnamen.ToleranzID = Toleranzen.ID "
        "WHERE RezName = ?",
        {name});
    return {schlüsselAus(row["RezeptID"]), schlüsselAus(row["ID"]), row["Bezeichnung"].text(),
            row["Messverfahren"].text()};
}

bool rezepteVorhanden() {
    return !gDatenbank.open("SELECT 1 FROM Rezeptnamen LIMIT 1").empty();
}

Schlüssel rezeptAnlegen(const QString &name, const QString &toleranz) {
    const Recordset rows = toleranzMitNamen(toleranz);
    if (rows.count() > 1) {
        throw Fehler(platform::fehlernummer::NoCurrentRecord,
                     {"Diese Spezifikation gibt es mehrmals.",
                      "There are several specifications of this name."});
    }
    const Schlüssel toleranzID = schlüsselAus(rows["ID"]);
    Schlüssel key = 0;
    gDatenbank.together([&] { // a recipe that cannot get any steps does not stay
        key = schlüsselAus(Feld(gDatenbank.insert(
            "INSERT INTO Rezeptnamen (RezName, ToleranzID) VALUES (?, ?)", {name, toleranzID})));
    });
    return key;
}

void rezeptToleranzÄndern(Schlüssel rezeptID, const QString &toleranz) {
    satzÄndern("UPDATE Rezeptnamen SET ToleranzID = ? WHERE RezeptID = ?",
               {toleranzMitNamen(toleranz)["ID"].value(), rezeptID});
}

Recordset rezeptSchritte(Schlüssel rezeptID) {
    return Schrittliste(ordentlicheRezepte.schritte)
        .lesen(rezeptID, {"Leistungsmessung  ", "Power Measurement"},
               {"Drehzahlmessung  ", "Speed Measurement"});
}

void sitzungsrezeptEinsetzen() try {
    rezeptZurückholen();
    if (!auswahl().rezept.isEmpty())
        rezeptErneuern(rezeptKopf(auswahl().rezept));
} catch (const Fehler &fehler) {
    if (fehler.number() != platform::fehlernummer::NoCurrentRecord)
        throw;
    rezeptWählen({});
}
