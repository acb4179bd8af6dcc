// A controller that does not do as it should, from motor on to the stream of a step: what is told,
// that nothing hangs, and that the program goes on as soon as the controller does.
#include "linefaults.h"

namespace {

using namespace support;
using namespace platform;

INSTANTIATE_TEST_SUITE_P(Languages, LineFaults, testing::Values(1, 2));

TEST_P(LineFaults, MotorOnAndOff) {
    const auto journey = [this]() -> Journey {
        co_await select();
        co_await chooseDirection();
        for (const LineFault &fault : lineFaults) {
            SCOPED_TRACE(fault.name);
            const double begin = clock.elapsed();
            line.stand().setFaults(fault.faults);
            if (!fault.mastered) {
                expectNoController();
                expectBox({"Motor konnte nicht eingeschaltet werden",
                           "It was not possible to switch the motor on."},
                          Critical, {"Motor ein", "Motor On"});
            }
            press(frm::Desktop, "pbMotein");
            EXPECT_LT(clock.elapsed() - begin, 6'500);
            EXPECT_EQ(gMotorEin, fault.mastered);
            EXPECT_EQ(line.stand().setSpeed() > 0, fault.mastered);
            EXPECT_EQ(canPress(frm::Desktop, "pbMotein"), !fault.mastered);
            EXPECT_EQ(canPress(frm::Desktop, "pbMotaus"), fault.mastered);
            heal();
            if (!fault.mastered)
                press(frm::Desktop, "pbMotein");
            EXPECT_EQ(line.stand().setSpeed(), 60);

            line.stand().setFaults(fault.faults);
            if (!fault.mastered) {
                expectNoController();
                expectMotorOff(Exclamation);
            }
            press(frm::Desktop, "pbMotaus");
            EXPECT_EQ(gMotorEin, !fault.mastered); // as far as anybody knows
            EXPECT_EQ(canPress(frm::Desktop, "pbMotein"), fault.mastered);
            EXPECT_EQ(canPress(frm::Desktop, "pbMotaus"), !fault.mastered);
            heal();
            if (!fault.mastered)
                press(frm::Desktop, "pbMotaus");
            co_await pass(5'000);
            EXPECT_EQ(line.stand().speed(), 0);
            EXPECT_TRUE(boxes.allCame());
        }
    };
    run(journey());
}

TEST_P(LineFaults, OpeningTheMeasurement) {
    const auto journey = [this]() -> Journey {
        co_await select();
        co_await startMeasuring();
        press(frm::VorStatNPK, "pbok");
        co_await until("the correction", [] { return canPress(frm::StatMessen, "pbWeiter"); });
        press(frm::StatMessen, "pbWeiter");
        co_await arrive(frm::NachStatNPK);
        line.stand().setFaults({.deafFrames = 3});
        expectNoController();
        press(frm::NachStatNPK, "pbok");
        co_await arrive(frm::ProtokollNr);
        co_await newProtocol("Trotzdem");
        co_await settled("1", 60);
        expectEmptyProtocol();
        co_await leaveMeasuring();
    };
    run(journey());
}

TEST_P(LineFaults, RefusedSpeedLeavesTheScreen) {
    const auto journey = [this]() -> Journey {
        co_await select();
        for (const LineFault &fault : lineFaults) {
            if (fault.mastered)
                continue;
            SCOPED_TRACE(fault.name);
            co_await correctZeroPoint();
            line.stand().setFaults(fault.faults);
            expectNoController();
            expectRefused();
            if (fault.lasts)
                expectNoController(); // when the motor is told to stop
            expectEmptyProtocol();
            press(frm::ProtokollNr, "obNeu");
            press(frm::ProtokollNr, "pbok");
            const double begin = clock.elapsed();
            co_await arrive(frm::Desktop);
            EXPECT_LT(clock.elapsed() - begin, 13'500);
            heal();
            EXPECT_TRUE(boxes.allCame());
            expectIdleDesktop();
        }

        // With a stored step the protocol stays.
        co_await correctZeroPoint();
        co_await newProtocol("Ein Schritt");
        co_await settled("1", 60);
        save();
        line.stand().setFaults({.deafFrames = 3});
        expectNoController();
        expectRefused();
        co_await arrive(frm::Desktop);
        expectIdleDesktop();
        EXPECT_EQ(storedSteps(), QStringList{"1"});
        co_await wholeMeasurement("Danach");
    };
    run(journey());
}

TEST_P(LineFaults, SilentStreamWaitsForTheOperator) {
    const auto journey = [this]() -> Journey {
        co_await measure();
        line.stand().setFaults({.silent = true});
        co_await pass(120'000);
        EXPECT_EQ(text(frm::Messen, "txtIST_n_torvena"), "");
        EXPECT_FALSE(canPress(frm::Messen, "pbSpeichern"));
        heal();
        co_await settled("1", 60);
        line.stand().setFaults({.silent = true});
        expectNoController();
        expectMotorOff(Critical);
        expectNoController();
        expectEmptyProtocol();
        co_await leaveMeasuring();
        EXPECT_TRUE(boxes.allCame());
        heal();
        co_await wholeMeasurement("Danach");
    };
    run(journey());
}

// A frame that was begun must end within 18 s; at 15 1/min one takes 24 s, and each is cut.
TEST_P(LineFaults, CutFramesAreTold) {
    change("UPDATE Rezepte SET Drehzahl = '15' WHERE RezeptID = 1 AND Prüfschritt = '1'");
    const auto journey = [this]() -> Journey {
        co_await select();
        co_await correctZeroPoint();
        line.stand().setFaults({.cutEvery = 1});
        co_await newProtocol("Zerschnitten");
        co_await until("the first frame",
                       [] { return !text(frm::Messen, "txtIST_n_torvena").isEmpty(); });
        const double begin = clock.elapsed();
        double told = 0;
        boxes.expect(english() ? "No data at ca. 3 x 6 rounds!"
                               : "Keine Daten bei ca. 3 x 6 Runden!",
                     OK, [this, &told] { told = clock.elapsed(); });
        co_await until("the box", [this] { return boxes.allCame(); });
        EXPECT_NEAR(told - begin, 18'000, 50);
        EXPECT_EQ(boxes.seen().back().title,
                  english() ? "Communication Error" : "Kommunikationsfehler");
        EXPECT_EQ(boxes.seen().back().flags, Critical);
        heal();
        line.stand().setLoad(20);
        co_await pass(60'000); // one frame may be wrong still
        co_await settled("1", 15);
        EXPECT_TRUE(text(frm::Messen, "txtIST_P_torvena").startsWith("20"))
            << text(frm::Messen, "txtIST_P_torvena").toStdString();
        save();
        EXPECT_EQ(storedSteps(), QStringList{"1"});
        co_await settled("2", 80);
        co_await leaveMeasuring();
    };
    run(journey());
}

} // namespace
