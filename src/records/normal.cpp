#include "records/normal.h"

#include "session/session.h"
#include "session/sprache.h"
#include "store/database.h"
#include "store/sqltext.h"

namespace {

Recordset letzteZeile() {
    Recordset rows = gDatenbank.open("SELECT * FROM Normalkalibrierdaten ORDER BY NK_ID");
    rows.moveLast();
    return rows;
}

} // namespace

void ohneFehlendeSpalte(const std::function<void()> &anweisung) {
    try {
        anweisung();
    } catch (const Fehler &fehler) {
        fehlerMerken(fehler);
        if (fehler.number() != platform::fehlernummer::MissingColumn)
            throw;
    }
}

void normalÜbernehmen(const Recordset &zeile) {
    // An older database may lack columns; what it has is taken all the same.
    ohneFehlendeSpalte([&] { gSeriennummer = zeile[1].text(); });
    ohneFehlendeSpalte([&] { gNKGerätetyp = zeile[2].text(); });
    ohneFehlendeSpalte([&] { gKalibrierdatum = datumAus(zeile[4].text()); });
    ohneFehlendeSpalte([&] { gNormalOffset = zeile[6].number(); });
    ohneFehlendeSpalte([&] { gNormalGainR = zeile[7].number(); });
    ohneFehlendeSpalte([&] { gNormalGainL = zeile[8].number(); });
    ohneFehlendeSpalte([&] { gNormalGrenzwert = zeile[12].number(); });
    ohneFehlendeSpalte([&] { gNormalAnzahl = static_cast<std::int16_t>(zeile[13].whole()); });
}

void letztesNormalLesen() {
    normalÜbernehmen(letzteZeile());
}

StatikSoll statikSollLesen(bool rechtslauf) {
    const Recordset zeile = letzteZeile();
    return {zeile["Offset"].requiredNumber(),
            zeile[rechtslauf ? "Gain_R" : "Gain_L"].requiredNumber(),
            zeile[rechtslauf ? "VK1_R" : "VK1_L"].requiredNumber()};
}

bool normalDatenLesen() {
    Recordset rows = gDatenbank.open(
        "SELECT * FROM Normalkalibrierdaten WHERE SerienNr = ? ORDER BY NK_ID", {gSeriennummer});
    if (rows.empty())
        return false;
    rows.moveLast();
    normalÜbernehmen(rows);
    return true;
}
