#include "records/epmesswerte.h"

#include "platform/clock.h"
#include "store/database.h"

namespace {

QVariant wert(const std::optional<double> &zahl) {
    return zahl ? QVariant(*zahl) : QVariant();
}

/// Null for an empty text.
QVariant text(const QString &text) {
    return text.isEmpty() ? QVariant() : QVariant(text);
}

QString erstes(const Recordset &zeilen) {
    return zeilen.empty() ? QString() : zeilen[0].text();
}

} // namespace

QString epRezeptname(Schlüssel rezeptID) {
    return erstes(
        gDatenbank.open("SELECT RezName FROM EP_Rezeptnamen WHERE RezeptID = ?", {rezeptID}));
}

Recordset epSchritte(Schlüssel rezeptID) {
    return gDatenbank.open("SELECT Prüfschritt, Drehzahl, Leistung, Prüfart, SSCode, MessSchritte "
                           "FROM EP_Rezepte WHERE RezeptID = ? ORDER BY Val(Prüfschritt)",
                           {rezeptID});
}

QString epSeriennummer(Schlüssel protokollID) {
    return erstes(gDatenbank.open("SELECT SerienNr FROM EP WHERE EP_ID = ?", {protokollID}));
}

Recordset epMesswerte(Schlüssel protokollID) {
    return gDatenbank.open("SELECT * FROM EP_Messwerte WHERE ProtokollID = ? ORDER BY "
                           "iif(length(Prüfschritt) = 1, '0' || Prüfschritt, Prüfschritt)",
                           {protokollID});
}

bool hatEPMesswerte(Schlüssel protokollID) {
    return !gDatenbank
                .open("SELECT 1 FROM EP_Messwerte WHERE ProtokollID = ? LIMIT 1", {protokollID})
                .empty();
}

void epMesswerteLöschen(Schlüssel protokollID) {
    gDatenbank.execute("DELETE FROM EP_Messwerte WHERE ProtokollID = ?", {protokollID});
}

void epLaufVerwerfen(Schlüssel protokollID) {
    gDatenbank.together([&] {
        epMesswerteLöschen(protokollID);
        gDatenbank.execute("UPDATE EP SET Rezept = NULL, Schritte = NULL, Drehrichtung = NULL, "
                           "NK_ID = NULL, Begonnen = NULL, Dauer = NULL, Vollständig = NULL "
                           "WHERE EP_ID = ?",
                           {protokollID});
    });
}

void epMesswertSpeichern(Schlüssel protokollID, const SchrittTexte &schritt,
                         const EPUrteil &urteil) {
    gDatenbank.execute(
        "INSERT INTO EP_Messwerte (ProtokollID, Prüfschritt, Soll_n, Soll_P, Ist_n_torvena, "
        "Ist_D_torvena, Ist_P_torvena, Ist_n_ergom, Toleranz, Klasse, ZulAbwP, ZulAbwN) "
        "VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)",
        {protokollID, schritt.prüfschritt, schritt.soll_n, schritt.soll_P, schritt.ist_n_torvena,
         schritt.ist_D_torvena, schritt.ist_P_torvena, schritt.ist_n_ergom, text(urteil.wort),
         urteil.klasse, wert(urteil.zulP), wert(urteil.zulN)});
}

void epLaufBeginnen(Schlüssel protokollID, Schlüssel rezeptID, int schritte) {
    gDatenbank.execute(
        "UPDATE EP SET Rezept = ?, Schritte = ?, Drehrichtung = ?, NK_ID = (SELECT MAX(NK_ID) FROM "
        "Normalkalibrierdaten), Begonnen = ?, Dauer = NULL, Vollständig = 0 WHERE EP_ID = ?",
        {epRezeptname(rezeptID), schritte, int(gDrehrichtung),
         platform::now().toString("yyyy-MM-dd hh:mm:ss"), protokollID});
}

void epLaufBeenden(Schlüssel protokollID, int dauer, bool vollständig) {
    gDatenbank.execute("UPDATE EP SET Dauer = ?, Vollständig = ? WHERE EP_ID = ?",
                       {dauer, vollständig, protokollID});
}

std::optional<EPLauf> letzterEPLauf(Schlüssel protokollID) {
    const Recordset kopf = gDatenbank.open(
        "SELECT Begonnen, Schritte, Dauer, Vollständig FROM EP WHERE EP_ID = ?", {protokollID});
    const Recordset zeilen = gDatenbank.open(
        "SELECT count(*), total(IFNULL(Toleranz, '') = ''), total(Toleranz <> 'OK' AND "
        "Toleranz <> '') FROM EP_Messwerte WHERE ProtokollID = ?",
        {protokollID});
    const bool bekannt = !kopf.empty() && !kopf["Begonnen"].isNull();
    if (!bekannt && zeilen[0].whole() == 0)
        return std::nullopt;
    EPLauf lauf{zeilen[0].whole(), zeilen[2].whole(), zeilen[1].whole(), {}, false, 0};
    if (!bekannt)
        return lauf;
    if (!kopf["Dauer"].isNull())
        lauf.dauer = kopf["Dauer"].whole();
    lauf.abgebrochen = kopf["Vollständig"].whole() == 0;
    lauf.geplant = kopf["Schritte"].whole();
    return lauf;
}
