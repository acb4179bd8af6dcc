// Deleting a customer or a unit: what is counted, what is asked, and what is left in every table.
#include "masterdata/fragetext.h"
#include "masterdata/loeschabfrage.h"
#include "workshop.h"

namespace {

using namespace support;

class Records : public Workshop {
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
    static inline const std::pair<QString, int> tables[] = {
        {"Messwerte", 1}, {"Blutdruck", 2}, {"SecControl", 4}};

    /// One protocol of the record with the sheets that the bits name. The other key is the same
    /// for all, so that a statement that looks at it finds too much or too little.
    static void protocol(int number, bool ofCustomer, int record, int sheets, const QString &end) {
        gDatenbank.execute("INSERT INTO Protokoll" + end +
                               " (ProtokollID, KundenID, GerätID) VALUES (?, ?, ?)",
                           {number, ofCustomer ? record : 777, ofCustomer ? 777 : record});
        for (const auto &[table, bit] : tables) {
            for (int row = 0; row < rowsOf(sheets & bit); ++row)
                gDatenbank.execute("INSERT INTO " + table + end + " (ProtokollID) VALUES (?)",
                                   {number});
        }
    }
    /// Of measured values and blood pressure a protocol has two.
    static int rowsOf(int sheet) { return sheet == 0 ? 0 : sheet == 4 ? 1 : 2; }
    static QString keysOf(const QString &table, const QString &key) {
        return column("SELECT DISTINCT " + key + " FROM " + table + " WHERE " + key +
                      " > 100 ORDER BY 1")
            .join(' ');
    }
};

// Of a customer, then of a unit.
class Deletion : public Records, public testing::WithParamInterface<bool> {};
INSTANTIATE_TEST_SUITE_P(Records, Deletion, testing::Bool());

TEST_P(Deletion, LeavesWhatBelongsToOthers) {
    const bool customer = GetParam();
    const Löschziel plan = customer ? Löschziel::Kunde : Löschziel::Gerät;
    const auto demo = [] {
        return column("SELECT ProtokollID FROM Protokoll WHERE ProtokollID < 1000 UNION "
                      "SELECT ProtokollID FROM Protokoll_temp WHERE ProtokollID < 1000");
    };
    const QStringList foreign = demo();
    QMap<QString, QString> left; // the protocols that each table names, as often as it does
    gDatenbank.execute("BEGIN"); // for speed
    for (int number = 1000; number < 1032; ++number) {
        const int sheets = number % 8, record = number < 1016 ? victim : bystander;
        const QString end = number & 8 ? "" : "_temp";
        protocol(number, customer, record, sheets, end);
        // Protocols of a customer without any sheet stay.
        if (record == bystander || (customer && sheets == 0)) {
            left["Protokoll" + end] += QString(" %1").arg(number);
            for (const auto &[table, bit] : tables)
                left[table + end] += QString(" %1").arg(number).repeated(rowsOf(sheets & bit));
        }
    }
    gDatenbank.execute("COMMIT");
    EXPECT_EQ(protokolleZählen(plan, victim), 16);
    EXPECT_EQ(protokolleZählen(plan, 4711), 0);

    int deleted = 0;
    datensatzLöschen(plan, victim, [&] { ++deleted; });
    EXPECT_EQ(deleted, 14) << "those with a sheet, one by one";
    for (const QString &table : QStringList{"Protokoll", "Messwerte", "Blutdruck", "SecControl"}) {
        for (const QString &name : {table, table + "_temp"})
            EXPECT_EQ(column("SELECT ' ' || ProtokollID FROM " + name +
                             " WHERE ProtokollID >= 1000 ORDER BY ProtokollID")
                          .join(QString()),
                      left[name])
                << name;
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
    spoil("DELETE", "Messwerte");
    EXPECT_NE(raised([] { datensatzLöschen(Löschziel::Kunde, victim); }), 0);
    EXPECT_EQ(keysOf("Protokoll_temp", "ProtokollID"), "");
    EXPECT_EQ(keysOf("SecControl", "ProtokollID"), "1003")
        << "the sheets of 1002 went before its measured values, and they stay gone";
    EXPECT_EQ(keysOf("Protokoll", "ProtokollID"), "1002 1003");
    EXPECT_EQ(geräteZählen(victim), 2);
    mend();
    datensatzLöschen(Löschziel::Kunde, victim);
    EXPECT_EQ(keysOf("Protokoll", "ProtokollID"), "");
    EXPECT_EQ(keysOf("Kunden", "KundenID"), "102");
}

TEST(DeletionQuestion, TellsWhatIsThere) {
    const auto full = [](QString text, const char *end) {
        return text.replace('$', "O'Neill %1").replace('!', end).replace('/', '\r');
    };
    // Of a customer: units and protocols
    for (const Case &c : cases(R"(
        0, 0 -> Wollen Sie die Daten zu dem Kunden '$' jetzt löschen?, Do you want to delete the data of '$' now? |
        1, 0 -> Zu diesem Kunden existiert ein Gerät.!, For this customer there is a unit existent.! |
        3, 0 -> Zu dem Kunden '$' existieren 3 Geräte.!, For the customer '$' there are 3 units existent.! |
        1, 1 -> Zu dem Kunden '$' existiert ein Gerät und ein Protokoll.!, For the customer '$' there is a unit and a protocol.! |
        12, 1 -> Zu dem Kunden '$' existiert 12 Geräte und ein Protokoll.!, For the customer '$' there are 12 units and a protocol.! |
        1, 2 -> Zu dem Kunden '$' existiert ein Gerät und 2 Protokolle.!, For the customer '$' there are 2 protocols and a unit.! |
        2, 1500 -> Zu dem Kunden '$' existieren 2 Geräte und 1500 Protokolle.!, For the customer '$' there are 2 units and 1500 protocols.! |
        0, 1 -> Zu dem Kunden '$' existiert 0 Geräte und ein Protokoll.!, For the customer '$' there are 0 units and a protocol.! |
        0, 5 -> Zu dem Kunden '$' existieren 0 Geräte und 5 Protokolle.!, For the customer '$' there are 0 units and 5 protocols.!)")) {
        const Text asked = kundenfrage(c.in_(0).toInt(), c.in_(1).toInt(), "O'Neill %1");
        EXPECT_EQ(asked.german, full(c.out_(0), "/Wollen Sie alle zu diesem Kunden gehörenden "
                                                "Daten jetzt löschen?"));
        EXPECT_EQ(asked.english, full(c.out_(1), "/Shall data of the customer be deleted now?"));
        for (const QString &text : {asked.german, asked.english}) // both numbers stand out
            EXPECT_EQ(mengen(text).size(), c.in == "0, 0" ? 0 : c.in_(1) == "0" ? 1 : 2) << c;
    }
    // Of a unit: protocols
    for (const Case &c : cases(R"(
        0 -> Sollen die Daten zu dem Gerät '$' jetzt gelöscht werden?, Shall data of the unit '$' be deleted now? |
        1 -> Zu dem Gerät '$' existiert ein Protokoll.!, For the unit '$' there is one protocol existent./Shall it be deleted now? |
        2 -> Zu dem Gerät '$' existieren 2 Protokolle.!, For the unit '$' there are 2 protocols existent./Shall they be deleted now?)")) {
        const Text asked = gerätefrage(c.in.toInt(), "O'Neill %1");
        EXPECT_EQ(asked.german, full(c.out_(0), "/Sollen diese Daten jetzt gelöscht werden?"));
        EXPECT_EQ(asked.english, full(c.out_(1), ""));
        EXPECT_EQ(mengen(asked.english).size(), c.in == "0" ? 0 : 1) << c;
    }
    EXPECT_TRUE(mengen(kundenfrage(0, 0, "Haus der 2 Geräte").german).empty());
}

} // namespace
