// The simulated stand where no journey looks: frames out of order, faults, and that it tells
// exactly when bytes arrive, on which virtual time rests.
#include "cases.h"
#include "stand.h"
#include "standcommands.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <utility>

using namespace simulator;
using std::string;
using namespace std::string_literals;

namespace {

/// A stand and its time, as a workstation would live with them.
struct Bench {
    Stand stand;
    double now = 0;

    void send(std::string_view bytes) { stand.receive(bytes, now); }
    string wait(double ms) { return stand.take(now += ms); }
    /// Jumps from event to event, as virtual time does.
    string events(double ms) {
        const double end = now + ms;
        string bytes;
        while (stand.nextEvent().value_or(end + 1) <= end) {
            now = *stand.nextEvent();
            bytes += stand.take(now);
        }
        return bytes + stand.take(now = end);
    }
    string frame(const string &content) {
        send("-*" + content);
        wait(1);
        send("+");
        return wait(100);
    }
    void drive(const string &content, double ms = 10000) {
        ASSERT_EQ(frame(content), content);
        send(">>>");
        wait(ms);
    }
};

unsigned number(const string &bytes, std::size_t at, std::size_t size) {
    unsigned value = 0;
    for (const char byte : bytes.substr(at, size))
        value = value << 8 | static_cast<unsigned char>(byte);
    return value;
}

/// The mean of the 25 samples from there on.
double mean(Bench &bench, char command, std::size_t from) {
    bench.send(string(1, command));
    const string bytes = bench.events(3600);
    bench.send("-");
    bench.wait(10);
    double sum = 0;
    for (std::size_t at = 5 * from; at < 5 * (from + 25); at += 5) {
        EXPECT_EQ(bytes.substr(at, 2), command == 'f' ? "\xFF\xFA" : "\xFF\xFD");
        sum += number(bytes, at + 2, 3) / 10.0;
    }
    return sum / 25;
}

} // namespace

TEST(Stand, ConfirmedFramesDriveTheMotor) {
    Bench bench;
    for (const auto &c :
         support::cases("E-2100 -> 60 1 1 | E 3500 -> 100 2 1 | E-12250 -> 300 1 1 | "
                        "A-0000 -> 0 1 0 | A 2100 -> 0 2 0")) {
        const string frame = c.in.toStdString();
        EXPECT_EQ(bench.frame(frame), frame);
        const double before = bench.stand.setSpeed();
        bench.send(">>");
        EXPECT_EQ(bench.stand.setSpeed(), before) << "two confirmations are not enough";
        bench.send(">");
        bench.wait(60000);
        EXPECT_EQ(QString("%1 %2 %3")
                      .arg(std::round(bench.stand.speed() * 1000) / 1000)
                      .arg(bench.stand.direction() == Direction::Right ? 1 : 2)
                      .arg(bench.stand.motorOn()),
                  c.out)
            << c;
        EXPECT_NEAR(bench.stand.setSpeed(), bench.stand.speed(), 1e-3);
    }
}

TEST(Stand, FramesThatComeOutOfOrderDoNothing) {
    // No end, since "-" is a sign in there; an end that got lost, where the next attempt counts;
    // taken back before it was confirmed; echoed, but no speed; too long for any frame.
    for (const auto &c : support::cases(
             ">>> -> | *E-2100->>> -> | *E-21*E-0700+ -> E-0700 | *E-2100+->>> -> E-2100 | "
             "*E-21x0+>>> -> E-21x0 | *X-2100+>>> -> X-2100 | *E-210000000000000000000+>>> ->")) {
        SCOPED_TRACE(testing::Message() << c);
        Bench bench;
        bench.send(c.in.toStdString());
        EXPECT_EQ(bench.wait(200), c.out.toStdString());
        EXPECT_EQ(bench.stand.setSpeed(), 0);
        bench.send("+-"); // ends whatever was left open
        bench.wait(200);
        bench.drive("E-2100");
        EXPECT_NEAR(bench.stand.speed(), 60, 1e-9) << "and the next good one works";
    }
}

TEST(Stand, EchoAndItsFaults) {
    Bench prompt;
    prompt.send("*E-2100+");
    for (const auto &[ms, bytes] : {std::pair{5.5, ""}, {0.05, "E"}, {0.52, "-"}, {5.0, "2100"}})
        EXPECT_EQ(prompt.wait(ms), bytes);
    const struct {
        Faults faults;
        const char *early, *late;
    } cases[] = {
        {{.silent = true}, "", ""},          {{.deafFrames = 1}, "", ""},
        {{.echoDelay = 2500}, "", "E-2100"}, {{.extraBytes = 2}, "UUE-2100", ""},
        {{.lostBytes = 1}, "E2100", ""},
    };
    for (const auto &c : cases) {
        Bench bench;
        bench.stand.setFaults(c.faults);
        EXPECT_EQ(bench.frame("E-2100"), c.early);
        bench.send("--"); // does not stop an echo that is late
        EXPECT_EQ(bench.wait(3000), c.late);
        EXPECT_EQ(bench.stand.faults().deafFrames, 0);
        bench.stand.setFaults({});
        EXPECT_EQ(bench.frame("E-2100"), "E-2100");
    }
}

TEST(Stand, StaticReadingsSettleOnTheirValues) {
    Bench bench;
    EXPECT_LT(mean(bench, 'f', 0), Stand::CentreRaw - 5) << "the first must be thrown away";
    for (const auto &[offset, gain] : {std::pair{0.0, 0.0}, {20.0, -7.5}}) {
        bench.stand.setOffsetDrift(offset);
        bench.stand.setGainDrift(gain);
        const double centre = mean(bench, 'f', 150);
        EXPECT_NEAR(centre, Stand::CentreRaw + offset, 0.5) << "10 mN m";
        EXPECT_NEAR(mean(bench, 't', 150) - centre, Stand::GainRaw + gain, 0.5);
    }
}

TEST(Stand, SixRoundsMeasureSpeedTorqueAndPower) {
    for (const bool coupled : {true, false}) {
        Bench bench;
        bench.stand.setLoad(180);
        bench.stand.setTorqueError(0.5);
        bench.stand.setCoupled(coupled);
        bench.drive("E-2100", 20000);
        bench.send("6");
        const string frames = bench.events(6006) + bench.events(6006);
        ASSERT_EQ(frames.size(), 18u);
        const double omega = 2 * std::numbers::pi, torque = coupled ? 180 / omega + 0.5 : 0;
        EXPECT_EQ(frames.substr(9, 2), "\xFF\xFF");
        EXPECT_NEAR(number(frames, 11, 2) / 100.0, 60, 0.05);
        EXPECT_NEAR(number(frames, 13, 2) / 100.0, torque, 0.05);
        EXPECT_NEAR(number(frames, 15, 3) / 100.0, torque * omega, 0.4);
        bench.send("-");
        bench.drive("E-0000", 20000);
        bench.send("6");
        EXPECT_EQ(bench.events(12100).size(), 18u) << "at rest too";
    }
}

TEST(Stand, SilenceEndsNoStream) {
    Bench bench;
    bench.drive("E-2100");
    bench.send("6");
    bench.stand.setFaults({.silent = true});
    EXPECT_FALSE(bench.stand.nextEvent());
    EXPECT_EQ(bench.wait(30000), "");
    bench.stand.setFaults({});
    EXPECT_EQ(bench.events(6050).size(), 9u) << "it went on underneath";
}

TEST(Stand, Requests) {
    Bench bench;
    bench.send("rN"); // the quick answer overtakes the slow one, which takes a second
    EXPECT_EQ(bench.wait(990), "TN-1001");
    EXPECT_EQ(bench.wait(20), "Ok1");
    bench.send("p\x00\x30\x3Aw\x13\x88"s);
    EXPECT_EQ(bench.stand.offsetWritten(), 1234.6);
    EXPECT_EQ(bench.stand.factorWritten(), 0.5);
    bench.send("p-*gw-+"); // arguments are no commands
    EXPECT_EQ(bench.stand.offsetWritten(), 0x2D2A67 / 10.0);
    EXPECT_EQ(bench.stand.factorWritten(), 0x2D2B / 10000.0);
    EXPECT_FALSE(bench.stand.nextEvent());
}

/// Whoever jumps from event to event must see the same as one who looks all the time, and must
/// find bytes whenever one is announced.
TEST(Stand, EventsTellExactlyWhenBytesArrive) {
    for (const char command : {'g', 'f', '6', 'c'}) {
        Bench polled, jumping;
        for (Bench *bench : {&polled, &jumping}) {
            bench->drive("E-2100", 3000);
            bench->stand.setFaults({.cutEvery = 2, .babble = command == '6'});
            bench->send(string(1, command));
        }
        string bytes, seen;
        for (auto next = jumping.stand.nextEvent(); next && *next < polled.now + 15000;
             next = jumping.stand.nextEvent()) {
            const string arrived = jumping.stand.take(*next);
            ASSERT_FALSE(arrived.empty()) << command << " at " << *next;
            bytes += arrived;
        }
        for (const double end = polled.now + 15000; polled.now < end;)
            seen += polled.wait(0.7);
        EXPECT_TRUE(seen.starts_with(bytes)) << command;
        EXPECT_GT(bytes.size(), 15u) << command;
    }
}

TEST(Commands, SteerTheStand) {
    Stand stand;
    string plugs;
    bool ended = false;
    const Host host{[&](Line line, bool connected) {
                        plugs += (connected ? '+' : '-');
                        plugs += line == Line::Controller ? '1' : '4';
                        return plugs.size() > 6 ? "no device"s : ""s;
                    },
                    [&] { ended = true; }};
    for (const auto &c : support::cases(
             "load 180 -> ok | \"  coupled  off\r\" -> ok | lever left -> ok | mode lever -> ok | "
             "fault silent on -> ok | fault deaf 2 -> ok | unplug -> ok | plug com4 -> ok | "
             "plug com1 -> error: no device | load -> error | load 1000 -> error | "
             "load nan -> error | load 1 2 -> error | lever up -> error | "
             "fault silent maybe -> error | fault deaf -1 -> error | nonsense -> error | "
             "plug com2 -> error"))
        EXPECT_TRUE(runCommand(c.in.toStdString(), stand, host).starts_with(c.out.toStdString()))
            << c;
    EXPECT_EQ(plugs, "-1-4+4+1");
    EXPECT_NE(runCommand("status", stand, host)
                  .find("load=180 torque=0.00 power=0.00 coupled=off lever=left mode=lever"),
              string::npos)
        << runCommand("status", stand, host);
    EXPECT_EQ(stand.faults(), (Faults{.silent = true, .deafFrames = 2}));
    EXPECT_EQ(runCommand("fault none", stand, host), "ok\n");
    EXPECT_EQ(stand.faults(), Faults{});
    EXPECT_FALSE(ended);
    EXPECT_EQ(runCommand("quit", stand, host), "ok\n");
    EXPECT_TRUE(ended);
}
