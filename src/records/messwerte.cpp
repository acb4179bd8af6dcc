#include "records/messwerte.h"

#include <cmath>

#include "platform/runtime.h"
#include "session/sprache.h"
#include "store/database.h"

namespace {

std::optional<double> zahlOderNichts(const Feld &feld) {
    return feld.isNull() ? std::nullopt : std::optional(feld.number());
}

Unsicherheiten uncertaintyTable(const QString &table) {
    Recordset rows = gDatenbank.open("SELECT * FROM " + table);
    Unsicherheiten list;
    for (; !rows.atEnd(); rows.moveNext())
        list.push_back({zahlOderNichts(rows[1]), zahlOderNichts(rows[2])});
    return list;
}

/// Leaves the cursor on the row of the step.
bool fnc_SchrittVorhanden(Recordset &rows, const QString &schritt) {
    for (; !rows.atEnd(); rows.moveNext()) {
        if (rows["Prüfschritt"].text() == schritt)
            return true;
    }
    return false;
}

/// The row was measured under the set-points of another recipe.
bool andererSchritt(const Recordset &zeile, const SchrittTexte &schritt) {
    const double abstand = std::fabs(zeile["Soll_n"].number() - schritt.rezeptDrehzahl);
    return zeile["Soll_P"].number() != Feld(schritt.soll_P).number() ||
           Round(abstand, 6) > Round(schritt.rezeptDrehzahl / 10, 6);
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

Unsicherheiten unsicherheitLeistung() {
    return uncertaintyTable("MU_Leistung");
}

Unsicherheiten unsicherheitDrehzahl() {
    return uncertaintyTable("MU_Drehzahl");
}

void messwertSpeichern(int protokollID, const SchrittTexte &schritt, const Urteil &urteil) {
    const QString ohne = inSprache(urteil.ohne ? Text{"ja", "yes"} : Text{"nein", "no"});
    Recordset zeilen = gDatenbank.open("SELECT Prüfschritt, Soll_n, Soll_P FROM Messwerte_temp "
                                       "WHERE ProtokollID = ?",
                                       {protokollID});
    if (schritt.prüfschritt != freierSchritt && fnc_SchrittVorhanden(zeilen, schritt.prüfschritt)) {
        const bool andere = andererSchritt(zeilen, schritt);
        const QVariant soll_n = andere ? schritt.soll_n : zeilen["Soll_n"].value();
        const QVariant soll_P = andere ? schritt.soll_P : zeilen["Soll_P"].value();
        gDatenbank.execute("UPDATE Messwerte_temp SET Soll_n = ?, Soll_P = ?, IST_n_torvena = ?, "
                           "IST_P_torvena = ?, IST_D_torvena = ?, IST_n_ergom = ?, MU_ohne = ?, "
                           "MU_mit = ?, MU_Proz = ? WHERE Prüfschritt = ? AND ProtokollID = ?",
                           {soll_n, soll_P, schritt.ist_n_torvena, schritt.ist_P_torvena,
                            schritt.ist_D_torvena, schritt.ist_n_ergom, ohne, urteil.mit,
                            urteil.muProz, schritt.prüfschritt, protokollID});
        return;
    }
    gDatenbank.execute(
        "INSERT INTO Messwerte_temp (ProtokollID, Prüfschritt, Soll_n, Soll_P, Ist_n_torvena, "
        "Ist_D_torvena, Ist_P_torvena, Ist_n_ergom, MU_ohne, MU_mit, MU_Proz) "
        "VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)",
        {protokollID, schritt.prüfschritt, schritt.soll_n, schritt.soll_P, schritt.ist_n_torvena,
         schritt.ist_D_torvena, schritt.ist_P_torvena, schritt.ist_n_ergom, ohne, urteil.mit,
         urteil.muProz});
}
