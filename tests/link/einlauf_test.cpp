// The running-in countdown.

#include <gtest/gtest.h>

#include "einlaufwert.h"
#include "linktest.h"
#include "runtime.h"

namespace {

TEST(RunningIn, TimeIsMinutesAndSeconds) {
    const struct {
        double time;
        int minutes, seconds;
    } cases[] = {{0, 0, 0},     {10.75, 10, 75}, {59.99, 59, 99}, {0.29, 0, 29},
                 {0.57, 0, 57}, {1.15, 1, 15},   {5, 5, 0},       {10.305, 10, 30}};
    for (const auto &c : cases) {
        gEinlaufzeit = c.time;
        einlaufzeitSetzen();
        EXPECT_EQ(gEinlaufMin, c.minutes) << c.time;
        EXPECT_EQ(gEinlaufSek, c.seconds) << c.time;
    }
}

TEST(RunningIn, IsOverOneTickAfterZero) {
    const struct {
        std::int16_t minutes, seconds;
        int ticks;
    } cases[] = {{0, 0, 1}, {0, 1, 2}, {1, 0, 61}, {10, 75, 676}, {59, 99, 3640}};
    for (const auto &c : cases) {
        gEinlaufMin = c.minutes;
        gEinlaufSek = c.seconds;
        int ticks = 1;
        while (!einlaufSekunde())
            ++ticks;
        EXPECT_EQ(ticks, c.ticks) << c.minutes << ':' << c.seconds;
        EXPECT_EQ(gEinlaufMin, 0);
        EXPECT_EQ(gEinlaufSek, 0);
    }
}

TEST(RunningIn, EntriesTakeBothDecimalSigns) {
    const struct {
        const char *text;
        std::optional<double> german, english;
    } cases[] = {
        {"10.30", 10.3, 10.3}, {"10,3", 10.3, 10.3}, {" 0 ", 0, 0},   {"59,99", 59.99, 59.99},
        {"60", {}, {}},        {"-0.1", {}, {}},     {"", {}, {}},    {"zehn", {}, {}},
        {"7 5", {}, {}},       {"1e999", {}, {}},    {"nan", {}, {}}, {"1.000", 1, 1},
        {"1,000", 1, 1}};
    for (const bool german : {true, false}) {
        platform::setNumberLocale(german ? QLocale(QLocale::German, QLocale::Germany)
                                         : QLocale(QLocale::English, QLocale::UnitedStates));
        for (const auto &c : cases)
            EXPECT_EQ(einlaufWert(c.text, einlaufzeitGrenze), german ? c.german : c.english)
                << c.text;
    }
    platform::setNumberLocale(QLocale());
}

class Countdown : public LinkTest {
  protected:
    Told notice{frm::Meldung1};
};

TEST_F(Countdown, RunsOnTheWindowOfTheMotor) {
    gEinlaufzeit = 1.01;
    einlaufzeitSetzen();
    einlaufStarten();
    clock.run(1500);
    EXPECT_EQ(window.einlauf, "01:00");
    clock.run(1000);
    EXPECT_EQ(window.einlauf, "00:59");
    clock.run(59'000);
    EXPECT_EQ(window.einlauf, "00:00");
    EXPECT_FALSE(gEingelaufen);
    EXPECT_FALSE(loaded(frm::Meldung1)->isVisible());
    clock.run(1000);
    EXPECT_TRUE(gEingelaufen);
    EXPECT_EQ(window.einlauf, "00:00");
    EXPECT_TRUE(loaded(frm::Meldung1)->isVisible());
    EXPECT_EQ(beeps, 1);
    EXPECT_FALSE(tiEinlauf.enabled());
    EXPECT_EQ(gFormStatus, 0);
    motorzeitMerken();
    EXPECT_EQ(gRestMinuten, 1);
    EXPECT_EQ(gRestSekunden, 2);
}

TEST_F(Countdown, RunsOnTheCalibrationWhileThatIsInFront) {
    Told calibration(frm::Kalibrierung);
    gFormStatus = 3;
    gEinlaufzeit = 0.01;
    einlaufzeitSetzen();
    einlaufStarten();
    clock.run(1500);
    EXPECT_EQ(calibration.last(), "00:00");
    EXPECT_EQ(gFormStatus, 3);
    clock.run(1000);
    EXPECT_EQ(gFormStatus, 4);
    EXPECT_EQ(window.einlauf, "");
}

TEST_F(Countdown, EndsWithTheDesktop) {
    gEinlaufzeit = 1;
    einlaufzeitSetzen();
    einlaufStarten();
    clock.after(500, [] { gDesktopAktiv = false; });
    clock.run(3000);
    EXPECT_FALSE(tiEinlauf.enabled());
    EXPECT_EQ(window.einlauf, "");
    gMotorStart = platform::now().time().addSecs(10); // the motor ran past midnight
    motorzeitMerken();
    EXPECT_EQ(gRestMinuten, 59);
    EXPECT_EQ(gRestSekunden, 50);
}

} // namespace
