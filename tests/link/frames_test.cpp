// Digits, frames and texts of the controller line, and the decoder of the frequency stream.
#include <random>

#include "link/anschluss.h"
#include "link/frames.h"
#include "linktest.h"

namespace {

using namespace support;
using Frames = LinkTest;

TEST_F(Frames, DigitsAndSignOfASpeed) {
    for (const Case &c : cases(R"(
            -> 0000 | abc -> 0000 | 60 -> 2100 | 12,5 -> 0437 | 12.5 -> 0437 | " 60 rpm" -> 2100
            | 0.02 -> 0000 | 0.03 -> 0001 | 59.99 -> 2099 | 285.7 -> 9999 | 285.8 -> 10003
            | 60.000000000000007 -> 2100 | 1e9 -> 35000000000)")) {
        QString text = c.in;
        EXPECT_EQ(fnc_DrehzahlZiffern(text), c.out) << c;
        EXPECT_EQ(text, c.out) << "written back";
    }
    EXPECT_EQ(frameText("E", 1, "60"), "E-2100");
    for (const std::int16_t direction : std::initializer_list<std::int16_t>{0, 2, 3, -1})
        EXPECT_EQ(frameText("A", direction, "00"), "A 0000");
    EXPECT_EQ(fnc_HexString(QByteArray("\x00\x0A\xFF", 3)), "000AFF");
}

TEST_F(Frames, CodesInBrackets) {
    for (const Case &c : cases("-> | W200[13] -> \"W200\r\" | [65][66] -> AB | a[ -> a | "
                               "a[12 -> a12 | [6[65] -> 6A | [255] -> ÿ"))
        EXPECT_EQ(fnc_Transformation(c.in), c.out.toLatin1()) << c;
    EXPECT_EQ(fnc_Transformation("[0]"), QByteArray(1, '\0'));
    for (const Case &c :
         cases("a] | ] | 13] | 5]W[13] | [] | [x] | [256] | [-1] | [99999999999]")) {
        expectKnown("failed(mSI 4, 13)");
        EXPECT_EQ(fnc_Transformation(c.in), "") << c;
        boxes.expectAllCame();
    }
}

TEST_F(Frames, ParametersOfThePortAndTheirWords) {
    for (const Case &c : cases(R"(75,O,5,1,5 -> 75/Ungerade/5/1,5, 75,O,5,1.5
                                  | 9600,M,4,1 -> 9600/Markierung/4/1, 9600,M,4,1
                                  | 9600,S,8,1 -> 9600/Leerzeichen/8/1, 9600,S,8,1
                                  | 9600,X,8 -> 9600//8/, 9600,,8, | -> ///, ,,,)")) {
        const Schnittstelle f = Schnittstelle::ausParameter(c.in);
        EXPECT_EQ(QStringList({f.baud, f.parität, f.datenbits, f.stoppbits}).join('/'), c.out_(0));
        EXPECT_EQ(f.parameter(), c.out_(1));
    }
}

/// The index of the byte that ends the reading, or -1.
qsizetype endsAt(FrequenzDecoder &decoder, const QByteArray &bytes) {
    for (qsizetype i = 0; i < bytes.size(); ++i) {
        if (decoder.feed(static_cast<std::uint8_t>(bytes[i])))
            return i;
    }
    return -1;
}

TEST(FrequencyStream, EndsBelowHalfAHertz) {
    // Of three marks the second 0xFF is none, and the 0xFB behind it is passed over. The record
    // behind a high value falls out of step, or its high byte is taken for a mark.
    for (const Case &c : cases(R"(
            fffb 01f3 fffb -> 5 499 | fffb 0000 fffb -> 5 0 | fffb 0000 -> -1
            | 55 ff55 fb fffb 0009 fffb -> 9 9 | fffb 0009 ff55 fffb 0008 fffb -> 11 8
            | ff fffb 0009 fffb 0008 fffb -> 10 8 | fffb 01f4 fffb 0007 fffb 0008 fffb -> 13 8
            | fffb 0200 fffb 0200 fffb 0200 fffb 0200 fffb -> -1 | fffb 0200 fffb fb01 -> 6 0)")) {
        FrequenzDecoder decoder;
        const auto end = endsAt(decoder, QByteArray::fromHex(c.in.toLatin1()));
        EXPECT_EQ(end < 0 ? "-1" : QString("%1 %2").arg(end).arg(decoder.value()), c.out) << c;
    }
}

TEST(FrequencyStream, RandomBytesNeverLockItUp) {
    std::mt19937 random(1);
    FrequenzDecoder decoder;
    const QByteArray stream = QByteArray::fromHex("fffb0064").repeated(4);
    for (int round = 0; round < 2000; ++round) {
        for (int i = 0; i < 100; ++i)
            decoder.feed(static_cast<std::uint8_t>(random()));
        // At most one record to get into step, one that is lost behind it, and one that counts.
        EXPECT_GE(endsAt(decoder, stream), 0) << round;
    }
}

} // namespace
