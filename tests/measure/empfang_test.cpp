// The receiving end of the six-round stream: what is shown, what ends it, what a person is told.

#include "../link/linktest.h"
#include "empfang.h"

namespace {

using namespace platform;

const QByteArray frame("\xFF\xFF\x17\x70\x0B\xB8\x00\x46\x50", 9); // 60.00, 30.00, 180.00

class Reception : public LinkTest, protected Messanzeige {
  protected:
    Reception() {
        gMessStatus = 0;
        gStopMessung = false;
        gTimeoutTimer1 = false;
        MSComm1.setPortOpen(true);
    }
    void zeigeDrehzahl(double value) override { show("n", value); }
    void zeigeDrehmoment(double value) override { show("D", value); }
    void zeigeLeistung(double value) override { show("P", value); }
    void rahmenFertig() override { show("frame", 0); }
    bool abgelöst() const override { return superseded; }

    void show(const QString &what, double value) {
        shown += what + QString::number(value) + ' ';
        if (what == endsAt)
            gMessStatus = 1;
    }
    void receive() { reception.fnc_SechsRundenEmpfang(*this); }

    ScriptedLine line{clock};
    SechsRundenEmpfang reception;
    QString shown;
    QString endsAt = "frame"; // the value that makes a person save
    bool superseded = false;
};

TEST_F(Reception, ShowsEachValueAsItComes) {
    line.arrive({frame.left(5)}); // left over from before
    clock.run(50);
    line.arrive({frame.left(4), frame.mid(4) + frame}, 100);
    receive();
    EXPECT_EQ(shown, "n60 D30 P180 frame0 ") << "nothing behind the end";

    gMessStatus = 0;
    shown.clear();
    endsAt = "n";
    line.arrive({frame});
    receive();
    EXPECT_EQ(shown, "n60 ") << "a frame half read is abandoned";
    EXPECT_EQ(line.written, "") << "the stream is ended by who began it";
}

TEST_F(Reception, EndsWhenANewerPassOrTheEndOfTheProgramWantsIt) {
    const std::function<void()> ends[] = {[this] { superseded = true; },
                                          [] { gDesktopAktiv = false; }, [] { gMessStatus = 4; }};
    for (const auto &end : ends) {
        superseded = false;
        gDesktopAktiv = true;
        gMessStatus = 0;
        const double start = clock.elapsed();
        clock.after(5000, end);
        receive();
        EXPECT_NEAR(clock.elapsed() - start, 5000, 1);
    }
    EXPECT_EQ(boxes.count(), 0u) << "nor is silence reported";
    clock.run(40'000);
}

TEST_F(Reception, AFrameThatDoesNotEndIsReportedAndTheReceptionGoesOn) {
    // Bytes go on coming; the time runs from the first.
    line.arrive({frame.left(3), "\x01", "\x02"}, 5000);
    boxes.expect("Keine Daten bei ca. 3 x 6 Runden!", OK, [this] {
        EXPECT_NEAR(clock.elapsed(), 23'000, 10);
        line.arrive({frame.mid(5), frame}, 1000); // ends the spoilt one
    });
    endsAt = "";
    clock.after(40'000, [] { gMessStatus = 4; });
    receive();
    EXPECT_TRUE(gStopMessung);
    EXPECT_EQ(boxes.seen().back().title, "Kommunikationsfehler");
    EXPECT_EQ(boxes.seen().back().flags, Critical);
    EXPECT_TRUE(shown.endsWith("n60 D30 P180 frame0 ")) << shown.toStdString();
}

TEST_F(Reception, ATimeOutLeftRunningEndsIt) {
    gSprache = 2;
    clock.after(1000, [] { gTimeoutTimer1 = true; });
    boxes.expect("No reception after 18 sec", "Message", Exclamation);
    receive();
    EXPECT_FALSE(gTimeoutTimer1);
    EXPECT_EQ(gMessStatus, 0);
}

TEST_F(Reception, ALostLineIsReported) {
    clock.after(1000, [this] { line.gone = true; });
    boxes.expect("Fehler 3002 -  8020 …");
    receive();
    EXPECT_FALSE(MSComm1.PortOpen());
    boxes.expect("Fehler 3001 -  8018 …");
    fnc_SechsRundenStarten();
}

} // namespace
