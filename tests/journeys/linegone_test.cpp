// The line is pulled out: what is told, and how it goes on when it is back or not.
#include "linefaults.h"

namespace {

using namespace support;
using namespace platform;

class LineGone : public LineFaults {};

INSTANTIATE_TEST_SUITE_P(Languages, LineGone, testing::Values(1, 2));

TEST_P(LineGone, WithinAnExchange) {
    const auto journey = [this]() -> Journey {
        co_await select();
        co_await chooseDirection();
        // The echo of motor on does not come any more.
        const auto expectLost = [this] {
            for (const char *tag : {"Error 5005- 8020 …", "Error 5006- 8018 …"})
                boxes.expect(tag);
            expectNoController();
        };
        clock.after(30, [this] { line.unplug(); });
        expectLost();
        expectBox({"Motor konnte nicht eingeschaltet werden",
                   "It was not possible to switch the motor on."},
                  Critical, {"Motor ein", "Motor On"});
        press(frm::Desktop, "pbMotein");
        EXPECT_TRUE(boxes.allCame());
        line.plug();

        // Nor that of the stop before the correction, and the correction finds no line.
        clock.after(30, [this] { line.unplug(); });
        expectLost();
        co_await startMeasuring();
        boxes.expect(english() ? "ERROR 4002 -  8018 …" : "Fehler 4002 -  8018 …");
        expectBox({"Statische Nullpunkt-Korrektur abgebrochen",
                   "Static zero-point correction has been discontinued!"},
                  Exclamation, {"Meldung", "Message"});
        press(frm::VorStatNPK, "pbok");
        co_await until("the boxes", [this] { return boxes.allCame(); });
        co_await pass(100);
        line.plug();
        co_await abortCorrection();

        // Within a stream of the correction
        co_await startMeasuring();
        press(frm::VorStatNPK, "pbok");
        co_await pass(2'000);
        boxes.expect(english() ? "ERROR 4002 -  8020 …" : "Fehler 4002 -  8020 …");
        expectBox({"Statische Nullpunkt-Korrektur abgebrochen",
                   "Static zero-point correction has been discontinued!"},
                  Exclamation, {"Meldung", "Message"});
        line.unplug();
        co_await until("the boxes", [this] { return boxes.allCame(); });
        co_await pass(100);
        line.plug();
        co_await abortCorrection();

        // The echo of a step's set-point
        co_await correctZeroPoint();
        expectLost();
        expectRefused();
        expectNoPort(); // the stop
        expectEmptyProtocol();
        clock.after(30, [this] { line.unplug(); });
        press(frm::ProtokollNr, "obNeu");
        press(frm::ProtokollNr, "pbok");
        co_await arrive(frm::Desktop);
        EXPECT_TRUE(boxes.allCame());
        line.plug();
        co_await wholeMeasurement("Danach");
    };
    run(journey());
}

TEST_P(LineGone, WithinAStepAndBack) {
    const auto journey = [this]() -> Journey {
        co_await measure();
        for (const bool inTheFirstFrame : {true, false}) {
            if (!inTheFirstFrame)
                co_await settled("1", 60);
            expectLineLost();
            line.unplug();
            co_await until(
                "the box", [this] { return boxes.allCame(); }, 10'000);
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

TEST_P(LineGone, ForGood) {
    const auto journey = [this]() -> Journey {
        co_await select();
        for (const char *way : {"pbAbbrechen", "close box", "pbMessen", "pbSpeichern"}) {
            SCOPED_TRACE(way);
            co_await correctZeroPoint();
            co_await newProtocol(way);
            co_await settled("1", 60);
            expectLineLost();
            line.unplug();
            co_await until(
                "the box", [this] { return boxes.allCame(); }, 10'000);
            const QString button = way;
            if (button == "pbMessen" || button == "pbSpeichern") {
                expectNoPort(); // the set-point; then it leaves by itself
                expectRefused();
            }
            if (button != "pbSpeichern")
                expectEmptyProtocol();
            expectNoPort(); // the stop
            if (button == "close box")
                loaded(frm::Messen)->close();
            else
                press(frm::Messen, way);
            co_await arrive(frm::Desktop);
            EXPECT_TRUE(boxes.allCame());
            EXPECT_GT(line.stand().setSpeed(), 0); // nobody could tell it
            EXPECT_TRUE(gMotorEin);
            line.plug();
        }
        co_await wholeMeasurement("Danach");
        line.unplug();
        expectBox({"Wollen Sie das Programm wirklich beenden?",
                   "Do you really want to terminate the program?"},
                  YesNo + Question, {"Programmende", "End Of Program"}, Yes);
        boxes.expect("Error 5007- 8020 …");
        expectMotorOff(Exclamation);
        press(frm::Desktop, "pbBeenden");
        co_await pass(100);
        EXPECT_FALSE(loaded(frm::Desktop));
    };
    run(journey());
}

} // namespace
