// The simulated stand where no journey looks: frames out of order, faults, and that it tells
// exactly when bytes arrive, on which virtual time rests.
#include "cases.h"
#include "stand.h"
#include "standcommands.h"

#include <gtest/gtest.h>

using namespace simulator;
using std::string;

namespace {

/// A stand and its time, as a workstation would live with them.
struct Bench {
    Stand stand;
    double now = 0;

    void send(std::string_view bytes) { stand.receive(bytes, now); }
    string wait(double ms) { return stand.take(now += ms); }
    string frame(const string &content) {
        send("-*" + content);
        wait(1);
        send("+");
        return wait(100);
    }
    void drive(double ms) {
        ASSERT_EQ(frame("E-2100"), "E-2100");
        send(">>>");
        wait(ms);
    }
};

} // namespace

TEST(Stand, FramesThatComeOutOfOrderDoNothing) {
    // One confirmation too few; no end, since "-" is a sign in there; an end that got lost, where
    // the next attempt counts; taken back before it was confirmed; echoed, but no speed; too long
    // for any frame.
    for (const auto &c : support::cases(R"(
            >>> -> | *E-2100+>> -> E-2100 | *E-2100->>> -> | *E-21*E-0700+ -> E-0700
            | *E-2100+->>> -> E-2100 | *E-21x0+>>> -> E-21x0 | *X-2100+>>> -> X-2100
            | *E-210000000000000000000+>>> ->)")) {
        SCOPED_TRACE(testing::Message() << c);
        Bench bench;
        bench.send(c.in.toStdString());
        EXPECT_EQ(bench.wait(200), c.out.toStdString());
        EXPECT_EQ(bench.stand.setSpeed(), 0);
        bench.send("+-"); // ends whatever was left open
        bench.wait(200);
        bench.drive(10'000);
        EXPECT_NEAR(bench.stand.speed(), 60, 1e-9) << "and the next good one works";
    }
}

TEST(Stand, EchoAndItsFaults) {
    Bench prompt;
    prompt.send("*E-2100+");
    for (const auto &[ms, bytes] : {std::pair{5.5, ""}, {0.05, "E"}, {0.52, "-"}, {5.0, "2100"}})
        EXPECT_EQ(prompt.wait(ms), bytes);
    for (const auto &[faults, early, late] :
         std::initializer_list<std::tuple<Faults, const char *, const char *>>{
             {{.silent = true}, "", ""},
             {{.deafFrames = 1}, "", ""},
             {{.echoDelay = 2500}, "", "E-2100"},
             {{.extraBytes = 2}, "UUE-2100", ""},
             {{.lostBytes = 1}, "E2100", ""}}) {
        Bench bench;
        bench.stand.setFaults(faults);
        EXPECT_EQ(bench.frame("E-2100"), early);
        bench.send("--"); // does not stop an echo that is late
        EXPECT_EQ(bench.wait(3000), late);
        EXPECT_EQ(bench.stand.faults().deafFrames, 0);
        bench.stand.setFaults({});
        bench.drive(0);
    }
}

/// Whoever jumps from event to event must see the same as one who looks all the time, and must
/// find bytes whenever one is announced.
TEST(Stand, EventsTellExactlyWhenBytesArrive) {
    for (const char command : {'g', 'f', '6', 'c'}) {
        Bench polled, jumping;
        for (Bench *bench : {&polled, &jumping}) {
            bench->drive(3000);
            bench->stand.setFaults({.cutEvery = 2, .babble = command == '6'});
            bench->send(string(1, command));
        }
        const double end = polled.now + 15'000;
        string bytes, seen;
        while (jumping.stand.nextEvent().value_or(end) < end) {
            const string arrived = jumping.stand.take(*jumping.stand.nextEvent());
            ASSERT_FALSE(arrived.empty()) << command;
            bytes += arrived;
        }
        while (polled.now < end)
            seen += polled.wait(0.7);
        EXPECT_TRUE(seen.starts_with(bytes)) << command;
        EXPECT_GT(bytes.size(), 15u) << command;
    }
}

TEST(Commands, SteerTheStand) {
    Stand stand;
    string plugs;
    bool ended = false;
    const Host host{[&plugs](Line line, bool connected) {
                        plugs += connected ? '+' : '-';
                        plugs += line == Line::Controller ? '1' : '4';
                        return string(plugs.size() > 6 ? "no device" : "");
                    },
                    [&ended] { ended = true; }};
    for (const auto &c : support::cases(R"(
            load 180 -> ok | "  coupled  off " -> ok | lever left -> ok | mode lever -> ok
            | fault silent on -> ok | fault deaf 2 -> ok | fault answercut 2 -> ok | fault answercut 0 -> ok
            | fault answerletters maybe -> error | unplug -> ok | plug com4 -> ok
            | plug com1 -> error: no device | load -> error | load 1000 -> error | load nan -> error
            | load 1 2 -> error | lever up -> error | fault silent maybe -> error
            | fault deaf -1 -> error | nonsense -> error | plug com2 -> error)"))
        EXPECT_TRUE(
            runCommand(c.in.toStdString() + '\r', stand, host).starts_with(c.out.toStdString()))
            << c;
    EXPECT_EQ(plugs, "-1-4+4+1");
    const string status = runCommand("status", stand, host);
    EXPECT_TRUE(QString::fromStdString(status).contains(
        "load=180 torque=0.00 power=0.00 coupled=off lever=left mode=lever"))
        << status;
    EXPECT_EQ(stand.faults(), (Faults{.silent = true, .deafFrames = 2}));
    EXPECT_EQ(runCommand("fault none", stand, host), "ok\n");
    EXPECT_EQ(stand.faults(), Faults{});
    EXPECT_FALSE(ended);
    EXPECT_EQ(runCommand("quit", stand, host), "ok\n");
    EXPECT_TRUE(ended);
}
