#include "records/arbeitskopie.h"

#include "store/database.h"

namespace {

constexpr const char *spalten =
    "RezeptID * ?, Prüfschritt, Drehzahl, Leistung, Prüfart, SSCode, MessSchritte";

} // namespace

void Arbeitskopie::füllen(Schlüssel rezeptID) const {
    gDatenbank.execute(QString("INSERT INTO ÄndRez_temp SELECT %1 FROM %2 WHERE RezeptID = ? "
                               "ORDER BY Val(Prüfschritt), rowid") // the editor takes them so
                           .arg(spalten, mTabellen.schritte),
                       {mTabellen.vorzeichen, rezeptID});
}

void Arbeitskopie::fnc_ÄnderungenÜbernehmen(Schlüssel rezeptID) {
    gDatenbank.execute(QString("DELETE FROM %1 WHERE RezeptID = ?").arg(mTabellen.schritte),
                       {rezeptID});
    mEinzige = true;
    gDatenbank.execute(
        QString("INSERT INTO %1 SELECT %2 FROM ÄndRez_temp WHERE RezeptID * ? > 0 ORDER BY rowid")
            .arg(mTabellen.schritte, spalten),
        {mTabellen.vorzeichen, mTabellen.vorzeichen});
    mEinzige = false;
    fnc_ÄnderungenVerwerfen();
}

void Arbeitskopie::fnc_ÄnderungenVerwerfen() const {
    gDatenbank.execute("DELETE FROM ÄndRez_temp WHERE RezeptID * ? > 0", {mTabellen.vorzeichen});
}
