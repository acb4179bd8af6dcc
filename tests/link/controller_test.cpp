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
    support::SimulatedLine line{clock};
};

TEST_F(OnStand, ASuccessfulCommandOnTheWire) {
    EXPECT_TRUE(fnc_BefehlSenden("E", 1, "60"));
    EXPECT_EQ(wire(), "-*E-2100+>>>");
    EXPECT_FALSE(Timer1.enabled());
    EXPECT_TRUE(fnc_BefehlSenden("A", 2, "00"));
    EXPECT_EQ(wire(), "-*A 0000+>>>");
    EXPECT_TRUE(fnc_BefehlSenden("E", 0, "12,5"));
    EXPECT_EQ(wire(), "-*E 0437+>>>");
    EXPECT_TRUE(fnc_BefehlSenden("E", 1, "290"));
    EXPECT_EQ(wire(), "-*E-10150+>>>");
    EXPECT_TRUE(MSComm1.PortOpen());
    EXPECT_EQ(beeps, 0);
    EXPECT_FALSE(window.moteinEnabled) << "not touched";
}

TEST_F(OnStand, ASilentControllerIsToldOnceAfterThreeTries) {
    simulator::Faults faults;
    faults.silent = true;
    line.stand().setFaults(faults);
    boxes.expect(silentText, "Fehlermeldung", Critical);
    EXPECT_FALSE(fnc_BefehlSenden("E", 1, "60"));
    EXPECT_EQ(wire(), "-*E-2100+--*E-2100+--*E-2100+--");
    EXPECT_EQ(beeps, 3);
    EXPECT_EQ(boxes.count(), 1u);
    EXPECT_TRUE(window.moteinEnabled);
    EXPECT_NEAR(clock.elapsed(), 6000, 200);
    EXPECT_FALSE(Timer1.enabled());

    gSprache = 2;
    boxes.expect("Communication with the controller is not possible!", "Error Message", Critical);
    EXPECT_FALSE(fnc_BefehlSenden("E", 1, "60"));
    motorStillschweigendAus(); // says nothing
    EXPECT_EQ(boxes.count(), 2u);
    EXPECT_EQ(gKeineMeldung, 0);
}

TEST_F(OnStand, AFrameThatWasNotHeardIsSentAgain) {
    simulator::Faults faults;
    faults.deafFrames = 2;
    line.stand().setFaults(faults);
    EXPECT_TRUE(fnc_BefehlSenden("E", 1, "60"));
    EXPECT_EQ(wire(), "-*E-2100+--*E-2100+--*E-2100+>>>");
    EXPECT_EQ(beeps, 2);
}

TEST_F(OnStand, ALateEcho) {
    simulator::Faults faults;
    faults.echoDelay = 1900; // in time, only just
    line.stand().setFaults(faults);
    EXPECT_TRUE(fnc_BefehlSenden("E", 1, "60"));
    EXPECT_EQ(wire(), "-*E-2100+>>>");
    faults.echoDelay = 2500; // arrives during the second try, whose own echo is left over
    line.stand().setFaults(faults);
    EXPECT_TRUE(fnc_BefehlSenden("E", 1, "70"));
    EXPECT_EQ(wire(), "-*E-2450+--*E-2450+>>>");
    EXPECT_EQ(beeps, 1);
    line.stand().setFaults({});
    clock.run(3000);
    EXPECT_TRUE(fnc_BefehlSenden("E", 1, "80"));
    EXPECT_EQ(wire(), "-*E-2800+>>>");
}

TEST_F(OnStand, ABrokenLineIsToldAndTheNextCommandWorks) {
    simulator::Faults faults;
    faults.silent = true;
    line.stand().setFaults(faults);
    clock.after(500, [this] { line.unplug(); });
    boxes.expect("Error 5005- 8020 Die Verbindung ist unterbrochen…");
    boxes.expect("Error 5006- 8018 …");
    boxes.expect(silentText);
    EXPECT_FALSE(fnc_BefehlSenden("E", 1, "60"));
    EXPECT_LT(clock.elapsed(), 1000);
    EXPECT_FALSE(MSComm1.PortOpen());
    EXPECT_FALSE(Timer1.enabled());
    EXPECT_TRUE(leitungFrei());

    boxes.expect("Error 5007- 8002 …", "Error", Critical);
    EXPECT_FALSE(fnc_BefehlSenden("E", 1, "60"));
    EXPECT_EQ(gFehlerNr, fehlernummer::NoSuchPort);
    line.plug();
    line.stand().setFaults({});
    EXPECT_TRUE(fnc_BefehlSenden("E", 1, "60"));
}

TEST_F(OnStand, ExchangesDoNotInterleave) {
    simulator::Faults faults;
    faults.deafFrames = 1;
    line.stand().setFaults(faults);
    boxes.allow("Error 5007- 8021 …");
    boxes.allow("Error 5009- 8021 …");
    boxes.allow("Fehler 4000 -  8021 …");
    boxes.allow("Fehler 4001 -  8021 …");
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
    simulator::Faults faults;
    faults.silent = true;
    const std::function<void()> waits[] = {
        [] { EXPECT_FALSE(fnc_BefehlSenden("E", 1, "60")); },
        [] { EXPECT_EQ(fnc_BetriebsartLesen(), 0); },
        [] { EXPECT_FALSE(fnc_Reset()); },
        [] { fnc_FrequenzLesen(); },
    };
    boxes.allow(silentText);
    for (const auto &wait : waits) {
        line.stand().setFaults(faults);
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

    window = {};
    simulator::Faults faults;
    faults.silent = true;
    line.stand().setFaults(faults);
    boxes.expect(silentText);
    EXPECT_FALSE(fnc_MotorAus());
    EXPECT_EQ(wire().find('A'), std::string::npos);
    EXPECT_EQ(window.enabled, 1) << "the window is usable again all the same";

    line.unplug();
    MSComm1.setPortOpen(false);
    boxes.expect("Error 5011- 8002 …", "Error", Critical);
    boxes.expect("Error 5007- 8002 …", "Error", Critical);
    EXPECT_FALSE(fnc_MotorAus());
    EXPECT_EQ(window.enabled, 2);
}

TEST_F(OnStand, PortTest) {
    const char *const title = "!! Achtung Fehler !!";
    fnc_PortPrüfen();
    EXPECT_TRUE(gSS1Vorhanden);
    EXPECT_FALSE(MSComm1.PortOpen());
    MSComm1.setPortOpen(true);
    fnc_PortPrüfen();
    EXPECT_FALSE(MSComm1.PortOpen()) << "also a port that was open is closed";

    line.unplug();
    fnc_PortPrüfen();
    EXPECT_FALSE(gSS1Vorhanden);
    EXPECT_EQ(boxes.count(), 0u);
    EXPECT_EQ(gFehlerNr, fehlernummer::NoSuchPort);

    line.plug();
    line.occupy(true);
    for (const bool old : {false, true}) {
        gSS1Vorhanden = old;
        boxes.expect("Fehler mI 2 -  8005 belegt", title, Critical);
        fnc_PortPrüfen();
        EXPECT_EQ(gSS1Vorhanden, old);
    }
    gSprache = 2;
    boxes.expect("ERROR mSI 2 -  8005 in use", " !! Attention !!", Critical);
    fnc_PortPrüfen();
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
        {"in one piece", {"E-2100"}, true},
        {"in two pieces", {"E-2", "100"}, true},
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

TEST_F(OnScript, ModeOfOperation) {
    const struct {
        const char *what;
        std::vector<std::vector<QByteArray>> answers; // to each "#", pieces 100 ms apart
        std::int16_t result;
        const char *wire;
        double milliseconds;
    } cases[] = {
        {"lever arm", {{"\x07"}}, 1, "#", 0},
        {"another", {{"\x01"}}, 2, "#", 0},
        {"zero", {{QByteArray(1, '\0')}}, 2, "#", 0},
        {"two at once, then one", {{"\x07\x07", "\x07"}}, 1, "#", 200},
        {"two at once", {{"\x07\x07"}, {"\x07"}}, 1, "#-#", 10'000},
        {"second try", {{}, {"\x07"}}, 1, "#-#", 10'000},
        {"none", {{}, {}}, 0, "#-#-", 20'000},
    };
    boxes.allow("Keine Daten empfangen!");
    for (const auto &c : cases) {
        size_t asked = 0;
        line.onWrite = [&](const QByteArray &bytes) {
            if (bytes == "#" && asked < c.answers.size())
                line.arrive(c.answers[asked++], 100);
        };
        line.written.clear();
        const double start = clock.elapsed();
        const size_t shown = boxes.count();
        EXPECT_EQ(fnc_BetriebsartLesen(), c.result) << c.what;
        EXPECT_EQ(line.written, c.wire) << c.what;
        EXPECT_NEAR(clock.elapsed() - start, c.milliseconds, 150) << c.what;
        EXPECT_EQ(boxes.count() - shown, c.result == 0 ? 1u : 0u) << c.what;
        EXPECT_FALSE(Timer1.enabled()) << c.what;
    }
    EXPECT_EQ(boxes.seen().back().title, "Meldung");
    EXPECT_EQ(boxes.seen().back().flags, Exclamation);
}

TEST_F(OnScript, Reset) {
    const struct {
        const char *what;
        std::vector<std::vector<QByteArray>> answers; // to each "r", pieces 100 ms apart
        bool result;
        const char *wire;
        QString told;
    } cases[] = {
        {"at once", {{"Ok1"}}, true, "r", ""},
        {"in pieces", {{"O", "k", "1"}}, true, "r", ""},
        {"with more behind", {{"Ok1\r"}, {"Ok1"}}, true, "r--r", "1 Timeout"},
        {"half, and whole at the second try", {{"Ok"}, {"Ok1"}}, true, "r--r", "1 Timeout"},
        {"none", {{}, {}}, false, "r--r--", "2 Timeout"},
        {"wrong", {{"Ok2"}, {"Err"}}, false, "r--r--", "2 Timeout"},
    };
    boxes.allow("Kein Reset möglich!");
    for (const auto &c : cases) {
        Told statMessen(frm::StatMessen);
        size_t asked = 0;
        line.onWrite = [&](const QByteArray &bytes) {
            if (bytes == "r" && asked < c.answers.size())
                line.arrive(c.answers[asked++], 100);
        };
        line.written.clear();
        const double start = clock.elapsed();
        EXPECT_EQ(fnc_Reset(), c.result) << c.what;
        EXPECT_EQ(line.written, c.wire) << c.what;
        EXPECT_EQ(statMessen.last(), c.told) << c.what;
        EXPECT_NEAR(clock.elapsed() - start, 20'000 * c.told.left(1).toInt(), 500) << c.what;
    }
    EXPECT_EQ(boxes.count(), 2u);
}

TEST_F(OnScript, EndingAStream) {
    datenstromBeenden();
    EXPECT_EQ(line.written, "") << "the port is closed";
    MSComm1.setPortOpen(true);
    datenstromBeenden();
    EXPECT_EQ(line.written, "-");
}

} // namespace
