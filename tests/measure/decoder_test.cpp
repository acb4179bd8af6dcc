// Streams of the measurement: six rounds, offset and gain, and what becomes of the mean.
#include <gtest/gtest.h>

#include <random>

#include "cases.h"
#include "sechsrunden.h"
#include "statik.h"

namespace {

using support::Case;
using support::cases;

/// The values of a six-round frame, by the order in which they come.
struct SixRounds {
    SechsRundenDecoder decoder;
    QString shown;
    static constexpr const char *good = "ffff 1770 0bb8 004650"; // 60.00, 30.00, 180.00
    static constexpr const char *last = "60 30 180; ";
    static constexpr int enough = 3; // one is spoilt, and one more that ended within its marks

    void feed(std::uint8_t byte) {
        using Ereignis = SechsRundenDecoder::Ereignis;
        const Ereignis event = decoder.feed(byte);
        if (event == Ereignis::Drehzahl)
            frame.clear();
        if (event != Ereignis::Nichts && event != Ereignis::Sync)
            frame += QString::number(decoder.value(), 'g', 9);
        if (event == Ereignis::Leistung)
            shown += frame.join(' ') + "; ";
    }

  private:
    QStringList frame;
};

struct Offset {
    StatikDecoder decoder{codeOffset};
    QString shown;
    static constexpr const char *good = "fffa 0186a0"; // 10000.0
    static constexpr const char *last = "10000; ";
    static constexpr int enough = 4;

    void feed(std::uint8_t byte) {
        if (decoder.feed(byte))
            shown += QString::number(decoder.value(), 'g', 8) + "; ";
    }
};

template <class Decoder>
QString decoded(const QString &hex, Decoder decoder = {}) {
    for (const char byte : QByteArray::fromHex(hex.toLatin1()))
        decoder.feed(static_cast<std::uint8_t>(byte));
    return decoder.shown;
}

template <class Decoder>
struct Stream : testing::Test {};
using Decoders = testing::Types<SixRounds, Offset>;
TYPED_TEST_SUITE(Stream, Decoders);

TYPED_TEST(Stream, RandomBytesNeverLockItUp) {
    std::mt19937 random(1);
    TypeParam decoder;
    for (int round = 0; round < 2000; ++round) {
        for (int i = 0; i < 100; ++i)
            decoder.feed(static_cast<std::uint8_t>(random()));
        decoder.shown.clear();
        ASSERT_TRUE(decoded(QString(TypeParam::good).repeated(TypeParam::enough), decoder)
                        .endsWith(TypeParam::last))
            << round;
    }
}

TEST(SixRoundStream, Frames) {
    for (const Case &c :
         cases("G -> 60 30 180; | G ffff00000000000000 -> 60 30 180; 0 0 0; | "
               "ffffffffffffffffff G -> 655.35 655.35 167772.15; 60 30 180; | "
               "ffff 00ff ff00 00ffff -> 2.55 652.8 655.35; | ff12 G -> 60 30 180; | "
               "0001feff00ff07 G -> 60 30 180; | "
               // Of three marks the last is the high byte of the speed.
               "ff G G -> 653.03 286.83 120586.94; 60 30 180; | "
               // A frame that is cut makes one wrong; the following one mends it.
               "ffff17700b G G -> 60 30.71 167176.8; 60 30 180; | "
               "ffff G G -> 655.35 60 7680; 60 30 180; | ffff17700b ->"))
        EXPECT_EQ(decoded<SixRounds>(QString(c.in).replace("G", SixRounds::good)).trimmed(), c.out)
            << c;
}

TEST(Static, SamplesInAStream) {
    for (const Case &c : cases( // A is 10000.0, B is 10001.5
             "A ff -> | A fffa -> 10000; | A B fffa -> 10000; 10001.5; | "
             "fffa ffffff fffa 000000 fffa -> 1677721.5; 0; | 00fa01 A fffa -> 10000; | "
             // Once a mark has come the code may come at any time.
             "ff0102fffa 000032 fffa -> 5; | fffd 010203 fffd 010203 fffd -> | "
             // The position stays until the end byte comes; nothing is counted meanwhile.
             "A 5556 B fffa -> 10000; 10001.5; | A ff55ff B fffa -> 10000; 10001.5; | "
             // The next sample's bytes pass until the decoder locks on again.
             "fffa 0186 B B B fffa -> 10009.5; 10001.5; 10001.5;")) {
        const QString hex = QString(c.in).replace("A", Offset::good).replace("B", "fffa 0186af");
        EXPECT_EQ(decoded<Offset>(hex).trimmed(), c.out) << c;
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
    for (const Case &c : cases( // measured, reference, factor; drift in N m
             "10000, 10000, 1 -> 0, good | 10007.4, 10000, 1 -> 0.148, good | "
             "10007.5, 10000, 1 -> 0.150, red | 9992.5, 10000, 1 -> -0.150, red | "
             "10015.1, 10000.1, 0.5 -> 0.150, red | 10015, 10000, 1 -> 0.300, red | "
             "9985, 10000, 1 -> -0.300, red | "
             "10030.1, 10000.1, 0.5 -> 0.300, red | " // a trace above it in binary
             "10015.05, 10000, 1 -> 0.301, refused | 9984.95, 10000, 1 -> -0.301, refused")) {
        const double measured = c.in_(0).toDouble(), reference = c.in_(1).toDouble();
        const double factor = c.in_(2).toDouble();
        const StatikErgebnis offset = offsetErgebnis(measured, {reference, 0, factor});
        const StatikErgebnis gain = gainErgebnis(measured + 500, 500, {7, reference, factor});
        EXPECT_NEAR(gain.soll, reference / 50 * factor, 1e-9);
        EXPECT_NEAR(gain.ist, measured / 50 * factor, 1e-9);
        for (const double drift : {offset.drift, gain.drift}) {
            EXPECT_NEAR(drift, c.out_(0).toDouble(), 1e-9);
            EXPECT_EQ(driftBalken(drift * 1000).rot, c.out_(1) != "good") << c;
            EXPECT_EQ(statikZulässig(drift * 1000, 0), c.out_(1) != "refused") << c;
            EXPECT_EQ(statikZulässig(0, drift * 1000), c.out_(1) != "refused") << c;
        }
    }
}

TEST(Static, BarOfADrift) {
    for (const Case &c : cases( // mN m; cut towards minus infinity
             "0 -> 3720 0 | 10 -> 3720 120 | -10 -> 3600 120 | -10.04 -> 3599 121 | "
             "300 -> 3720 3600 | -300 -> 120 3600 | 299.9999999999 -> 3720 3600")) {
        const DriftBalken bar = driftBalken(c.in.toDouble());
        EXPECT_EQ(QString("%1 %2").arg(bar.links).arg(bar.breite), c.out) << c;
    }
}

TEST(Static, MessagesToTheController) {
    for (const Case &c : cases("1234.56 -> 7000303a | 10000 -> 700186a0 | 1677721.5 -> 70ffffff | "
                               "0.25 -> 70000002 | 0.35 -> 70000004 | 0.04 -> 70000000"))
        EXPECT_EQ(offsetBefehl(c.in.toDouble()).toHex(), c.out) << c;
    for (const Case &c : cases("0.5 -> 771388 | 1 -> 772710 | 0 -> 770000 | 0.00005 -> 770000 | "
                               "0.99995 -> 772710 | 0.1999 -> 7707cf | 6.5535 -> 77ffff"))
        EXPECT_EQ(momentFaktorBefehl(c.in.toDouble()).toHex(), c.out) << c;
}

} // namespace
