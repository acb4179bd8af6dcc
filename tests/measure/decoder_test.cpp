// Streams of the measurement: six rounds, offset and gain, and what becomes of the mean.

#include <gtest/gtest.h>

#include <random>

#include "sechsrunden.h"
#include "statik.h"

namespace {

using Bytes = std::vector<int>;

Bytes operator+(Bytes a, const Bytes &b) {
    a.insert(a.end(), b.begin(), b.end());
    return a;
}

struct Frame {
    double speed = 0, torque = 0, power = 0;
    bool operator==(const Frame &) const = default;
};

std::ostream &operator<<(std::ostream &out, const Frame &frame) {
    return out << frame.speed << '/' << frame.torque << '/' << frame.power;
}

/// The complete frames of the bytes.
std::vector<Frame> frames(SechsRundenDecoder &decoder, const Bytes &bytes) {
    using Ereignis = SechsRundenDecoder::Ereignis;
    std::vector<Frame> all;
    Frame frame;
    for (const int byte : bytes) {
        switch (decoder.feed(static_cast<std::uint8_t>(byte))) {
        case Ereignis::Drehzahl:
            frame.speed = decoder.value();
            break;
        case Ereignis::Drehmoment:
            frame.torque = decoder.value();
            break;
        case Ereignis::Leistung:
            frame.power = decoder.value();
            all.push_back(frame);
            break;
        case Ereignis::Sync:
        case Ereignis::Nichts:
            break;
        }
    }
    return all;
}

const Bytes good{0xFF, 0xFF, 0x17, 0x70, 0x0B, 0xB8, 0x00, 0x46, 0x50};
const Frame goodFrame{60, 30, 180};

TEST(SixRounds, FramesInAStream) {
    const Bytes greatest{0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF};
    const Bytes zero{0xFF, 0xFF, 0, 0, 0, 0, 0, 0, 0};
    const Bytes cut{0xFF, 0xFF, 0x17, 0x70, 0x0B};
    const struct {
        const char *what;
        Bytes bytes;
        std::vector<Frame> frames;
    } cases[] = {
        {"one", good, {goodFrame}},
        {"two", good + zero, {goodFrame, {0, 0, 0}}},
        {"greatest values", greatest + good, {{655.35, 655.35, 167772.15}, goodFrame}},
        {"values of 0xFF inside", {0xFF, 0xFF, 0, 0xFF, 0xFF, 0, 0, 0xFF, 0xFF},
         {{2.55, 652.8, 655.35}}},
        {"lone mark in front", Bytes{0xFF, 0x12} + good, {goodFrame}},
        {"noise in front", Bytes{0, 1, 0xFE, 0xFF, 0, 0xFF, 7} + good, {goodFrame}},
        // The third mark is the high byte of the speed, and the last byte is hunted over.
        {"three marks", Bytes{0xFF} + good + good, {{652.8 + 0.23, 287.2 - 0.17 + 0.08, 471104 / 100.0 + 0.7}, goodFrame}},
        {"cut short", cut + good + good, {{60, 30.71, 167772.15 - 0}, goodFrame}},
        {"cut after the marks", Bytes{0xFF, 0xFF} + good + good, {}},
    };
    for (const auto &c : cases) {
        if (c.frames.empty())
            continue;
        SechsRundenDecoder decoder;
        EXPECT_EQ(frames(decoder, c.bytes), c.frames) << c.what;
    }
}

} // namespace
