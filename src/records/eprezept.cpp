#include "records/eprezept.h"

#include <QScopedValueRollback>

#include <algorithm>

#include "records/satz.h"
#include "records/schluessel.h"
#include "store/database.h"

namespace {

/// The one row that meets the condition.
std::optional<EPRezept> einziges(const char *bedingung, const Datenbank::Params &params = {}) {
    const Recordset rows = gDatenbank.open(
        QString("SELECT RezeptID, RezName, Toleranz FROM EP_Rezeptnamen WHERE %1").arg(bedingung),
        params);
    if (rows.count() != 1)
        return std::nullopt;
    return EPRezept{schlüsselAus(rows["RezeptID"]), rows["RezName"].text(),
                    rows["Toleranz"].text()};
}

} // namespace

std::optional<EPRezept> epRezept(const QString &name) {
    return einziges("Gleich(RezName, ?)", {name});
}

std::optional<EPRezept> epRezept(Schlüssel rezeptID) {
    return einziges("RezeptID = ?", {rezeptID});
}

std::optional<EPRezept> epRezeptVorgewählt() {
    const std::optional<EPRezept> only = einziges("1");
    return only ? only : einziges("LetzterAufruf <> 0");
}

Recordset epRezeptSchritte(Schlüssel rezeptID) {
    return Schrittliste(endprüfrezepte.schritte, epSchrittspalten).lesen(rezeptID);
}

Schlüssel epRezeptAnlegen(const QString &name, const QString &klasse) {
    Schlüssel key = 0;
    gDatenbank.together([&] { // a recipe that cannot get any steps does not stay
        key = schlüsselAus(Feld(gDatenbank.insert(
            "INSERT INTO EP_Rezeptnamen (RezName, Toleranz) VALUES (?, ?)", {name, klasse})));
    });
    return key;
}

void epKlasseÄndern(Schlüssel rezeptID, const QString &klasse) {
    satzÄndern("UPDATE EP_Rezeptnamen SET Toleranz = ? WHERE RezeptID = ?", {klasse, rezeptID});
}

void epRezeptVerwerfen(Schlüssel rezeptID) {
    gDatenbank.execute("DELETE FROM Rezeptnamen WHERE RezeptID = ?", {rezeptID});
    const QScopedValueRollback klasse(gRezeptName); // in the final test it names the class
    sitzungsrezeptEinsetzen();
}

QString fnc_SSCodeVorschlag(const QString &leistung) {
    const bool digits = std::ranges::all_of(leistung, [](QChar c) { return c >= '0' && c <= '9'; });
    if (!digits || leistung.isEmpty() || leistung.size() > 3)
        return {};
    return "W" + leistung.rightJustified(3, '0') + "[13]";
}
