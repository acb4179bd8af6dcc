// What the strip over the verdict says, the ring to the next result, and what both paint.
#include "measure/vorschau.h"

#include <QStandardItemModel>
#include <QStyleOptionViewItem>

#include "measure/anweisungsbild.h"
#include "measure/driftanzeige.h"
#include "measure/takt.h"
#include "measure/urteilsanzeige.h"
#include "measure/urteilsspalte.h"
#include "painted.h"
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
            | measures yes 1 60,0 60,00 - 100 - -> values | measures yes 1 60,0 - 16 100 - -> values
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

class Picture : public Workshop {
  protected:
    static QImage strip(const std::vector<Abstand> &distances, Spruch verdict) {
        Vorschau preview;
        preview.spruch = verdict;
        for (const Abstand &distance : distances)
            preview.vergleiche.push_back(leistungsVergleich(distance));
        preview.wörter = {{"MU", verdict, "x"}};
        Urteilsanzeige widget;
        widget.zeige(preview);
        return painted(widget, {500 + 400 * int(distances.size()), 100});
    }
};

// Fails from a limit on, open around both of them, passes between: the pointer on its side.
TEST_F(Picture, OfADeviation) {
    for (const Case &c : cases("0 1 -> nuTupTpuTun | 4.5 1 -> nuTupuTuTun | -4.5 1 -> nuTuTupuTun"
                               " | 7 1 -> nuTupuTunTn | -7 1 -> nTnuTupuTun | 20 1 -> nuTupuTunT"
                               " | -20 1 -> TnuTupuTun | 3 0 -> nTpTpTn | 3 9 -> uTuTuTu")) {
        const QStringList in = c.in.split(' ');
        const QImage image = strip({{in[0].toDouble(), in[1].toDouble(), 5}}, Spruch::Ja);
        EXPECT_EQ(along(image, 0.3, 0, 0.9).section('.', -2, -2), c.out) << c;
    }
    Urteilsanzeige widget; // the ring fills until there is a verdict
    const auto sign = [&widget] { return along(painted(widget, {500, 100}), 0.35, 0, 0.2); };
    widget.zeige({}, "Wartet");
    widget.zeigeTakt(Taktstand{0.75, false});
    EXPECT_EQ(sign(), ".k.A.");
    widget.zeigeTakt({});
    EXPECT_EQ(sign(), ".k.k.");
    Vorschau preview;
    preview.vergleiche = {drehzahlVergleich({-4.5, 0.12346, 5.25})};
    widget.zeige(preview);
    widget.zeigeTakt(Taktstand{0.75, false});
    EXPECT_EQ(sign(), ".?.");
    EXPECT_TRUE(widget.accessibleName().endsWith(
        "n −4,50 1/min, zulässig ± 5,25 1/min, Unsicherheit ± 0,123 1/min"))
        << widget.accessibleName();
    // Its own uncertainty at half the height: to the limit's post and over it.
    EXPECT_EQ(along(strip({{4.5, 1, 5}}, Spruch::Ja), 0.45, 0, 0.9).section('.', -2, -2),
              "nuTupTun");
    EXPECT_EQ(along(strip({{4.5, 1, 5}, {-7, 1, 5}}, Spruch::Nein), 0.3),
              ".-.nuTupkpuTuTun.nTnuTupkpuTun.");
    EXPECT_EQ(along(strip({{4.5, 1, 5}}, Spruch::Nein), 0.45, 0.85), ".-.") << "before its word";
}

TEST_F(Picture, OfADrift) {
    for (const Case &c : cases("none -> _knTuTpTpTuTnk_ | -250 -> _knTu!T!TpTuTnk_"
                               " | -50 -> _knTuTpATpTuTnk_ | 0 -> _knTuTpTApTuTnk_"
                               " | 250 -> _knTuTpT!T!uTnk_ | 400 -> _knTuTpT!T!T!k_")) {
        DriftAnzeige widget;
        if (c.in != "none")
            widget.setBalken(driftBalken(c.in.toDouble()));
        const QImage image = painted(widget, {700, 90});
        EXPECT_EQ(along(image, 0.38), c.out) << c;
        EXPECT_EQ(along(image, 0.05), "_-_?_+_?_-_");
    }
}

TEST_F(Picture, OfARing) { // above and below the middle, left | right
    for (const Case &c :
         cases("0 -> _k_|_k_ _k_|_k_ | 0.25 -> _k_|_A_ _k_|_k_ | 0.75 -> _k_|_A_ _A_|_A_"
               " | 2 -> _-_-|-_-_ _-_-|-_-_")) {
        const double part = c.in.toDouble();
        const QImage ring = painted({200, 200}, [&](QPainter &painter, const QRectF &rect) {
            taktMalen(painter, rect, {part, part > 1});
        });
        QStringList rows;
        for (const double height : {0.3, 0.7})
            rows += along(ring, height, 0, 0.5) + '|' + along(ring, height, 0.5);
        EXPECT_EQ(rows.join(' '), c.out) << c;
    }
}

TEST_F(Picture, OfAnInstruction) { // its arrow, the axis, and below
    for (const Case &c : cases("0 -> T.T_ T.T.T.T.T_T.T.T.T.T T.T.T_T_T.T.T.T"
                               " | 1 -> T.T_A_ T.T.T.T.T.T.T.T.T T.T.T_T.T.T.T"
                               " | 2 -> _ _T.T.T_ _T_T.T.T_ | 3 -> _T.T_ _T.T.T_ _T.T.T_T_ "
                               "| 4 -> _- _-.-_ _-.-_")) {
        platform::Bild picture;
        anweisungZeigen(picture, Anweisung(c.in.toInt()));
        const QImage image = painted(picture, {220, 150});
        EXPECT_EQ(along(image, 0.19, 0, 0.5) + ' ' + along(image, 0.43) + ' ' + along(image, 0.54),
                  c.out)
            << c;
    }
}

TEST_F(Picture, OfAColumnOfVerdicts) {
    // A verdict, then chosen.
    for (const Case &c : cases("ja -> _+.+_ s+.+s | ? -> u?u u?u | nein -> n-.-n n-.-n | OK -> "
                               "_+.+_T_ s+.+sTs | - -> _ s")) {
        QStandardItemModel model;
        model.appendRow(new QStandardItem(box(c.in)));
        QStringList rows;
        for (const bool chosen : {false, true}) {
            const QImage cell = painted({120, 24}, [&](QPainter &painter, const QRectF &rect) {
                QStyleOptionViewItem option;
                option.rect = rect.toRect();
                option.state.setFlag(QStyle::State_Selected, chosen);
                Urteilsspalte().paint(&painter, option, model.index(0, 0));
            });
            rows += along(cell, 0.5, 0, 0.45);
        }
        EXPECT_TRUE(rows.join(' ').startsWith(c.out)) << c << "; " << rows.join(' ');
    }
}

} // namespace
