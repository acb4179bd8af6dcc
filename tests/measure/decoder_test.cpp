// Streams of the measurement: six rounds, offset and gain, and what becomes of the mean.
#include <gtest/gtest.h>

#include <random>

#include "cases.h"
#include "measure/sechsrunden.h"
#include "measure/statik.h"

namespace {

using support::Case;
using support::cases;

// Each is a decoder at its start that says which value a byte has completed.
const auto sixRounds = [decoder = SechsRundenDecoder()](char byte) mutable -> QString {
    using Ereignis = SechsRundenDecoder::Ereignis;
    const Ereignis event = decoder.feed(static_cast<std::uint8_t>(byte));
    if (event == Ereignis::Nichts || event == Ereignis::Sync)
        return {};
    return QString::number(decoder.value(), 'g', 9) + (event == Ereignis::Leistung ? "; " : " ");
};
const auto offset = [decoder = StatikDecoder(codeOffset)](char byte) mutable -> QString {
    const bool complete = decoder.feed(static_cast<std::uint8_t>(byte));
    return complete ? QString::number(decoder.value(), 'g', 8) + "; " : QString();
};
const QString goodRounds = "ffff 1770 0bb8 004650"; // 60.00, 30.00, 180.00
const QString goodOffset = "fffa 0186a0";           // 10000.0

template <class Decoder>
QString decoded(const QString &hex, Decoder decoder) {
    QString shown;
    for (const char byte : QByteArray::fromHex(hex.toLatin1()))
        shown += decoder(byte);
    return shown;
}

template <class Decoder>
void expectNeverLockedUp(Decoder decoder, const QString &good, const QString &last) {
    std::mt19937 random(1);
    for (int round = 0; round < 2000; ++round) {
        for (int i = 0; i < 100; ++i)
            decoder(static_cast<char>(random()));
        ASSERT_TRUE(decoded(good, decoder).endsWith(last)) << round;
    }
}

TEST(Streams, RandomBytesNeverLockThemUp) {
    // One is spoilt, and one more that ended within its marks.
    expectNeverLockedUp(sixRounds, goodRounds.repeated(3), "60 30 180; ");
    expectNeverLockedUp(offset, goodOffset.repeated(4), "10000; ");
}

// Of three marks the last is the high byte of the speed. A frame that is cut makes one wrong; the
// following one mends it.
TEST(SixRoundStream, Frames) {
    for (const Case &c : cases(R"(
            G -> 60 30 180; | G ffff00000000000000 -> 60 30 180; 0 0 0; | ff12 G -> 60 30 180;
            | ffffffffffffffffff G -> 655.35 655.35 167772.15; 60 30 180; | 0001feff00ff07 G -> 60 30 180;
            | ffff 00ff ff00 00ffff -> 2.55 652.8 655.35; | ff G G -> 653.03 286.83 120586.94; 60 30 180;
            | ffff17700b G G -> 60 30.71 167176.8; 60 30 180; | ffff G G -> 655.35 60 7680; 60 30 180;
            | ffff17700b -> 60)"))
        EXPECT_EQ(decoded(QString(c.in).replace("G", goodRounds), sixRounds).trimmed(), c.out) << c;
}

// A is 10000.0, B is 10001.5. Once a mark has come the code may come at any time. The position
// stays until the end byte comes; nothing is counted meanwhile. The next sample's bytes pass until
// the decoder locks on again.
TEST(Static, SamplesInAStream) {
    for (const Case &c : cases(R"(
            A ff -> | A fffa -> 10000; | A B fffa -> 10000; 10001.5; | 00fa01 A fffa -> 10000;
            | fffa ffffff fffa 000000 fffa -> 1677721.5; 0; | ff0102fffa 000032 fffa -> 5;
            | fffd 010203 fffd 010203 fffd -> | A 5556 B fffa -> 10000; 10001.5;
            | A ff55ff B fffa -> 10000; 10001.5; | fffa 0186 B B B fffa -> 10009.5; 10001.5; 10001.5;)")) {
        const QString hex = QString(c.in).replace("A", goodOffset).replace("B", "fffa 0186af");
        EXPECT_EQ(decoded(hex, offset).trimmed(), c.out) << c;
    }
}

TEST(Static, DriftsAndTheirLimits) {
    // Measured, reference, factor; drift in N m. One is a trace above 0.3 in binary.
    for (const Case &c : cases(R"(
            10000, 10000, 1 -> 0, good | 10007.4, 10000, 1 -> 0.148, good
            | 10007.5, 10000, 1 -> 0.150, red | 9992.5, 10000, 1 -> -0.150, red
            | 10015.1, 10000.1, 0.5 -> 0.150, red | 10015, 10000, 1 -> 0.300, red
            | 9985, 10000, 1 -> -0.300, red | 10030.1, 10000.1, 0.5 -> 0.300, red
            | 10015.05, 10000, 1 -> 0.301, refused | 9984.95, 10000, 1 -> -0.301, refused)")) {
        const double measured = c.in_(0).toDouble(), reference = c.in_(1).toDouble();
        const double factor = c.in_(2).toDouble();
        const StatikErgebnis rest = offsetErgebnis(measured, {reference, 0, factor});
        const StatikErgebnis gain = gainErgebnis(measured + 500, 500, {7, reference, factor});
        EXPECT_NEAR(gain.soll, reference / 50 * factor, 1e-9);
        EXPECT_NEAR(gain.ist, measured / 50 * factor, 1e-9);
        for (const double drift : {rest.drift, gain.drift}) {
            EXPECT_NEAR(drift, c.out_(0).toDouble(), 1e-9);
            EXPECT_EQ(driftBalken(drift * 1000).rot, c.out_(1) != "good") << c;
            EXPECT_EQ(driftUrteil(drift * 1000) == Drift::Gut, c.out_(1) == "good") << c;
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
    const DriftBalken uncut = driftBalken(-99.96, 100, false);
    EXPECT_NEAR(uncut.breite, 1199.52, 1e-9);
    EXPECT_NEAR(uncut.links + uncut.breite, 3720, 1e-9);
    EXPECT_TRUE(!uncut.rot && driftBalken(100, 100, false).rot);
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
