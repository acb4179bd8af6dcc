// Numbers, empty protocols, continuing, heads.

#include "protokollnummer.h"

#include <functional>

#include "fehler.h"
#include "protokolltest.h"
#include "testclock.h"

namespace {

using ProtokollNummer = ProtokollTest;

TEST_F(ProtokollNummer, NextIsAboveWorkingTablesAndArchive) {
    EXPECT_EQ(nächsteProtokollNr(), 1);
    kopf(3);
    EXPECT_EQ(nächsteProtokollNr(), 4);
    gDatenbank.execute("INSERT INTO Protokoll (ProtokollID) VALUES (9)");
    EXPECT_EQ(nächsteProtokollNr(), 10);
    kopf(12);
    EXPECT_EQ(nächsteProtokollNr(), 13);
    gDatenbank.execute("DELETE FROM Protokoll_temp");
    EXPECT_EQ(nächsteProtokollNr(), 10) << "a deleted highest number is free again";
    kopf(32767);
    EXPECT_EQ(nächsteProtokollNr(), 32768);
    kopf(2147483647);
    try {
        nächsteProtokollNr();
        ADD_FAILURE();
    } catch (const Fehler &fehler) {
        EXPECT_EQ(fehler.number(), platform::fehlernummer::Overflow);
    }
}

TEST_F(ProtokollNummer, LeadsAnEntry) {
    const std::pair<const char *, int> cases[] = {
        {"12 - Name", 12}, {"12-Name", 12}, {"7 - 5 W", 7}, {" 3", 3}, {"2147483647", 2147483647},
        {"2147483648", 0}, {"Name 12", 0},  {"", 0},        {"-3", 0}, {"1.5", 0},
        {"1e99", 0},
    };
    for (const auto &[eintrag, nummer] : cases)
        EXPECT_EQ(protokollNrAus(eintrag), nummer) << eintrag;
}

TEST_F(ProtokollNummer, EmptyAreOnlyThoseOfCustomerAndUnitWithoutValues) {
    EXPECT_TRUE(leereProtokolle().isEmpty());
    kopf(1, "fremder Kunde", 8, 4);
    kopf(2, "fremdes Gerät", 3, 8);
    kopf(3, "gemessen");
    messwert(3, "1");
    messwert(3, "2");
    kopf(10, "Blutdruck");
    gDatenbank.execute("INSERT INTO Blutdruck_temp (ProtokollID) VALUES (10)");
    gDatenbank.execute(
        "INSERT INTO Protokoll_temp (ProtokollID, KundenID, GerätID) VALUES (4, 3, 4)");
    EXPECT_EQ(leereProtokolle(), (QStringList{"4 - ", "10 - Blutdruck"}));
    EXPECT_EQ(protokolleMitNummer(10), QStringList{"10 - Blutdruck"});
    for (const int andere : {1, 2, 3, 5})
        EXPECT_TRUE(protokolleMitNummer(andere).isEmpty()) << andere;
}

TEST_F(ProtokollNummer, LastMayBeContinuedUnlessAnythingDiffers) {
    const auto sql = [](const char *statement) {
        return [statement] { gDatenbank.execute(statement); };
    };
    struct Fall {
        const char *name;
        bool fortsetzbar;
        std::function<void()> änderung;
    };
    const Fall fälle[] = {
        {"nothing differs", true, [] {}},
        {"newer calibration of another standard", true,
         sql("INSERT INTO Normalkalibrierdaten (NK_ID, SerienNr) VALUES (20, 'N2')")},
        {"newer protocol without values", true, [] { kopf(30); }},
        {"time behind the date", true,
         sql("UPDATE Protokoll_temp SET ErstellDatum = ErstellDatum || ' 10:00:00'")},
        {"customer", false, [] { gKundenID = 9; }},
        {"unit", false, [] { gGerätID = 9; }},
        {"direction", false, [] { gDrehrichtung = 2; }},
        {"specification", false, [] { gToleranzID = 9; }},
        {"method", false, [] { gMessverfahren = "anderes"; }},
        {"recalibrated", false,
         sql("INSERT INTO Normalkalibrierdaten (NK_ID, SerienNr) VALUES (21, 'N1')")},
        {"other standard", false, [] { gSeriennummer = "N2"; }},
        {"unknown standard", false, [] { gSeriennummer = "N3"; }},
        {"made yesterday", false,
         sql("UPDATE Protokoll_temp SET ErstellDatum = date(ErstellDatum, '-1 day')")},
        {"midnight has passed", false,
         [] { support::TestClock::install().setDay(QDate::currentDate().addDays(1)); }},
        {"no date at all", false, sql("UPDATE Protokoll_temp SET ErstellDatum = NULL")},
        {"head not complete", false,
         [] {
             gDatenbank.execute("UPDATE Protokoll_temp SET Drehrichtung = NULL");
             gDrehrichtung = 0;
         }},
        {"newer protocol of another unit", false,
         [] {
             kopf(31, "fremd", 3, 8);
             messwert(31);
         }},
        {"no values left", false, sql("DELETE FROM Messwerte_temp")},
    };
    for (const Fall &fall : fälle) {
        gDatenbank.execute("SAVEPOINT Fall");
        kopf(11, "älter");
        messwert(11);
        kopf(12, "letztes");
        messwert(12);
        fall.änderung();
        const LetztesProtokoll letztes = letztesProtokollPrüfen();
        EXPECT_EQ(letztes.fortsetzbar, fall.fortsetzbar) << fall.name;
        if (fall.fortsetzbar) {
            EXPECT_EQ(letztes.nummer, 12) << fall.name;
            EXPECT_EQ(letztes.name, "letztes") << fall.name;
        }
        gDatenbank.execute("ROLLBACK TO Fall");
        gKundenID = 3;
        gGerätID = 4;
        gDrehrichtung = 1;
        gToleranzID = 2;
        gMessverfahren = "Verfahren";
        gSeriennummer = "N1";
        support::TestClock::install();
    }
    gDatenbank.execute("RELEASE Fall");
    EXPECT_EQ(letztesProtokollPrüfen().nummer, 0);
}

TEST_F(ProtokollNummer, HeadsTakeTheSettingsOfTheSession) {
    const QString heute = QDate::currentDate().toString(Qt::ISODate);
    const QString alles = "SELECT * FROM Protokoll_temp WHERE ProtokollID = 8";
    kopfAnlegen(8, "Müller's");
    // The newest calibration of all standards, not of the connected one.
    EXPECT_EQ(zeilen(alles), "8|Müller's|O'Neill|4|3|1|2|7|Verfahren|" + heute);
    try {
        kopfAnlegen(8, "noch einmal");
        ADD_FAILURE();
    } catch (const Fehler &fehler) {
        EXPECT_EQ(fehler.number(), platform::fehlernummer::DuplicateKey);
    }

    kopf(9);
    gKundenID = 30;
    gGerätID = 40;
    gPrüfer = "anderer";
    gDrehrichtung = 2;
    gToleranzID = 20;
    gMessverfahren = "neues";
    EXPECT_TRUE(kopfNachführen(8));
    EXPECT_EQ(zeilen(alles), "8|Müller's|O'Neill|4|3|2|20|7|neues|" + heute);
    EXPECT_EQ(zeilen("SELECT Drehrichtung FROM Protokoll_temp WHERE ProtokollID = 9"), "1");
    EXPECT_FALSE(kopfNachführen(10));
}

} // namespace
