// What the strip over the verdict says, and the ring to the next result.
#include "measure/vorschau.h"

#include "measure/takt.h"
#include "session/session.h"
#include "workshop.h"

namespace {

using namespace support;

/// "-" is an empty box.
QString box(const QString &text) {
    return text == "-" ? QString() : text;
}

TEST(Strip, StateOfThePhaseAndTheBoxes) {
    const QStringList phases{"rest", "typing", "unsent", "measures", "done"};
    const QStringList states{"empty",   "type",    "send",   "values",
                             "runs up", "reading", "judged", "sum"};
    // Phase, by a person, type; set-point of speed; speed, torque, power measured; reading.
    for (const Case &c : cases(R"(
            rest yes 1 60 60 16 100 - -> empty | typing yes 1 60 60 16 100 - -> type
            | unsent yes 1 60 60 16 100 - -> send | done yes 1 60 60 16 100 - -> sum
            | measures yes 1 60,0 - - - - -> values | measures yes 1 60,0 60,00 - - - -> values
            | measures yes 1 60,0 60,00 16,00 - - -> values
            | measures yes 1 60,0 58,99 16 100 - -> runs up | measures yes 2 60.0 61.01 16 100 60 -> runs up
            | measures yes 1 60,0 61,00 16 100 - -> judged | measures yes 2 60 59 16 100 - -> reading
            | measures yes 2 60 59 16 100 60 -> judged | measures no 2 60 59 16 100 - -> judged)")) {
        const QStringList in = c.in.split(' ');
        const Streifen is = streifen(
            Phase(phases.indexOf(in[0])),
            {in[3], "100", box(in[4]), box(in[6]), box(in[7]), box(in[5]), "1", in[2].toInt()},
            in[1] == "yes");
        EXPECT_EQ(states[int(is)], c.out) << c;
    }
    for (const Case &c : cases("60 58.5 -> 1.5 | 60,0 62,00 -> -2 | 0 0,00 -> 0 | 80 - -> 0"))
        EXPECT_EQ(anlauf({c.in.section(' ', 0, 0), "", box(c.in.section(' ', 1)), "", ""}),
                  c.out.toDouble())
            << c;
}

TEST(Strip, SumOfARecipe) { // in both languages, of a final test, and of a row without a verdict
    gSprache = 1;
    for (const Case &c : cases("ja yes OK ? no nein Out -> 3 1 3, nein | ja ? - -> 1 1 0, ? | "
                               "yes - -> 1 0 0, ja | - -> 0 0 0, none")) {
        QStringList words = c.in.split(' ');
        words.replaceInStrings("-", "");
        const Summe is = summe(words);
        const auto worst = is.schlimmster();
        EXPECT_EQ(QString("%1 %2 %3, ").arg(is.ja).arg(is.offen).arg(is.nein) +
                      (worst ? wort(*worst) : "none"),
                  c.out)
            << c;
    }
}

class Ring : public Workshop {};

TEST_F(Ring, FillsFromResultToResult) {
    int paints = 0;
    Takt ring([&paints] { ++paints; });
    const auto shown = [&ring] {
        const auto is = ring.stand();
        return !is ? QString("none") : QString::number(is->anteil) + (is->überfällig ? " ?" : "");
    };
    for (const Case &c : cases("60, 3000 -> 0.5 | 60, 6000 -> 1 | 60, 18000 -> 1 | 60, 19000 -> 1 ?"
                               " | 20, 9000 -> 0.5 | 120, 1000 -> 0.333333 | 0, 5000 -> none")) {
        ring.beginnen(c.in_(0).toDouble());
        clock.run(700);
        ring.rahmen();
        paints = 0;
        clock.run(c.in_(1).toInt());
        EXPECT_EQ(shown(), c.out) << c;
        EXPECT_LE(paints, c.in_(1).toInt() / 1000) << c;
    }
    ring.beginnen(60);
    ring.enden();
    EXPECT_EQ(shown(), "none");
}

} // namespace
