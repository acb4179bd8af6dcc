#include "archiv.h"

#include "database.h"
#include "session.h"
#include "sprache.h"

void fnc_Archivieren() try {
    // The archive of a table bears its name without "_temp"; both have the same columns.
    for (const char *tabelle : {"Protokoll", "Messwerte", "SecControl", "Blutdruck"}) {
        const QString zeilen = QString(" FROM ") + tabelle + "_temp WHERE ProtokollID = ?";
        const Datenbank::Params nummer{gBerichtProtokoll};
        if (gDatenbank.open("SELECT *" + zeilen, nummer).empty())
            continue;
        gDatenbank.execute(QString("INSERT INTO ") + tabelle + " SELECT *" + zeilen, nummer);
        gDatenbank.execute("DELETE" + zeilen, nummer);
    }
} catch (const Fehler &fehler) {
    fehlerBox("Fehler 1083 - ", "ERROR 1083 - ", fehler);
}
