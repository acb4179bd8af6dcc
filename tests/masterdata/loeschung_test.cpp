// Deleting a customer or a unit: what is counted, what is asked, and what is left in every table.
#include <gtest/gtest.h>

#include "loeschung.h"
#include "workplace.h"

namespace {

using platform::Text;

class Records : public support::Workshop {
  protected:
    Records() {
        gDatenbank.openFile(datenbankName);
        for (const int customer : {victim, bystander}) {
            change("INSERT INTO Kunden (KundenID, Name) VALUES (?, 'K')", {customer});
            for (const int unit : {customer, customer + 10})
                change("INSERT INTO Ergometer (GerätID, KundenID) VALUES (?, ?)", {unit, customer});
        }
    }

    static constexpr int victim = 101;
    static constexpr int bystander = 102;

    /// One protocol of the record with the sheets that the bits name. The other key is the same
    /// for all, so that a statement that looks at it finds too much or too little.
    static void protocol(int number, bool ofCustomer, int record, int sheets, const QString &end) {
        gDatenbank.execute("INSERT INTO Protokoll" + end +
                               " (ProtokollID, KundenID, GerätID) "
                               "VALUES (?, ?, ?)",
                           {number, ofCustomer ? record : 777, ofCustomer ? 777 : record});
        const std::pair<QString, int> inserts[] = {{"Messwerte", 1},
                                                   {"Messwerte", 1},
                                                   {"Blutdruck", 2},
                                                   {"Blutdruck", 2},
                                                   {"SecControl", 4}};
        for (const auto &[table, bit] : inserts) {
            if (sheets & bit)
                gDatenbank.execute("INSERT INTO " + table + end + " (ProtokollID) VALUES (?)",
                                   {number});
        }
    }
    QString keysOf(const QString &table, const QString &key) {
        return column("SELECT DISTINCT " + key + " FROM " + table + " WHERE " + key +
                      " > 100 ORDER BY 1")
            .join(' ');
    }
};

class Deletion : public Records, public testing::WithParamInterface<bool> {};

INSTANTIATE_TEST_SUITE_P(OfACustomer, Deletion, testing::Values(true));
INSTANTIATE_TEST_SUITE_P(OfAUnit, Deletion, testing::Values(false));

TEST_P(Deletion, LeavesWhatBelongsToOthers) {
    const std::pair<const char *, int> tables[] = {
        {"Messwerte", 1}, {"Blutdruck", 2}, {"SecControl", 4}, {"Protokoll", 0}};
    const bool customer = GetParam();
    const Löschplan &plan = customer ? kundenplan : geräteplan;
    const auto demo = [this] {
        return column("SELECT ProtokollID FROM Protokoll WHERE ProtokollID < 1000 UNION "
                      "SELECT ProtokollID FROM Protokoll_temp WHERE ProtokollID < 1000");
    };
    const QStringList foreign = demo();
    gDatenbank.execute("BEGIN"); // for speed
    QMap<QString, QStringList> left;
    int number = 1000;
    for (const int record : {victim, bystander}) {
        for (const QString end : {"_temp", ""}) {
            for (int sheets = 0; sheets < 8; ++sheets) {
                protocol(++number, customer, record, sheets, end);
                for (const auto &[table, bit] : tables) {
                    const bool was = bit == 0 || (sheets & bit);
                    // Protocols of a customer without any sheet stay.
                    if (was && (record == bystander || (customer && sheets == 0)))
                        left[table + end] += QString::number(number);
                }
            }
        }
    }
    gDatenbank.execute("COMMIT");
    EXPECT_EQ(protokolleZählen(plan, victim), 16);
    EXPECT_EQ(protokolleZählen(plan, 4711), 0);

    datensatzLöschen(plan, victim);
    for (const auto &[table, bit] : tables) {
        for (const QString end : {"_temp", ""}) {
            const QString name = table + end;
            EXPECT_EQ(keysOf(name, "ProtokollID"), left[name].join(' ')) << name.toStdString();
            EXPECT_EQ(column("SELECT count(*) FROM " + name + " WHERE ProtokollID > 1000"),
                      QStringList(QString::number(left[name].size() * (bit & 3 ? 2 : 1))));
        }
    }
    EXPECT_EQ(keysOf("Kunden", "KundenID"), customer ? "102" : "101 102");
    EXPECT_EQ(keysOf("Ergometer", "GerätID"), customer ? "102 112" : "102 111 112");
    EXPECT_EQ(demo(), foreign);
}

TEST_F(Records, AreDeletedUpToAFailureAndFromThereOn) {
    protocol(1001, true, victim, 7, "_temp");
    protocol(1002, true, victim, 7, "");
    protocol(1003, true, victim, 4, "");
    EXPECT_EQ(geräteZählen(victim), 2);
    EXPECT_EQ(geräteZählen(4711), 0);
    change("CREATE TRIGGER fest BEFORE DELETE ON Messwerte BEGIN SELECT RAISE(ABORT, 'fest'); END");
    EXPECT_THROW(datensatzLöschen(kundenplan, victim), Fehler);
    EXPECT_EQ(keysOf("Protokoll_temp", "ProtokollID"), "");
    EXPECT_EQ(keysOf("SecControl", "ProtokollID"), "1003")
        << "the sheets of 1002 went before its measured values, and they stay gone";
    EXPECT_EQ(keysOf("Protokoll", "ProtokollID"), "1002 1003");
    EXPECT_EQ(geräteZählen(victim), 2);
    change("DROP TRIGGER fest");
    datensatzLöschen(kundenplan, victim);
    EXPECT_EQ(keysOf("Protokoll", "ProtokollID"), "");
    EXPECT_EQ(keysOf("Kunden", "KundenID"), "102");
}

const QString name = "O'Neill %1";

TEST(DeletionQuestion, TellsUnitsAndProtocolsOfACustomer) {
    const struct {
        int units, protocols;
        const char *german, *english; // what follows the name
    } rows[] = {
        {3, 0, "existieren 3 Geräte.", "there are 3 units existent."},
        {1, 1, "existiert ein Gerät und ein Protokoll.", "there is a unit and a protocol."},
        {12, 1, "existiert 12 Geräte und ein Protokoll.", "there are 12 units and a protocol."},
        {1, 2, "existiert ein Gerät und 2 Protokolle.", "there are 2 protocols and a unit."},
        {2, 1500, "existieren 2 Geräte und 1500 Protokolle.",
         "there are 2 units and 1500 protocols."},
        {0, 1, "existiert 0 Geräte und ein Protokoll.", "there are 0 units and a protocol."},
        {0, 5, "existieren 0 Geräte und 5 Protokolle.", "there are 0 units and 5 protocols."},
    };
    const QString endGerman = "\rWollen Sie alle zu diesem Kunden gehörenden Daten jetzt löschen?";
    const QString endEnglish = "\rShall data of the customer be deleted now?";
    for (const auto &row : rows) {
        const Text asked = kundenfrage(row.units, row.protocols, name);
        EXPECT_EQ(asked.german, "Zu dem Kunden '" + name + "' " + row.german + endGerman);
        EXPECT_EQ(asked.english, "For the customer '" + name + "' " + row.english + endEnglish);
    }
    const Text one = kundenfrage(1, 0, name);
    EXPECT_EQ(one.german, "Zu diesem Kunden existiert ein Gerät." + endGerman);
    EXPECT_EQ(one.english, "For this customer there is a unit existent." + endEnglish);
    const Text plain = kundenfrage(0, 0, name);
    EXPECT_EQ(plain.german, "Wollen Sie die Daten zu dem Kunden 'O'Neill %1' jetzt löschen?");
    EXPECT_EQ(plain.english, "Do you want to delete the data of 'O'Neill %1' now?");
}

TEST(DeletionQuestion, TellsProtocolsOfAUnit) {
    const Text questions[] = {
        {"Sollen die Daten zu dem Gerät 'KE' jetzt gelöscht werden?",
         "Shall data of the unit 'KE' be deleted now?"},
        {"Zu dem Gerät 'KE' existiert ein Protokoll.\rSollen diese Daten jetzt gelöscht werden?",
         "For the unit 'KE' there is one protocol existent.\rShall it be deleted now?"},
        {"Zu dem Gerät 'KE' existieren 2 Protokolle.\rSollen diese Daten jetzt gelöscht werden?",
         "For the unit 'KE' there are 2 protocols existent.\rShall they be deleted now?"},
    };
    for (int protocols = 0; protocols < 3; ++protocols) {
        EXPECT_EQ(gerätefrage(protocols, "KE").german, questions[protocols].german);
        EXPECT_EQ(gerätefrage(protocols, "KE").english, questions[protocols].english);
    }
}

} // namespace
