// Timers on virtual and on real time, and serial ports over a pseudo terminal.
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <dlfcn.h>
#include <fcntl.h>
#include <grp.h>
#include <pwd.h>
#include <sys/stat.h>
#include <termios.h>
#include <unistd.h>

#include "cases.h"
#include "platform/fehler.h"
#include "platform/ports.h"
#include "platform/serial.h"
#include "testclock.h"

namespace {
termios kept; // settings of a port
}

// A pseudo terminal keeps little of what it is told. Ports do, but here none has five data bits.
extern "C" int tcgetattr(int port, termios *settings) noexcept {
    *settings = kept;
    return ::isatty(port) ? 0 : -1;
}
extern "C" int tcsetattr(int port, int when, const termios *settings) noexcept {
    static const auto real =
        reinterpret_cast<int (*)(int, int, const termios *)>(::dlsym(RTLD_NEXT, "tcsetattr"));
    kept = *settings;
    real(port, when, settings);
    return (settings->c_cflag & CSIZE) == CS5 ? -1 : 0;
}

namespace {

using namespace platform;
using support::cases;
using support::raised;

TEST(VirtualTime, TimersTickWhileTheyAreEnabledAndNeverNest) {
    support::TestClock &clock = support::TestClock::install();
    Timer timer(100);
    QString ticks;
    timer.onTick = [&] { ticks += QString(" %1").arg(clock.elapsed()); };
    for (const auto &[when, done] : std::initializer_list<std::pair<int, std::function<void()>>>{
             {0, [&] { timer.setEnabled(true); }},
             {60, [&] { timer.setEnabled(true); }}, // enabled already: nothing starts anew
             {250, [&] { timer.setEnabled(false); }},
             {500, [&] { timer.setEnabled(true); }},
             {560, [&] { timer.setInterval(100); }},
             {700, [&] { timer.setInterval(0); }}, // enabled all the same
             {900, [&] { timer.setInterval(50); }},
             {960, [&] { timer.setEnabled(false); }}})
        clock.after(when, done);
    clock.run(1500);
    EXPECT_EQ(ticks, " 100 200 660 950");
    bool within = false;
    timer.onTick = [&] {
        EXPECT_FALSE(std::exchange(within, true));
        clock.run(250);
        within = false;
    };
    timer.setEnabled(true);
    clock.run(400);
    timer.setEnabled(false);
}

/// The machine's own clock again, whatever was in force before.
class RealTime : public testing::Test {
  protected:
    RealTime() { Clock::replace({}); }
    /// Pumps until the condition holds or the time is over; answers whether it held.
    bool wait(const std::function<bool()> &condition, int milliseconds = 3000) {
        bool over = false;
        Timer limit(milliseconds);
        limit.onTick = [&over] { over = true; };
        limit.setEnabled(true);
        for (rounds = 0; !over && !condition(); ++rounds)
            pump();
        return condition();
    }
    int rounds = 0; // many when it does not sleep
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
    timer.setEnabled(true);
    EXPECT_TRUE(wait([&] { return count == 4; }));
    EXPECT_GE(start.msecsTo(platform::now()), 195);
    EXPECT_LT(rounds, 100);
    EXPECT_FALSE(wait([&] { return count > 4; }, 120));
}

TEST(SerialSettings, AreParsedOrRefused) {
    for (const auto &c : cases(R"(
             19200,N,8,1 -> 19200 N 8 1 | 4800,e,7,2 -> 4800 E 7 2 | 9600,S,4,1 -> 9600 S 4 1
             | 75 , O , 5 , 1.5 -> 75 O 5 1.5 | 115200,M,8,1 -> 115200 M 8 1)")) {
        const SerialSettings s = SerialSettings::parse(c.in);
        EXPECT_EQ(QString("%1 %2 %3 %4").arg(s.baud).arg(s.parity).arg(s.dataBits).arg(s.stopBits),
                  c.out);
    }
    for (const auto &c : cases(R"(
             | ,,, | 19200 | 19200,N,8 | 19200,N,8,1, | 19200,N,8,1,5 | x,N,8,1 | 0,N,8,1
             | -5,N,8,1 | 19200,X,8,1 | 19200,NN,8,1 | 19200,,8,1 | 19200,N,9,1 | 19200,N,3,1
             | 19200,N,8,0 | 19200,N,8,3 | 19200,N,8,nan | 19200,N,8, | 192.5,N,8,1)"))
        EXPECT_EQ(raised([&] { SerialSettings::parse(c.in); }), fehlernummer::PortSettings) << c;
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
    void plugAndOpen() {
        plug();
        line.setPortOpen(true);
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
    static int opening(MSComm &port) {
        return raised([&] { port.setPortOpen(true); });
    }
    bool brings(const QByteArray &bytes) {
        arrive(bytes);
        return wait([&] { return line.InBufferCount() == bytes.size(); });
    }

    QTemporaryDir directory;
    QString previous = QDir::currentPath();
    int master = -1;
    MSComm line;
};

TEST_F(Port, IsTheEntryOfTheCurrentDirectoryOrTheSystemsOwn) {
    ASSERT_TRUE(QFile::link("/dev/null", "COM2"));
    ASSERT_TRUE(QFile::link(directory.filePath("gone"), "COM3"));
    ASSERT_TRUE(QDir().mkdir("COM4"));
    for (const char *entry : {"COM2", "COM3", "COM4"})
        EXPECT_EQ(serialLocation(entry[3] - '0'), QDir::current().absoluteFilePath(entry));
    EXPECT_EQ(serialLocation(16), "/dev/ttyS15");
}

TEST_F(Port, CarriesEveryByteBothWays) {
    ASSERT_TRUE(QFile::link(directory.filePath("gone"), "COM7"));
    EXPECT_EQ(opening(line), fehlernummer::NoSuchPort);
    ASSERT_TRUE(QFile::remove("COM7") && QFile::link("/dev/null", "COM7")); // no line behind it
    EXPECT_EQ(opening(line), fehlernummer::NoSuchPort);
    EXPECT_FALSE(line.PortOpen());
    plug();
    arrive("stale\n");
    EXPECT_EQ(raised([&] { line.Output("x"); }), fehlernummer::PortNotOpen);
    line.setPortOpen(true);
    written(); // its echo
    EXPECT_EQ(opening(line), fehlernummer::PortIsOpen);
    EXPECT_EQ(raised([&] { line.setCommPort(8); }), fehlernummer::PortIsOpen);
    line.setCommPort(7);
    MSComm other;
    other.setCommPort(7);
    EXPECT_EQ(opening(other), fehlernummer::PortInUse);

    QByteArray all;
    for (int byte = 0; byte < 256; ++byte)
        all += static_cast<char>(byte);
    line.Output(all);
    EXPECT_EQ(written(), all) << "out at once, without an event loop";
    EXPECT_TRUE(brings(all));
    EXPECT_EQ(line.Input(), all);
    EXPECT_EQ(line.InBufferCount(), 0);

    EXPECT_TRUE(brings("old"));
    arrive("older"); // waits in the system still
    countedDelay(400'000);
    line.discardInput();
    EXPECT_TRUE(brings("new"));
    EXPECT_EQ(line.Input(), "new");
    line.setPortOpen(false);
    EXPECT_EQ(opening(other), 0);
}

// The process gives up its rights meanwhile, where it has them.
TEST_F(Port, TellsWhichThereAreAndHowToGetIn) {
    ASSERT_TRUE(QFile::link("/dev/null", "COM3") && QFile::link("gone", "COM7") &&
                QFile("COM5").open(QIODevice::WriteOnly)); // a file is no device
    setPortLister([] {
        return std::vector<KnownPort>{{"/dev/null", "UART"}, {"/dev/ttyUSB7", "Adapter, Maker"}};
    });
    const auto told = [this] {
        try {
            line.setPortOpen(true);
        } catch (const Fehler &fehler) {
            return fehler.text().english;
        }
        return QString();
    };
    EXPECT_EQ(told(), "The port " + QDir::current().absoluteFilePath("COM7") +
                          " does not exist. There are:\nCOM3: /dev/null (UART)\n"
                          "/dev/ttyUSB7 (Adapter, Maker)");
    setPortLister([] { return std::vector<KnownPort>{}; });
    QFile::remove("COM3");
    EXPECT_TRUE(told().endsWith("no serial port. Please check the cable."));
    setPortLister({});

    QFile device("COM7");
    const auto *owners = getgrnam("dialout");
    ASSERT_TRUE(device.open(QIODevice::WriteOnly) && chmod(".", 0755) == 0);
    if (geteuid() != 0 || !owners)
        GTEST_SKIP() << "needs a device of a group";
    for (const auto &[rights, words] :
         {std::pair{0660, "adduser nobody dialout\""}, {0600, "ask the administrator"}}) {
        ASSERT_EQ(chown("COM7", 0, owners->gr_gid) + chmod("COM7", mode_t(rights)), 0);
        ASSERT_EQ(seteuid(getpwnam("nobody")->pw_uid), 0);
        const QString said = told();
        ASSERT_EQ(seteuid(0), 0);
        EXPECT_TRUE(said.contains(words)) << said.toStdString();
    }
}

TEST_F(Port, IsSetAsItIsTold) {
    plugAndOpen();
    for (const auto &[told, speed, flags] :
         std::initializer_list<std::tuple<const char *, speed_t, tcflag_t>>{
             {"9600,N,8,1", B9600, CS8},
             {"19200,E,7,2", B19200, CS7 | PARENB | CSTOPB},
             {"9600,O,6,1", B9600, CS6 | PARENB | PARODD},
             {"9600,S,8,1", B9600, CS8 | PARENB | CMSPAR},
             {"9600,M,8,2", B9600, CS8 | PARENB | CMSPAR | PARODD | CSTOPB}}) {
        line.setSettings(told);
        EXPECT_EQ(cfgetospeed(&kept), speed) << told;
        EXPECT_EQ(kept.c_cflag & (CSIZE | PARENB | CMSPAR | PARODD | CSTOPB | CRTSCTS), flags)
            << told;
        EXPECT_TRUE(line.PortOpen());
    }
    for (const char *impossible : {"nonsense", "9600,N,5,1", "9600,N,8,1.5"}) {
        EXPECT_EQ(raised([&] { line.setSettings(impossible); }), fehlernummer::PortSettings);
        EXPECT_EQ(line.PortOpen(), *impossible == 'n') << "as before, unless it was tried";
        EXPECT_EQ(line.Settings(), *impossible == 'n' ? "9600,M,8,2" : impossible);
        line.setSettings("9600,M,8,2");
        line.setPortOpen(false);
        line.setPortOpen(true);
    }
}

TEST_F(Port, VanishingWhileOpenNeitherHangsNorSpins) {
    plugAndOpen();
    EXPECT_TRUE(brings("a"));

    unplug();
    wait([] { return false; }, 200); // nobody asks the port
    EXPECT_LT(rounds, 100);
    EXPECT_EQ(raised([&] { line.InBufferCount(); }), fehlernummer::PortLost);
    EXPECT_FALSE(line.PortOpen());
    EXPECT_EQ(opening(line), fehlernummer::NoSuchPort);

    plugAndOpen();
    EXPECT_TRUE(brings("b"));
    unplug();
    EXPECT_TRUE(wait([&] { return raised([&] { line.InBufferCount(); }) != 0; }, 1000))
        << "found out by asking alone";
    plugAndOpen();
    unplug();
    EXPECT_EQ(raised([&] { line.Output("x"); }), fehlernummer::PortLost);
}

} // namespace
