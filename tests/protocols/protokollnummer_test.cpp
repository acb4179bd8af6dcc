// Numbers, empty protocols, continuing, heads.
#include "records/protokollnummer.h"

#include "protokolltest.h"

namespace {

using namespace support;
using ProtokollNummer = ProtokollTest;

TEST_F(ProtokollNummer, NextIsAboveWorkingTablesAndArchive) {
    EXPECT_EQ(nächsteProtokollNr(), 1);
    kopf(3);
    EXPECT_EQ(nächsteProtokollNr(), 4);
    gDatenbank.execute("INSERT INTO Protokoll (ProtokollID) VALUES (9)");
    EXPECT_EQ(nächsteProtokollNr(), 10);
    kopf(32767);
    EXPECT_EQ(nächsteProtokollNr(), 32768);
    gDatenbank.execute("DELETE FROM Protokoll_temp");
    EXPECT_EQ(nächsteProtokollNr(), 10) << "a deleted highest number is free again";
    kopf(2147483647);
    EXPECT_EQ(raised(nächsteProtokollNr), platform::fehlernummer::Overflow);
}

TEST_F(ProtokollNummer, LeadsAnEntry) {
    for (const Case &c : cases(R"(
            12 - Name -> 12 | 12-Name -> 12 | 7 - 5 W -> 7 | Name 12 -> 0 | -> 0 | -3 -> 0 | 1.5 -> 0
            | 1 - A -> 1 | 2147483647 -> 2147483647 | 2147483648 -> 0)"))
        EXPECT_EQ(protokollNrAus(c.in), c.out.toInt()) << c;
}

TEST_F(ProtokollNummer, EmptyAreOnlyThoseOfCustomerAndUnitWithoutValues) {
    kopf(1, "fremder Kunde", 8, 4);
    kopf(2, "fremdes Gerät", 3, 8);
    kopf(3, "gemessen");
    messwert(3);
    kopf(10, "Blutdruck");
    gDatenbank.execute("INSERT INTO Blutdruck_temp (ProtokollID) VALUES (10)");
    kopf(4, QString());
    gDatenbank.execute("UPDATE Protokoll_temp SET Protokollname = NULL WHERE ProtokollID = 4");
    EXPECT_EQ(leereProtokolle(), (QStringList{"4 - ", "10 - Blutdruck"}));
    EXPECT_EQ(mitNummer(leereProtokolle(), 10), QStringList{"10 - Blutdruck"});
    EXPECT_TRUE(mitNummer(leereProtokolle(), 1).isEmpty());
}

TEST_F(ProtokollNummer, LastMayBeContinuedUnlessAnythingDiffers) {
    EXPECT_EQ(letztesProtokollPrüfen().nummer, 0);
    kopf(1, "älter");
    messwert(1);
    const auto prüfen = [] {
        const LetztesProtokoll letztes = letztesProtokollPrüfen();
        return letztes.fortsetzbar ? QString("%1 %2").arg(letztes.nummer).arg(letztes.name) : "no";
    };
    EXPECT_EQ(prüfen(), "1 älter") << "the first of all can be continued, too";
    kopf(12, "letztes");
    messwert(12);
    for (const Case &c : cases(R"(
            INSERT INTO Normalkalibrierdaten (NK_ID, SerienNr) VALUES (20, 'N2') -> 12 letztes
            | INSERT INTO Normalkalibrierdaten (NK_ID, SerienNr) VALUES (21, 'N1') -> no
            | INSERT INTO Protokoll_temp (ProtokollID) VALUES (30) -> 12 letztes
            | UPDATE Protokoll_temp SET ErstellDatum = ErstellDatum||' 10:00:00' -> 12 letztes
            | UPDATE Protokoll_temp SET ErstellDatum = date(ErstellDatum, '-1 day') -> no
            | UPDATE Protokoll_temp SET ErstellDatum = NULL -> no | DELETE FROM Messwerte_temp -> no
            | UPDATE Protokoll_temp SET NK_ID = NULL -> no | UPDATE Protokoll_temp SET KundenID = 8 -> no
            | UPDATE Protokoll_temp SET GerätID = 8 -> no)")) {
        gDatenbank.execute("SAVEPOINT Fall");
        gDatenbank.execute(c.in);
        EXPECT_EQ(prüfen(), c.out) << c;
        gDatenbank.execute("ROLLBACK TO Fall");
    }
    const auto differs = [&](auto &variable, auto value) {
        const auto before = std::exchange(variable, value);
        EXPECT_EQ(prüfen(), "no") << value;
        variable = before;
    };
    differs(gKundenID, 9);
    differs(gGerätID, 9);
    differs(gDrehrichtung, 1);
    differs(gToleranzID, 9);
    differs(gMessverfahren, "anderes");
    differs(gSeriennummer, "N2");
    differs(gSeriennummer, "N3"); // an unknown one
    EXPECT_EQ(prüfen(), "12 letztes");
    clock.setDay(platform::now().date().addDays(1));
    EXPECT_EQ(prüfen(), "no") << "midnight has passed";
    gDatenbank.execute("UPDATE Protokoll_temp SET Drehrichtung = NULL, ErstellDatum = ?",
                       {platform::now().date()});
    differs(gDrehrichtung, 0); // nothing agrees with what is missing
}

TEST_F(ProtokollNummer, HeadsTakeTheSettingsOfTheSession) {
    const QString alles = "SELECT ProtokollID, Protokollname, Prüfername, GerätID, KundenID, "
                          "Drehrichtung, PrüfungsArt, NK_ID, Messverfahren FROM Protokoll_temp "
                          "WHERE ProtokollID = 8";
    gDatenbank.execute("INSERT INTO Sitzung VALUES (8, 1)"); // of one that is gone
    kopfAnlegen(8, "Müller's");
    EXPECT_EQ(grid("SELECT * FROM Sitzung"), "");
    // The newest calibration of all standards, not of the connected one.
    EXPECT_EQ(grid(alles), "8|Müller's|O'Neill|4|3|2|5|7|Verfahren");
    EXPECT_EQ(raised([] { kopfAnlegen(8, "noch einmal"); }), platform::fehlernummer::DuplicateKey);

    kopf(9);
    gKundenID = gGerätID = 30;
    gPrüfer = "anderer";
    gDrehrichtung = 1;
    gToleranzID = 20;
    gMessverfahren = "neues";
    EXPECT_TRUE(kopfNachführen(8));
    EXPECT_EQ(grid(alles), "8|Müller's|O'Neill|4|3|1|20|7|neues");
    EXPECT_EQ(grid("SELECT Drehrichtung FROM Protokoll_temp WHERE ProtokollID = 9"), "2");
    EXPECT_FALSE(kopfNachführen(10));
}

} // namespace
