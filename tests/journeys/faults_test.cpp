// A controller that does not do as it should, from motor on to the stream of a step: what is told,
// that nothing hangs, and that the program goes on as soon as the controller does.
#include "linefaults.h"

namespace {

using namespace support;
using namespace platform;

TEST_F(LineFaults, MotorOnAndOff) {
    const auto journey = [this]() -> Journey {
        co_await select();
        co_await chooseDirection();
        for (const LineFault &fault : lineFaults) {
            SCOPED_TRACE(fault.name);
            for (const bool on : {true, false}) {
                const char *button = on ? "pbMotein" : "pbMotaus";
                const double begin = clock.elapsed();
                line.stand().setFaults(fault.faults);
                if (!fault.mastered) {
                    expectNoController();
                    on ? expectMotorNotOn() : expectMotorOff(Exclamation);
                }
                press(frm::Desktop, button);
                if (on) {
                    EXPECT_LT(clock.elapsed() - begin, 6'500);
                    EXPECT_EQ(line.stand().setSpeed() > 0, fault.mastered);
                }
                EXPECT_EQ(gMotorEin, on == fault.mastered); // as far as anybody knows
                EXPECT_EQ(canPress(frm::Desktop, "pbMotein"), !gMotorEin);
                EXPECT_EQ(canPress(frm::Desktop, "pbMotaus"), gMotorEin);
                heal();
                if (!fault.mastered)
                    press(frm::Desktop, button);
                EXPECT_EQ(line.stand().setSpeed(), on ? 60 : 0);
            }
            co_await pass(5'000);
            EXPECT_EQ(line.stand().speed(), 0);
            EXPECT_TRUE(boxes.allCame());
        }
    };
    run(journey());
}

TEST_F(LineFaults, RefusedSpeedLeavesTheScreen) {
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

        co_await wholeMeasurement("Danach");
    };
    run(journey());
}

TEST_F(LineFaults, SilentStreamWaitsForTheOperator) {
    const auto journey = [this]() -> Journey {
        co_await select();
        co_await startMeasuring();
        co_await corrected();
        press(frm::StatMessen, "pbWeiter");
        co_await arrive(frm::NachStatNPK);
        line.stand().setFaults({.deafFrames = 3}); // when the measurement is opened
        expectNoController();
        press(frm::NachStatNPK, "pbok");
        co_await arrive(frm::ProtokollNr);
        co_await newProtocol("Trotzdem");
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
TEST_F(LineFaults, CutFramesAreTold) {
    setLanguage(2);
    change("UPDATE Rezepte SET Drehzahl = '15' WHERE RezeptID = 1 AND Prüfschritt = '1'");
    const auto journey = [this]() -> Journey {
        co_await select();
        co_await correctZeroPoint();
        line.stand().setFaults({.cutEvery = 1});
        co_await newProtocol("Cut");
        co_await until("the first frame",
                       [] { return !text(frm::Messen, "txtIST_n_torvena").isEmpty(); });
        const double begin = clock.elapsed();
        boxes.expect("No data at ca. 3 x 6 rounds!", OK,
                     [&] { EXPECT_NEAR(clock.elapsed() - begin, 18'000, 50); });
        co_await told();
        EXPECT_EQ(boxes.seen().back().title, "Communication Error");
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
