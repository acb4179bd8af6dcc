// Exchanges with the controller: bytes on the wire, waits, and what a person is told.

#include <gtest/gtest.h>

#include "boxes.h"
#include "controller.h"
#include "fehler.h"
#include "interface.h"
#include "linktest.h"
#include "session.h"

namespace {

using namespace platform;
using support::Boxes;

const char *const silentText = "1 - Keine Kommunikation mit dem Controller möglich!";

class OnStand : public LinkTest {
  protected:
    std::string wire() {
        const std::string all = line.stand().wire();
        line.stand().clearWires();
        return all;
    }
    void setFaults(const simulator::Faults &faults) { line.stand().setFaults(faults); }
    support::SimulatedLine line{clock};
};

TEST_F(OnStand, CommandsOnTheWire) {
    const struct {
        const char *command;
        std::int16_t direction;
        const char *speed, *wire;
        simulator::Faults faults = {};
        int beeps = 0;
    } cases[] = {
        {"E", 1, "60", "-*E-2100+>>>"},
        {"A", 2, "00", "-*A 0000+>>>"},
        {"E", 0, "12,5", "-*E 0437+>>>"},
        {"E", 1, "290", "-*E-10150+>>>"},
        {"E", 1, "60", "-*E-2100+--*E-2100+--*E-2100+>>>", {.deafFrames = 2}, 2},
        {"E", 1, "60", "-*E-2100+>>>", {.echoDelay = 1900}}, // in time, only just
        // Arrives during the second try, whose own echo is left over
        {"E", 1, "70", "-*E-2450+--*E-2450+>>>", {.echoDelay = 2500}, 1},
        {"E", 1, "80", "-*E-2800+>>>"},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.wire);
        beeps = 0;
        setFaults(c.faults);
        EXPECT_TRUE(fnc_BefehlSenden(c.command, c.direction, c.speed));
        EXPECT_EQ(wire(), c.wire);
        EXPECT_EQ(beeps, c.beeps);
        EXPECT_FALSE(Timer1.enabled());
    }
    EXPECT_TRUE(MSComm1.PortOpen());
    EXPECT_FALSE(window.moteinEnabled) << "not touched";
}

TEST_F(OnStand, ASilentControllerIsToldOnceAfterThreeTries) {
    setFaults({.silent = true});
    boxes.expect(silentText, "Fehlermeldung", Critical);
    EXPECT_FALSE(fnc_BefehlSenden("E", 1, "60"));
    EXPECT_EQ(wire(), "-*E-2100+--*E-2100+--*E-2100+--");
    EXPECT_EQ(beeps, 3);
    EXPECT_TRUE(window.moteinEnabled);
    EXPECT_NEAR(clock.elapsed(), 6000, 200);
    EXPECT_FALSE(Timer1.enabled());
    motorStillschweigendAus(); // says nothing
    EXPECT_EQ(boxes.count(), 1u);
    EXPECT_EQ(gKeineMeldung, 0);
}

TEST_F(OnStand, ExchangesDoNotInterleave) {
    setFaults({.deafFrames = 1});
    for (const char *tag : {"Error 5007- ", "Error 5009- ", "Fehler 4000 -  ", "Fehler 4001 -  "})
        boxes.allow(QString(tag) + "8021 …");
    clock.stuck = [] { gDesktopAktiv = false; }; // the time-out of the first was lost
    clock.after(500, [] {
        EXPECT_FALSE(leitungFrei());
        EXPECT_FALSE(fnc_BefehlSenden("A", 1, "00"));
        EXPECT_EQ(fnc_BetriebsartLesen(), 0);
        EXPECT_FALSE(fnc_Reset());
        EXPECT_FALSE(fnc_FrequenzLesen());
    });
    EXPECT_TRUE(fnc_BefehlSenden("E", 1, "60"));
    EXPECT_EQ(wire(), "-*E-2100+--*E-2100+>>>");
    EXPECT_EQ(boxes.count(), 4u);
    EXPECT_TRUE(leitungFrei());
    EXPECT_TRUE(gDesktopAktiv);
}

TEST_F(OnStand, AWaitEndsWithTheDesktop) {
    const std::function<void()> waits[] = {
        [] { EXPECT_FALSE(fnc_BefehlSenden("E", 1, "60")); },
        [] { EXPECT_EQ(fnc_BetriebsartLesen(), 0); },
        [] { EXPECT_FALSE(fnc_Reset()); },
        [] { fnc_FrequenzLesen(); },
    };
    boxes.allow(silentText);
    for (const auto &wait : waits) {
        setFaults({.silent = true});
        gDesktopAktiv = true;
        const double start = clock.elapsed();
        clock.after(300, [] { gDesktopAktiv = false; });
        wait();
        EXPECT_LT(clock.elapsed() - start, 500);
        clock.run(30'000);
        EXPECT_FALSE(Timer1.enabled()) << "it stops by itself";
    }
}

TEST_F(OnStand, MotorOffWaitsForTheStandstill) {
    gDrehrichtung = 1;
    ASSERT_TRUE(fnc_BefehlSenden("E", 1, "60"));
    clock.run(20'000);
    wire();
    EXPECT_GT(line.stand().speed(), 59);
    EXPECT_TRUE(fnc_MotorAus());
    EXPECT_EQ(wire(), "-*E-0000+>>>-g-*A-0000+>>>-");
    EXPECT_LT(line.stand().speed(), 30.1);
    EXPECT_FALSE(line.stand().motorOn());
    EXPECT_TRUE(window.moteinEnabled);
    EXPECT_FALSE(window.motausEnabled);
    EXPECT_EQ(window.enabled, 1);

    line.unplug();
    MSComm1.setPortOpen(false);
    boxes.expect("Error 5011- 8002 …", "Error", Critical);
    boxes.expect("Error 5007- 8002 …", "Error", Critical);
    EXPECT_FALSE(fnc_MotorAus());
    EXPECT_EQ(window.enabled, 2) << "the window is usable again all the same";
}

class OnScript : public LinkTest {
  protected:
    ScriptedLine line{clock};
};

TEST_F(OnScript, OnlyTheExactEchoCounts) {
    const struct {
        const char *what;
        std::vector<QByteArray> pieces; // 20 ms apart
        bool matches;
    } cases[] = {
        {"byte by byte", {"E", "-", "2", "1", "0", "0"}, true},
        {"a byte in front", {"\x55", "E-2100"}, false},
        {"a byte behind", {"E-2100\n"}, false},
        {"a byte missing", {"E-210"}, false},
        {"another frame", {"E-2000"}, false},
    };
    boxes.allow(silentText);
    for (const auto &c : cases) {
        // The first echo as told, the second as it should be.
        int frames = 0;
        line.onWrite = [&](const QByteArray &bytes) {
            if (bytes != "+")
                return;
            if (++frames == 1)
                line.arrive(c.pieces, 20);
            else
                line.arrive({"E-2100"});
        };
        line.written.clear();
        EXPECT_TRUE(fnc_BefehlSenden("E", 1, "60")) << c.what;
        EXPECT_EQ(line.written, c.matches ? "-*E-2100+>>>" : "-*E-2100+--*E-2100+>>>") << c.what;
    }
}

TEST_F(OnScript, LeftoversAreThrownAwayBeforeTheEcho) {
    MSComm1.setPortOpen(true);
    line.arrive({"left over"});
    clock.run(50);
    line.onWrite = [&](const QByteArray &bytes) {
        if (bytes == "+")
            line.arrive({"E 0000"});
    };
    EXPECT_TRUE(fnc_BefehlSenden("E", 2, "0"));
    EXPECT_EQ(beeps, 0);
}

TEST_F(OnScript, TheWaitsKeepTheirPlaces) {
    std::vector<double> times;
    line.onWrite = [&](const QByteArray &bytes) {
        times.push_back(clock.elapsed());
        if (bytes == "+")
            line.arrive({"E-2100"});
    };
    EXPECT_TRUE(fnc_BefehlSenden("E", 1, "60"));
    ASSERT_EQ(times.size(), 6u);                // - *frame + > > >
    EXPECT_NEAR(times[1] - times[0], 50, 0.01); // long
    EXPECT_NEAR(times[2] - times[1], 1, 0.01);  // short
    EXPECT_NEAR(times[4] - times[3], 50, 0.01);
    EXPECT_NEAR(times[5] - times[4], 50, 0.01);
}

TEST_F(OnScript, MotorOffGivesUpWaitingForTheStandstill) {
    Told statMessen(frm::StatMessen);
    gDrehrichtung = 2;
    bool streaming = false;
    Timer stream(100);
    stream.onTick = [&] {
        if (streaming)
            line.arrive({QByteArray("\xFF\xFB\x13\x88", 4)}); // 5 Hz, for ever
    };
    stream.setEnabled(true);
    QByteArray frame;
    line.onWrite = [&](const QByteArray &bytes) {
        if (bytes == "g") // a byte that is there just when the time is over
            line.arrive({"\xFF"}, 12'001);
        streaming = bytes == "g" || (streaming && bytes != "-");
        if (bytes.startsWith('*'))
            frame = bytes.mid(1);
        else if (bytes == "+")
            line.arrive({frame});
    };
    EXPECT_TRUE(fnc_MotorAus());
    EXPECT_EQ(line.written, "-*E 0000+>>>-g-*A 0000+>>>-");
    EXPECT_GT(clock.elapsed(), 12'000);
    EXPECT_LT(clock.elapsed(), 12'600);
    EXPECT_EQ(statMessen.last(), "Timer");
    EXPECT_FALSE(tiDrehzahl.enabled());

    // With nothing coming at all it is as long, and nothing is shown.
    line.onWrite = {};
    const double start = clock.elapsed();
    fnc_FrequenzLesen();
    EXPECT_NEAR(clock.elapsed() - start, 12'000, 50);
    EXPECT_EQ(beeps, 0);
}

TEST_F(OnScript, ModeAndReset) {
    const auto mode = [] { return int(fnc_BetriebsartLesen()); };
    const auto reset = [] { return int(fnc_Reset()); };
    const struct {
        int (*request)();
        std::vector<std::vector<QByteArray>> answers; // to each try, pieces 100 ms apart
        int result;
        const char *wire;
        double milliseconds;
    } cases[] = {
        {mode, {{"\x07"}}, 1, "#", 0},
        {mode, {{"\x01"}}, 2, "#", 0},
        {mode, {{QByteArray(1, '\0')}}, 2, "#", 0},
        {mode, {{"\x07\x07", "\x07"}}, 1, "#", 200},
        {mode, {{"\x07\x07"}, {"\x07"}}, 1, "#-#", 10'000},
        {mode, {}, 0, "#-#-", 20'000},
        {reset, {{"O", "k", "1"}}, 1, "r", 300},
        {reset, {{"Ok1\r"}, {"Ok1"}}, 1, "r--r", 20'000},
        {reset, {{"Ok"}, {"Ok1"}}, 1, "r--r", 20'000},
        {reset, {{"Ok2"}, {"Err"}}, 0, "r--r--", 40'000},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.wire);
        Told statMessen(frm::StatMessen);
        size_t asked = 0;
        line.onWrite = [&](const QByteArray &bytes) {
            if (bytes != "-" && asked < c.answers.size())
                line.arrive(c.answers[asked++], 100);
        };
        line.written.clear();
        if (c.result == 0)
            boxes.expect(c.wire[0] == '#' ? "Keine Daten empfangen!" : "Kein Reset möglich!",
                         "Meldung", Exclamation);
        const double start = clock.elapsed();
        EXPECT_EQ(c.request(), c.result);
        EXPECT_TRUE(boxes.allCame());
        EXPECT_EQ(line.written, c.wire);
        EXPECT_NEAR(clock.elapsed() - start, c.milliseconds, 500);
        EXPECT_FALSE(Timer1.enabled());
        if (c.milliseconds == 40'000) {
            EXPECT_EQ(statMessen.last(), "2 Timeout");
        }
    }
}

} // namespace
