// The verdicts over a step. What is expected was worked out in decimal arithmetic.

#include <gtest/gtest.h>

#include <QLocale>
#include <QSet>
#include <QTemporaryDir>

#include "bewertung.h"
#include "database.h"
#include "drehmoment.h"
#include "fehler.h"
#include "messwerte.h"
#include "runtime.h"
#include "scripts.h"
#include "session.h"

namespace {

constexpr double old = 7.5; // what the step before left
const Unsicherheiten none;
const Unsicherheiten powerRows{{25, 1}, {100, 2}, {400, 1}}; // W, then %
const Unsicherheiten speedRows{{60, 1}, {130, 2}};

/// Of one of the edges between the verdicts, from below the tolerance to above it.
QString verdictAt(qsizetype edge, qsizetype edges) {
    const QStringList words = edges == 4 ? QStringList{"nein nein", "ja ja"}
                                         : QStringList{"nein nein", "nein ?", "ja ?", "ja ja"};
    return words[edge < edges / 2 ? edge : edges - 1 - edge];
}

class Bewertung : public testing::Test {
  protected:
    Bewertung() { use(1); }
    ~Bewertung() override {
        platform::setNumberLocale(QLocale());
        gSprache = 1;
    }
    /// The language and its number format.
    static void use(std::int16_t sprache) {
        platform::setNumberLocale(sprache == 2 ? QLocale(QLocale::English, QLocale::UnitedStates)
                                               : QLocale(QLocale::German, QLocale::Germany));
        gSprache = sprache;
    }
    /// The text as it stands in a box.
    static QString shown(QString text) {
        return text.replace('.', platform::numberLocale().decimalPoint());
    }
    /// Verdicts without and with uncertainty, as "ja ?"; the second is in the language.
    static void expectVerdicts(const Urteil &urteil, const QString &verdicts, double muProz) {
        const QStringList expected = verdicts.split(' ');
        EXPECT_EQ(urteil.ohne, expected[0] == "ja");
        EXPECT_EQ(urteil.mit.toStdString(), gSprache == 2 && expected[1] == "ja" ? "yes"
                                            : gSprache == 2 && expected[1] == "nein"
                                                ? "no"
                                                : expected[1].toStdString());
        EXPECT_DOUBLE_EQ(urteil.muProz, muProz);
    }
    /// What must not be left of the step before.
    static Urteil before(const QString &verdicts) {
        return {!verdicts.startsWith("ja"), "before", old};
    }
};

TEST_F(Bewertung, OfAPower) {
    const struct {
        const char *soll;
        const char *edges; // the last or the first values of each verdict, W
        double prozent, watt;
        const Unsicherheiten &rows;
        double muProz;
    } cases[] = {
        // The share or the minimum, whichever is more
        {"50", "44.99 45.00 55.00 55.01", 5, 5, none, old},
        {"100", "94.99 95 105.00 105.01", 5, 5, none, old},
        {"101", "95.94 95.95 106.05 106.06", 5, 5, none, old},
        {"200", "189.99 190.00 210.00 210.01", 5, 5, none, old},
        {"120.5", "114.47 114.48 126.52 126.53", 5, 5, none, old},
        {"0", "-5.01 -5.00 5.00 5.01", 5, 5, none, old},
        {"100", "99.99 100.00 100.00 100.01", 0, 0, none, old},
        {"180", "179.89 179.90 180.10 180.11", 0, 0.1, none, old},
        {"60", "55.59 55.60 64.40 64.41", 0, 4.4, none, old}, // 6440 is a trace more in binary
        {"200", "194.99 195.00 205.00 205.01", 2.5, 0, none, old},
        // 1 W in the first row, then 2 and 1 %
        {"25", "18.99 19.00 20.99 21.00 29.00 29.01 31.00 31.01", 5, 5, powerRows, 4},
        {"10", "3.99 4.00 5.99 6.00 14.00 14.01 16.00 16.01", 5, 5, powerRows, 10},
        {"26", "20.47 20.48 21.51 21.52 30.48 30.49 31.52 31.53", 5, 5, powerRows, 2},
        {"100", "92.99 93.00 96.99 97.00 103.00 103.01 107.00 107.01", 5, 5, powerRows, 2},
        {"200", "187.99 188.00 191.99 192.00 208.00 208.01 212.00 212.01", 5, 5, powerRows, 1},
        {"400", "375.99 376.00 383.99 384.00 416.00 416.01 424.00 424.01", 5, 5, powerRows, 1},
        {"401", "380.94 380.95 421.05 421.06", 5, 5, powerRows, old},
    };
    for (const auto &c : cases) {
        const QStringList edges = QString(c.edges).split(' ');
        for (int i = 0; i < edges.size(); ++i) {
            const QString verdict = verdictAt(i, edges.size());
            SCOPED_TRACE(c.soll + (" W, " + edges[i].toStdString()));
            for (const std::int16_t sprache : std::initializer_list<std::int16_t>{1, 2}) {
                use(sprache);
                Urteil urteil = before(verdict);
                SchrittTexte texte{shown("60"), shown(c.soll), shown("60.00"), shown(edges[i]), ""};
                leistungBewerten(urteil, texte, {c.prozent, c.watt, 3}, c.rows);
                expectVerdicts(urteil, verdict, c.muProz);
                EXPECT_EQ(texte.ist_n_ergom, "0");
            }
        }
    }
}

TEST_F(Bewertung, OfASpeed) {
    const struct {
        const char *soll, *ergom;
        std::int16_t grenzAbw;
        const char *edges; // the last or the first speeds of each verdict, 1/min
        double muProz;
    } cases[] = {
        // 1 % of the reading, then 2 %; the set-point only chooses the row
        {"60", "60", 2, "57.39 57.40 58.59 58.60 61.40 61.41 62.60 62.61", 1},
        {"10", "50", 2, "47.49 47.50 48.49 48.50 51.50 51.51 52.50 52.51", 1},
        {"61", "60", 2, "56.79 56.80 59.19 59.20 60.80 60.81 63.20 63.21", 2},
        {"130", "62", 2, "58.75 58.76 61.23 61.24 62.76 62.77 65.24 65.25", 2},
        {"60", "60", 1, "58.39 58.40 59.59 59.60 60.40 60.41 61.60 61.61", 1},
        {"131", "60", 2, "57.99 58.00 62.00 62.01", old}, // no row
    };
    for (const auto &c : cases) {
        const QStringList edges = QString(c.edges).split(' ');
        for (int i = 0; i < edges.size(); ++i) {
            const QString verdict = verdictAt(i, edges.size());
            SCOPED_TRACE(c.soll + (": " + edges[i].toStdString()) + ", read " + c.ergom);
            for (const std::int16_t sprache : std::initializer_list<std::int16_t>{1, 2}) {
                use(sprache);
                Urteil urteil = before(verdict);
                const SchrittTexte texte{c.soll, "180", shown(edges[i]), "180.00", shown(c.ergom)};
                drehzahlBewerten(urteil, texte, {5, 5, c.grenzAbw}, speedRows);
                expectVerdicts(urteil, verdict, c.muProz);
            }
        }
    }
}

TEST_F(Bewertung, WithoutALanguageOnlyTheUndecidedIsSaid) {
    use(0);
    const std::pair<const char *, const char *> cases[] = {
        {"208,00", "ja before"}, {"209,00", "ja ?"}, {"212,01", "nein ?"}};
    for (const auto &[ist, verdicts] : cases) {
        Urteil urteil = before(verdicts);
        SchrittTexte texte{"60", "200", "60,00", ist, ""};
        leistungBewerten(urteil, texte, {5, 5, 0}, powerRows);
        expectVerdicts(urteil, verdicts, 1);
    }
}

TEST_F(Bewertung, TheRowIsChosenByTheLeadingNumber) {
    for (const std::int16_t sprache : std::initializer_list<std::int16_t>{1, 2}) {
        use(sprache);
        Urteil urteil;
        SchrittTexte texte{"60", shown("25.5"), shown("60.00"), shown("25.50"), ""};
        leistungBewerten(urteil, texte, {5, 5, 0}, powerRows);
        EXPECT_DOUBLE_EQ(urteil.muProz, sprache == 1 ? 4 : 2) << "25 in the first row";
    }
}

TEST_F(Bewertung, FailuresLeaveTheVerdictsOfTheStepBefore) {
    const auto raises = [](int number, auto attempt) {
        try {
            attempt();
            ADD_FAILURE() << "nothing was raised";
        } catch (const Fehler &fehler) {
            EXPECT_EQ(fehler.number(), number);
        }
    };
    Urteil urteil{true, "nein", old};
    SchrittTexte texte{"60", "0", "60,00", "0,00", "61"};
    raises(platform::fehlernummer::DivisionByZero, [&] {
        leistungBewerten(urteil, texte, {5, 5, 0}, powerRows);
    });
    EXPECT_TRUE(urteil.ohne);
    EXPECT_EQ(urteil.mit, "nein");
    EXPECT_EQ(urteil.muProz, 1) << "as the row says";
    EXPECT_EQ(texte.ist_n_ergom, "61");

    for (const char *text : {"", "12.5", "abc", "1,2,3"}) {
        texte.ist_P_torvena = text;
        raises(platform::fehlernummer::TypeMismatch, [&] {
            leistungBewerten(urteil, texte, {5, 5, 0}, none);
        });
        texte.ist_n_torvena = text;
        raises(platform::fehlernummer::TypeMismatch, [&] {
            drehzahlBewerten(urteil, texte, {5, 5, 0}, none);
        });
        EXPECT_EQ(urteil.mit, "nein");
    }
}

TEST_F(Bewertung, OfAFinalTest) {
    const struct {
        const char *soll_P, *ist_P, *torvena, *ergom;
        Spezifikation spezifikation; // the share is a fraction here
        bool good;
    } cases[] = {
        {"200", "210,00", "60,00", "50", {0.05, 5, 0}, true}, // no limit of speed
        {"200", "210,01", "60,00", "60", {0.05, 5, 0}, false},
        {"200", "190,00", "60,00", "60", {0.05, 5, 2}, true},
        {"200", "190,00", "60,00", "63", {0.05, 5, 2}, false},
        {"200", "190,00", "62,90", "60", {0.05, 5, 2}, true}, // 62 is what is compared
        {"200", "190,00", "57,00", "60", {0.05, 5, 2}, false},
        {"50", "52,00", "60", "60", {0, 2.5, 2}, true}, // 2.5 W counts as 2
        {"50", "52,01", "60", "60", {0, 2.5, 2}, false},
        {"50", "52,00", "60", "60", {0, 1.5, 2}, true}, // and 1.5 W as well
        {"100", "100,01", "60", "60", {0, 0, 0}, false},
    };
    for (const auto &c : cases) {
        const SchrittTexte texte{"60", c.soll_P, c.torvena, c.ist_P, c.ergom};
        EXPECT_EQ(endprüfungBewerten(texte, c.spezifikation), c.good)
            << c.soll_P << ' ' << c.ist_P << ' ' << c.torvena << ' ' << c.ergom;
    }
}

TEST_F(Bewertung, PermittedDeviationAndTorque) {
    const struct {
        double prozent, watt;
        const char *soll;
        double watts;
    } cases[] = {
        {5, 5, "50", 5}, {5, 5, "200", 10}, {0, 3, "200", 3}, {5, 1, "", 1}, {5, 0, "120,5", 6}};
    for (const auto &c : cases)
        EXPECT_DOUBLE_EQ(fnc_LeistungsToleranz(c.prozent, c.watt, c.soll), c.watts) << c.soll;
    for (const auto &[speed, permitted] : {std::pair{50.0, 314.0}, {60, 376}})
        EXPECT_TRUE(drehmoment(speed, permitted) <= grenzDrehmoment &&
                    drehmoment(speed, permitted + 1) > grenzDrehmoment);
    EXPECT_EQ(drehmoment(0, 800), 0);
    EXPECT_DOUBLE_EQ(drehmoment(60, 188.4), 30);
}

class Tables : public Bewertung {
  protected:
    Tables() {
        const QString path = directory.filePath("torvena470.mdb");
        legeDatenbankAn(path, false);
        gDatenbank.openFile(path);
        gDatenbank.execute("DELETE FROM MU_Leistung");
        gDatenbank.execute("INSERT INTO MU_Leistung VALUES (1, 25, 1), (2, 100.5, 0.25)");
    }
    ~Tables() override { gDatenbank.close(); }
    QTemporaryDir directory;
};

TEST_F(Tables, OfUncertaintyAreReadByPosition) {
    const Unsicherheiten rows = unsicherheitLeistung();
    ASSERT_EQ(rows.size(), 2u);
    EXPECT_EQ(rows[1].grenze, 100.5);
    EXPECT_EQ(rows[1].wert, 0.25);
    gDatenbank.execute("DELETE FROM MU_Drehzahl");
    EXPECT_TRUE(unsicherheitDrehzahl().empty());
}

TEST_F(Tables, OfSpecificationsHoldAWholeLimitOfSpeed) {
    for (const auto &[stored, used] : {std::pair{1.5, 2}, {2.5, 2}, {2.6, 3}, {0.5, 0}}) {
        gDatenbank.execute("INSERT OR REPLACE INTO Toleranzen (ID, Bezeichnung, Prozent, Watt, "
                           "GrenzAbw) VALUES (99, 'Probe', 2.5, 1.5, ?)",
                           {stored});
        ToleranzZeile zeile;
        ASSERT_TRUE(toleranzLesen(99, zeile));
        EXPECT_EQ(zeile.spezifikation.grenzAbw, used) << stored;
        EXPECT_EQ(zeile.spezifikation.prozent, 2.5);
        EXPECT_EQ(zeile.spezifikation.watt, 1.5);
        EXPECT_EQ(zeile.bezeichnung, "Probe");
    }
    ToleranzZeile untouched{"as before", {}};
    EXPECT_FALSE(toleranzLesen(98, untouched));
    EXPECT_EQ(untouched.bezeichnung, "as before");
}

TEST_F(Tables, DemoRowsHoldWhatTheirValuesGive) {
    legeDatenbankAn(directory.filePath("demo"), true);
    gDatenbank.openFile(directory.filePath("demo"));
    QSet<QString> seen;
    for (const QString state : {"", "_temp"}) {
        Recordset row = gDatenbank.open("SELECT * FROM Messwerte" + state + " JOIN Protokoll" +
                                        state + " USING (ProtokollID)");
        for (; !row.atEnd(); row.moveNext()) {
            SCOPED_TRACE(
                (row["ProtokollID"].text() + '/' + row["Prüfschritt"].text()).toStdString());
            const QString with = row["MU_mit"].text(), without = row["MU_ohne"].text();
            use(QStringList{"yes", "no"}.contains(without) ? 2 : 1);
            SchrittTexte texte{row["Soll_n"].text(), row["Soll_P"].text(),
                               row["Ist_n_torvena"].text(), row["Ist_P_torvena"].text(),
                               row["Ist_n_ergom"].text()};
            ToleranzZeile zeile;
            EXPECT_TRUE(toleranzLesen(row["PrüfungsArt"].whole(), zeile));
            Urteil urteil;
            if (texte.ist_n_ergom == "0")
                leistungBewerten(urteil, texte, zeile.spezifikation, unsicherheitLeistung());
            else
                drehzahlBewerten(urteil, texte, zeile.spezifikation, unsicherheitDrehzahl());
            EXPECT_EQ(with.toStdString(), urteil.mit.toStdString());
            EXPECT_EQ(without == "ja" || without == "yes", urteil.ohne);
            EXPECT_NEAR(row["MU_Proz"].number(), urteil.muProz, 1e-6);
            EXPECT_NEAR(row["Ist_D_torvena"].number(),
                        drehmoment(row["Ist_n_torvena"].number(), row["Ist_P_torvena"].number()),
                        0.04);
            seen += without + ' ' + with;
        }
    }
    EXPECT_TRUE(
        seen.contains(QSet<QString>{"ja ja", "ja ?", "nein ?", "nein nein", "yes yes", "no ?"}));
}

} // namespace
