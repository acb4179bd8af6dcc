// Every way out of a measurement, from the login to the last notice: what is told, that the motor
// stands, and that the next measurement works.
#include "linefaults.h"

namespace {

using namespace support;
using namespace platform;

/// Runs in German and in English.
class Abort : public LineFaults, public testing::WithParamInterface<int> {
  protected:
    Abort() : LineFaults(GetParam()) {}

    /// The measurement has been left with nothing stored.
    Journey leftEmpty() {
        co_await arrive(frm::Desktop);
        co_await pass(5'000); // also what might still come
        expectIdleDesktop();
        EXPECT_TRUE(boxes.allCame());
        EXPECT_EQ(column("SELECT 1 FROM Protokoll_temp WHERE ProtokollID = ?", {gProtokollID}),
                  QStringList());
    }
    Journey again() { co_await wholeMeasurement("Wiederholung"); }
};

INSTANTIATE_TEST_SUITE_P(Languages, Abort, testing::Values(1, 2));

TEST_P(Abort, Login) {
    const auto journey = [this]() -> Journey {
        for (const bool byButton : {true, false}) {
            start();
            co_await arrive(frm::Login);
            expectBox({"Ungültige Anmeldung! Bitte versuchen Sie es noch einmal!",
                       "Invalid registration! Please try it again!"},
                      Critical, {"Anmeldung", "Registration"});
            enter(frm::Login, "txtUserName");
            EXPECT_TRUE(inFront(frm::Login));
            if (byButton)
                press(frm::Login, "pbCancel");
            else
                loaded(frm::Login)->close();
            co_await pass(3'000);
            for (const frm name : {frm::Splash, frm::Login, frm::Desktop})
                EXPECT_FALSE(loaded(name));
        }
    };
    run(journey());
    EXPECT_EQ(line.stand().wire(), "");
}

TEST_P(Abort, DirectionThatTheMeasurementAsksFor) {
    const auto journey = [this]() -> Journey {
        co_await select();
        const auto measure = [this](int answer) {
            expectBox({"Das Gerät ist noch nicht eingelaufen!\rWollen sie trotzdem die Messung "
                       "beginnen ?",
                       "The unit under test has not completed the run-up yet!\rDo you still want "
                       "to start the measurement?"},
                      YesNo + Exclamation + SecondButtonDefault,
                      {"Messen starten", "Start The Measurement"}, answer);
            press(frm::Desktop, "pbMessen");
        };
        measure(No);
        co_await pass(100);
        EXPECT_TRUE(inFront(frm::Desktop));
        EXPECT_FALSE(gMessenFreigabe);
        for (const bool chosen : {false, true, true}) {
            expectBox({"Bitte wählen Sie zuerst eine Motor-Drehrichtung",
                       "Please select a direction of rotation for the motor first!"},
                      Exclamation, {"Vorbereiten der Messung", "Preparation For The Measurement"});
            measure(Yes);
            co_await arrive(frm::MotorDrehR);
            EXPECT_TRUE(gMessenFreigabe);
            if (chosen) { // the measurement goes on by itself, once and again
                press(frm::MotorDrehR, "obRechts");
                press(frm::MotorDrehR, "pbok");
                co_await arrive(frm::VorStatNPK);
                co_await corrected();
                loaded(frm::StatMessen)->close();
                co_await arrive(frm::Desktop);
                press(frm::Desktop, "pbDrehR");
                co_await arrive(frm::MotorDrehR);
            }
            if (chosen) {
                expectBox({"Sie haben keine Drehrichtung gewählt!\r\n"
                           "Der Motor kann nicht eingeschaltet werden.",
                           "Please select a direction of rotation for the motor!\r\n"
                           "It is not possible to switch the motor on."},
                          Exclamation, {"Meldung", "Message"});
                press(frm::MotorDrehR, "pbAbbrechen");
            } else {
                loaded(frm::MotorDrehR)->close();
            }
            co_await arrive(frm::Desktop);
            EXPECT_FALSE(gMessenFreigabe);
        }
    };
    run(journey());
}

TEST_P(Abort, Correction) {
    const auto journey = [this]() -> Journey {
        co_await select();
        for (const char stream : {'f', 't'}) {
            co_await startMeasuring();
            press(frm::VorStatNPK, "pbok");
            co_await until("the stream",
                           [this, stream] { return line.stand().wire().back() == stream; });
            co_await pass(1'000);
            co_await abortCorrection();
            EXPECT_EQ(line.stand().wire().back(), '-');
            co_await pass(20'000); // a wait that went on would tell so after 15 s
        }
        co_await startMeasuring(); // in the instruction
        loaded(frm::VorStatNPK)->close();
        co_await arrive(frm::StatMessen);
        co_await pass(5'000);
        EXPECT_FALSE(canPress(frm::StatMessen, "pbWeiter"));
        co_await abortCorrection();

        co_await startMeasuring(); // by its close box
        co_await corrected();
        loaded(frm::StatMessen)->close();
        co_await arrive(frm::Desktop);
        co_await pass(1'000);
        expectIdleDesktop();
        co_await again();
    };
    run(journey());
}

TEST_P(Abort, CorrectionNotWhileTheMotorIsStopped) {
    const auto journey = [this]() -> Journey {
        co_await select();
        co_await chooseDirection();
        press(frm::Desktop, "pbMotein");
        co_await pass(10'000);
        gEingelaufen = true;
        press(frm::Desktop, "pbMessen");
        co_await until("the wait for standstill",
                       [this] { return line.stand().wire().back() == 'g'; });
        // The line is in use: nobody may get at it, from here or from the desktop.
        EXPECT_FALSE(canPress(frm::StatMessen, "pbAbbrechen"));
        loaded(frm::StatMessen)->close();
        EXPECT_FALSE(canPress(frm::Desktop, "pbMotaus"));
        co_await arrive(frm::VorStatNPK);
        EXPECT_FALSE(line.stand().motorOn());
        co_await corrected();
    };
    run(journey());
}

TEST_P(Abort, ProtocolDialogAndMeasuring) {
    const auto journey = [this]() -> Journey {
        co_await select();
        for (const std::string way :
             {"dialog", "dialog's close box", "at once", "close box", "close box in an exchange"}) {
            SCOPED_TRACE(way);
            co_await correctZeroPoint();
            if (!way.starts_with("dialog"))
                co_await newProtocol("Verlassen");
            if (way.starts_with("close"))
                co_await settled("1", 60);
            line.stand().clearWires();
            expectEmptyProtocol();
            if (way == "dialog") {
                press(frm::ProtokollNr, "pbexit");
            } else if (way == "dialog's close box") {
                loaded(frm::ProtokollNr)->close();
            } else if (way == "at once") {
                press(frm::Messen, "pbAbbrechen");
                co_await arrive(frm::Meldung);
                EXPECT_EQ(text(frm::Meldung, "laMeldung1"), english() ? "Terminate" : "Beenden");
                EXPECT_EQ(text(frm::Meldung, "laMeldung2"),
                          english() ? "the Measuring" : "des Messens");
            } else {
                if (way.ends_with("exchange")) { // which comes to its end first
                    press(frm::Messen, "pbMessen");
                    co_await until("the set-point",
                                   [this] { return !line.stand().wire().empty(); });
                }
                loaded(frm::Messen)->close();
            }
            co_await leftEmpty();
            EXPECT_TRUE(line.stand().wire().ends_with("-*E-0000+>>>"));
            if (way.ends_with("exchange")) {
                EXPECT_EQ(line.stand().wire(), "-*E-2100+>>>6-*E-0000+>>>");
            }
        }
        co_await again();
    };
    run(journey());
}

TEST_P(Abort, DuringTheNoticeBetweenSteps) {
    const auto journey = [this]() -> Journey {
        co_await measure();
        line.stand().setLoad(100);
        co_await settled("1", 60);
        save();
        co_await arrive(frm::Meldung);
        // Out of use: neither its buttons nor its close box act.
        EXPECT_FALSE(canPress(frm::Messen, "pbAbbrechen"));
        loaded(frm::Messen)->close();
        EXPECT_TRUE(loaded(frm::Messen));
        // A notice that a person closes lets the next step begin at once, and only once.
        line.stand().clearWires();
        loaded(frm::Meldung)->close();
        co_await settled("2", 80);
        EXPECT_EQ(line.stand().wire(), "-*E-2800+>>>6");
        press(frm::Messen, "pbAbbrechen");
        co_await arrive(frm::Meldung);
        loaded(frm::Meldung)->close();
        co_await arrive(frm::Desktop);
        co_await pass(5'000);
        expectIdleDesktop();
        EXPECT_EQ(storedSteps(), QStringList{"1"});
        co_await again();
    };
    run(journey());
}

} // namespace
