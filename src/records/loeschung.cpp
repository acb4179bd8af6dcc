#include "records/loeschung.h"

#include <vector>

#include "store/database.h"

namespace {

// Tables bear their names without "_temp": of each pair the working table goes first.
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

/// Protocols that have rows in all these tables, and the tables that are cleared of them. Each
/// step finds what the ones before it have left.
struct Löschschritt {
    std::vector<QString> mitZeilenIn;
    std::vector<QString> leeren;
};

const Löschschritt löschschritte[] = {
    {{"Messwerte"}, {"SecControl", "Blutdruck", "Messwerte", "Protokoll"}},
    {{"Blutdruck", "SecControl"}, {"Blutdruck", "SecControl", "Protokoll"}},
    {{"Blutdruck"}, {"Blutdruck", "Protokoll"}},
    {{"SecControl"}, {"SecControl", "Protokoll"}},
};

const QString paar[] = {"_temp", ""}; // in work, archived

void schrittAusführen(const Löschschritt &schritt, const Löschplan &plan, const QString &endung,
                      Schlüssel schlüssel, const std::function<void()> &zwischendurch) {
    QString sql = "SELECT DISTINCT Kopf.ProtokollID FROM Protokoll" + endung + " AS Kopf";
    for (const QString &tabelle : schritt.mitZeilenIn) {
        const QString name = tabelle + endung;
        sql += " INNER JOIN " + name + " ON Kopf.ProtokollID = " + name + ".ProtokollID";
    }
    sql += " WHERE Kopf." + plan.schlüssel + " = ?";
    for (Recordset kopf = gDatenbank.open(sql, {schlüssel}); !kopf.atEnd(); kopf.moveNext()) {
        for (const QString &tabelle : schritt.leeren)
            gDatenbank.execute("DELETE FROM " + tabelle + endung + " WHERE ProtokollID = ?",
                               {kopf[0].value()});
        zwischendurch();
    }
}

void protokolleLöschen(const Löschplan &plan, const QString &endung, Schlüssel schlüssel,
                       const std::function<void()> &zwischendurch) {
    for (const Löschschritt &schritt : löschschritte)
        schrittAusführen(schritt, plan, endung, schlüssel, zwischendurch);
    if (plan.auchLeereKöpfe)
        gDatenbank.execute("DELETE FROM Protokoll" + endung + " WHERE " + plan.schlüssel + " = ?",
                           {schlüssel});
}

} // namespace

int protokolleZählen(Löschziel ziel, Schlüssel schlüssel) {
    const Löschplan &plan = planFür(ziel);
    int count = 0;
    for (const QString &endung : paar)
        count += gDatenbank
                     .open("SELECT ProtokollID FROM Protokoll" + endung + " WHERE " +
                               plan.schlüssel + " = ?",
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
    for (const QString &endung : paar)
        protokolleLöschen(plan, endung, schlüssel, zwischendurch);
    for (const QString &tabelle : plan.stammdaten)
        gDatenbank.execute("DELETE FROM " + tabelle + " WHERE " + plan.schlüssel + " = ?",
                           {schlüssel});
}
