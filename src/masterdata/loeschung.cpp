#include "loeschung.h"

#include <vector>

#include "database.h"

// Tables bear their names without "_temp": of each pair the working table goes first.
struct Löschplan {
    QString schlüssel; ///< column that names the record in the heads and in master data
    bool auchLeereKöpfe;
    std::vector<QString> stammdaten; ///< tables cleared at the end
};

const Löschplan kundenplan{"KundenID", false, {"Ergometer", "Kunden"}};
const Löschplan geräteplan{"GerätID", true, {"Ergometer"}};

namespace {

/// Protocols that have rows in all these tables, and the tables that are cleared of them. Each
/// step finds what the ones before it have left.
struct Schritt {
    std::vector<QString> mitZeilenIn;
    std::vector<QString> leeren;
};

const Schritt schritte[] = {
    {{"Messwerte"}, {"SecControl", "Blutdruck", "Messwerte", "Protokoll"}},
    {{"Blutdruck", "SecControl"}, {"Blutdruck", "SecControl", "Protokoll"}},
    {{"Blutdruck"}, {"Blutdruck", "Protokoll"}},
    {{"SecControl"}, {"SecControl", "Protokoll"}},
};

const QString paar[] = {"_temp", ""}; // in work, archived

void schrittAusführen(const Schritt &schritt, const Löschplan &plan, const QString &endung,
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
    for (const Schritt &schritt : schritte)
        schrittAusführen(schritt, plan, endung, schlüssel, zwischendurch);
    if (plan.auchLeereKöpfe)
        gDatenbank.execute("DELETE FROM Protokoll" + endung + " WHERE " + plan.schlüssel + " = ?",
                           {schlüssel});
}

} // namespace

int protokolleZählen(const Löschplan &plan, Schlüssel schlüssel) {
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

void datensatzLöschen(const Löschplan &plan, Schlüssel schlüssel,
                      const std::function<void()> &zwischendurch) {
    for (const QString &endung : paar)
        protokolleLöschen(plan, endung, schlüssel, zwischendurch);
    for (const QString &tabelle : plan.stammdaten)
        gDatenbank.execute("DELETE FROM " + tabelle + " WHERE " + plan.schlüssel + " = ?",
                           {schlüssel});
}

Text kundenfrage(int geräte, int protokolle, const QString &name) {
    if (geräte == 0 && protokolle == 0)
        return {"Wollen Sie die Daten zu dem Kunden '" + name + "' jetzt löschen?",
                "Do you want to delete the data of '" + name + "' now?"};
    const QString n = QString::number(geräte);
    const QString m = QString::number(protokolle);
    Text erster{"Zu dem Kunden '" + name, "For the customer '" + name};
    const auto weiter = [&erster](const QString &german, const QString &english) {
        erster.german += german;
        erster.english += english;
    };
    if (geräte == 1 && protokolle == 0)
        erster = {"Zu diesem Kunden existiert ein Gerät.",
                  "For this customer there is a unit existent."};
    else if (protokolle == 0)
        weiter("' existieren " + n + " Geräte.", "' there are " + n + " units existent.");
    else if (geräte == 1 && protokolle == 1)
        weiter("' existiert ein Gerät und ein Protokoll.", "' there is a unit and a protocol.");
    else if (protokolle == 1)
        weiter("' existiert " + n + " Geräte und ein Protokoll.",
               "' there are " + n + " units and a protocol.");
    else if (geräte == 1)
        weiter("' existiert ein Gerät und " + m + " Protokolle.",
               "' there are " + m + " protocols and a unit.");
    else
        weiter("' existieren " + n + " Geräte und " + m + " Protokolle.",
               "' there are " + n + " units and " + m + " protocols.");
    return {erster.german + "\rWollen Sie alle zu diesem Kunden gehörenden Daten jetzt löschen?",
            erster.english + "\rShall data of the customer be deleted now?"};
}

Text gerätefrage(int protokolle, const QString &name) {
    if (protokolle == 0)
        return {"Sollen die Daten zu dem Gerät '" + name + "' jetzt gelöscht werden?",
                "Shall data of the unit '" + name + "' be deleted now?"};
    const QString german = "Zu dem Gerät '" + name;
    const QString english = "For the unit '" + name;
    const QString frage = "\rSollen diese Daten jetzt gelöscht werden?";
    if (protokolle == 1)
        return {german + "' existiert ein Protokoll." + frage,
                english + "' there is one protocol existent.\rShall it be deleted now?"};
    const QString m = QString::number(protokolle);
    return {german + "' existieren " + m + " Protokolle." + frage,
            english + "' there are " + m + " protocols existent.\rShall they be deleted now?"};
}
