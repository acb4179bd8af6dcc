// Digits, frames and texts of the controller line, and the decoder of the frequency stream.

#include <gtest/gtest.h>

#include <random>

#include "boxes.h"
#include "frames.h"
#include "interface.h"
#include "msgbox.h"
#include "session.h"

namespace {

TEST(Frames, DigitsOfASpeed) {
    const std::pair<const char *, const char *> cases[] = {
        {"", "0000"},           {"abc", "0000"},    {"60", "2100"},
        {"12,5", "0437"},       {"12.5", "0437"},   {" 60 rpm", "2100"},
        {"0.02", "0000"},       {"0.03", "0001"},   {"59.99", "2099"},
        {"285.7", "9999"},      {"285.8", "10003"}, {"60.000000000000007", "2100"},
        {"1e9", "35000000000"},
    };
    for (const auto &[speed, digits] : cases) {
        QString text = speed;
        EXPECT_EQ(fnc_DrehzahlZiffern(text).toStdString(), digits) << speed;
        EXPECT_EQ(text.toStdString(), digits) << "written back";
    }
}

TEST(Frames, SignOfTheDirection) {
    EXPECT_EQ(frameText("E", 1, "60"), "E-2100");
    for (const std::int16_t direction : std::initializer_list<std::int16_t>{0, 2, 3, -1})
        EXPECT_EQ(frameText("A", direction, "00"), "A 0000");
    EXPECT_EQ(fnc_HexString(QByteArray("\x00\x0A\xFF", 3)), "000AFF");
}

TEST(Frames, CodesInBrackets) {
    gSprache = 1;
    support::Boxes boxes;
    const std::pair<const char *, const char *> good[] = {
        {"", ""},        {"W200[13]", "W200\r"}, {"[65][66]", "AB"},  {"a[", "a"},
        {"a[12", "a12"}, {"[6[65]", "6A"},       {"[255]", "\u00FF"},
    };
    for (const auto &[text, expected] : good)
        EXPECT_EQ(fnc_Transformation(text), QString(expected)) << text;
    EXPECT_EQ(boxes.count(), 0u);
    EXPECT_EQ(fnc_Transformation("[0]"), QString(QChar(0)));

    for (const char *bad :
         {"a]", "]", "13]", "5]W[13]", "[]", "[x]", "[256]", "[-1]", "[99999999999]"}) {
        boxes.expect("Fehler mSI 4 -  13 …");
        EXPECT_EQ(fnc_Transformation(bad), "") << bad;
        EXPECT_TRUE(boxes.allCame()) << bad;
    }
}

TEST(Frames, ParametersOfThePortAndTheirWords) {
    const struct {
        const char *parameter;
        Schnittstelle fields;
        const char *stored;
    } cases[] = {
        {"19200,N,8,1", {"19200", "Keine", "8", "1"}, "19200,N,8,1"},
        {"4800,E,7,2", {"4800", "Gerade", "7", "2"}, "4800,E,7,2"},
        {"75,O,5,1,5", {"75", "Ungerade", "5", "1,5"}, "75,O,5,1.5"},
        {"9600,M,4,1", {"9600", "Markierung", "4", "1"}, "9600,M,4,1"},
        {"9600,S,8,1", {"9600", "Leerzeichen", "8", "1"}, "9600,S,8,1"},
        {"9600,X,8", {"9600", "", "8", ""}, "9600,,8,"},
        {"", {}, ",,,"},
    };
    for (const auto &c : cases) {
        const Schnittstelle fields = Schnittstelle::ausParameter(c.parameter);
        EXPECT_EQ(fields.baud, c.fields.baud) << c.parameter;
        EXPECT_EQ(fields.parität, c.fields.parität) << c.parameter;
        EXPECT_EQ(fields.datenbits, c.fields.datenbits) << c.parameter;
        EXPECT_EQ(fields.stoppbits, c.fields.stoppbits) << c.parameter;
        EXPECT_EQ(fields.parameter().toStdString(), c.stored);
    }
}

/// The index of the byte that ends the reading, or -1.
int endsAt(FrequenzDecoder &decoder, const std::vector<int> &bytes) {
    for (size_t i = 0; i < bytes.size(); ++i) {
        if (decoder.feed(static_cast<std::uint8_t>(bytes[i])))
            return static_cast<int>(i);
    }
    return -1;
}

TEST(FrequencyStream, EndsBelowHalfAHertz) {
    const struct {
        const char *what;
        std::vector<int> bytes;
        int endsAt;
        int value;
    } cases[] = {
        {"0.499 Hz", {0xFF, 0xFB, 0x01, 0xF3, 0xFF, 0xFB}, 5, 499},
        {"standstill", {0xFF, 0xFB, 0, 0, 0xFF, 0xFB}, 5, 0},
        {"not without the next mark", {0xFF, 0xFB, 0, 0}, -1, 0},
        {"noise in front", {0x55, 0xFF, 0x55, 0xFB, 0xFF, 0xFB, 0, 9, 0xFF, 0xFB}, 9, 9},
        {"a mark that is none",
         {0xFF, 0xFB, 0, 9, 0xFF, 0x55, 0xFF, 0xFB, 0, 8, 0xFF, 0xFB},
         11,
         8},
        // The second 0xFF is no mark, and the 0xFB behind it is passed over.
        {"three marks", {0xFF, 0xFF, 0xFB, 0, 9, 0xFF, 0xFB, 0, 8, 0xFF, 0xFB}, 10, 8},
        // The record behind a high value falls out of step.
        {"0.5 Hz, then low ones",
         {0xFF, 0xFB, 0x01, 0xF4, 0xFF, 0xFB, 0, 7, 0xFF, 0xFB, 0, 8, 0xFF, 0xFB},
         13,
         8},
        {"high ones only",
         {0xFF, 0xFB, 2, 0, 0xFF, 0xFB, 2, 0, 0xFF, 0xFB, 2, 0, 0xFF, 0xFB, 2, 0, 0xFF, 0xFB},
         -1,
         0},
        // Behind a high value the high byte of the next one is taken for a mark.
        {"0xFB as a high byte", {0xFF, 0xFB, 2, 0, 0xFF, 0xFB, 0xFB, 1}, 6, 0},
    };
    for (const auto &c : cases) {
        FrequenzDecoder decoder;
        EXPECT_EQ(endsAt(decoder, c.bytes), c.endsAt) << c.what;
        if (c.endsAt >= 0) {
            EXPECT_EQ(decoder.value(), c.value) << c.what;
        }
    }
}

TEST(FrequencyStream, RandomBytesNeverLockItUp) {
    std::mt19937 random(1);
    FrequenzDecoder decoder;
    std::vector<int> stream;
    for (int i = 0; i < 4; ++i)
        stream.insert(stream.end(), {0xFF, 0xFB, 0, 100});
    for (int round = 0; round < 2000; ++round) {
        for (int i = 0; i < 100; ++i)
            decoder.feed(static_cast<std::uint8_t>(random()));
        // At most one record to get into step, one that is lost behind it, and one that counts.
        EXPECT_GE(endsAt(decoder, stream), 0) << round;
    }
}

} // namespace
