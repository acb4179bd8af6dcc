// The line is pulled out: what is told, and how it goes on when it is back or not.
#include "linefaults.h"

namespace {

using namespace support;
using namespace platform;

/// In English: the German boxes of these faults are those of a controller that is silent.
class LineGone : public LineFaults {
  protected:
    LineGone() : LineFaults(2) {}
    /// Within the exchange that begins next.
    void unplugSoon() {
        clock.after(30, [this] { line.unplug(); });
        for (const char *tag : {"Error 5005- 8020 …", "Error 5006- 8018 …"})
            boxes.expect(tag);
        expectNoController();
    }
};

TEST_F(LineGone, WithinAnExchange) {
    const auto journey = [this]() -> Journey {
        co_await select();
        co_await chooseDirection();
        unplugSoon();
        expectMotorNotOn();
        press(frm::Desktop, "pbMotein");
        EXPECT_TRUE(boxes.allCame());
        line.plug();

        co_await startMeasuring();
        boxes.expect("ERROR 4002 -  8020 …");
        expectDiscontinued();
        press(frm::VorStatNPK, "pbok");
        co_await pass(2'000);
        line.unplug();
        co_await told();
        line.plug();
        co_await abortCorrection();

        // The echo of a step's set-point
        co_await correctZeroPoint();
        unplugSoon();
        expectRefused();
        expectNoPort(); // the stop
        expectEmptyProtocol();
        press(frm::ProtokollNr, "obNeu");
        press(frm::ProtokollNr, "pbok");
        co_await arrive(frm::Desktop);
        EXPECT_TRUE(boxes.allCame());
        line.plug();
        co_await wholeMeasurement("Danach");
    };
    run(journey());
}

TEST_F(LineGone, WithinAStepAndBack) {
    const auto journey = [this]() -> Journey {
        co_await measure();
        for (const bool inTheFirstFrame : {true, false}) {
            if (!inTheFirstFrame)
                co_await settled("1", 60);
            expectLineLost();
            line.unplug();
            co_await told(10'000);
            co_await pass(30'000);
            EXPECT_TRUE(inFront(frm::Messen));
            line.plug();
            press(frm::Messen, "pbMessen");
            co_await arrive(frm::Meldung);
        }
        co_await settled("1", 60);
        save();
        co_await settled("2", 80);
        EXPECT_EQ(storedSteps(), QStringList{"1"});
        co_await leaveMeasuring();
        expectIdleDesktop();
    };
    run(journey());
}

TEST_F(LineGone, ForGood) {
    const auto journey = [this]() -> Journey {
        co_await select();
        for (const QString way : {"pbAbbrechen", "close box", "pbMessen", "pbSpeichern"}) {
            SCOPED_TRACE(way.toStdString());
            co_await correctZeroPoint();
            co_await newProtocol(way);
            co_await settled("1", 60);
            expectLineLost();
            line.unplug();
            co_await told(10'000);
            if (way == "pbMessen" || way == "pbSpeichern") {
                expectNoPort(); // the set-point; then it leaves by itself
                expectRefused();
            }
            if (way != "pbSpeichern")
                expectEmptyProtocol();
            expectNoPort(); // the stop
            if (way == "close box")
                loaded(frm::Messen)->close();
            else
                press(frm::Messen, qPrintable(way));
            co_await arrive(frm::Desktop);
            EXPECT_TRUE(boxes.allCame());
            EXPECT_GT(line.stand().setSpeed(), 0); // nobody could tell it
            EXPECT_TRUE(gMotorEin);
            line.plug();
        }
        co_await wholeMeasurement("Danach");
        line.unplug();
        boxes.expect("Do you really want to terminate the program?", Yes); // it stands
        press(frm::Desktop, "pbBeenden");
        co_await pass(100);
        EXPECT_FALSE(loaded(frm::Desktop));
    };
    run(journey());
}

} // namespace
