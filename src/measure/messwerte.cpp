#include "messwerte.h"

#include <algorithm>

#include "database.h"
#include "runtime.h"
#include "session.h"

namespace {

Unsicherheiten uncertaintyTable(const QString &table) {
    Recordset rows = gDatenbank.open("SELECT * FROM " + table);
    Unsicherheiten list;
    for (; !rows.atEnd(); rows.moveNext())
        list.push_back({rows[1].number(), rows[2].number()});
    return list;
}

bool fnc_SchrittVorhanden(const Messwert &wert) {
    const Recordset rows = gDatenbank.open(
        "SELECT Prüfschritt FROM Messwerte_temp WHERE ProtokollID = ?", {wert.protokollID});
    for (int row = 0; row < rows.count(); ++row) {
        if (rows.at(row, 0).toString() == wert.prüfschritt)
            return true;
    }
    return false;
}

} // namespace

Recordset messSchritte(int rezeptID) {
    return gDatenbank.open("SELECT Prüfschritt, Drehzahl, Leistung, Prüfart FROM Rezepte "
                           "WHERE RezeptID = ? ORDER BY Val(Prüfschritt)",
                           {rezeptID});
}

Recordset protokollMesswerte(int protokollID) {
    return gDatenbank.open(
        "SELECT * FROM Messwerte_temp WHERE ProtokollID = ? ORDER BY "
        "iif(length(Prüfschritt) = 1, '0' || Prüfschritt, Prüfschritt), MDat, rowid",
        {protokollID});
}

bool toleranzLesen(int toleranzID, ToleranzZeile &zeile) {
    const Recordset row = gDatenbank.open(
        "SELECT Bezeichnung, Prozent, Watt, GrenzAbw FROM Toleranzen WHERE Toleranzen.ID = ?",
        {toleranzID});
    if (row.empty())
        return false;
    zeile.bezeichnung = row[0].text();
    zeile.spezifikation = {row[1].number(), row[2].number(),
                           static_cast<std::int16_t>(Round(row[3].number()))};
    return true;
}

Unsicherheiten unsicherheitLeistung() {
    return uncertaintyTable("MU_Leistung");
}

Unsicherheiten unsicherheitDrehzahl() {
    return uncertaintyTable("MU_Drehzahl");
}

void messwertSpeichern(const Messwert &wert) {
    const SchrittTexte &texte = wert.texte;
    const bool german = gSprache == 1;
    const QString ohne = wert.urteil.ohne ? (german ? "ja" : "yes") : (german ? "nein" : "no");
    if (wert.prüfschritt != freierSchritt && fnc_SchrittVorhanden(wert)) {
        gDatenbank.execute("UPDATE Messwerte_temp SET IST_n_torvena = ?, IST_P_torvena = ?, "
                           "IST_D_torvena = ?, IST_n_ergom = ?, MU_ohne = ?, MU_mit = ?, "
                           "MU_Proz = ? WHERE Prüfschritt = ? AND ProtokollID = ?",
                           {texte.ist_n_torvena, texte.ist_P_torvena, wert.ist_D_torvena,
                            texte.ist_n_ergom, ohne, wert.urteil.mit, wert.urteil.muProz,
                            wert.prüfschritt, wert.protokollID});
        return;
    }
    gDatenbank.execute(
        "INSERT INTO Messwerte_temp (ProtokollID, Prüfschritt, Soll_n, Soll_P, Ist_n_torvena, "
        "Ist_D_torvena, Ist_P_torvena, Ist_n_ergom, MU_ohne, MU_mit, MU_Proz) "
        "VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)",
        {wert.protokollID, wert.prüfschritt, texte.soll_n, texte.soll_P, texte.ist_n_torvena,
         wert.ist_D_torvena, texte.ist_P_torvena, texte.ist_n_ergom, ohne, wert.urteil.mit,
         wert.urteil.muProz});
}

bool protokollHatMesswerte(int protokollID) {
    return !gDatenbank
                .open("SELECT 1 FROM Messwerte_temp WHERE ProtokollID = ? LIMIT 1", {protokollID})
                .empty();
}

bool protokollHatBlätter(int protokollID) {
    return !gDatenbank
                .open("SELECT 1 FROM Blutdruck_temp WHERE ProtokollID = ?1 UNION ALL "
                      "SELECT 1 FROM SecControl_temp WHERE ProtokollID = ?1 LIMIT 1",
                      {protokollID})
                .empty();
}

void protokollkopfLöschen(int protokollID) {
    gDatenbank.execute("DELETE FROM Protokoll_temp WHERE ProtokollID = ?", {protokollID});
}
