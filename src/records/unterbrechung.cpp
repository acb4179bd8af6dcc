#include "records/unterbrechung.h"

#include "platform/clock.h"
#include "records/rezept.h"
#include "session/sprache.h"
#include "store/database.h"
#include "store/sqltext.h"

namespace {

const QString gespeichert = "EXISTS (SELECT 1 FROM Messwerte_temp M WHERE M.ProtokollID = "
                            "P.ProtokollID AND M.Prüfschritt = X.Prüfschritt)";

std::optional<Unterbrechung> lesen() {
    const Recordset sitzung = gDatenbank.open(
        "SELECT S.RezeptID, P.ProtokollID, P.Protokollname, P.ErstellDatum, K.KundenID, K.Name, "
        "E.GerätID, E.Gerätetyp, E.IdentNr, R.RezName, "
        "(SELECT MAX(M.ProtokollID) FROM Messwerte_temp M JOIN Protokoll_temp Q "
        "ON Q.ProtokollID = M.ProtokollID) AS Letztes, "
        "EXISTS (SELECT 1 FROM Messwerte_temp M WHERE M.ProtokollID = P.ProtokollID) AS Werte "
        "FROM Sitzung S JOIN Protokoll_temp P ON P.ProtokollID = S.ProtokollID "
        "JOIN Kunden K ON K.KundenID = P.KundenID "
        "JOIN Ergometer E ON E.GerätID = P.GerätID AND E.KundenID = K.KundenID "
        "JOIN Rezeptnamen R ON R.RezeptID = S.RezeptID");
    if (sitzung.empty())
        return std::nullopt;
    const Recordset schritte = gDatenbank.open(
        "SELECT X.Prüfschritt, " + gespeichert +
            " FROM Protokoll_temp P, Rezepte X WHERE P.ProtokollID = ? AND X.RezeptID = ? "
            "ORDER BY Val(X.Prüfschritt)",
        {sitzung["ProtokollID"].value(), sitzung["RezeptID"].value()});
    Unterbrechung was{.protokollID = sitzung["ProtokollID"].whole(),
                      .name = sitzung["Protokollname"].text(),
                      .kundenID = sitzung["KundenID"].whole(),
                      .kunde = sitzung["Name"].text(),
                      .gerätID = sitzung["GerätID"].whole(),
                      .gerätetyp = sitzung["Gerätetyp"].text(),
                      .identNr = sitzung["IdentNr"].text(),
                      .rezept = sitzung["RezName"].text(),
                      .schritte = schritte.count(),
                      .erster = {}};
    for (int zeile = 0; zeile < schritte.count(); ++zeile) {
        if (schritte.at(zeile, 1).toBool())
            ++was.gemessen;
        else if (was.erster.isEmpty())
            was.erster = schritte.at(zeile, 0).toString();
    }
    was.fortsetzbar = sitzung["Werte"].whole() == 0 ||
                      (sitzung["Letztes"].whole() == was.protokollID &&
                       datumAus(sitzung["ErstellDatum"].text()) == platform::now().date());
    return was;
}

} // namespace

void sitzungMerken() noexcept try {
    gWiederaufnahme = 0;
    gDatenbank.together([] {
        gDatenbank.execute("DELETE FROM Sitzung");
        gDatenbank.execute("INSERT INTO Sitzung (ProtokollID, RezeptID) VALUES (?, ?)",
                           {gProtokollID, gRezeptID});
    });
} catch (const Fehler &fehler) {
    fehlerMerken(fehler);
}

void sitzungVergessen(Schlüssel protokollID) noexcept try {
    gDatenbank.execute("DELETE FROM Sitzung WHERE ProtokollID = ?", {protokollID});
} catch (const Fehler &fehler) {
    fehlerMerken(fehler);
}

std::optional<Unterbrechung> unterbrochen() noexcept try {
    return lesen();
} catch (const Fehler &fehler) {
    fehlerMerken(fehler);
    return std::nullopt;
}

void wiederaufnehmen(const Unterbrechung &sitzung) {
    const RezeptKopf kopf = rezeptKopf(sitzung.rezept);
    kundeWählen(sitzung.kunde, sitzung.kundenID);
    gGerätID = sitzung.gerätID;
    gerätWählen(sitzung.gerätetyp, sitzung.identNr);
    rezeptEinsetzen(kopf);
    rezeptWählen(sitzung.rezept);
    gWiederaufnahme = sitzung.protokollID;
}
