// Test steps of a recipe: what may be entered, and how their numbers are kept without gaps.
#include <QLocale>

#include <random>

#include "pruefschritt.h"
#include "runtime.h"
#include "schrittliste.h"
#include "session.h"
#include "workplace.h"

namespace {

using namespace support;
using enum Wertprüfung;

const QLocale comma(QLocale::German, QLocale::Germany);
const QLocale point(QLocale::English, QLocale::UnitedStates);

class Steps : public Workshop {
  protected:
    ~Steps() override { platform::setNumberLocale(QLocale()); }
};

TEST_F(Steps, LimitsUnderBothNumberFormats) {
    const struct {
        const QLocale &format;
        const char *text;
        Wertprüfung neu, änd, power; // speed of a new step, of a changed one, power of both
    } cases[] = {
        {comma, "0", AußerhalbBereich, Gültig, Gültig},
        {comma, "-1", AußerhalbBereich, AußerhalbBereich, AußerhalbBereich},
        {comma, "0,1", Gültig, Gültig, Gültig},
        {comma, "120", Gültig, Gültig, Gültig},
        {comma, "120,5", AußerhalbBereich, AußerhalbBereich, Gültig},
        {comma, "600", AußerhalbBereich, AußerhalbBereich, Gültig},
        {comma, "600,1", AußerhalbBereich, AußerhalbBereich, AußerhalbBereich},
        {comma, "60 W", NichtNumerisch, NichtNumerisch, NichtNumerisch},
        {comma, "60.5", NichtNumerisch, NichtNumerisch, NichtNumerisch},
        {comma, "0.100", NichtNumerisch, NichtNumerisch, NichtNumerisch},
        {point, "60.5", Gültig, Gültig, Gültig},
        {point, "120.5", AußerhalbBereich, AußerhalbBereich, Gültig},
        {point, "60,5", NichtNumerisch, NichtNumerisch, NichtNumerisch},
        {point, "0,600", NichtNumerisch, NichtNumerisch, NichtNumerisch}, // 0.6 to the torque
    };
    for (const auto &c : cases) {
        platform::setNumberLocale(c.format);
        EXPECT_EQ(drehzahlPrüfen(c.text, grenzenNeuRezept), c.neu) << c.text;
        EXPECT_EQ(drehzahlPrüfen(c.text, grenzenÄndRez), c.änd) << c.text;
        EXPECT_EQ(leistungPrüfen(c.text, grenzenNeuRezept), c.power) << c.text;
        EXPECT_EQ(leistungPrüfen(c.text, grenzenÄndRez), c.power) << c.text;
    }
    const struct {
        const char *speed, *power;
        bool allowed;
    } torques[] = {
        {"100", "600", true},   // 57.3 N m
        {"60", "400", false},   // 63.7
        {"10", "62.8", true},   // 60 to the letter
        {"10", "62,8", true},   // a comma is a decimal point under either format
        {"10", "62,9", false},  //
        {"nichts", "600", true} // counts as 0
    };
    for (const auto &c : torques)
        EXPECT_EQ(drehmomentZulässig(c.speed, c.power, grenzenNeuRezept), c.allowed)
            << c.speed << ' ' << c.power;
}

TEST_F(Steps, TypesAndWhatIsMissing) {
    const struct {
        int code; // 0: the keys stand for nothing
        QStringList keys;
        const char *text;
    } types[2][3] = {{{1, {"L", "l", "1"}, "Leistungsmessung"},
                      {2, {"D", "d", "2"}, "Drehzahlmessung"},
                      {0, {"P", "S", "3", ""}, ""}},
                     {{1, {"P", "p", "1"}, "Power Measurement"},
                      {2, {"S", "s", "2"}, "Speed Measurement"},
                      {0, {"L", "D", "3", ""}, ""}}};
    for (gSprache = 1; gSprache <= 2; ++gSprache) {
        for (const auto &type : types[gSprache - 1]) {
            for (const QString &key : type.keys)
                EXPECT_EQ(Prüfart::ausTaste(key).value_or(QString()), type.text);
            EXPECT_EQ(Prüfart::ausText(type.text), type.code);
            EXPECT_EQ(Prüfart::ausAnfang(type.text), type.code);
        }
    }
    const char *missing[] = {"",
                             " die Drehzahl",
                             " die Leistung",
                             " die Drehzahl, Leistung",
                             " die Prüfart",
                             " die Drehzahl und Prüfart",
                             " die Leistung und Prüfart",
                             " die Drehzahl, Leistung und Prüfart"};
    for (int bits = 0; bits < 8; ++bits)
        EXPECT_EQ(fehlendeAngaben(bits & 1, bits & 2, bits & 4), missing[bits]);
}

class StepTable : public Steps, public testing::WithParamInterface<const char *> {
  protected:
    StepTable() { gDatenbank.openFile(datenbankName); }

    static constexpr Schlüssel own = 700, other = 701;
    const Schrittliste steps{GetParam()};

    static Schritt step(int number, int power) {
        return {number, "60", QString::number(power), 1 + power % 2};
    }
    /// Power of each step of the recipe in the order of their numbers, which have to be 1, 2, 3 ...
    std::vector<int> powers(Schlüssel recipe) {
        std::vector<int> found;
        const Recordset rows =
            gDatenbank.open(QString("SELECT Prüfschritt, Leistung FROM %1 WHERE RezeptID = ? "
                                    "ORDER BY Val(Prüfschritt)")
                                .arg(GetParam()),
                            {recipe});
        for (int row = 0; row < rows.count(); ++row) {
            EXPECT_EQ(rows.at(row, 0).toString(), QString::number(row + 1));
            found.push_back(rows.at(row, 1).toInt());
        }
        return found;
    }
};

INSTANTIATE_TEST_SUITE_P(Tables, StepTable, testing::Values("Rezepte", "ÄndRez_temp"));

TEST_P(StepTable, NumbersStayWithoutGapOrDouble) {
    for (int number = 1; number <= 12; ++number)
        steps.anlegen(other, step(number, number));
    const std::vector<int> bystander = powers(other);

    std::mt19937 random(20);
    std::vector<int> model;
    for (int turn = 0; turn < 120; ++turn) {
        const int size = static_cast<int>(model.size());
        EXPECT_EQ(steps.größteNummer(own), size);
        const int at = std::uniform_int_distribution(1, size + 1)(random);
        EXPECT_EQ(steps.vorhanden(own, at), at <= size);
        if (at <= size && random() % 5 < 2) {
            steps.löschen(own, at);
            model.erase(model.begin() + at - 1);
        } else if (at <= size && random() % 3 == 0) {
            steps.ändern(own, step(at, 1000 + turn));
            model[static_cast<size_t>(at) - 1] = 1000 + turn;
        } else {
            steps.einfügen(own, step(at, turn));
            model.insert(model.begin() + at - 1, turn);
        }
        EXPECT_EQ(powers(own), model) << "turn " << turn;
    }
    EXPECT_GT(model.size(), 10u) << "two digits are among them";
    EXPECT_EQ(powers(other), bystander);

    const Schritt incomplete[] = {
        {1, "", "50", 1},   {1, "60", "", 1},   {1, "60", "viel", 1},
        {1, "60", "50", 0}, {0, "60", "50", 1},
    };
    for (const Schritt &bad : incomplete) {
        EXPECT_THROW(steps.einfügen(own, bad), Fehler);
        EXPECT_THROW(steps.anlegen(own, bad), Fehler);
        EXPECT_THROW(steps.ändern(own, bad), Fehler);
        EXPECT_EQ(powers(own), model) << "nothing has moved";
    }
    EXPECT_THROW(steps.ändern(own, step(99, 1)), Fehler) << "no such step";
}

TEST_P(StepTable, NumbersAreReadUnderAnyFormat) {
    for (const auto *format : {&comma, &point}) {
        platform::setNumberLocale(*format);
        steps.anlegen(own, {1, platform::CStr(60.5), platform::CStr(75.5), 2});
        for (const auto *reader : {&comma, &point}) {
            platform::setNumberLocale(*reader);
            const Schritt read = schrittAus(
                GetParam() == QString("Rezepte") ? gespeicherteSchritte(own) : kopierteSchritte());
            EXPECT_EQ(read.nummer, 1);
            EXPECT_EQ(read.drehzahl, platform::CStr(60.5));
            EXPECT_EQ(read.leistung, platform::CStr(75.5));
            EXPECT_EQ(read.prüfart, 2);
        }
        steps.löschen(own, 1);
    }
}

} // namespace
