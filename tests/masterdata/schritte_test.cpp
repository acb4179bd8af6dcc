// Test steps of a recipe: what may be entered, and how their numbers are kept without gaps.
#include <random>

#include "masterdata/rezeptart.h"
#include "platform/runtime.h"
#include "session/session.h"
#include "workshop.h"

namespace {

using namespace support;

class Steps : public Workshop {};

TEST_F(Steps, LimitsUnderBothNumberFormats) {
    // Good, no number, or beyond: speed of a new step, of a changed one, power of both.
    const char *tables[] = {
        "0 -> bggg | -1 -> bbbb | 0,1 -> gggg | 120 -> gggg | 120,5 -> bbgg | 600 -> bbgg | "
        "600,1 -> bbbb | 60 W -> nnnn | 60.5 -> nnnn | 0.100 -> nnnn",
        // 0,600 is 0.6 to the torque.
        "60.5 -> gggg | 120.5 -> bbgg | 60,5 -> nnnn | 0,600 -> nnnn"};
    for (const int language : {1, 2}) {
        setLanguage(language);
        for (const Case &c : cases(tables[language - 1])) {
            QString judged;
            for (const auto check : {drehzahlPrüfen, leistungPrüfen}) {
                for (const auto &limits : {neuesRezept.grenzen, geändertesRezept.grenzen})
                    judged += "gnb"[static_cast<int>(check(c.in, limits))];
            }
            EXPECT_EQ(judged, c.out) << c;
        }
        // 57.3 and 63.7 N m; 60 to the letter under either decimal sign; what is none counts as 0
        for (const Case &c : cases("100, 600 -> 1 | 60, 400 -> 0 | 10, 62.8 -> 1 | 10, 62,8 -> 1 | "
                                   "10, 62,9 -> 0 | nichts, 600 -> 1"))
            EXPECT_EQ(drehmomentZulässig(c.in_(0), c.in_(1), neuesRezept.grenzen), c.out == "1")
                << c;
    }
}

TEST_F(Steps, TellWhatIsMissing) {
    QStringList missing;
    for (int bits = 0; bits < 8; ++bits) {
        const Schritt step{1, bits & 1 ? "" : "60", bits & 2 ? "" : "50", bits & 4 ? 0 : 1};
        missing += fehlendeAngaben(neuesRezept.angaben(step, {})).text.german;
    }
    EXPECT_EQ(missing.join(';'),
              "; die Drehzahl; die Leistung; die Drehzahl, Leistung; die Prüfart; die Drehzahl und "
              "Prüfart; die Leistung und Prüfart; die Drehzahl, Leistung und Prüfart");
}

class StepTable : public Steps, public testing::WithParamInterface<const char *> {
  protected:
    StepTable() { gDatenbank.openFile(datenbankName); }

    static constexpr Schlüssel own = 700, other = 701;
    const int sign = GetParam() == QString("Rezepte") ? 1 : -1;
    const Schrittliste steps{
        GetParam(),
        {{"SSCode", &Schritt::ssCode}, {"MessSchritte", &Schritt::messSchritte, true}},
        sign};

    static Schritt step(int number, int power) {
        return {number, "60", QString::number(power), 1 + power % 2, "", "1"};
    }
    /// "1:power+2:power" in the order of their numbers.
    QString stored(Schlüssel recipe) const {
        return grid(QString("SELECT Prüfschritt || ':' || Leistung FROM %1 WHERE RezeptID = ? "
                            "ORDER BY Val(Prüfschritt), Leistung")
                        .arg(GetParam()),
                    {sign * recipe});
    }
};

INSTANTIATE_TEST_SUITE_P(Tables, StepTable, testing::Values("Rezepte", "ÄndRez_temp"));

TEST_P(StepTable, NumbersStayWithoutGapOrDouble) {
    for (int number = 1; number <= 12; ++number)
        steps.anlegen(other, step(number, number));
    const QString bystander = stored(other);
    const int others = steps.alle().count();
    Schrittliste(GetParam(), {}, -sign).anlegen(own, step(1, 1)); // of the other kind

    std::mt19937 random(20);
    std::vector<int> model; // powers
    const auto modelled = [&] {
        QStringList all;
        for (const int power : model)
            all += QString("%1:%2").arg(all.size() + 1).arg(power);
        return all.join('+');
    };
    for (int turn = 0; turn < 120; ++turn) {
        const int size = static_cast<int>(model.size());
        EXPECT_EQ(steps.größteNummer(own), size);
        EXPECT_EQ(steps.alle().count(), size + others);
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
        EXPECT_EQ(stored(own), modelled()) << "turn " << turn;
    }
    EXPECT_GT(model.size(), 10u) << "two digits are among them";
    EXPECT_EQ(stored(other), bystander);

    const Schritt incomplete[] = {{1, "", "50", 1, "", "1"},     {1, "60", "", 1, "", "1"},
                                  {1, "60", "50", 0, "", "1"},   {0, "60", "50", 1, "", "1"},
                                  {1, "60", "50", 1, "", "0.4"}, {1, "60", "50", 1}};
    for (const Schritt &bad : incomplete) {
        EXPECT_NE(raised([&] { steps.einfügen(own, bad); }), 0);
        EXPECT_NE(raised([&] { steps.anlegen(own, bad); }), 0);
        EXPECT_NE(raised([&] { steps.ändern(own, bad); }), 0);
    }
    EXPECT_NE(raised([&] { steps.ändern(own, step(99, 1)); }), 0) << "no such step";
    EXPECT_EQ(stored(own), modelled()) << "nothing has moved";
    spoil("DELETE", GetParam());
    steps.löschen(other, 11);
    EXPECT_TRUE(stored(other).endsWith("+10:10+11:11+11:12")) << "what fails is skipped";
}

TEST_P(StepTable, NumbersAreReadUnderAnyFormat) {
    for (const int writerAndReader : {11, 12, 21, 22}) {
        setLanguage(writerAndReader / 10);
        steps.anlegen(own, {1, platform::CStr(60.5), platform::CStr(75.5), 2, "W[13]", "3"});
        setLanguage(writerAndReader % 10);
        const Schritt read = steps.schrittAus(steps.lesen(own));
        EXPECT_EQ(read.drehzahl + ' ' + read.leistung + ' ' + read.ssCode + read.messSchritte,
                  platform::CStr(60.5) + ' ' + platform::CStr(75.5) + " W[13]3");
        EXPECT_EQ(read.nummer * 10 + read.prüfart, 12);
        steps.löschen(own, 1);
    }
}

} // namespace
