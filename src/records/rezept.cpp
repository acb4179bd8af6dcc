#include "records/rezept.h"

#include "records/schluessel.h"
#include "records/schrittliste.h"
#include "session/session.h"
#include "session/sprache.h"
#include "store/database.h"

RezeptKopf rezeptKopf(const QString &name) {
    const Recordset row = gDatenbank.open(
        "SELECT RezeptID, ID, Bezeichnung, GKlasse, Messverfahren "
        "FROM Rezeptnamen INNER JOIN Toleranzen ON Rezeptnamen.ToleranzID = Toleranzen.ID "
        "WHERE RezName = ?",
        {name});
    RezeptKopf kopf;
    schlüsselNach(kopf.rezeptID, row["RezeptID"]);
    schlüsselNach(kopf.toleranzID, row["ID"]);
    kopf.toleranz = row["Bezeichnung"].text();
    kopf.messverfahren = row["Messverfahren"].text();
    return kopf;
}

bool rezepteVorhanden() {
    return !gDatenbank.open("SELECT 1 FROM Rezeptnamen LIMIT 1").empty();
}

Schlüssel rezeptSchlüssel(const QString &name) {
    const Recordset row =
        gDatenbank.open("select rezeptid from rezeptnamen where rezname = ?", {name});
    Schlüssel key = 0;
    schlüsselNach(key, row[0]);
    return key;
}

Recordset rezeptSchritte(Schlüssel rezeptID) {
    return gespeicherteSchritte(rezeptID, {"Leistungsmessung  ", "Power Measurement"},
                                {"Drehzahlmessung  ", "Speed Measurement"});
}

void rezeptLöschen(Schlüssel rezeptID) {
    gDatenbank.execute("DELETE FROM Rezepte WHERE Rezeptid = ?", {rezeptID});
    gDatenbank.execute("DELETE FROM Rezeptnamen WHERE Rezeptid = ?", {rezeptID});
}

void sitzungsrezeptEinsetzen() try {
    rezeptZurückholen();
    if (!auswahl().rezept.isEmpty())
        rezeptErneuern(rezeptKopf(auswahl().rezept));
} catch (const Fehler &fehler) {
    if (fehler.number() == platform::fehlernummer::NoCurrentRecord)
        rezeptWählen({});
    else
        fehlerBox("1015 - ", fehler);
}
