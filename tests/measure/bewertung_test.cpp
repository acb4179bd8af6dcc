// The verdicts over a step. What is expected was worked out in decimal arithmetic.

#include <gtest/gtest.h>

#include <QLocale>
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
const QLocale german(QLocale::German, QLocale::Germany);
const QLocale english(QLocale::English, QLocale::UnitedStates);
const Unsicherheiten none;
const Unsicherheiten powerRows{{25, 1}, {100, 2}, {400, 1}}; // W, then %
const Unsicherheiten speedRows{{60, 1}, {130, 2}};

class Bewertung : public testing::Test {
  protected:
    Bewertung() { use(german, 1); }
    ~Bewertung() override { use(QLocale(), 1); }
    static void use(const QLocale &locale, std::int16_t sprache) {
        platform::setNumberLocale(locale);
        gSprache = sprache;
    }
    /// The text as it stands in a box.
    static QString shown(const char *text) {
        return QString(text).replace('.', platform::numberLocale().decimalPoint());
    }
};

const char *inEnglish(const std::string &verdict) {
    return verdict == "ja" ? "yes" : verdict == "nein" ? "no" : "?";
}

TEST_F(Bewertung, OfAPower) {
    const struct {
        const char *soll, *ist;
        double prozent, watt;
        bool uncertain;
        bool ohne;
        const char *mit;
        double muProz;
    } cases[] = {
        {"50", "45.00", 5, 5, false, true, "ja", old},
        {"50", "44.99", 5, 5, false, false, "nein", old},
        {"50", "55.00", 5, 5, false, true, "ja", old},
        {"50", "55.01", 5, 5, false, false, "nein", old},
        {"50", "50.00", 5, 5, false, true, "ja", old},
        {"100", "95.00", 5, 5, false, true, "ja", old},
        {"100", "94.99", 5, 5, false, false, "nein", old},
        {"100", "105.00", 5, 5, false, true, "ja", old},
        {"100", "105.01", 5, 5, false, false, "nein", old},
        {"101", "95.95", 5, 5, false, true, "ja", old},
        {"101", "95.94", 5, 5, false, false, "nein", old},
        {"200", "190.00", 5, 5, false, true, "ja", old},
        {"200", "189.99", 5, 5, false, false, "nein", old},
        {"200", "210.00", 5, 5, false, true, "ja", old},
        {"200", "210.01", 5, 5, false, false, "nein", old},
        {"180", "180.10", 5, 5, false, true, "ja", old},
        {"800", "760.00", 5, 5, false, true, "ja", old},
        {"800", "759.99", 5, 5, false, false, "nein", old},
        {"0", "5.00", 5, 5, false, true, "ja", old},
        {"0", "5.01", 5, 5, false, false, "nein", old},
        {"120.5", "126.52", 5, 5, false, true, "ja", old},
        {"120.5", "126.53", 5, 5, false, false, "nein", old},
        {"100", "100.00", 0, 0, false, true, "ja", old},
        {"100", "100.01", 0, 0, false, false, "nein", old},
        {"180", "180.10", 0, 0.1, false, true, "ja", old},
        {"180", "180.11", 0, 0.1, false, false, "nein", old},
        {"180", "179.90", 0, 0.1, false, true, "ja", old},
        {"180", "179.89", 0, 0.1, false, false, "nein", old},
        {"60", "64.40", 0, 4.4, false, true, "ja",
         old}, // 64.40 times 100 is a trace more in binary
        {"60", "64.41", 0, 4.4, false, false, "nein", old},
        {"60", "65.54", 0, 5.54, false, true, "ja", old},
        {"150", "165.00", 10, 0, false, true, "ja", old},
        {"150", "165.01", 10, 0, false, false, "nein", old},
        {"25", "28.00", 0, 3, false, true, "ja", old},
        {"25", "21.99", 0, 3, false, false, "nein", old},
        {"200", "205.00", 2.5, 0, false, true, "ja", old},
        {"200", "205.01", 2.5, 0, false, false, "nein", old},
        {"100", "95", 5, 5, false, true, "ja", old},
        {"25", "29.00", 5, 5, true, true, "ja", 4},
        {"25", "29.01", 5, 5, true, true, "?", 4},
        {"25", "31.00", 5, 5, true, false, "?", 4},
        {"25", "31.01", 5, 5, true, false, "nein", 4},
        {"25", "21.00", 5, 5, true, true, "ja", 4},
        {"25", "20.99", 5, 5, true, true, "?", 4},
        {"25", "19.00", 5, 5, true, false, "?", 4},
        {"25", "18.99", 5, 5, true, false, "nein", 4},
        {"25", "30.00", 5, 5, true, true, "?", 4},
        {"10", "14.00", 5, 5, true, true, "ja", 10},
        {"10", "16.01", 5, 5, true, false, "nein", 10},
        {"26", "30.48", 5, 5, true, true, "ja", 2},
        {"26", "30.49", 5, 5, true, true, "?", 2},
        {"26", "31.52", 5, 5, true, false, "?", 2},
        {"26", "31.53", 5, 5, true, false, "nein", 2},
        {"100", "103.00", 5, 5, true, true, "ja", 2},
        {"100", "103.01", 5, 5, true, true, "?", 2},
        {"100", "105.00", 5, 5, true, true, "?", 2},
        {"100", "105.01", 5, 5, true, false, "?", 2},
        {"100", "107.00", 5, 5, true, false, "?", 2},
        {"100", "107.01", 5, 5, true, false, "nein", 2},
        {"101", "105.04", 5, 5, true, true, "ja", 1},
        {"101", "105.05", 5, 5, true, true, "?", 1},
        {"200", "208.00", 5, 5, true, true, "ja", 1},
        {"200", "208.01", 5, 5, true, true, "?", 1},
        {"200", "209.00", 5, 5, true, true, "?", 1},
        {"200", "210.01", 5, 5, true, false, "?", 1},
        {"200", "212.00", 5, 5, true, false, "?", 1},
        {"200", "212.01", 5, 5, true, false, "nein", 1},
        {"200", "192.00", 5, 5, true, true, "ja", 1},
        {"200", "187.99", 5, 5, true, false, "nein", 1},
        {"400", "416.00", 5, 5, true, true, "ja", 1},
        {"400", "416.01", 5, 5, true, true, "?", 1},
        {"400", "424.00", 5, 5, true, false, "?", 1},
        {"400", "424.01", 5, 5, true, false, "nein", 1},
        {"401", "421.05", 5, 5, true, true, "ja", old},
        {"401", "421.06", 5, 5, true, false, "nein", old},
        {"401", "380.95", 5, 5, true, true, "ja", old},
        {"401", "380.94", 5, 5, true, false, "nein", old},
    };
    for (const auto &c : cases) {
        for (const bool inGerman : {true, false}) {
            inGerman ? use(german, 1) : use(english, 2);
            Urteil urteil{!c.ohne, "before", old};
            SchrittTexte texte{shown("60"), shown(c.soll), shown("60.00"), shown(c.ist), ""};
            leistungBewerten(urteil, texte, {c.prozent, c.watt, 3}, c.uncertain ? powerRows : none);
            const std::string which = std::string(c.soll) + " W, " + c.ist + " W";
            EXPECT_EQ(urteil.ohne, c.ohne) << which;
            EXPECT_EQ(urteil.mit.toStdString(), inGerman ? c.mit : inEnglish(c.mit)) << which;
            EXPECT_DOUBLE_EQ(urteil.muProz, c.muProz) << which;
            EXPECT_EQ(texte.ist_n_ergom, "0");
        }
    }
}

TEST_F(Bewertung, OfASpeed) {
    const struct {
        const char *soll, *torvena, *ergom;
        std::int16_t grenzAbw;
        bool ohne;
        const char *mit;
        double muProz;
    } cases[] = {
        {"60", "60.00", "60", 2, true, "ja", 1}, // U is 0.6
        {"60", "58.60", "60", 2, true, "ja", 1},
        {"60", "58.59", "60", 2, true, "?", 1},
        {"60", "58.00", "60", 2, true, "?", 1},
        {"60", "57.99", "60", 2, false, "?", 1},
        {"60", "57.40", "60", 2, false, "?", 1},
        {"60", "57.39", "60", 2, false, "nein", 1},
        {"60", "61.40", "60", 2, true, "ja", 1},
        {"60", "61.41", "60", 2, true, "?", 1},
        {"60", "62.60", "60", 2, false, "?", 1},
        {"60", "62.61", "60", 2, false, "nein", 1},
        {"10", "61.40", "60", 2, true, "ja", 1}, // the set-point only chooses the row
        {"60", "51.50", "50", 2, true, "ja", 1}, // U is 0.5, of the reading
        {"60", "51.51", "50", 2, true, "?", 1},
        {"60", "52.50", "50", 2, false, "?", 1},
        {"60", "52.51", "50", 2, false, "nein", 1},
        {"61", "59.20", "60", 2, true, "ja", 2}, // U is 1.2
        {"61", "59.19", "60", 2, true, "?", 2},
        {"130", "56.80", "60", 2, false, "?", 2},
        {"130", "56.79", "60", 2, false, "nein", 2},
        {"131", "58.00", "60", 2, true, "ja", old}, // no row
        {"131", "57.99", "60", 2, false, "nein", old},
        {"60", "60.00", "60", 0, true, "?", 1},
        {"60", "60.60", "60", 0, false, "?", 1},
        {"60", "60.61", "60", 0, false, "nein", 1},
        {"60", "60.4", "60.4", 1, true, "ja", 1},
    };
    for (const auto &c : cases) {
        for (const bool inGerman : {true, false}) {
            inGerman ? use(german, 1) : use(english, 2);
            Urteil urteil{!c.ohne, "before", old};
            const SchrittTexte texte{c.soll, "180", shown(c.torvena), "180.00", shown(c.ergom)};
            drehzahlBewerten(urteil, texte, {5, 5, c.grenzAbw}, speedRows);
            const std::string which =
                std::string(c.soll) + ": " + c.torvena + ", read " + c.ergom + " 1/min";
            EXPECT_EQ(urteil.ohne, c.ohne) << which;
            EXPECT_EQ(urteil.mit.toStdString(), inGerman ? c.mit : inEnglish(c.mit)) << which;
            EXPECT_DOUBLE_EQ(urteil.muProz, c.muProz) << which;
        }
    }
}

TEST_F(Bewertung, WithoutALanguageOnlyTheUndecidedIsSaid) {
    const struct {
        const char *ist;
        const char *mit;
        bool ohne;
    } cases[] = {{"208,00", "before", true}, {"209,00", "?", true}, {"212,01", "?", false}};
    for (const auto &c : cases) {
        use(german, 0);
        Urteil urteil{!c.ohne, "before", old};
        SchrittTexte texte{"60", "200", "60,00", c.ist, ""};
        leistungBewerten(urteil, texte, {5, 5, 0}, powerRows);
        EXPECT_EQ(urteil.mit, QString(c.mit)) << c.ist;
        EXPECT_EQ(urteil.ohne, c.ohne) << c.ist;
    }
}

TEST_F(Bewertung, TheRowIsChosenByTheLeadingNumber) {
    Urteil urteil;
    SchrittTexte texte{"60", "25,5", "60,00", "25,50", ""};
    leistungBewerten(urteil, texte, {5, 5, 0}, powerRows);
    EXPECT_DOUBLE_EQ(urteil.muProz, 4) << "25 in the first row";
    use(english, 2);
    texte.soll_P = texte.ist_P_torvena = "25.5";
    leistungBewerten(urteil, texte, {5, 5, 0}, powerRows);
    EXPECT_DOUBLE_EQ(urteil.muProz, 2);
}

TEST_F(Bewertung, FailuresLeaveTheVerdictsOfTheStepBefore) {
    const auto raises = [](int number, const std::function<void()> &attempt) {
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
        {"50", "55,00", "60", "60", {0.05, 5, 2}, true},
        {"50", "55,01", "60", "60", {0.05, 5, 2}, false},
        {"50", "52,00", "60", "60", {0, 2.5, 2}, true}, // 2.5 W counts as 2
        {"50", "52,01", "60", "60", {0, 2.5, 2}, false},
        {"50", "52,00", "60", "60", {0, 1.5, 2}, true}, // and 1.5 W as well
        {"100", "105,00", "60", "60", {0.05, 5, 2}, true},
        {"100", "100,00", "60", "60", {0, 0, 0}, true},
        {"100", "100,01", "60", "60", {0, 0, 0}, false},
    };
    for (const auto &c : cases) {
        const SchrittTexte texte{"60", c.soll_P, c.torvena, c.ist_P, c.ergom};
        EXPECT_EQ(endprüfungBewerten(texte, c.spezifikation), c.good)
            << c.soll_P << ' ' << c.ist_P << ' ' << c.torvena << ' ' << c.ergom;
    }
}

TEST_F(Bewertung, PermittedDeviationOfPower) {
    const struct {
        double prozent, watt;
        const char *soll;
        double watts;
    } cases[] = {{5, 5, "50", 5},    {5, 5, "100", 5}, {5, 5, "200", 10}, {0, 3, "200", 3},
                 {10, 0, "150", 15}, {5, 0, "0", 0},   {5, 1, "", 1},     {5, 0, "120,5", 6}};
    for (const auto &c : cases)
        EXPECT_DOUBLE_EQ(fnc_LeistungsToleranz(c.prozent, c.watt, c.soll), c.watts) << c.soll;
}

TEST_F(Bewertung, TorqueOfASetPoint) {
    const struct {
        double speed, power;
        bool permitted;
    } cases[] = {{50, 314, true}, {50, 315, false}, {0, 0, true},     {0, 800, true},
                 {60, 376, true}, {60, 377, false}, {130, 800, true}, {10, 63, false}};
    for (const auto &c : cases)
        EXPECT_EQ(drehmoment(c.speed, c.power) <= grenzDrehmoment, c.permitted)
            << c.speed << ' ' << c.power;
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

TEST_F(Tables, AreReadByPosition) {
    const Unsicherheiten rows = unsicherheitLeistung();
    ASSERT_EQ(rows.size(), 2u);
    EXPECT_EQ(rows[0].grenze, 25);
    EXPECT_EQ(rows[0].wert, 1);
    EXPECT_EQ(rows[1].grenze, 100.5);
    EXPECT_EQ(rows[1].wert, 0.25);
    gDatenbank.execute("DELETE FROM MU_Drehzahl");
    EXPECT_TRUE(unsicherheitDrehzahl().empty());
}

TEST_F(Tables, TheLimitOfSpeedIsAWholeNumber) {
    const std::pair<double, int> cases[] = {{1.5, 2}, {2.5, 2}, {2.6, 3}, {0.5, 0}, {3, 3}};
    for (const auto &[stored, used] : cases) {
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
    ToleranzZeile untouched{"as before", {1, 2, 3}};
    EXPECT_FALSE(toleranzLesen(98, untouched));
    EXPECT_EQ(untouched.bezeichnung, "as before");
    EXPECT_EQ(untouched.spezifikation.grenzAbw, 3);
}

} // namespace
