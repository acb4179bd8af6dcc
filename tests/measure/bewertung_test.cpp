// The verdicts over a step. What is expected was worked out in decimal arithmetic.
#include "measure/bewertung.h"

#include "platform/runtime.h"
#include "records/messwerte.h"
#include "session/drehmoment.h"
#include "session/session.h"
#include "workshop.h"

namespace {

using namespace platform::fehlernummer;
using namespace support;

constexpr double old = 7.5; // what the step before left
const Unsicherheiten none;
const Unsicherheiten powerRows{{25, 1}, {100, 2}, {400, 1}}; // W, then %
const Unsicherheiten speedRows{{60, 1}, {130, 2}};

class Bewertung : public Workshop {
  protected:
    Bewertung() { gDatenbank.openFile(datenbankName); }
    /// The language and its number format.
    static void use(int language) {
        platform::setNumberLocale(language == 1 ? QLocale::German : QLocale::English);
        gSprache = static_cast<std::int16_t>(language);
    }
    /// The text as it stands in a box.
    static QString shown(QString text) {
        return text.replace('.', platform::numberLocale().decimalPoint());
    }
    /// Judges over what the step before left, which must be another verdict; "ja ?, 2" is what was
    /// found without and with uncertainty, the second in the language, and the uncertainty.
    template <class Judge>
    static void expectVerdicts(QString verdicts, Judge judge) {
        Urteil urteil{!verdicts.startsWith("ja"), "before", old};
        judge(urteil);
        if (gSprache == 2)
            verdicts.replace(" ja", " yes").replace(" nein", " no");
        EXPECT_EQ((urteil.ohne ? "ja " : "nein ") + urteil.mit, verdicts.section(", ", 0, 0));
        EXPECT_DOUBLE_EQ(urteil.muProz, verdicts.section(", ", 1).toDouble());
    }
    /// Judges at each edge, from below the tolerance to above it, in both languages.
    template <class Judge>
    static void expectEdges(const Case &c, const QString &muProz, Judge judge) {
        const QStringList edges = c.out.split(' ');
        const QString words = edges.size() == 4
                                  ? "nein nein|ja ja|ja ja|nein nein"
                                  : "nein nein|nein ?|ja ?|ja ja|ja ja|ja ?|nein ?|nein nein";
        for (int i = 0; i < 2 * edges.size(); ++i) {
            use(i % 2 ? 2 : 1);
            SCOPED_TRACE(testing::Message() << c << ": " << edges[i / 2]);
            expectVerdicts(words.section('|', i / 2, i / 2) + ", " + muProz,
                           [&](Urteil &urteil) { judge(urteil, shown(edges[i / 2])); });
        }
    }
};

TEST_F(Bewertung, OfAPower) {
    // Set-point, % and W permitted, uncertainty with its table; 6440 is a trace more in binary.
    for (const Case &c : cases(R"(
            50 5 5 -> 44.99 45.00 55.00 55.01 | 100 5 5 -> 94.99 95 105.00 105.01
            | 101 5 5 -> 95.94 95.95 106.05 106.06 | 200 5 5 -> 189.99 190.00 210.00 210.01
            | 120.5 5 5 -> 114.47 114.48 126.52 126.53 | 0 5 5 -> -5.01 -5.00 5.00 5.01
            | 100 0 0 -> 99.99 100.00 100.00 100.01 | 180 0 0.1 -> 179.89 179.90 180.10 180.11
            | 60 0 4.4 -> 55.59 55.60 64.40 64.41 | 200 2.5 0 -> 194.99 195.00 205.00 205.01
            | 25 5 5 4 -> 18.99 19.00 20.99 21.00 29.00 29.01 31.00 31.01
            | 10 5 5 10 -> 3.99 4.00 5.99 6.00 14.00 14.01 16.00 16.01
            | 26 5 5 2 -> 20.47 20.48 21.51 21.52 30.48 30.49 31.52 31.53
            | 100 5 5 2 -> 92.99 93.00 96.99 97.00 103.00 103.01 107.00 107.01
            | 200 5 5 1 -> 187.99 188.00 191.99 192.00 208.00 208.01 212.00 212.01
            | 400 5 5 1 -> 375.99 376.00 383.99 384.00 416.00 416.01 424.00 424.01
            | 401 5 5 7.5 -> 380.94 380.95 421.05 421.06)")) {
        const QStringList in = c.in.split(' ');
        expectEdges(c, in.value(3, "7.5"), [&](Urteil &urteil, const QString &ist) {
            SchrittTexte texte{"60", shown(in[0]), "60", ist, ""};
            leistungBewerten(urteil, texte, {in[1].toDouble(), in[2].toDouble(), 3},
                             in.size() > 3 ? powerRows : none);
            EXPECT_EQ(texte.ist_n_ergom, "0");
        });
    }
}

TEST_F(Bewertung, OfASpeed) { // set-point, reading, 1/min permitted, uncertainty
    for (const Case &c : cases(R"(
            60 60 2 1 -> 57.39 57.40 58.59 58.60 61.40 61.41 62.60 62.61
            | 10 50 2 1 -> 47.49 47.50 48.49 48.50 51.50 51.51 52.50 52.51
            | 61 60 2 2 -> 56.79 56.80 59.19 59.20 60.80 60.81 63.20 63.21
            | 130 62 2 2 -> 58.75 58.76 61.23 61.24 62.76 62.77 65.24 65.25
            | 60 60 1 1 -> 58.39 58.40 59.59 59.60 60.40 60.41 61.60 61.61
            | 131 60 2 7.5 -> 57.99 58.00 62.00 62.01)")) {
        const QStringList in = c.in.split(' ');
        expectEdges(c, in[3], [&](Urteil &urteil, const QString &ist) {
            drehzahlBewerten(urteil, {in[0], "180", ist, "180", in[1]}, {5, 5, in[2].toShort()},
                             speedRows);
        });
    }
}

TEST_F(Bewertung, DistancesHaveASign) { // type, set, read, measured; 5 % or 3 W, 2 1/min
    for (const Case &c : cases(R"(
            1 100 - 105.15 -> 5.15 2 5 | 1 20 - 18 -> -2 1 3 | 2 60 58.5 60 -> -1.5 0.585 2)")) {
        const QStringList in = c.in.split(' ');
        const bool power = in[0] == "1";
        const Abstand is = schrittAbstand(
            {"60", in[1], shown(in[3]), shown(in[3]), shown(in[2]), "", "", in[0].toInt()},
            {5, 3, 2}, power ? powerRows : speedRows);
        EXPECT_EQ(QString("%1 %2 %3").arg(is.d).arg(is.u).arg(is.t), c.out);
    }
}

TEST_F(Bewertung, ByTheLeadingNumberAndWithoutALanguageOnlyTheUndecidedIsSaid) {
    for (const Case &c : cases("1, 25.5, 25.50 -> ja ja, 4 | 2, 25.5, 25.50 -> ja ja, 2 | "
                               "0, 200, 208.00 -> ja before, 1 | 0, 200, 209.00 -> ja ?, 1 | "
                               "0, 200, 212.01 -> nein ?, 1")) {
        SCOPED_TRACE(testing::Message() << c);
        use(c.in_(0).toInt());
        SchrittTexte texte{"60", shown(c.in_(1)), "60", shown(c.in_(2)), ""};
        expectVerdicts(c.out, [&](Urteil &urteil) {
            leistungBewerten(urteil, texte, {5, 5, 0}, powerRows);
        });
    }
}

TEST_F(Bewertung, FailuresLeaveTheVerdictsOfTheStepBefore) {
    Urteil urteil{true, "nein", old};
    SchrittTexte texte{"60", "0", "60,00", "0,00", "61"};
    const auto power = [&](const Unsicherheiten &rows) {
        return raised([&] { leistungBewerten(urteil, texte, {5, 5, 0}, rows); });
    };
    const auto both = [&](const Unsicherheiten &rows, int number) {
        EXPECT_EQ(power(rows), number) << texte.ist_n_torvena;
        EXPECT_EQ(raised([&] {
                      drehzahlBewerten(urteil, texte, {5, 5, 0}, rows);
                  }),
                  number)
            << texte.ist_n_torvena;
    };
    EXPECT_EQ(power(powerRows), DivisionByZero);
    EXPECT_EQ(urteil.muProz, 1) << "as the row says";
    both({{{}, 1}}, InvalidUseOfNull);
    both({{400, {}}}, InvalidUseOfNull);
    EXPECT_EQ(texte.ist_n_ergom, "61");
    for (const char *text : {"", "12.5", "abc", "1,2,3"}) {
        texte.ist_P_torvena = texte.ist_n_torvena = text;
        both(none, TypeMismatch);
    }
    EXPECT_TRUE(urteil.ohne);
    EXPECT_EQ(urteil.mit, "nein");
}

TEST_F(Bewertung, OfAFinalTest) {
    // W, W measured, 1/min measured, read; share, W, 1/min permitted: 0 is no limit of speed
    for (const Case &c : cases(R"(
            200 210,00 60,00 50 0.05 5 0 -> good | 200 210,01 60,00 60 0.05 5 0 -> bad
            | 200 190,00 60,10 58,10 0.05 5 2 -> good | 200 190,00 60,00 63 0.05 5 2 -> bad
            | 200 190,00 62,01 60 0.05 5 2 -> bad | 200 210,01 60,00 60 0.05 5 2 -> bad
            | 0 3,00 60 60 0.05 3 2 -> good | 50 3,01 60 60 0.05 3 2 -> bad)")) {
        const QStringList in = c.in.split(' ');
        EXPECT_EQ(endprüfungBewerten({"60", in[0], in[2], in[1], in[3]},
                                     {in[4].toDouble(), in[5].toDouble(), in[6].toShort()}),
                  c.out == "good")
            << c;
    }
    EXPECT_EQ(raised([] {
                  endprüfungBewerten({"60", "100", "60", "100", ""}, {0.05, 3, 2});
              }),
              TypeMismatch);
}

TEST_F(Bewertung, PermittedDeviationAndTorque) {
    for (const Case &c : cases("5, 5, 50 -> 5 | 5, 5, 200 -> 10 | 0, 3, 200 -> 3 | 5, 1 -> 1 | "
                               "5, 0, 120,5 -> 6"))
        EXPECT_DOUBLE_EQ(fnc_LeistungsToleranz(c.in_(0).toDouble(), c.in_(1).toDouble(), c.in_(2)),
                         c.out.toDouble())
            << c;
    for (const auto &[speed, permitted] : {std::pair{50.0, 314.0}, {60, 376}})
        EXPECT_TRUE(drehmoment(speed, permitted) <= grenzDrehmoment &&
                    drehmoment(speed, permitted + 1) > grenzDrehmoment);
    EXPECT_EQ(drehmoment(0, 800), 0);
    EXPECT_DOUBLE_EQ(drehmoment(60, 188.4), 30);
}

TEST_F(Bewertung, UncertaintiesAndSpecificationsAreReadByPosition) {
    change("DELETE FROM MU_Leistung");
    change("INSERT INTO MU_Leistung VALUES (1, 25, 1), (2, 100.5, 0.25), (3, NULL, NULL)");
    change("DELETE FROM MU_Drehzahl");
    const Unsicherheiten rows = unsicherheitLeistung();
    ASSERT_EQ(rows.size(), 3u);
    EXPECT_TRUE(rows[1].grenze == 100.5 && rows[1].wert == 0.25);
    EXPECT_FALSE(rows[2].grenze || rows[2].wert);
    EXPECT_TRUE(unsicherheitDrehzahl().empty());
    change("INSERT INTO Toleranzen (ID, Bezeichnung, Prozent, Watt, GrenzAbw) "
           "VALUES (99, 'X', 2.5, 1.5, 3.5)");
    EXPECT_FALSE(spezifikationMitID(98));
    const Spezifikation is = *spezifikationMitID(99);
    EXPECT_TRUE(is.prozent == 2.5 && is.watt == 1.5 && is.bezeichnung == "X");
    EXPECT_EQ(is.grenzAbw, 4) << "a whole limit of speed";
}

} // namespace
