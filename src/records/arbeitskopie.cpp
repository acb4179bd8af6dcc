#include "records/arbeitskopie.h"

#include "store/database.h"

void Arbeitskopie::füllen(Schlüssel rezeptID) const {
    gDatenbank.execute(QString("INSERT INTO ÄndRez_temp SELECT * FROM %1 WHERE RezeptID = ? "
                               "ORDER BY Val(Prüfschritt), rowid") // the editor takes them so
                           .arg(mTabelle),
                       {rezeptID});
}

void Arbeitskopie::fnc_ÄnderungenÜbernehmen(Schlüssel rezeptID) {
    gDatenbank.execute(QString("DELETE FROM %1 WHERE RezeptID = ?").arg(mTabelle), {rezeptID});
    mEinzige = true;
    gDatenbank.execute(QString("INSERT INTO %1 SELECT * FROM ÄndRez_temp").arg(mTabelle));
    mEinzige = false;
    fnc_ÄnderungenVerwerfen();
}

void Arbeitskopie::fnc_ÄnderungenVerwerfen() const {
    gDatenbank.execute("DELETE FROM ÄndRez_temp");
}
