#include "records/archiv.h"

#include "store/database.h"

void archivieren(Schlüssel protokollID) {
    // The archive of a table bears its name without "_temp"; both have the same columns.
    for (const char *tabelle : {"Protokoll", "Messwerte", "SecControl", "Blutdruck"}) {
        const QString zeilen = QString(" FROM ") + tabelle + "_temp WHERE ProtokollID = ?";
        const Datenbank::Params nummer{protokollID};
        if (gDatenbank.open("SELECT *" + zeilen, nummer).empty())
            continue;
        gDatenbank.execute(QString("INSERT INTO ") + tabelle + " SELECT *" + zeilen, nummer);
        gDatenbank.execute("DELETE" + zeilen, nummer);
    }
}
