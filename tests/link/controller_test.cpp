// Exchanges with the controller: bytes on the wire, waits, and what a person is told.
#include "linktest.h"
#include "standcommands.h"

namespace {

using namespace platform;
using namespace support;

class OnStand : public LinkTest {
  protected:
    QString wire() {
        const auto all = QString::fromStdString(line.stand().wire());
        line.stand().clearWires();
        return all;
    }
    void fault(const QString &what) {
        EXPECT_EQ(simulator::runCommand("fault " + what.toStdString(), line.stand(), {}), "ok\n");
    }
};

TEST_F(OnStand, CommandsOnTheWire) {
    // Gives beeps, seconds, and whether the shaft may be turning. An echo late by 2.5 s arrives
    // during the second try, whose own one is left over.
    for (const Case &c : cases(R"(
            E 1 60 -> -*E-2100+>>> 0 0 on | A 2 00 -> -*A 0000+>>> 0 0 off
            | E 0 12,5 -> -*E 0437+>>> 0 0 on | E 1 290 -> -*E-10150+>>> 0 0 on
            | E 1 60, deaf 2 -> -*E-2100+--*E-2100+--*E-2100+>>> 2 4 on
            | E 1 60, late 1900 -> -*E-2100+>>> 0 2 on
            | E 1 70, late 2500 -> -*E-2450+--*E-2450+>>> 1 3 on | E 1 80 -> -*E-2800+>>> 0 0 on
            | E 1 60, silent on -> -*E-2100+--*E-2100+--*E-2100+-- 3 6 on
            | E 1 00 -> -*E-0000+>>> 0 0 off
            | E 1 60, silent on -> -*E-2100+--*E-2100+--*E-2100+-- 3 6 off)")) {
        SCOPED_TRACE(testing::Message() << c);
        const bool silent = c.in_(1) == "silent on";
        fault(c.in_(1).isEmpty() ? "none" : c.in_(1));
        if (silent)
            expectKnown("noController");
        beeps = 0;
        gTimeoutTimer1 = true; // left over
        const double start = clock.elapsed();
        const QStringList words = c.in_(0).split(' ');
        EXPECT_EQ(fnc_BefehlSenden(words[0], words[1].toShort(), words[2]), !silent);
        boxes.expectAllCame();
        const int seconds = qRound((clock.elapsed() - start) / 1000);
        EXPECT_EQ(QString("%1 %2 %3 ").arg(wire()).arg(beeps).arg(seconds) +
                      (gMotorEin ? "on" : "off"),
                  c.out);
        EXPECT_EQ(window.moteinEnabled, !gMotorEin);
        EXPECT_EQ(window.motausEnabled, gMotorEin);
        EXPECT_FALSE(Timer1.enabled());
    }
    EXPECT_TRUE(MSComm1.PortOpen());
    line.unplug();
    motorStillschweigendAus(); // says nothing
    EXPECT_EQ(gKeineMeldung, 0);
}

TEST_F(OnStand, ExchangesDoNotInterleave) {
    fault("deaf 1");
    for (const char *box : {"lineFailed(5007, 8021)", "requestFailed(4000, 8021)",
                            "requestFailed(4001, 8021)", "lineFailed(5009, 8021)"})
        expectKnown(box);
    clock.stuck = [] { gDesktopAktiv = false; }; // the time-out of the first was lost
    clock.after(500, [] {
        EXPECT_FALSE(leitungFrei() || fnc_BefehlSenden("A", 1, "00"));
        EXPECT_FALSE(fnc_BetriebsartLesen());
        EXPECT_FALSE(fnc_Reset());
        EXPECT_FALSE(fnc_FrequenzLesen());
    });
    EXPECT_TRUE(fnc_BefehlSenden("E", 1, "60"));
    EXPECT_EQ(wire(), "-*E-2100+--*E-2100+>>>");
    EXPECT_TRUE(leitungFrei() && gDesktopAktiv);
}

TEST_F(OnStand, AWaitEndsWithTheDesktopAndWithTheLine) {
    fault("silent on");
    using Wait = int (*)();
    for (const auto &[wait, told] : std::initializer_list<std::pair<Wait, QString>>{
             {[] { return int(fnc_BefehlSenden("E", 1, "60")); },
              "lineFailed(5005, 8020); lineFailed(5006, 8018); noController"},
             {[] { return int(fnc_BetriebsartLesen()); }, "requestFailed(4000, 8020)"},
             {[] { return int(fnc_Reset()); }, "requestFailed(4001, 8020)"},
             {[] { return int(fnc_FrequenzLesen()); }, "lineFailed(5009, 8020)"}}) {
        for (const bool lost : {false, true}) {
            SCOPED_TRACE(told);
            gDesktopAktiv = true;
            line.plug();
            fnc_PortÖffnen();
            for (const QString &box : told.split("; ")) {
                if (lost || box == "noController")
                    expectKnown(box);
            }
            clock.after(300, [this, lost] { lost ? line.unplug() : void(gDesktopAktiv = false); });
            const double start = clock.elapsed();
            EXPECT_EQ(wait(), 0);
            EXPECT_LT(clock.elapsed() - start, 500);
            EXPECT_FALSE(lost && (Timer1.enabled() || tiDrehzahl.enabled()));
            clock.run(30'000);
            EXPECT_FALSE(Timer1.enabled()) << "it stops by itself";
            boxes.expectAllCame();
        }
    }
}

TEST_F(OnStand, MotorOffWaitsForTheStandstill) {
    gDrehrichtung = 1;
    EXPECT_TRUE(fnc_BefehlSenden("E", 1, "60"));
    clock.run(20'000);
    wire();
    gTimeoutDrehzahl = true; // left over
    const double start = clock.elapsed();
    EXPECT_TRUE(fnc_MotorAus());
    EXPECT_LT(clock.elapsed() - start, 11'000) << "no longer than the shaft";
    EXPECT_EQ(wire(), "-*E-0000+>>>-g-*A-0000+>>>-");
    EXPECT_LT(line.stand().speed(), 30.1);
    EXPECT_TRUE(window.moteinEnabled && !window.motausEnabled);
    EXPECT_EQ(window.enabled, 1);

    line.unplug();
    MSComm1.setPortOpen(false);
    expectKnown("lineFailed(5011, 8002)");
    expectKnown("lineFailed(5007, 8002)");
    EXPECT_FALSE(fnc_MotorAus());
    EXPECT_EQ(window.enabled, 2) << "the window is usable again all the same";
}

using OnScript = ScriptTest;

TEST_F(OnScript, OnlyTheExactEchoCounts) {
    for (const Case &c :
         cases("E - 2 1 0 0 -> 1 | U E-2100 -> 2 | E-2100. -> 2 | E-210 -> 2 | E-2000 -> 2")) {
        int frames = 0; // the first echo as told, the second as it should be
        script.onWrite = [&](const QByteArray &bytes) {
            if (bytes == "+")
                arrive(++frames == 1 ? c.in.toLatin1().split(' ') : QByteArrayList{"E-2100"}, 20);
        };
        EXPECT_TRUE(fnc_BefehlSenden("E", 1, "60")) << c;
        EXPECT_EQ(frames, c.out.toInt()) << c;
    }
}

TEST_F(OnScript, TheWaitsKeepTheirPlaces) {
    MSComm1.setPortOpen(true);
    arrive({"left over"});
    std::vector<double> times; // - *frame + > > >
    script.onWrite = [&](const QByteArray &bytes) {
        times.push_back(clock.elapsed());
        if (bytes == "+")
            arrive({"E-2100"});
    };
    EXPECT_TRUE(fnc_BefehlSenden("E", 1, "60"));
    ASSERT_EQ(times.size(), 6u);
    for (const auto &[wait, milliseconds] : {std::pair{1, 50}, {2, 1}, {4, 50}, {5, 50}})
        EXPECT_NEAR(times[size_t(wait)] - times[size_t(wait) - 1], milliseconds, 0.01) << wait;
}

TEST_F(OnScript, MotorOffGivesUpWaitingForTheStandstill) {
    Told statMessen(frm::StatMessen);
    gDrehrichtung = 2;
    QByteArray frame;
    Timer stream(100);
    stream.onTick = [this] { arrive({QByteArray("\xFF\xFB\x13\x88", 4)}); }; // 5 Hz, for ever
    script.onWrite = [&](const QByteArray &bytes) {
        if (bytes == "g") // a byte that is there just when the time is over
            arrive({"\xFF"}, 12'001);
        if (bytes == "g" || bytes == "-")
            stream.setEnabled(bytes == "g");
        else if (bytes.startsWith('*'))
            frame = bytes.mid(1);
        else if (bytes == "+")
            arrive({frame});
    };
    EXPECT_TRUE(fnc_MotorAus() && window.moteinEnabled);
    EXPECT_EQ(script.written, "-*E 0000+>>>-g-*A 0000+>>>-");
    EXPECT_NEAR(clock.elapsed(), 12'300, 300);
    EXPECT_EQ(statMessen.last(), "Timer");
    EXPECT_FALSE(tiDrehzahl.enabled());

    // With nothing coming at all it is as long, and nothing is shown.
    script.onWrite = {};
    const double start = clock.elapsed();
    fnc_FrequenzLesen();
    EXPECT_NEAR(clock.elapsed() - start, 12'000, 50);
    EXPECT_EQ(beeps, 0);
}

TEST_F(OnScript, ModeAndReset) {
    // The pieces of each answer, 100 ms apart, and after how long it was over.
    for (const Case &c : cases(R"(
            mode, 7 -> 1 # 0 | mode, 1 -> 2 # 0 | mode, 0 -> 2 # 0 | mode, 77 7 -> 1 # 200
            | mode, 77/7 -> 1 #-# 10000 | mode -> 0 #-#- 20000 | reset, O k 1 -> 1 r 300
            | reset, Ok1./Ok1 -> 1 r--r 20000 | reset, Ok/Ok1 -> 1 r--r 20000
            | reset, Ok2/Err -> 0 r--r-- 40000)")) {
        SCOPED_TRACE(testing::Message() << c);
        const bool mode = c.in_(0) == "mode";
        const QStringList wanted = c.out.split(' ');
        QStringList answers = c.in_(1).split('/');
        Told statMessen(frm::StatMessen);
        script.onWrite = [&](const QByteArray &bytes) {
            if (bytes == "-" || answers.isEmpty())
                return;
            QString answer = answers.takeFirst();
            if (mode)
                answer.replace('7', '\7').replace('1', '\1').replace('0', QChar(0));
            arrive(answer.toLatin1().split(' '), 100);
        };
        script.written.clear();
        gTimeoutTimer1 = true; // left over, as is the byte
        fnc_PortÖffnen();
        arrive({"\7"});
        clock.run(50);
        if (wanted[0] == "0")
            expectKnown(mode ? "noMode" : "noReset");
        const double start = clock.elapsed();
        EXPECT_EQ(mode ? fnc_BetriebsartLesen() : fnc_Reset(), wanted[0].toInt());
        boxes.expectAllCame();
        EXPECT_EQ(script.written, wanted[1]);
        EXPECT_NEAR(clock.elapsed() - start, wanted[2].toDouble(), 500);
        EXPECT_FALSE(Timer1.enabled());
        const auto timeouts = wanted[1].count("--");
        EXPECT_EQ(statMessen.last(), timeouts ? QString("%1 Timeout").arg(timeouts) : QString());
    }
}

} // namespace
