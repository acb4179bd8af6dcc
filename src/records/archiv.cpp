#include "records/archiv.h"

#include "records/protokollinhalt.h"
#include "store/database.h"

namespace {

void verschieben(const QString &von, const QString &nach, Schlüssel protokollID) {
    const QString zeilen = " FROM " + von + " WHERE ProtokollID = ?";
    if (gDatenbank.open("SELECT *" + zeilen, {protokollID}).empty())
        return;
    gDatenbank.execute("INSERT INTO " + nach + " SELECT *" + zeilen, {protokollID});
    gDatenbank.execute("DELETE" + zeilen, {protokollID});
}

} // namespace

void archivieren(Schlüssel protokollID) {
    verschieben(kopftabelle(Bestand::Arbeit), kopftabelle(Bestand::Archiv), protokollID);
    for (const Inhalt inhalt : alleInhalte)
        verschieben(tabelle(Bestand::Arbeit, inhalt), tabelle(Bestand::Archiv, inhalt),
                    protokollID);
}
