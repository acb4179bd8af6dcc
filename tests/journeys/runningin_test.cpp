// The motor of the desktop: running-in, the way out while it runs, a port that is missing.
#include "start.h"
#include "startup.h"

namespace {

using namespace support;
using namespace platform;

TEST_F(Startup, RunningInStopsWithTheMotor) {
    const auto journey = [this]() -> Journey {
        co_await logIn();
        co_await motorRuns();
        co_await pass(2'005);
        EXPECT_EQ(text(frm::Desktop, "lbEinlauf"), "09:58"); // ten minutes if nothing is stored
        press(frm::Desktop, "pbMotaus");
        co_await pass(3'000);
        EXPECT_EQ(text(frm::Desktop, "lbEinlauf"), "09:58");
        EXPECT_FALSE(gEingelaufen);
        EXPECT_EQ(text(frm::Desktop, "laInfo"), "Motor ist ausgeschaltet");
    };
    change("UPDATE System SET Einlzeit2 = NULL");
    run(journey());
}

TEST_F(Startup, EndWithTheMotorRunning) {
    const auto journey = [this]() -> Journey {
        co_await logIn();
        co_await motorRuns();
        line.stand().clearWires();
        expectQuestion(No);
        press(frm::Desktop, "pbBeenden");
        co_await pass(5'000);
        EXPECT_EQ(line.stand().wire(), "");
        EXPECT_EQ(line.stand().speed(), 60);
        EXPECT_TRUE(canPress(frm::Desktop, "pbMotaus"));
        expectQuestion(Yes);
        loaded(frm::Desktop)->close();
        co_await pass(100);
        EXPECT_EQ(line.stand().wire(), "-*E-0000+>>>");
        EXPECT_EQ(line.stand().setSpeed(), 0);
        EXPECT_FALSE(loaded(frm::Desktop));
        EXPECT_FALSE(gDatenbank.isOpen());
    };
    run(journey());
}

// Told to end by the system: without a question, but not without stopping the motor.
TEST_F(Startup, EndFromOutside) {
    for (const bool inAnExchange : {false, true}) {
        SCOPED_TRACE(inAnExchange);
        forgetSession();
        const auto journey = [this, inAnExchange]() -> Journey {
            co_await select();
            if (inAnExchange) {
                co_await chooseDirection();
                clock.after(30, beendenOhneFrage);
                press(frm::Desktop, "pbMotein");
                EXPECT_EQ(line.stand().setSpeed(), 60);
            } else {
                co_await correctZeroPoint();
                co_await newProtocol("Unterbrochen");
                co_await settled("1", 60);
                beendenOhneFrage();
            }
            co_await pass(1'000);
            const std::string &wire = line.stand().wire();
            EXPECT_GT(wire.rfind("*E-0000+>>>"), wire.rfind("*E-2100+>>>"));
            EXPECT_EQ(line.stand().setSpeed(), 0);
            EXPECT_FALSE(gDesktopAktiv);
            EXPECT_FALSE(gDatenbank.isOpen());
        };
        run(journey());
        programmAufräumen();
    }
}

// The countdown goes on while a question is open, and its notice comes and goes underneath.
TEST_F(Startup, RunningInEndsUnderTheQuestion) {
    change("UPDATE System SET Einlzeit2 = 0.03");
    const auto journey = [this]() -> Journey {
        co_await select();
        co_await motorRuns();
        boxes.expect("Das Gerät ist noch nicht eingelaufen!…", Yes, [this] {
            EXPECT_FALSE(gEingelaufen);
            clock.run(4'500);
            EXPECT_TRUE(gEingelaufen);
            EXPECT_TRUE(loaded(frm::Meldung1));
        });
        press(frm::Desktop, "pbMessen");
        co_await arrive(frm::VorStatNPK);
        co_await pass(3'000);
        EXPECT_FALSE(loaded(frm::Meldung1));
        press(frm::VorStatNPK, "pbok");
        co_await until("the correction", [] { return canPress(frm::StatMessen, "pbWeiter"); });
        EXPECT_EQ(line.stand().speed(), 0);
    };
    run(journey());
}

/// Runs in German and in English.
class MissingPort : public Startup, public testing::WithParamInterface<int> {};

INSTANTIATE_TEST_SUITE_P(Languages, MissingPort, testing::Values(1, 2));

TEST_P(MissingPort, LeadsToTheSettings) {
    setLanguage(GetParam());
    const auto journey = [this]() -> Journey {
        co_await logIn();
        co_await chooseDirection();
        line.unplug();
        expectBox({"Die Schnittstellenparameter gibt es nicht. \r"
                   "Bitte korrigieren Sie die Einstellungen!",
                   "The interface settings do not exist . \rPlease correct it!"},
                  Exclamation, {"Achtung!", "Attention!"});
        press(frm::Desktop, "pbMotein");
        co_await arrive(frm::Interface);
        EXPECT_FALSE(canPress(frm::Desktop, "pbMotein")); // it is modal
        line.plug();
        press(frm::Interface, "pbok");
        co_await arrive(frm::Desktop);
        press(frm::Desktop, "pbMotein");
        EXPECT_TRUE(gMotorEin);
        EXPECT_EQ(line.stand().setSpeed(), 60);
    };
    run(journey());
}

} // namespace
