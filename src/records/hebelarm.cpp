#include "records/hebelarm.h"

#include <algorithm>

#include "session/sprache.h"
#include "store/database.h"
#include "store/sqltext.h"

using namespace platform;

namespace {

Recordset alleZeilen() {
    return gDatenbank.open("SELECT * FROM Hebelarmkalibrierung ORDER BY ID");
}

} // namespace

bool fnc_HebelarmDatumLesen() {
    Recordset rows = alleZeilen();
    if (rows.empty())
        return false;
    rows.moveLast();
    gHebelarmDatum = datumAus(rows[2].text());
    gHebelarmFällig = gHebelarmDatum.addMonths(6);
    return true;
}

int hebelarmRest(const QDate &datum, const QDate &fällig, const QDate &heute) {
    const qint64 total = datum.daysTo(fällig);
    if (total <= 0)
        return 0;
    const qint64 left = std::clamp<qint64>(total - datum.daysTo(heute), 0, total);
    return static_cast<int>(left * 100 / total);
}

Hebelarmmomente hebelarmReferenzLesen() {
    const Recordset rows = alleZeilen();
    if (rows.empty()) {
        throw Fehler(fehlernummer::NoCurrentRecord,
                     {"Die Referenzmomente fehlen: Es gibt keine Hebelarmkalibrierung.",
                      "The reference moments are missing: there is no lever arm calibration."});
    }
    return {rows[4].requiredNumber(), rows[5].requiredNumber()};
}

void hebelarmSpeichern(const Hebelarmkalibrierung &ergebnis) {
    gDatenbank.insert("INSERT INTO Hebelarmkalibrierung "
                      "(Prüfer, Erdschwere, Rechts, Links, Streu_R, Streu_L, NK_ID) "
                      "SELECT ?, ?, ?, ?, ?, ?, max(NK_ID) FROM Normalkalibrierdaten",
                      {gPrüfer, ergebnis.erdschwere, ergebnis.momente.rechts,
                       ergebnis.momente.links, ergebnis.streuR, ergebnis.streuL});
}

Recordset hebelarmHistorie() {
    return gDatenbank.open("SELECT * FROM Historie");
}

void hebelarmLöschen(Schlüssel id) {
    if (id != hebelarmReferenz)
        gDatenbank.execute("DELETE FROM Hebelarmkalibrierung WHERE ID = ?", {id});
}
