// Timers and waits on virtual and on real time, and serial ports over a pseudo terminal.

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <cmath>
#include <ctime>
#include <fcntl.h>
#include <stdlib.h>
#include <unistd.h>

#include "clock.h"
#include "fehler.h"
#include "serial.h"
#include "testclock.h"

namespace {

using namespace platform;

class VirtualTime : public testing::Test {
  protected:
    /// The times of all ticks within so many milliseconds.
    std::vector<double> ticks(Timer &timer, double milliseconds) {
        std::vector<double> times;
        const auto more = timer.onTick;
        timer.onTick = [&times, more, this] {
            times.push_back(clock.elapsed());
            if (more)
                more();
        };
        clock.run(milliseconds);
        timer.onTick = more;
        return times;
    }
    support::TestClock &clock = support::TestClock::install();
};

TEST_F(VirtualTime, EnablingTwiceDoesNotStartAnewButAnIntervalDoes) {
    using Times = std::vector<double>;
    Timer timer(100);
    clock.after(60, [&] { timer.setEnabled(true); });
    timer.setEnabled(true);
    EXPECT_EQ(ticks(timer, 250), (Times{100, 200}));
    timer.setEnabled(false);
    EXPECT_EQ(ticks(timer, 250), Times{});

    timer.setEnabled(true); // at 500
    clock.after(60, [&] { timer.setInterval(100); });
    EXPECT_EQ(ticks(timer, 200), Times{660});
    timer.setInterval(0);
    EXPECT_TRUE(timer.enabled());
    EXPECT_EQ(ticks(timer, 200), Times{});
    timer.setInterval(50); // at 900
    EXPECT_EQ(ticks(timer, 60), Times{950});
}

TEST_F(VirtualTime, ATickMayStopItsTimerAndNeverNests) {
    Timer once(100);
    once.onTick = [&] { once.setEnabled(false); };
    once.setEnabled(true);
    EXPECT_EQ(ticks(once, 500).size(), 1u);

    int depth = 0;
    int deepest = 0;
    Timer slow(100);
    slow.onTick = [&] {
        deepest = std::max(deepest, ++depth);
        clock.run(250);
        --depth;
    };
    slow.setEnabled(true);
    clock.run(1000);
    EXPECT_EQ(deepest, 1);

    auto victim = std::make_unique<Timer>(100);
    victim->onTick = [] { ADD_FAILURE() << "ticked after its end"; };
    Timer killer(100);
    killer.onTick = [&] { victim.reset(); };
    slow.setEnabled(false);
    victim->setEnabled(true);
    clock.after(50, [&] { killer.setInterval(10); });
    killer.setEnabled(true);
    clock.run(300);
}

TEST_F(VirtualTime, CountedDelaysPassTimeAndHandleNothing) {
    Timer timer(1);
    timer.onTick = [] { ADD_FAILURE() << "handled something"; };
    timer.setEnabled(true);
    const std::pair<long, double> cases[] = {{20'000, 1}, {1'000'000, 50}, {200'000, 10}, {10, 0}};
    for (const auto &[rounds, milliseconds] : cases) {
        const double before = clock.elapsed();
        const QDateTime timeBefore = platform::now();
        countedDelay(rounds);
        EXPECT_NEAR(clock.elapsed() - before, milliseconds, 1e-3);
        EXPECT_EQ(timeBefore.msecsTo(platform::now()), std::lround(milliseconds));
    }
}

/// The machine's own clock again, whatever was in force before.
class RealTime : public testing::Test {
  protected:
    RealTime() { Clock::replace({}); }
    /// Pumps until the condition holds or the time is over; answers whether it held.
    static bool wait(const std::function<bool()> &condition, int milliseconds = 3000) {
        bool over = false;
        Timer limit(milliseconds);
        limit.onTick = [&over] { over = true; };
        limit.setEnabled(true);
        while (!over && !condition())
            pump();
        return condition();
    }
    static double cpuMilliseconds() { return 1000.0 * double(std::clock()) / CLOCKS_PER_SEC; }
};

TEST_F(RealTime, PumpSleepsUntilTheNextTimer) {
    int count = 0;
    Timer timer(50);
    timer.onTick = [&] {
        // Stopped and started anew in its own tick, as notices and clocks do.
        timer.setEnabled(false);
        timer.setEnabled(++count < 4);
    };
    const QDateTime start = platform::now();
    const double cpu = cpuMilliseconds();
    timer.setEnabled(true);
    EXPECT_TRUE(wait([&] { return count == 4; }));
    EXPECT_GE(start.msecsTo(platform::now()), 195);
    EXPECT_LT(cpuMilliseconds() - cpu, 40);
    EXPECT_FALSE(wait([&] { return count > 4; }, 120));
}

TEST(SerialSettings, AreParsedOrRefused) {
    const struct {
        const char *text;
        int baud;
        char parity;
        int dataBits;
        double stopBits;
    } good[] = {
        {"19200,N,8,1", 19200, 'N', 8, 1},       {"4800,e,7,2", 4800, 'E', 7, 2},
        {" 75 , O , 5 , 1.5 ", 75, 'O', 5, 1.5}, {"115200,M,8,1", 115200, 'M', 8, 1},
        {"9600,S,4,1", 9600, 'S', 4, 1},
    };
    for (const auto &c : good) {
        const SerialSettings settings = SerialSettings::parse(c.text);
        EXPECT_EQ(settings.baud, c.baud) << c.text;
        EXPECT_EQ(settings.parity, c.parity) << c.text;
        EXPECT_EQ(settings.dataBits, c.dataBits) << c.text;
        EXPECT_EQ(settings.stopBits, c.stopBits) << c.text;
    }
    for (const char *bad :
         {"", ",,,", "19200", "19200,N,8", "19200,N,8,1,", "19200,N,8,1,5", "x,N,8,1", "0,N,8,1",
          "-5,N,8,1", "19200,X,8,1", "19200,NN,8,1", "19200,,8,1", "19200,N,9,1", "19200,N,3,1",
          "19200,N,8,0", "19200,N,8,3", "19200,N,8,nan", "19200,N,8,", "192.5,N,8,1"}) {
        try {
            SerialSettings::parse(bad);
            ADD_FAILURE() << '"' << bad << "\" was taken";
        } catch (const Fehler &fehler) {
            EXPECT_EQ(fehler.number(), fehlernummer::PortSettings);
            EXPECT_TRUE(fehler.text().german.contains(bad));
        }
    }
}

/// The far end of a line, linked as COM7 in a directory of its own.
class Port : public RealTime {
  protected:
    Port() {
        QDir::setCurrent(directory.path());
        line.setCommPort(7);
    }
    ~Port() override {
        unplug();
        QDir::setCurrent(previous);
    }
    void plug() {
        master = ::posix_openpt(O_RDWR | O_NOCTTY | O_NONBLOCK);
        ASSERT_GE(master, 0);
        ASSERT_EQ(::grantpt(master) | ::unlockpt(master), 0);
        QFile::remove("COM7");
        ASSERT_TRUE(QFile::link(::ptsname(master), "COM7"));
    }
    void unplug() {
        if (master >= 0)
            ::close(std::exchange(master, -1));
    }
    void arrive(const QByteArray &bytes) const {
        ASSERT_EQ(::write(master, bytes.constData(), size_t(bytes.size())), bytes.size());
    }
    QByteArray written() const {
        char buffer[256];
        const ssize_t count = ::read(master, buffer, sizeof buffer);
        return QByteArray(buffer, std::max<ssize_t>(count, 0));
    }
    /// The number of the failure, 0 for none.
    static int failure(const std::function<void()> &attempt) {
        try {
            attempt();
            return 0;
        } catch (const Fehler &fehler) {
            return fehler.number();
        }
    }
    bool lostWithin(int milliseconds) {
        return wait([this] { return failure([this] { line.InBufferCount(); }) != 0; },
                    milliseconds);
    }

    QTemporaryDir directory;
    QString previous = QDir::currentPath();
    int master = -1;
    MSComm line;
};

TEST_F(Port, IsTheEntryOfTheCurrentDirectoryOrTheSystemsOwn) {
    ASSERT_TRUE(QFile::link("/dev/null", "COM2"));
    ASSERT_TRUE(QFile::link(directory.filePath("gone"), "COM3"));
    EXPECT_EQ(serialLocation(2), QDir::current().absoluteFilePath("COM2"));
    EXPECT_EQ(serialLocation(3), QDir::current().absoluteFilePath("COM3"));
    EXPECT_EQ(serialLocation(1), "/dev/ttyS0");
    EXPECT_EQ(serialLocation(16), "/dev/ttyS15");
}

TEST_F(Port, CarriesEveryByteBothWays) {
    plug();
    EXPECT_EQ(failure([&] { line.Output("x"); }), fehlernummer::PortNotOpen);
    line.setPortOpen(true);
    EXPECT_EQ(failure([&] { line.setPortOpen(true); }), fehlernummer::PortIsOpen);
    EXPECT_EQ(failure([&] { line.setCommPort(8); }), fehlernummer::PortIsOpen);
    line.setCommPort(7);

    QByteArray all;
    for (int byte = 0; byte < 256; ++byte)
        all += static_cast<char>(byte);
    line.Output(all);
    EXPECT_EQ(written(), all) << "out at once, without an event loop";
    arrive(all);
    EXPECT_TRUE(wait([&] { return line.InBufferCount() == all.size(); }));
    EXPECT_EQ(line.Input(), all);
    EXPECT_EQ(line.InBufferCount(), 0);

    arrive("old");
    EXPECT_TRUE(wait([&] { return line.InBufferCount() == 3; }));
    arrive("older"); // waits in the system still
    countedDelay(400'000);
    line.discardInput();
    arrive("new");
    EXPECT_TRUE(wait([&] { return line.InBufferCount() >= 3; }));
    EXPECT_EQ(line.Input(), "new");

    line.setSettings("9600,N,8,1");
    EXPECT_TRUE(line.PortOpen());
    EXPECT_EQ(failure([&] { line.setSettings("nonsense"); }), fehlernummer::PortSettings);
    EXPECT_EQ(line.Settings(), "9600,N,8,1");
    EXPECT_TRUE(line.PortOpen());
}

TEST_F(Port, MissingOrInUseIsTold) {
    ASSERT_TRUE(QFile::link(directory.filePath("gone"), "COM7"));
    EXPECT_EQ(failure([&] { line.setPortOpen(true); }), fehlernummer::NoSuchPort);
    ASSERT_TRUE(QFile::remove("COM7") && QFile::link("/dev/null", "COM7")); // no line behind it
    EXPECT_EQ(failure([&] { line.setPortOpen(true); }), fehlernummer::NoSuchPort);
    EXPECT_FALSE(line.PortOpen());
    plug();
    line.setPortOpen(true);
    MSComm other;
    other.setCommPort(7);
    EXPECT_EQ(failure([&] { other.setPortOpen(true); }), fehlernummer::PortInUse);
    line.setPortOpen(false);
    EXPECT_EQ(failure([&] { other.setPortOpen(true); }), 0);
}

TEST_F(Port, VanishingWhileOpenNeitherHangsNorSpins) {
    plug();
    line.setPortOpen(true);
    arrive("a");
    EXPECT_TRUE(wait([&] { return line.InBufferCount() == 1; }));

    unplug();
    const double cpu = cpuMilliseconds();
    wait([] { return false; }, 200); // nobody asks the port
    EXPECT_LT(cpuMilliseconds() - cpu, 60);
    EXPECT_EQ(failure([&] { line.InBufferCount(); }), fehlernummer::PortLost);
    EXPECT_FALSE(line.PortOpen());
    EXPECT_EQ(failure([&] { line.setPortOpen(true); }), fehlernummer::NoSuchPort);

    plug();
    line.setPortOpen(true);
    arrive("b");
    EXPECT_TRUE(wait([&] { return line.InBufferCount() == 1; }));
    unplug();
    EXPECT_TRUE(lostWithin(1000)) << "found out by asking alone";
    plug();
    line.setPortOpen(true);
    unplug();
    EXPECT_EQ(failure([&] { line.Output("x"); }), fehlernummer::PortLost);
}

} // namespace
