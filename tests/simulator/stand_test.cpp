#include "stand.h"
#include "standcommands.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numeric>
#include <utility>
#include <vector>

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
    string ask(std::string_view line) {
        stand.receiveSecond(line, now);
        return stand.takeSecond(now += 100);
    }
};

unsigned number(const string &bytes, std::size_t at, std::size_t size) {
    unsigned value = 0;
    for (const char byte : bytes.substr(at, size))
        value = value << 8 | static_cast<unsigned char>(byte);
    return value;
}

/// The values of records that begin with two marks and are `size` long.
std::vector<double> values(const string &bytes, const string &marks, std::size_t size,
                           double scale) {
    std::vector<double> found;
    EXPECT_EQ(bytes.size() % size, 0u);
    for (std::size_t at = 0; at + size <= bytes.size(); at += size) {
        EXPECT_EQ(bytes.substr(at, 2), marks);
        found.push_back(number(bytes, at + 2, size - 2) / scale);
    }
    return found;
}

double mean(const std::vector<double> &all, std::size_t from, std::size_t to) {
    const auto begin = all.begin() + static_cast<std::ptrdiff_t>(from);
    const auto end = all.begin() + static_cast<std::ptrdiff_t>(to);
    return std::accumulate(begin, end, 0.0) / static_cast<double>(to - from);
}

std::vector<double> samples(Bench &bench, char command) {
    bench.send(string(1, command));
    const string bytes = bench.events(3600);
    bench.send("-");
    bench.wait(10);
    return values(bytes, command == 'f' ? "\xFF\xFA" : "\xFF\xFD", 5, 10);
}

struct SixRounds {
    double time, speed, torque, power;
};

std::vector<SixRounds> sixRounds(Bench &bench, double ms) {
    std::vector<SixRounds> frames;
    bench.send("6");
    const double begin = bench.now;
    for (const double end = begin + ms; bench.now < end;) {
        bench.now = std::min(end, bench.stand.nextEvent().value_or(end));
        const string bytes = bench.stand.take(bench.now);
        if (bytes.empty())
            continue;
        EXPECT_EQ(bytes.size(), 9u);
        EXPECT_EQ(bytes.substr(0, 2), "\xFF\xFF");
        frames.push_back({bench.now - begin, number(bytes, 2, 2) / 100.0,
                          number(bytes, 4, 2) / 100.0, number(bytes, 6, 3) / 100.0});
    }
    bench.send("-");
    return frames;
}

} // namespace

TEST(Stand, ConfirmedFramesDriveTheMotor) {
    const struct {
        const char *frame;
        double speed;
        Direction direction;
        bool on;
    } cases[] = {
        {"E-2100", 60, Direction::Right, true},      {"E 3500", 100, Direction::Left, true},
        {"E-0437", 12.4857, Direction::Right, true}, {"E 0000", 0, Direction::Left, true},
        {"E-12250", 300, Direction::Right, true},    {"A-0000", 0, Direction::Right, false},
        {"A 2100", 0, Direction::Left, false},
    };
    Bench bench;
    for (const auto &c : cases) {
        SCOPED_TRACE(c.frame);
        EXPECT_EQ(bench.frame(c.frame), c.frame);
        const double before = bench.stand.setSpeed();
        bench.send(">>");
        EXPECT_EQ(bench.stand.setSpeed(), before) << "two confirmations are not enough";
        bench.send(">");
        bench.wait(60000);
        EXPECT_NEAR(bench.stand.setSpeed(), c.speed, 1e-3);
        EXPECT_NEAR(bench.stand.speed(), c.speed, 1e-3);
        EXPECT_EQ(bench.stand.direction(), c.direction);
        EXPECT_EQ(bench.stand.motorOn(), c.on);
    }
}

TEST(Stand, FramesThatComeOutOfOrderDoNothing) {
    const struct {
        const char *sent;
        const char *answer;
    } cases[] = {
        {">>>", ""},
        {"*E-2100->>>", ""},         // no end: "-" is a sign in there
        {"*E-21*E-0700+", "E-0700"}, // the end got lost, the next attempt counts
        {"*E-2100+->>>", "E-2100"},  // taken back before it was confirmed
        {"*E-2100+>>->", "E-2100"},
        {"*E-2100+>#>>", "E-2100\x01"},
        {"*E-21x0+>>>", "E-21x0"}, // echoed, but no speed
        {"*X-2100+>>>", "X-2100"},
        {"*+>>>", ""},
        {"*E-210000000000000000000+>>>", ""}, // too long for any frame
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.sent);
        Bench bench;
        bench.send(c.sent);
        EXPECT_EQ(bench.wait(200), c.answer);
        EXPECT_EQ(bench.stand.setSpeed(), 0);
        bench.send("+-"); // ends whatever was left open
        bench.wait(200);
        bench.drive("E-2100");
        EXPECT_NEAR(bench.stand.speed(), 60, 1e-9) << "and the next good one works";
    }
}

TEST(Stand, EchoComesByteByByteAfterItsLatency) {
    Bench bench;
    bench.send("*E-2100+");
    EXPECT_EQ(bench.wait(5.5), "");
    EXPECT_EQ(bench.wait(0.05), "E");
    EXPECT_EQ(bench.wait(0.52), "-");
    EXPECT_EQ(bench.wait(5), "2100");
}

TEST(Stand, FaultsOfTheEcho) {
    const struct {
        Faults faults;
        const char *early, *late;
    } cases[] = {
        {{.silent = true}, "", ""},          {{.deafFrames = 1}, "", ""},
        {{.echoDelay = 2500}, "", "E-2100"}, {{.extraBytes = 2}, "UUE-2100", ""},
        {{.lostBytes = 1}, "E2100", ""},     {{.lostBytes = 99}, "E", ""},
    };
    for (const auto &c : cases) {
        Bench bench;
        bench.stand.setFaults(c.faults);
        EXPECT_EQ(bench.frame("E-2100"), c.early);
        bench.send("--"); // does not stop an echo that is late
        EXPECT_EQ(bench.wait(3000), c.late);
        Faults left = bench.stand.faults();
        EXPECT_EQ(left.deafFrames, 0);
        bench.stand.setFaults({});
        EXPECT_EQ(bench.frame("E-2100"), "E-2100");
    }
}

TEST(Stand, FrequencyFallsBelowTheLimitAfterAStop) {
    Bench bench;
    bench.drive("E-2100");
    bench.send("g");
    for (const double f : values(bench.events(1050), "\xFF\xFB", 4, 1))
        EXPECT_NEAR(f, 1000, 3);
    bench.drive("E-0000", 0);
    bench.send("-g");
    const std::vector<double> f = values(bench.events(5050), "\xFF\xFB", 4, 1);
    ASSERT_EQ(f.size(), 50u);
    EXPECT_GT(f.front(), 900);
    EXPECT_LT(f[20], 500) << "half the speed after two seconds";
    EXPECT_EQ(f.back(), 0);
    bench.send("-");
    EXPECT_EQ(bench.events(1000), "");
    EXPECT_FALSE(bench.stand.nextEvent());
}

TEST(Stand, StaticReadingsSettleOnTheirValues) {
    Bench bench;
    const std::vector<double> offset = samples(bench, 'f');
    const std::vector<double> gain = samples(bench, 't');
    ASSERT_GT(offset.size(), 176u);
    ASSERT_EQ(offset.size(), gain.size());
    EXPECT_LT(offset[0], Stand::CentreRaw - 20) << "the first samples must be thrown away";
    const double o = mean(offset, 150, 175);
    const double g = mean(gain, 150, 175) - o;
    EXPECT_NEAR(o, Stand::CentreRaw, 0.5) << "10 mN m";
    EXPECT_NEAR(g, Stand::GainRaw, 0.5);
    EXPECT_NE(offset[160], offset[161]) << "a real reading moves";

    bench.stand.setOffsetDrift(20);
    bench.stand.setGainDrift(-7.5);
    const double drifted = mean(samples(bench, 'f'), 150, 175);
    EXPECT_NEAR(drifted, Stand::CentreRaw + 20, 0.2);
    EXPECT_NEAR(mean(samples(bench, 't'), 150, 175) - drifted, Stand::GainRaw - 7.5, 0.3);
}

TEST(Stand, LeverArmLoadsTheOffsetFromItsSide) {
    Bench bench;
    bench.stand.setLeverMode(true);
    for (const auto &[side, moment] :
         {std::pair{LeverArm::Left, -30.0}, {LeverArm::Right, 30.0}, {LeverArm::None, 0.0}}) {
        bench.stand.setLeverArm(side);
        // Here no sample is thrown away.
        const double raw = mean(samples(bench, 'f'), 0, 25);
        EXPECT_NEAR((raw - Stand::CentreRaw) / Stand::RawPerNm, moment, 0.01);
    }
}

TEST(Stand, SixRoundsMeasureSpeedTorqueAndPower) {
    Bench bench;
    bench.stand.setLoad(180);
    std::vector<SixRounds> frames = sixRounds(bench, 12100);
    ASSERT_EQ(frames.size(), 2u) << "at rest too";
    EXPECT_EQ(frames[1].speed + frames[1].torque + frames[1].power, 0);

    const struct {
        const char *frame;
        double speed, load, torqueError;
        bool coupled;
    } cases[] = {
        {"E-2100", 60, 180, 0, true},    {"E 2100", 60, 180, 0.5, true},
        {"E-4200", 120, 800, 0, true},   {"E-1050", 30, 25, 0, true},
        {"E-2100", 60, 180, 0.5, false},
    };
    for (const auto &c : cases) {
        bench.stand.setLoad(c.load);
        bench.stand.setTorqueError(c.torqueError);
        bench.stand.setCoupled(c.coupled);
        bench.drive(c.frame, 20000);
        const double period = 6 * 60000 / c.speed;
        frames = sixRounds(bench, 2 * period + 100);
        ASSERT_EQ(frames.size(), 2u);
        EXPECT_NEAR(frames[0].time, period, 6);
        const double omega = c.speed * 2 * std::numbers::pi / 60;
        const double torque = c.coupled ? c.load / omega + c.torqueError : 0;
        for (const SixRounds &f : frames) {
            EXPECT_NEAR(f.speed, c.speed, 0.05);
            EXPECT_NEAR(f.torque, torque, 0.05);
            EXPECT_NEAR(f.power, torque * omega, 0.4);
        }
    }
}

TEST(Stand, RoundsAreCountedWhileTheSpeedChanges) {
    Bench bench;
    bench.drive("E-2100", 0);
    const std::vector<SixRounds> up = sixRounds(bench, 15000);
    ASSERT_EQ(up.size(), 2u);
    EXPECT_NEAR(up[0].time, 8000, 10) << "two turns in the ramp of four seconds, four at 60";
    EXPECT_NEAR(up[0].speed, 45, 0.1);
    EXPECT_NEAR(up[1].speed, 60, 0.1);

    Drive drive;
    drive.setTarget(-60, 0);
    drive.setTarget(60, 10000); // through zero in eight seconds, two turns on either side
    EXPECT_NEAR(drive.revolutions(10000, 18000), 4, 1e-9);
    EXPECT_NEAR(drive.speedAt(14000), 0, 1e-9);
    EXPECT_NEAR(drive.timeOf(4, 10000).value_or(0), 18000, 1e-3);
    drive.setTarget(0, 20000);
    EXPECT_NEAR(drive.timeOf(1.5, 20000).value_or(0), 22000, 1e-3);
    EXPECT_FALSE(drive.timeOf(2.1, 20000)) << "comes to rest before";
}

TEST(Stand, CutFramesAndSilenceInAStream) {
    Bench bench;
    bench.drive("E-2100");
    bench.stand.setFaults({.cutEvery = 2});
    bench.send("6");
    EXPECT_EQ(bench.events(6100).size(), 9u);
    EXPECT_EQ(bench.events(6000).size(), 5u);
    EXPECT_EQ(bench.events(6000).size(), 9u);
    bench.stand.setFaults({.silent = true});
    EXPECT_FALSE(bench.stand.nextEvent());
    EXPECT_EQ(bench.wait(30000), "");
    bench.stand.setFaults({});
    EXPECT_EQ(bench.events(6000).size(), 9u) << "the stream went on underneath";
}

TEST(Stand, DynamicFrames) {
    Bench bench;
    bench.stand.setLoad(188.5);
    bench.drive("E-2100");
    bench.send("c");
    const string bytes = bench.events(1010);
    ASSERT_EQ(bytes.size(), 20u * 6);
    for (std::size_t at = 0; at < bytes.size(); at += 6) {
        EXPECT_EQ(bytes.substr(at, 2), "\xFF\xFE");
        EXPECT_NEAR(number(bytes, at + 2, 2), 600, 1);
        EXPECT_NEAR(number(bytes, at + 4, 2), 300, 3);
    }
}

TEST(Stand, Requests) {
    Bench bench;
    bench.send("#");
    EXPECT_EQ(bench.wait(100), "\x01");
    bench.stand.setLeverMode(true);
    bench.send("#");
    EXPECT_EQ(bench.wait(100), "\x07");
    bench.stand.setFaults({.wrongMode = true});
    bench.send("#");
    EXPECT_EQ(bench.wait(100), "\x01");

    bench.send("r");
    EXPECT_EQ(bench.wait(990), "");
    EXPECT_EQ(bench.wait(20), "Ok1");
    bench.send("N");
    EXPECT_EQ(bench.wait(100), "TN-1001");
    bench.send("rN"); // the quick answer overtakes the slow one
    EXPECT_EQ(bench.wait(2000), "TN-1001Ok1");

    EXPECT_FALSE(bench.stand.offsetWritten());
    bench.send("p\x00\x30\x3Aw\x13\x88"s);
    EXPECT_EQ(bench.stand.offsetWritten(), 1234.6);
    EXPECT_EQ(bench.stand.factorWritten(), 0.5);
    bench.send("p-*g"); // arguments are no commands
    bench.send("w-+");
    EXPECT_EQ(bench.stand.offsetWritten(), 0x2D2A67 / 10.0);
    EXPECT_EQ(bench.stand.factorWritten(), 0x2D2B / 10000.0);
    EXPECT_FALSE(bench.stand.nextEvent());
}

TEST(Stand, ErgometerTakesItsLoadAndTellsItsSpeed) {
    Bench bench;
    EXPECT_EQ(bench.ask("D\r"), "n000");
    bench.drive("E-2100");
    EXPECT_EQ(bench.ask("W1"), "");
    EXPECT_EQ(bench.ask("50\rD\r"), "n060");
    EXPECT_EQ(bench.stand.load(), 150);
    for (const char *line : {"W15\r", "W1500\r", "Wx50\r", "w100\r", "\r", "XD\r"})
        EXPECT_EQ(bench.ask(line), "") << line;
    EXPECT_EQ(bench.stand.load(), 150);

    bench.stand.setErgometerSpeedError(-2.4);
    EXPECT_EQ(bench.ask("D\r"), "n058");
    bench.stand.setCoupled(false);
    EXPECT_EQ(bench.ask("D\r"), "n000");
    bench.stand.setFaults({.silentErgometer = true});
    EXPECT_EQ(bench.ask("D\rW000\r"), "");
    EXPECT_EQ(bench.stand.load(), 0);

    bench.stand.setFaults({});
    for (const bool whole : {true, false}) {
        bench.stand.setWholeRecords(whole);
        bench.stand.receiveSecond("D\r", bench.now);
        bench.now = bench.stand.nextEvent().value_or(0);
        EXPECT_EQ(bench.stand.takeSecond(bench.now), whole ? "n000" : "n");
        bench.now += 100;
        EXPECT_EQ(bench.stand.takeSecond(bench.now), whole ? "" : "000");
    }
}

/// Whoever jumps from event to event must see the same as one who looks all the time, and must
/// find bytes whenever one is announced.
TEST(Stand, EventsTellExactlyWhenBytesArrive) {
    for (const char command : {'g', 'f', '6', 'c'}) {
        for (const bool whole : {true, false}) {
            Bench polled, jumping;
            string bytes;
            for (Bench *bench : {&polled, &jumping}) {
                bench->stand.setWholeRecords(whole);
                bench->drive("E-2100", 3000);
                bench->stand.setFaults({.cutEvery = 2, .babble = command == '6'});
                bench->send(string(1, command));
            }
            for (const double end = jumping.now + 15000;;) {
                const double next = jumping.stand.nextEvent().value_or(end);
                if (next >= end)
                    break;
                const string arrived = jumping.stand.take(next);
                ASSERT_FALSE(arrived.empty()) << command << " at " << next;
                bytes += arrived;
            }
            string seen;
            while (polled.now < jumping.now + 15000)
                seen += polled.wait(0.7);
            ASSERT_GE(seen.size(), bytes.size());
            EXPECT_EQ(seen.substr(0, bytes.size()), bytes) << command;
        }
    }
}

TEST(Stand, NoBytesBreakIt) {
    std::mt19937 random(7);
    Bench bench;
    constexpr std::string_view Likely = "*+-->>>EA 012gft6cr#NpwWD\r";
    for (int i = 0; i < 20000; ++i) {
        const bool likely = random() % 4 != 0;
        const char byte = likely ? Likely[random() % Likely.size()] : static_cast<char>(random());
        bench.send(string(1, byte));
        bench.stand.receiveSecond(string(1, byte), bench.now);
        bench.events(static_cast<double>(random() % 50));
    }
    EXPECT_EQ(bench.stand.wire().size(), 20000u);
    bench.send("---"); // three: two may be eaten by an open argument
    bench.send("+-");
    bench.wait(3000);
    EXPECT_EQ(bench.frame("E-2100"), "E-2100");
}

TEST(Commands, SteerTheStand) {
    Stand stand;
    string plugs;
    bool ended = false;
    const Host host{[&](Line line, bool connected) {
                        plugs += (connected ? '+' : '-');
                        plugs += line == Line::Controller ? '1' : '4';
                        return plugs.size() > 8 ? "no device"s : ""s;
                    },
                    [&] { ended = true; }};
    const auto run = [&](std::string_view line) { return runCommand(line, stand, host); };

    for (const char *line :
         {"load 180", "  coupled  off\r", "lever left", "mode lever", "fault silent on",
          "fault late 250.5", "fault deaf 2", "unplug", "plug com4", "unplug com1"})
        EXPECT_EQ(run(line), "ok\n") << line;
    EXPECT_EQ(stand.load(), 180);
    EXPECT_FALSE(stand.coupled());
    EXPECT_EQ(stand.leverArm(), LeverArm::Left);
    EXPECT_TRUE(stand.leverMode());
    EXPECT_EQ(stand.faults(), (Faults{.silent = true, .deafFrames = 2, .echoDelay = 250.5}));
    EXPECT_EQ(plugs, "-1-4+4-1");
    EXPECT_EQ(run("plug com1"), "error: no device\n");

    const Faults before = stand.faults();
    for (const char *line :
         {"load", "load -1", "load 1000", "load 1e", "load nan", "load 1 2", "lever up", "coupled",
          "fault", "fault silent", "fault silent maybe", "fault deaf -1", "fault what on",
          "nonsense", "plug com2", "unplug com1 com4", "quit now"})
        EXPECT_EQ(run(line).substr(0, 7), "error: ") << line;
    EXPECT_EQ(stand.faults(), before);
    EXPECT_EQ(stand.load(), 180);
    EXPECT_FALSE(ended);

    EXPECT_EQ(run("  \n"), "");
    EXPECT_EQ(run("fault none"), "ok\n");
    EXPECT_EQ(stand.faults(), Faults{});
    EXPECT_NE(run("status").find("load=180 torque=0.00 power=0.00 coupled=off lever=left"),
              string::npos);
    EXPECT_EQ(run("quit"), "ok\n");
    EXPECT_TRUE(ended);
}
