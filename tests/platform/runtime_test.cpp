// Numbers as text and text as numbers, under the two number formats of the users.
#include <gtest/gtest.h>

#include <cmath>

#include "cases.h"
#include "platform/runtime.h"

namespace {

using platform::setNumberLocale;
using support::cases;

const QLocale german(QLocale::German, QLocale::Germany);
const QLocale english(QLocale::English, QLocale::UnitedStates);

class NumberText : public testing::Test {
  protected:
    ~NumberText() override { setNumberLocale(QLocale()); }
};

TEST_F(NumberText, ValReadsTheLeadingNumberUnderAnyLocale) {
    for (const QLocale &locale : {german, english}) {
        setNumberLocale(locale);
        EXPECT_DOUBLE_EQ(Val(" \t1 2 . 5\r\n"), 12.5);
        for (const auto &c : cases(R"(
                -> 0 | abc -> 0 | - -> 0 | . -> 0 | 60 -> 60 | 12.5 -> 12.5 | 12,5 -> 12 | .5 -> 0.5
                | -.5 -> -0.5 | +4 -> 4 | --4 -> 0 | 1.2.3 -> 1.2 | - 3 -> -3 | 5-3 -> 5
                | 17 - Meier -> 17 | 17 Egon -> 17 | 1e3 -> 1000 | 1D-2 -> 0.01 | 1e -> 1 | 1e+ -> 1
                | 1e2.5 -> 100 | e3 -> 0 | 0060 -> 60 | ١٢ -> 0)"))
            EXPECT_DOUBLE_EQ(Val(c.in), c.out.toDouble()) << c;
    }
}

TEST_F(NumberText, StrAndCStrCarryFifteenDigits) {
    for (const auto &c : cases(R"(
            0 -> " 0" | -0.0 -> " 0" | 60 -> " 60" | -60 -> -60 | 12.5 -> " 12.5" | -0.5 -> -0.5
            | 0.30000000000000004 -> " 0.3" | 0.0999999999999943 -> " 0.0999999999999943"
            | 0.3333333333333333 -> " 0.333333333333333" | 123456789012345 -> " 123456789012345"
            | 5.551115123125783e-17 -> " 5.55111512312578E-17" | 1e15 -> " 1E+15")")) {
        for (const QLocale &locale : {german, english}) {
            setNumberLocale(locale);
            EXPECT_EQ(Str(c.in.toDouble()), c.out);
            EXPECT_EQ(CStr(c.in.toDouble()),
                      c.out.trimmed().replace('.', locale == german ? ',' : '.'));
        }
    }
}

TEST_F(NumberText, CDblReadsTheNumberFormatOfThePerson) {
    for (const auto &c : cases(R"(
            60 -> 60, 60 | " 60 " -> 60, 60 | -3 -> -3, -3 | 12,5 -> 12.5, none
            | 12.5 -> none, 12.5 | ,5 -> 0.5, none | .5 -> none, 0.5 | -0,5 -> -0.5, none
            | 1.234 -> none, 1.234 | 1,234 -> 1.234, none | 1.234,5 -> none, none
            | 1,234.5 -> none, none | 1.234.567 -> none, none | 1.23 -> none, 1.23
            | 12.34,5 -> none, none | 1.2345 -> none, 1.2345 | 1,5,2 -> none, none
            | 1.5.2 -> none, none | 1e3 -> 1000, 1000 | 1e400 -> none, none | -> none, none
            | " " -> none, none | abc -> none, none | 12 W -> none, none | 1 2 -> none, none
            | --5 -> none, none | nan -> none, none | inf -> none, none | 0x10 -> none, none)")) {
        for (const QLocale &locale : {german, english}) {
            setNumberLocale(locale);
            const QString value = c.out_(locale == german ? 0 : 1);
            EXPECT_EQ(IsNumeric(c.in), value != "none") << c;
            try {
                EXPECT_EQ(CDbl(c.in), value.toDouble()) << c;
            } catch (const Fehler &failed) {
                EXPECT_EQ(value, "none") << c;
                EXPECT_EQ(failed.number(), platform::fehlernummer::TypeMismatch);
                EXPECT_TRUE(failed.text().english.contains('"' + c.in + '"'));
            }
        }
    }
}

TEST_F(NumberText, FormatRoundsDecimalHalvesAwayFromZero) {
    // 1.005 is a little less in binary; no sign on a zero.
    for (const auto &c : cases(R"(
            0, 0.000 -> 0.000 | 0, ### -> | 7, ### -> 7 | 150, ### -> 150 | 0, 0 -> 0 | 5, 00 -> 05
            | 123, 00 -> 123 | 0.5, 0 -> 1 | 1.5, 0 -> 2 | 2.5, 0 -> 3 | -2.5, 0 -> -3
            | 0.125, 0.00 -> 0.13 | -0.125, 0.00 -> -0.13 | 1.005, 0.00 -> 1.01
            | 2.675, 0.00 -> 2.68 | 2.6749999, 0.00 -> 2.67 | 99.995, 0.00 -> 100.00
            | 0.0999999999999943, 0.00 -> 0.10 | 9.999, 00.0 -> 10.0 | -0.001, 0.00 -> 0.00
            | -0.0, 0.0 -> 0.0 | 1.0016420361247947, 0.0000 -> 1.0016 | 655.35, 0.00 -> 655.35
            | 167772.15, 0.00 -> 167772.15 | 1e20, 0 -> 100000000000000000000)")) {
        setNumberLocale(english);
        EXPECT_EQ(Format(c.in_(0).toDouble(), c.in_(1)), c.out) << c;
        setNumberLocale(german);
        EXPECT_EQ(Format(c.in_(0).toDouble(), c.in_(1)), QString(c.out).replace('.', ',')) << c;
    }
}

TEST_F(NumberText, RoundTakesHalvesToTheEvenNeighbourAndIntIsTheFloor) {
    for (const auto &c : cases(R"(
            0.5, 0 -> 0 | 1.5, 0 -> 2 | 2.5, 0 -> 2 | 3.5, 0 -> 4 | -1.5, 0 -> -2 | -2.5, 0 -> -2
            | 2.5000001, 0 -> 3 | 2.4999999, 0 -> 2 | 0.25, 1 -> 0.2 | 0.35, 1 -> 0.4
            | 0.45, 1 -> 0.4 | 1.005, 2 -> 1 | 1.015, 2 -> 1.02 | 2.665, 2 -> 2.66 | 2.675, 2 -> 2.68
            | 0.125, 2 -> 0.12 | 1234.56, 1 -> 1234.6 | 1234.45, 1 -> 1234.4 | 99.95, 1 -> 100
            | 0.0999999999999943, 2 -> 0.1 | 300.0000000000001, 6 -> 300 | 1e17, 0 -> 1e17
            | 0, 3 -> 0)"))
        EXPECT_DOUBLE_EQ(Round(c.in_(0).toDouble(), c.in_(1).toInt()), c.out.toDouble()) << c;
    EXPECT_TRUE(std::isnan(Round(std::nan(""))));
    for (const auto &c :
         cases("437.5 -> 437 | 3 -> 3 | 0 -> 0 | -0.5 -> -1 | -1 -> -1 | -1.1 -> -2"))
        EXPECT_EQ(Int(c.in.toDouble()), c.out.toDouble()) << c;
}

} // namespace
