// The motor of the desktop: running-in, the way out while it runs, a port that is missing.
#include "start.h"
#include "startup.h"

namespace {

using namespace support;
using namespace platform;

TEST_F(Startup, RunningInCountsDown) {
    struct Case {
        QVariant time; // minutes.seconds
        QStringList shown;
    };
    const Case cases[] = {{0.03, {"00:02", "00:01", "00:00", "over"}},
                          {0, {"over"}},
                          {1.75, {"01:74", "01:73"}},
                          {QVariant(), {"09:59", "09:58"}}};
    for (const Case &running : cases) {
        SCOPED_TRACE(running.shown.join(' ').toStdString());
        change("UPDATE System SET Einlzeit2 = ?", {running.time});
        const auto journey = [this, &running]() -> Journey {
            co_await logIn();
            co_await motorRuns();
            const double begin = clock.elapsed();
            double second = 0;
            for (const QString &shown : running.shown) {
                second += 1000;
                const double wait = begin + second - clock.elapsed() + 5;
                co_await pass(wait);
                if (shown != "over") {
                    EXPECT_EQ(text(frm::Desktop, "lbEinlauf"), shown);
                    EXPECT_FALSE(gEingelaufen);
                    continue;
                }
                EXPECT_TRUE(gEingelaufen);
                EXPECT_EQ(text(frm::Desktop, "lbEinlauf"), "00:00");
                EXPECT_EQ(text(frm::Meldung1, "laMeldung1"), "Die Einlaufzeit");
                EXPECT_EQ(text(frm::Meldung1, "laMeldung2"), "ist beendet.");
                co_await arrive(frm::Desktop);
                EXPECT_NEAR(clock.elapsed() - begin, second + 2'020, 30);
            }
            // Motor off stops it for good.
            const bool done = gEingelaufen;
            press(frm::Desktop, "pbMotaus");
            const QString stopped = text(frm::Desktop, "lbEinlauf");
            co_await pass(3'000);
            EXPECT_EQ(text(frm::Desktop, "lbEinlauf"), stopped);
            EXPECT_EQ(gEingelaufen, done);
            EXPECT_EQ(text(frm::Desktop, "laInfo"), "Motor ist ausgeschaltet");
            co_await end();
        };
        run(journey());
    }
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
        for (const bool occupied : {true, false}) {
            if (occupied) {
                line.occupy(true);
                expectBox({"Fehler mI 2 -  8005 belegt", "ERROR mSI 2 -  8005 in use"}, Critical,
                          {"!! Achtung Fehler !!", " !! Attention !!"});
            } else {
                line.unplug();
            }
            expectBox({"Die Schnittstellenparameter gibt es nicht. \r"
                       "Bitte korrigieren Sie die Einstellungen!",
                       "The interface settings do not exist . \rPlease correct it!"},
                      Exclamation, {"Achtung!", "Attention!"});
            press(frm::Desktop, "pbMotein");
            co_await arrive(frm::Interface);
            EXPECT_FALSE(canPress(frm::Desktop, "pbMotein")); // it is modal
            line.occupy(false);
            line.plug();
            press(frm::Interface, "pbok");
            co_await arrive(frm::Desktop);
        }
        press(frm::Desktop, "pbMotein");
        EXPECT_TRUE(gMotorEin);
        EXPECT_EQ(line.stand().setSpeed(), 60);
    };
    run(journey());
}

} // namespace
