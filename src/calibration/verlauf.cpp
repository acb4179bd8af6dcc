#include "calibration/verlauf.h"

#include <algorithm>

#include "store/sqltext.h"

Verlauf verlauf(const Recordset &historie, const QString &spalte) {
    struct Punkt {
        qint64 zeit;
        double wert;
        int zeile;
    };
    const int datum = historie.columnIndex("Prdatum"), moment = historie.columnIndex(spalte);
    if (historie.empty() || historie.at(0, moment).isNull())
        return {};
    const double referenz = Feld(historie.at(0, moment)).number();
    std::vector<Punkt> punkte;
    for (int zeile = 1; zeile < historie.count(); ++zeile) {
        const QDateTime zeitpunkt = zeitpunktAus(historie.at(zeile, datum).toString());
        const Feld wert(historie.at(zeile, moment));
        if (zeitpunkt.isValid() && !wert.isNull())
            punkte.push_back({zeitpunkt.toSecsSinceEpoch(), wert.number() - referenz, zeile});
    }
    std::stable_sort(punkte.begin(), punkte.end(),
                     [](const Punkt &a, const Punkt &b) { return a.zeit < b.zeit; });
    Verlauf ergebnis;
    for (const Punkt &punkt : punkte) {
        ergebnis.zeit.push_back(static_cast<double>(punkt.zeit));
        ergebnis.wert.push_back(punkt.wert);
        ergebnis.zeile.push_back(punkt.zeile);
    }
    return ergebnis;
}
