// Rows that cannot be stored, and protocols that are continued.
#include "measuringsession.h"

namespace {

using namespace support;
using namespace platform;

TEST_F(MeasuringSession, RowThatCannotBeStored) {
    const auto journey = [this]() -> Journey {
        co_await measure();
        line.stand().setLoad(100);
        co_await settled("1", 60);
        Datenbank other;
        other.openFile(datenbankName);
        other.execute("BEGIN IMMEDIATE");
        const Text title{"!! Achtung Fehler !!", {}};
        expectBox({"Fehler 3016 -  3045 Die Datenbank ist von einem anderen Programm gesperrt. "
                   "Bitte schließen Sie es.",
                   {}},
                  Critical, title);
        save();
        other.execute("ROLLBACK");
        EXPECT_TRUE(boxes.allCame());

        // The measurement runs on, the step is the same.
        EXPECT_FALSE(loaded(frm::Meldung));
        line.stand().setLoad(98);
        co_await until("another frame", [] { return shown("txtIST_P_torvena").startsWith("98"); });
        EXPECT_EQ(shown("laPrSchritt"), "1");
        EXPECT_EQ(storedSteps(), QStringList());
        save();
        // On disk for others before anything else happens.
        EXPECT_EQ(other
                      .open("SELECT 1 FROM Messwerte_temp WHERE ProtokollID = ? AND "
                            "Ist_P_torvena LIKE '98%'",
                            {gProtokollID})
                      .count(),
                  1);
        co_await settled("2", 80);
        co_await leaveMeasuring();
    };
    run(journey());
}

TEST_F(MeasuringSession, ContinuedProtocols) {
    const auto journey = [this]() -> Journey {
        co_await logIn();
        co_await choose(demoNames().customer, "AEH-017", demoNames().recipe);
        co_await correctZeroPoint();
        EXPECT_FALSE(canPress(frm::ProtokollNr, "obLetztes"));
        press(frm::ProtokollNr, "obVorhanden");
        EXPECT_EQ(text(frm::ProtokollNr, "cmbVorhanden"), "21 - Nachmessung");
        press(frm::ProtokollNr, "pbok");
        co_await settled("1", 60);
        expectEmptyProtocol();
        co_await leaveMeasuring();
        EXPECT_EQ(column("SELECT 1 FROM Protokoll_temp WHERE ProtokollID = 21"), QStringList());

        // The last one, on its day: what it holds is shown in the order of the steps.
        co_await correctZeroPoint();
        EXPECT_FALSE(canPress(frm::ProtokollNr, "obVorhanden"));
        co_await newProtocol("Der letzte");
        co_await settled("1", 60);
        save();
        co_await settled("2", 80);
        co_await leaveMeasuring();
        const int number = gProtokollID;
        for (const char *step : {"10", "FR", "2"})
            change("INSERT INTO Messwerte_temp (ProtokollID, Prüfschritt) VALUES (?, ?)",
                   {number, step});
        co_await correctZeroPoint();
        press(frm::ProtokollNr, "obLetztes");
        press(frm::ProtokollNr, "pbok");
        co_await settled("1", 60);
        EXPECT_EQ(gProtokollID, number);
        EXPECT_EQ(gridSteps(), (QStringList{"1", "2", "10", "FR"}));
        EXPECT_TRUE(
            loaded(frm::Messen)->caption().endsWith(QString::number(number) + "-Der letzte"));
        co_await leaveMeasuring(); // with nothing new, but not empty
        EXPECT_EQ(storedSteps().size(), 4);
    };
    run(journey());
}

} // namespace
