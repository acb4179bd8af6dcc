// Streams of the measurement: six rounds, offset and gain, and what becomes of the mean.

#include <gtest/gtest.h>

#include <array>
#include <random>

#include "sechsrunden.h"
#include "statik.h"

namespace {

using Bytes = std::vector<int>;

Bytes operator+(Bytes a, const Bytes &b) {
    a.insert(a.end(), b.begin(), b.end());
    return a;
}

using Frame = std::array<double, 3>; // speed, torque, power
using Ereignis = SechsRundenDecoder::Ereignis;

/// The frames that the bytes complete.
std::vector<Frame> feed(SechsRundenDecoder &decoder, const Bytes &bytes) {
    Frame frame{};
    std::vector<Frame> all;
    for (const int byte : bytes) {
        const Ereignis event = decoder.feed(static_cast<std::uint8_t>(byte));
        if (event == Ereignis::Drehzahl)
            frame[0] = decoder.value();
        else if (event == Ereignis::Drehmoment)
            frame[1] = decoder.value();
        else if (event == Ereignis::Leistung) {
            frame[2] = decoder.value();
            all.push_back(frame);
        }
    }
    return all;
}

const Bytes good{0xFF, 0xFF, 0x17, 0x70, 0x0B, 0xB8, 0x00, 0x46, 0x50};
const Frame goodFrame{60, 30, 180};

TEST(SixRounds, FramesInAStream) {
    const Bytes zero{0xFF, 0xFF, 0, 0, 0, 0, 0, 0, 0};
    const Bytes cut{0xFF, 0xFF, 0x17, 0x70, 0x0B};
    const struct {
        const char *what;
        Bytes bytes;
        std::vector<Frame> frames;
    } cases[] = {
        {"one", good, {goodFrame}},
        {"two", good + zero, {goodFrame, Frame{0, 0, 0}}},
        {"greatest values", Bytes(9, 0xFF) + good, {{655.35, 655.35, 167772.15}, goodFrame}},
        {"marks as values", {0xFF, 0xFF, 0, 0xFF, 0xFF, 0, 0, 0xFF, 0xFF}, {{2.55, 652.8, 655.35}}},
        {"lone mark in front", Bytes{0xFF, 0x12} + good, {goodFrame}},
        {"noise in front", Bytes{0, 1, 0xFE, 0xFF, 0, 0xFF, 7} + good, {goodFrame}},
        // The third mark is the high byte of the speed.
        {"three marks", Bytes{0xFF} + good + good, {{653.03, 286.83, 120586.94}, goodFrame}},
        // One frame is wrong, the following one mends it.
        {"cut short", cut + good + good, {{60, 30.71, 167176.80}, goodFrame}},
        {"cut behind the marks", Bytes{0xFF, 0xFF} + good + good, {{655.35, 60, 7680}, goodFrame}},
        {"unfinished", cut, {}},
    };
    for (const auto &c : cases) {
        SechsRundenDecoder decoder;
        EXPECT_EQ(feed(decoder, c.bytes), c.frames) << c.what;
    }
}

TEST(SixRounds, RandomBytesNeverLockItUp) {
    std::mt19937 random(1);
    SechsRundenDecoder decoder;
    for (int round = 0; round < 2000; ++round) {
        for (int i = 0; i < 100; ++i)
            decoder.feed(static_cast<std::uint8_t>(random()));
        // At most one frame is spoilt, and one more when that one ended within its marks.
        const auto all = feed(decoder, good + good + good);
        ASSERT_FALSE(all.empty()) << round;
        EXPECT_EQ(all.back(), goodFrame) << round;
    }
}

/// The raw values of the samples in the bytes.
std::vector<double> samples(StatikDecoder &decoder, const Bytes &bytes) {
    std::vector<double> all;
    for (const int byte : bytes) {
        if (decoder.feed(static_cast<std::uint8_t>(byte)))
            all.push_back(decoder.value());
    }
    return all;
}

TEST(Static, SamplesInAStream) {
    constexpr int code = codeOffset;
    const auto sample = [](int tenfold) {
        return Bytes{0xFF, code, tenfold >> 16, tenfold >> 8 & 0xFF, tenfold & 0xFF};
    };
    const Bytes a = sample(100'000);
    const Bytes b = sample(100'015);
    const Bytes mark{0xFF, code};
    const struct {
        const char *what;
        Bytes bytes;
        std::vector<double> values;
    } cases[] = {
        {"counts with its end mark", a + Bytes{0xFF}, {}},
        {"one", a + mark, {10000}},
        {"two, the mark between them shared", a + b + mark, {10000, 10001.5}},
        {"greatest and least", sample(0xFFFFFF) + sample(0) + mark, {1677721.5, 0}},
        {"noise in front", Bytes{0, code, 1} + a + mark, {10000}},
        // Once a mark has come the code may come at any time.
        {"the code late", Bytes{0xFF, 1, 2, 0xFF, code, 0, 0, 50} + mark, {5}},
        {"another code", {0xFF, codeGain, 1, 2, 3, 0xFF, codeGain, 1, 2, 3, 0xFF, codeGain}, {}},
        // The position stays until the end byte comes; nothing is counted meanwhile.
        {"a wrong end byte", a + Bytes{0x55, 0x56} + b + mark, {10000, 10001.5}},
        {"a wrong code behind the end byte",
         a + Bytes{0xFF, 0x55, 0xFF} + b + mark,
         {10000, 10001.5}},
        // The next sample's bytes pass until the decoder locks on again.
        {"a byte missing",
         Bytes{0xFF, code, 1, 0x86} + b + b + b + mark,
         {10009.5, 10001.5, 10001.5}},
    };
    for (const auto &c : cases) {
        StatikDecoder decoder(code);
        EXPECT_EQ(samples(decoder, c.bytes), c.values) << c.what;
    }
}

TEST(Static, RandomBytesNeverLockItUp) {
    std::mt19937 random(1);
    const Bytes sample{0xFF, codeGain, 1, 0x86, 0xA0};
    for (int round = 0; round < 2000; ++round) {
        StatikDecoder decoder(codeGain);
        for (int i = 0; i < 100; ++i)
            decoder.feed(static_cast<std::uint8_t>(random()));
        const auto all = samples(decoder, sample + sample + sample + sample);
        ASSERT_FALSE(all.empty()) << round;
        EXPECT_EQ(all.back(), 10000) << round;
    }
}

TEST(Static, MeanOfTheTwentyFiveBehindTheSettling) {
    StatikMittel mean;
    for (int sample = 1; sample <= 200; ++sample) {
        EXPECT_EQ(mean.done(), sample > 175) << sample;
        mean.add(sample <= 150 ? 1e6 : sample);
        EXPECT_EQ(mean.counted(), std::min(sample, 175) - 150);
    }
    EXPECT_DOUBLE_EQ(mean.mean(), 163); // of 151 to 175
}

TEST(Static, DriftsAndTheirLimits) {
    const struct {
        double measured, reference, factor;
        double drift; // N m
        bool red, permitted;
    } cases[] = {
        {10000, 10000, 1, 0, false, true},
        {10007.4, 10000, 1, 0.148, false, true},
        {10007.5, 10000, 1, 0.150, true, true},
        {9992.5, 10000, 1, -0.150, true, true},
        {10015.1, 10000.1, 0.5, 0.150, true, true},
        {10015, 10000, 1, 0.300, true, true},
        {9985, 10000, 1, -0.300, true, true},
        {10030.1, 10000.1, 0.5, 0.300, true, true}, // a trace above it in binary
        {10015.05, 10000, 1, 0.301, true, false},
        {9984.95, 10000, 1, -0.301, true, false},
    };
    for (const auto &c : cases) {
        const StatikErgebnis offset = offsetErgebnis(c.measured, {c.reference, 0, c.factor});
        EXPECT_NEAR(offset.drift, c.drift, 1e-9);
        const StatikErgebnis gain = gainErgebnis(c.measured + 500, 500, {7, c.reference, c.factor});
        EXPECT_NEAR(gain.soll, c.reference / 50 * c.factor, 1e-9);
        EXPECT_NEAR(gain.ist, c.measured / 50 * c.factor, 1e-9);
        EXPECT_NEAR(gain.drift, c.drift, 1e-9);
        for (const double drift : {offset.drift * 1000, gain.drift * 1000}) {
            EXPECT_EQ(driftBalken(drift).rot, c.red) << drift;
            EXPECT_EQ(statikZulässig(drift, 0), c.permitted) << drift;
            EXPECT_EQ(statikZulässig(0, drift), c.permitted) << drift;
        }
    }
}

TEST(Static, BarOfADrift) {
    const struct {
        double drift; // mN m
        int left, width;
    } cases[] = {{0, 3720, 0},        {10, 3720, 120},   {-10, 3600, 120},
                 {-10.04, 3599, 121}, // cut towards minus infinity
                 {300, 3720, 3600},   {-300, 120, 3600}, {299.9999999999, 3720, 3600}};
    for (const auto &c : cases) {
        const DriftBalken bar = driftBalken(c.drift);
        EXPECT_EQ(bar.links, c.left) << c.drift;
        EXPECT_EQ(bar.breite, c.width) << c.drift;
    }
}

TEST(Static, MessagesToTheController) {
    const std::pair<double, const char *> offsets[] = {{1234.56, "7000303a"},   {10000, "700186a0"},
                                                       {1677721.5, "70ffffff"}, {0.25, "70000002"},
                                                       {0.35, "70000004"},      {0.04, "70000000"}};
    for (const auto &[raw, bytes] : offsets)
        EXPECT_EQ(offsetBefehl(raw).toHex(), bytes) << raw;
    const std::pair<double, const char *> factors[] = {
        {0.5, "771388"},     {1, "772710"},      {0, "770000"},     {0.00005, "770000"},
        {0.99995, "772710"}, {0.1999, "7707cf"}, {6.5535, "77ffff"}};
    for (const auto &[factor, bytes] : factors)
        EXPECT_EQ(momentFaktorBefehl(factor).toHex(), bytes) << factor;
}

} // namespace
