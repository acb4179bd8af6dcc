// Moments, spreads, sides and limits by hand.
#include "calibration/moment.h"

#include <gtest/gtest.h>

#include "cases.h"

namespace {

using namespace support;

/// "9000 8500" as numbers.
std::vector<double> numbers(const QString &text) {
    std::vector<double> values;
    for (const QString &word : text.split(' ', Qt::SkipEmptyParts))
        values.push_back(word.toDouble());
    return values;
}

TEST(Moment, OfTheSamples) {
    // samples, gravity factor, offset, moment factor -> moments, mean, last left, last right
    for (const auto &c :
         cases("11500 11501, 1, 10000, 1 -> 30 30.02, 30.01, 7, 30.02 "
               "| 8500 8498, 1, 10000, 1 -> -30 -30.04, -30.02, -30.04, 7 "
               "| 9000 9000.1, 1, 10000, 1 -> -20 -20, -20, -20, 7 "          // 9000.1 keeps
               "| 10999.9 11000, 1, 10000, 1 -> 0 20, 10, 7, 20 "             // 0 for the first
               "| 10000 9999, 1, 10000, 1 -> 0 0, 0, 7, 7 "                   // no arm
               "| 11500 8500 10000, 1, 10000, 1 -> 30 -30 -30, -10, -30, 30 " // both sides
               "| 11500 11500, 2, 10050, 0.5 -> 29 29, 29, 7, 29")) {
        auto samples = numbers(c.in_(0));
        Hebelarmmomente last{7, 7};
        const double mean = fnc_Mittelwert(
            samples, {c.in_(1).toDouble(), c.in_(2).toDouble(), c.in_(3).toDouble()}, last);
        const QStringList want = c.out.split(',');
        const auto moments = numbers(want[0]);
        ASSERT_EQ(samples.size(), moments.size()) << c;
        for (std::size_t i = 0; i < moments.size(); ++i)
            EXPECT_NEAR(samples[i], moments[i], 1e-9) << c;
        EXPECT_NEAR(mean, want[1].toDouble(), 1e-9) << c;
        EXPECT_NEAR(last.links, want[2].toDouble(), 1e-9) << c;
        EXPECT_NEAR(last.rechts, want[3].toDouble(), 1e-9) << c;
    }
}

TEST(Moment, SpreadIsTheDeviationOfTheMean) {
    EXPECT_DOUBLE_EQ(fnc_Streuung({30, 30, 30}, 30), 0);
    EXPECT_DOUBLE_EQ(fnc_Streuung({29, 31}, 30), 1); // sqrt(2 / (1 × 2))
    EXPECT_DOUBLE_EQ(fnc_Streuung({28, 30, 30, 32}, 30), std::sqrt(8.0 / 12));
}

TEST(Moment, SideAndLimits) {
    const Hebelarmmomente reference{30.1, -29.9};
    // mean, spread -> side, difference in mN m, red, spread too great; limit of the spread 0.02
    for (const auto &c : cases("-19.999, 0 -> none | nan, 0 -> none | 30.1, nan -> right, 0, wide "
                               "| 19.999, 0 -> none "
                               "| -20, 0 -> left, 9900, red "
                               "| 20, 0 -> right, -10100, red "
                               "| 30.199, 0.02 -> right, 99 "
                               "| 30.2, 0 -> right, 100, red "
                               "| 30, 0 -> right, -100, red "
                               "| -30, 0.0201 -> left, -100, red, wide "
                               "| -29.801, 0.0201 -> left, 99, wide")) {
        const auto verdict =
            seiteBeurteilen(c.in_(0).toDouble(), c.in_(1).toDouble(), reference, 0.02);
        QStringList got{verdict.seite == Seite::Keine   ? "none"
                        : verdict.seite == Seite::Links ? "left"
                                                        : "right"};
        if (verdict.seite != Seite::Keine)
            got += QString::number(std::round(verdict.differenz * 1e6) / 1000);
        if (verdict.balken.rot)
            got += "red";
        if (verdict.streuungZuGroß)
            got += "wide";
        EXPECT_EQ(got.join(", "), c.out) << c;
        EXPECT_EQ(verdict.inOrdnung(), got.size() <= 2) << c;
    }
    const auto bar = seiteBeurteilen(-29.8505, 0, reference, 1).balken; // +49.5 mN m
    EXPECT_NEAR(bar.links, 3720, 1e-6);
    EXPECT_NEAR(bar.breite, 594, 1e-6);
    EXPECT_NEAR(seiteBeurteilen(30.05, 0, reference, 1).balken.links, 3120, 1e-6);
}

TEST(Moment, GravityAsItIsTyped) {
    for (const auto &c : cases("9.8 -> yes | 9,82 -> yes | 9,81 -> yes | 9.79 -> no | 9.821 -> no "
                               "| 9,81 m -> text | abc -> text | 9.8.1 -> text | nan -> no")) {
        const auto value = erdschwere(c.in);
        EXPECT_EQ(!value ? "text" : erdschwereGültig(*value) ? "yes" : "no", c.out) << c;
    }
    EXPECT_EQ(erdschwere("9,81"), 9.81);
    EXPECT_FALSE(erdschwere(""));
}

} // namespace
