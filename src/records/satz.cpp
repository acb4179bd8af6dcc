#include "records/satz.h"

void satzÄndern(const QString &sql, const Datenbank::Params &params) {
    if (gDatenbank.execute(sql, params) == 0) {
        throw Fehler(platform::fehlernummer::NoCurrentRecord,
                     {"Diesen Datensatz gibt es nicht mehr.", "This record is gone."});
    }
}
