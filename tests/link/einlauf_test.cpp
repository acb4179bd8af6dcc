// The running-in countdown.
#include "link/einlaufwert.h"
#include "linktest.h"
#include "platform/runtime.h"

namespace {

using namespace support;

TEST(RunningIn, TimeIsMinutesAndSecondsAndOneTickMore) {
    for (const Case &c : cases(R"(
            0 -> 0 0 1 | 0.01 -> 0 1 2 | 1 -> 1 0 61 | 10.75 -> 10 75 676 | 59.99 -> 59 99 3640
            | 0.29 -> 0 29 30 | 0.57 -> 0 57 58 | 1.15 -> 1 15 76 | 10.305 -> 10 30 631)")) {
        gEinlaufzeit = c.in.toDouble();
        einlaufzeitSetzen();
        const QString set = QString("%1 %2 ").arg(gEinlaufMin).arg(gEinlaufSek);
        int ticks = 1;
        while (!einlaufSekunde())
            ++ticks;
        EXPECT_EQ(set + QString::number(ticks), c.out) << c;
        EXPECT_EQ(gEinlaufMin + gEinlaufSek, 0);
    }
}

TEST(RunningIn, EntriesTakeBothDecimalSigns) {
    for (const QLocale::Language language : {QLocale::German, QLocale::English}) {
        platform::setNumberLocale(QLocale(language));
        for (const Case &c : cases(R"(
                10.30 -> 10.3 | 10,3 -> 10.3 | " 0 " -> 0 | 59,99 -> 59.99 | 60 -> -1 | -0.1 -> -1
                | -> -1 | zehn -> -1 | 7 5 -> -1 | 1e999 -> -1 | nan -> -1 | 1.000 -> 1
                | 1,000 -> 1)"))
            EXPECT_EQ(einlaufWert(c.in, einlaufzeitGrenze).value_or(-1), c.out.toDouble()) << c;
    }
}

struct Countdown : LinkTest {
    void begin(double time) {
        gEinlaufzeit = time;
        einlaufzeitSetzen();
        einlaufStarten();
    }
    Told notice{frm::Meldung1};
};

TEST_F(Countdown, RunsOnTheWindowOfTheMotor) {
    begin(1.01);
    for (const auto &[milliseconds, shown] :
         {std::pair{1500, "01:00"}, {1000, "00:59"}, {59'000, "00:00"}}) {
        clock.run(milliseconds);
        EXPECT_EQ(window.einlauf, shown);
    }
    EXPECT_FALSE(gEingelaufen || loaded(frm::Meldung1)->isVisible());
    clock.run(1000);
    EXPECT_TRUE(gEingelaufen && loaded(frm::Meldung1)->isVisible());
    EXPECT_EQ(window.einlauf, "00:00");
    EXPECT_EQ(beeps, 1);
    EXPECT_FALSE(tiEinlauf.enabled());
    EXPECT_EQ(gFormStatus, Formstatus::Keiner);
    motorzeitMerken();
    EXPECT_EQ(gRestMinuten * 60 + gRestSekunden, 62);
}

TEST_F(Countdown, RunsOnAllWindowsAndEndsWithTheDesktop) {
    Window calibration;
    enterMotorfenster(calibration);
    gFormStatus = Formstatus::Einlaufen;
    begin(0.01);
    clock.run(1500);
    EXPECT_EQ(calibration.einlauf + window.einlauf, "00:0000:00");
    leaveMotorfenster(calibration);
    EXPECT_EQ(gFormStatus, Formstatus::Einlaufen);
    clock.run(1000);
    EXPECT_EQ(gFormStatus, Formstatus::Korrektur);
    gFormStatus = {}; // on the window again, and over with the desktop
    window.einlauf.clear();
    begin(1);
    clock.after(500, [] { gDesktopAktiv = false; });
    clock.run(3000);
    EXPECT_FALSE(tiEinlauf.enabled());
    EXPECT_EQ(window.einlauf, "");
    gMotorStart = platform::now().time().addSecs(10); // the motor ran past midnight
    motorzeitMerken();
    EXPECT_EQ(gRestMinuten * 60 + gRestSekunden, 3590);
}

} // namespace
