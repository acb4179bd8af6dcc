#include "finaltest/epbericht.h"

#include <QDir>

#include "protocols/berichtsmaschine.h"
#include "records/bericht.h"
#include "records/epmesswerte.h"
#include "session/sprache.h"
#include "store/database.h"

bool epBerichtZeigen(Schlüssel protokollID) {
    if (!hatEPMesswerte(protokollID))
        return false;
    stufen(Berichtsseite::Endprüfung, Bestand::Arbeit, protokollID);
    const QString layout =
        inDeutsch() ? QString("endpruefprotokoll.rpt") : QString("eng_endpruefprotokoll.rpt");
    const Berichtsmaschine maschine{QDir::current().absoluteFilePath(datenbankName),
                                    QDir::current().absoluteFilePath(layout),
                                    Berichtsmaschine::Ziel::Vorschau};
    maschine.ausführen(Bestand::Arbeit, protokollID,
                       inSprache({"Endprüfung ", "Final Test "}) + epSeriennummer(protokollID));
    return true;
}
