// Every way out of a measurement, from the login to the last notice: what is told, that the motor
// stands, and that the next measurement works.
#include "controller.h"
#include "session.h"
#include "workplace.h"

namespace {

using namespace support;
using namespace platform;

/// Runs in German and in English.
class Abort : public Workplace, public testing::WithParamInterface<int> {
  protected:
    Abort() { setLanguage(GetParam()); }

    void expectCorrectionAborted() {
        expectBox({"Die Nullpunkt-Korrektur wurde abgebrochen!",
                   "The zero-point correction has been discontinued!"},
                  Critical, {"Fehler", "Error"});
    }
    void expectNoDirection() {
        expectBox({"Sie haben keine Drehrichtung gewählt!\r\n"
                   "Der Motor kann nicht eingeschaltet werden.",
                   "Please select a direction of rotation for the motor!\r\n"
                   "It is not possible to switch the motor on."},
                  Exclamation, {"Meldung", "Message"});
    }
    /// The zero-point correction has failed or was left: nothing was written, and a measurement
    /// needs the selection anew.
    Journey correctionLeft() {
        co_await arrive(frm::Desktop);
        expectIdleDesktop();
        EXPECT_FALSE(canPress(frm::Desktop, "pbMessen"));
        EXPECT_FALSE(control<QAction>(frm::Desktop, "mnuStartMessen")->isEnabled());
        EXPECT_FALSE(line.stand().offsetWritten() || line.stand().factorWritten());
        EXPECT_FALSE(gMessenFreigabe);
    }
    /// The measurement screen has been left with nothing stored.
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
        start();
        co_await arrive(frm::Login);
        expectBox({"Ungültige Anmeldung! Bitte versuchen Sie es noch einmal!",
                   "Invalid registration! Please try it again!"},
                  Critical, {"Anmeldung", "Registration"});
        enter(frm::Login, "txtUserName");
        EXPECT_TRUE(inFront(frm::Login));
        press(frm::Login, "pbCancel");
        co_await pass(3'000);
        for (const frm name : {frm::Splash, frm::Login, frm::Desktop})
            EXPECT_FALSE(loaded(name));
        start();
        co_await arrive(frm::Login);
        loaded(frm::Login)->close();
        co_await pass(3'000);
        for (const frm name : {frm::Splash, frm::Login, frm::Desktop})
            EXPECT_FALSE(loaded(name));
    };
    run(journey());
    EXPECT_EQ(line.stand().wire(), "");
}

TEST_P(Abort, LoginWithOneBlankIsGoodEnough) {
    const auto journey = [this]() -> Journey {
        start();
        co_await arrive(frm::Login);
        type(frm::Login, "txtUserName", " ");
        press(frm::Login, "pbok");
        co_await arrive(frm::Desktop);
        EXPECT_EQ(text(frm::Desktop, "txtPrüfer"), " ");
    };
    run(journey());
}

TEST_P(Abort, Direction) {
    const auto journey = [this]() -> Journey {
        co_await select();
        press(frm::Desktop, "pbDrehR");
        co_await arrive(frm::MotorDrehR);
        press(frm::MotorDrehR, "obLinks");
        expectNoDirection();
        press(frm::MotorDrehR, "pbAbbrechen");
        co_await arrive(frm::Desktop);
        EXPECT_EQ(gDrehrichtung, 0);
        EXPECT_FALSE(canPress(frm::Desktop, "pbMotein"));

        // Asked for by the measurement
        const Text question{
            "Das Gerät ist noch nicht eingelaufen!\rWollen sie trotzdem die Messung beginnen ?",
            "The unit under test has not completed the run-up yet!\rDo you still want to "
            "start the measurement?"};
        const Text questionTitle{"Messen starten", "Start The Measurement"};
        constexpr int flags = YesNo + Exclamation + SecondButtonDefault;
        expectBox(question, flags, questionTitle, No);
        press(frm::Desktop, "pbMessen");
        co_await pass(100);
        EXPECT_TRUE(inFront(frm::Desktop));
        EXPECT_FALSE(gMessenFreigabe);
        for (const char *way : {"pbAbbrechen", "close box", "pbok"}) {
            SCOPED_TRACE(way);
            expectBox(question, flags, questionTitle, Yes);
            expectBox({"Bitte wählen Sie zuerst eine Motor-Drehrichtung",
                       "Please select a direction of rotation for the motor first!"},
                      Exclamation, {"Vorbereiten der Messung", "Preparation For The Measurement"});
            press(frm::Desktop, "pbMessen");
            co_await arrive(frm::MotorDrehR);
            EXPECT_TRUE(gMessenFreigabe);
            const QString button = way;
            if (button == "close box") {
                loaded(frm::MotorDrehR)->close();
            } else if (button == "pbAbbrechen") {
                expectNoDirection();
                press(frm::MotorDrehR, way);
            } else {
                press(frm::MotorDrehR, "obRechts");
                press(frm::MotorDrehR, way);
                continue;
            }
            co_await arrive(frm::Desktop);
            EXPECT_FALSE(gMessenFreigabe);
        }
        co_await arrive(frm::VorStatNPK); // the measurement goes on by itself
        EXPECT_EQ(gDrehrichtung, 1);

        // And so it does the next time that no direction is chosen.
        press(frm::VorStatNPK, "pbok");
        co_await until("the correction", [] { return canPress(frm::StatMessen, "pbWeiter"); });
        loaded(frm::StatMessen)->close();
        co_await arrive(frm::Desktop);
        press(frm::Desktop, "pbDrehR");
        co_await arrive(frm::MotorDrehR);
        expectNoDirection();
        press(frm::MotorDrehR, "pbAbbrechen");
        co_await arrive(frm::Desktop);
        expectBox(question, flags, questionTitle, Yes);
        expectBox({"Bitte wählen Sie zuerst eine Motor-Drehrichtung",
                   "Please select a direction of rotation for the motor first!"},
                  Exclamation, {"Vorbereiten der Messung", "Preparation For The Measurement"});
        press(frm::Desktop, "pbMessen");
        co_await arrive(frm::MotorDrehR);
        press(frm::MotorDrehR, "obRechts");
        press(frm::MotorDrehR, "pbok");
        co_await arrive(frm::VorStatNPK);
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
        press(frm::VorStatNPK, "pbok");
        co_await until("the correction", [] { return canPress(frm::StatMessen, "pbWeiter"); });
    };
    run(journey());
}

TEST_P(Abort, CorrectionWhileTheStreamRuns) {
    const auto journey = [this]() -> Journey {
        co_await select();
        for (const char stream : {'f', 't'}) {
            co_await startMeasuring();
            press(frm::VorStatNPK, "pbok");
            co_await until("the stream",
                           [this, stream] { return line.stand().wire().back() == stream; });
            co_await pass(1'000);
            expectCorrectionAborted();
            press(frm::StatMessen, "pbAbbrechen");
            co_await correctionLeft();
            EXPECT_EQ(line.stand().wire().back(), '-');
            co_await pass(20'000); // a wait that went on would tell so after 15 s
        }
        co_await again();
    };
    run(journey());
}

TEST_P(Abort, CorrectionInTheInstruction) {
    const auto journey = [this]() -> Journey {
        co_await select();
        co_await startMeasuring();
        loaded(frm::VorStatNPK)->close();
        co_await arrive(frm::StatMessen);
        co_await pass(5'000);
        EXPECT_FALSE(canPress(frm::StatMessen, "pbWeiter"));
        expectCorrectionAborted();
        press(frm::StatMessen, "pbAbbrechen");
        co_await correctionLeft();
        co_await again();
    };
    run(journey());
}

TEST_P(Abort, CorrectionByItsCloseBox) {
    const auto journey = [this]() -> Journey {
        co_await select();
        co_await startMeasuring();
        press(frm::VorStatNPK, "pbok");
        co_await until("the correction", [] { return canPress(frm::StatMessen, "pbWeiter"); });
        loaded(frm::StatMessen)->close();
        co_await arrive(frm::Desktop);
        co_await pass(1'000);
        expectIdleDesktop();
        EXPECT_FALSE(loaded(frm::Messen));
        co_await again();
    };
    run(journey());
}

TEST_P(Abort, ProtocolDialog) {
    const auto journey = [this]() -> Journey {
        co_await select();
        for (const bool byButton : {true, false}) {
            co_await correctZeroPoint();
            line.stand().clearWires();
            expectEmptyProtocol();
            if (byButton)
                press(frm::ProtokollNr, "pbexit");
            else
                loaded(frm::ProtokollNr)->close();
            co_await leftEmpty();
            EXPECT_EQ(line.stand().wire(), "-*E-0000+>>>");
        }
        co_await again();
    };
    run(journey());
}

TEST_P(Abort, MeasuringAtOnce) {
    const auto journey = [this]() -> Journey {
        co_await measure();
        EXPECT_GT(line.stand().setSpeed(), 0);
        expectEmptyProtocol();
        press(frm::Messen, "pbAbbrechen");
        co_await arrive(frm::Meldung);
        EXPECT_EQ(text(frm::Meldung, "laMeldung1"), english() ? "Terminate" : "Beenden");
        EXPECT_EQ(text(frm::Meldung, "laMeldung2"), english() ? "the Measuring" : "des Messens");
        co_await leftEmpty();
        co_await again();
    };
    run(journey());
}

TEST_P(Abort, MeasuringByTheCloseBox) {
    const auto journey = [this]() -> Journey {
        co_await select();
        for (const bool inAnExchange : {false, true}) {
            co_await correctZeroPoint();
            co_await newProtocol("Geschlossen");
            co_await settled("1", 60);
            line.stand().clearWires();
            if (inAnExchange) { // which comes to its end first
                press(frm::Messen, "pbMessen");
                co_await until("the set-point", [this] { return !line.stand().wire().empty(); });
            }
            expectEmptyProtocol();
            loaded(frm::Messen)->close();
            co_await leftEmpty();
            EXPECT_EQ(line.stand().wire(),
                      inAnExchange ? "-*E-2100+>>>6-*E-0000+>>>" : "-*E-0000+>>>");
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
