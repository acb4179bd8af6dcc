#include "records/loeschung.h"

#include <vector>

#include "records/protokollinhalt.h"
#include "store/database.h"

namespace {

struct Löschplan {
    QString schlüssel; ///< column that names the record in the heads and in master data
    bool auchLeereKöpfe;
    std::vector<QString> stammdaten; ///< tables cleared at the end
};

const Löschplan &planFür(Löschziel ziel) {
    static const Löschplan kunde{"KundenID", false, {"Ergometer", "Kunden"}};
    static const Löschplan gerät{"GerätID", true, {"Ergometer"}};
    return ziel == Löschziel::Kunde ? kunde : gerät;
}

/// Protocols that have all of this, and what is cleared before their heads. Each round finds what
/// the ones before it have left.
struct Löschgang {
    std::vector<Inhalt> mit;
    std::vector<Inhalt> leeren;
};

const Löschgang löschgänge[] = {
    {{Inhalt::Messwerte}, {Inhalt::SecControl, Inhalt::Blutdruck, Inhalt::Messwerte}},
    {{Inhalt::Blutdruck, Inhalt::SecControl}, {Inhalt::Blutdruck, Inhalt::SecControl}},
    {{Inhalt::Blutdruck}, {Inhalt::Blutdruck}},
    {{Inhalt::SecControl}, {Inhalt::SecControl}},
};

void gangAusführen(const Löschgang &gang, const Löschplan &plan, Bestand bestand,
                   Schlüssel schlüssel, const std::function<void()> &zwischendurch) {
    QString sql = "SELECT DISTINCT Kopf.ProtokollID FROM " + kopftabelle(bestand) + " AS Kopf";
    for (const Inhalt inhalt : gang.mit)
        sql += " INNER JOIN " + tabelle(bestand, inhalt) + " USING (ProtokollID)";
    sql += " WHERE Kopf." + plan.schlüssel + " = ?";
    for (Recordset kopf = gDatenbank.open(sql, {schlüssel}); !kopf.atEnd(); kopf.moveNext()) {
        for (const Inhalt inhalt : gang.leeren)
            inhaltLöschen(bestand, inhalt, kopf[0].whole());
        kopfLöschen(bestand, kopf[0].whole());
        zwischendurch();
    }
}

void protokolleLöschen(const Löschplan &plan, Bestand bestand, Schlüssel schlüssel,
                       const std::function<void()> &zwischendurch) {
    for (const Löschgang &gang : löschgänge)
        gangAusführen(gang, plan, bestand, schlüssel, zwischendurch);
    if (plan.auchLeereKöpfe)
        gangAusführen({}, plan, bestand, schlüssel, [] {});
}

} // namespace

int protokolleZählen(Löschziel ziel, Schlüssel schlüssel) {
    int count = 0;
    for (const Bestand bestand : alleBestände)
        count += gDatenbank
                     .open("SELECT ProtokollID FROM " + kopftabelle(bestand) + " WHERE " +
                               planFür(ziel).schlüssel + " = ?",
                           {schlüssel})
                     .count();
    return count;
}

int geräteZählen(Schlüssel kundenID) {
    return gDatenbank
        .open("SELECT Ergometer.* FROM Kunden INNER JOIN Ergometer "
              "ON Kunden.KundenID = Ergometer.KundenID WHERE Kunden.KundenID = ?",
              {kundenID})
        .count();
}

void datensatzLöschen(Löschziel ziel, Schlüssel schlüssel,
                      const std::function<void()> &zwischendurch) {
    const Löschplan &plan = planFür(ziel);
    for (const Bestand bestand : alleBestände) // the working tables first
        protokolleLöschen(plan, bestand, schlüssel, zwischendurch);
    for (const QString &tabelle : plan.stammdaten)
        gDatenbank.execute("DELETE FROM " + tabelle + " WHERE " + plan.schlüssel + " = ?",
                           {schlüssel});
}
