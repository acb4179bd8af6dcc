// The trail as a list: narrowed by number, day and person, the fields that changed in words.
#include "records/nachweis.h"

#include "records/archiv.h"
#include "store/trail.h"
#include "workshop.h"

namespace {

using namespace support;

class Nachweise : public Workshop {
  protected:
    Nachweise() {
        gDatenbank.openFile(datenbankName);
        setTrailPerson([] { return gPrüfer; });
    }
    ~Nachweise() override { setTrailPerson({}); }
    /// Table, what happened, key, change; newest first.
    static QString liste(const Nachweisfilter &filter) {
        QStringList alle;
        for (Recordset zeilen = nachweis(filter).zeilen; !zeilen.atEnd(); zeilen.moveNext())
            alle += zeilen[3].text() + ' ' + zeilen[4].text() + ' ' + zeilen[5].text() + ": " +
                    zeilen[6].text();
        return alle.join('\n');
    }
};

TEST_F(Nachweise, SayWhoChangedWhatAndAreNarrowed) {
    gPrüfer = "Äda";
    gDatenbank.execute("UPDATE Kunden SET Name = 'Neu; \"A\"', PLZ = NULL WHERE KundenID = 1");
    gPrüfer = "Bert";
    gDatenbank.execute("UPDATE Messwerte_temp SET MU_Proz = 0.25 WHERE ProtokollID = 17 AND "
                       "Prüfschritt = '1'");
    gDatenbank.execute("INSERT INTO EP_Messwerte (ProtokollID, Soll_n) VALUES (17, '60')");
    gDatenbank.execute("UPDATE EP SET Kunde = 'K' WHERE EP_ID = 1");
    gDatenbank.execute("DELETE FROM Interface");
    EXPECT_EQ(liste({.person = "äDA"}),
              "Kunden geändert 1: Name: Klinikum Ährenfeld → Neu; \"A\"; PLZ: 36902 → ");
    EXPECT_EQ(liste({.protokollID = 17}), "Messwerte_temp geändert 13: MU_Proz: 0.3 → 0.25");
    EXPECT_EQ(liste({.epID = 17}), "EP_Messwerte neu 9: ProtokollID: 17; Soll_n: 60");
    EXPECT_EQ(liste({.epID = 1}), "EP geändert 1: Kunde: Klinikum Ährenfeld → K");
    const QDate heute = QDateTime::currentDateTime().date();
    EXPECT_EQ(nachweis({.tag = heute}).zeilen.count(), 6);
    EXPECT_EQ(nachweis({.tag = heute.addDays(1)}).zeilen.count(), 0);
    EXPECT_EQ(nachweis({.tag = heute.addDays(-1)}).zeilen.count(), 0);
    gSprache = 2;
    EXPECT_TRUE(liste({}).startsWith("Interface deleted 1: PortNr: 1; Parameter: 19200,N,8,1\n"));
    EXPECT_TRUE(liste({}).contains(QRegularExpression("\n state : Neue Datenbank; tables: \\d+$")));
    const Recordset zeilen = nachweis({}).zeilen;
    EXPECT_TRUE(QDateTime::fromString(zeilen["Zeit"].text(), "dd.MM.yyyy hh:mm:ss").isValid());
    gDatenbank.execute(R"(INSERT INTO NachweisNeu VALUES (NULL, 'Bestand', 'Update', NULL,
        '{"Anlass":"Update","Tabellen":{"EP":[1,"0"]},"Abweichend":["EP","Kunden"]}'))");
    EXPECT_TRUE(
        liste({}).startsWith(" state : Update; tables: 1; changed past the trail: EP, Kunden\n"));
    EXPECT_TRUE(QRegularExpression("^7 / [0-9a-f]{16}$").match(nachweisStand()).hasMatch());
}

TEST_F(Nachweise, AreFoundByNumberWithoutReadingAll) {
    gDatenbank.execute(
        "INSERT INTO Kunden (Name) WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT "
        "i + 1 FROM n WHERE i < 10001) SELECT i FROM n");
    const Nachweisliste liste = nachweis({});
    EXPECT_EQ(liste.weiter, liste.zeilen.at(nachweisGrenze - 1, 0).toLongLong());
    EXPECT_EQ(nachweis({.vor = 3}).zeilen.count(), 2);
    EXPECT_EQ(nachweis({.person = "?", .vor = nachweisSpanne + 5}).weiter, 5);
    EXPECT_EQ(liste.zeilen.count(), nachweisGrenze);
    EXPECT_EQ(liste.zeilen["Nr"].whole(), 10'002);
    archivieren(17);
    int schritte = 0; // of 20 000
    gDatenbank.watch([&](int) { return ++schritte < 5; });
    EXPECT_EQ(nachweis({.protokollID = 17, .vor = nachweisSpanne + 5}).weiter, 0);
    gDatenbank.watch({});
}

} // namespace
