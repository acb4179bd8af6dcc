// Specifications without a screen: rounding, limits, and the rows of the store.
#include "toleranz.h"

#include "runtime.h"
#include "session.h"
#include "workplace.h"

namespace {

using namespace platform;

class Specification : public support::Workshop {
  protected:
    Specification() { fnc_DatenbankÖffnen(); }
    static void useEnglish() {
        gSprache = 2;
        setNumberLocale(QLocale(QLocale::English, QLocale::UnitedStates));
    }
    QStringList listed() {
        Recordset rows = toleranzListe();
        QStringList texts;
        for (; !rows.atEnd(); rows.moveNext())
            texts += rows["Toleranz"].text();
        return texts;
    }
};

TEST_F(Specification, IsRoundedToTenthsAndFromAThresholdOnToHalves) {
    const struct {
        const char *text, *percent, *watt; // "" : stays as it was typed
    } cases[] = {
        {"7", "", ""},
        {"7,0", "", ""},
        {"5,96", "", ""},
        {"7,2", "7,0", "7,0"},
        {"7,3", "7,5", "7,5"},
        {"7,7", "7,5", "7,5"},
        {"7,8", "8,0", "8,0"},
        {"5,9", "6,0", "6,0"},
        {"4,9", "4,9", "5,0"},
        {"4,3", "4,3", "4,5"},
        {"3,3", "3,3", "3,5"},
        {"2,9", "2,9", "2,9"},
        {"2,33", "2,3", "2,3"},
        {"2,25", "2,2", "2,2"},
        {"2,35", "2,4", "2,4"},
        {"7,25", "7,0", "7,0"},
        {"7,75", "8,0", "8,0"},
        {"20,5", "20,5", "20,5"},
        {"19,9", "20,0", "20,0"},
        {"-0,5", "-0,5", "-0,5"},
    };
    const auto rounded = [](const QString &text, int halves) {
        return leistungGerundet(text, halves).value_or(QString()).toStdString();
    };
    for (const auto &c : cases) {
        EXPECT_EQ(rounded(c.text, halbeSchritteAbProzent), c.percent) << c.text;
        EXPECT_EQ(rounded(c.text, halbeSchritteAbWatt), c.watt) << c.text;
    }
    EXPECT_EQ(drehzahlGerundet("1,25"), "1,2");
    EXPECT_EQ(drehzahlGerundet("1000"), "1000");
    for (const char *none : {"", "abc", "5.96"})
        EXPECT_THROW(leistungGerundet(none, 5), Fehler) << none;

    useEnglish();
    for (const auto &c : cases)
        EXPECT_EQ(rounded(QString(c.text).replace(',', '.'), halbeSchritteAbWatt), "") << c.text;
    EXPECT_EQ(drehzahlGerundet("1.25"), "1.2");
}

TEST_F(Specification, HasLimits) {
    const std::pair<const char *, bool> single[] = {{"0", false},    {"20", false}, {"20,5", false},
                                                    {"21", true},    {"-1", true},  {"20.5", true},
                                                    {"-0,5", false}, {"abc", false}};
    for (const auto &[text, outside] : single)
        EXPECT_EQ(außerhalb(text, 0, größteLeistungstoleranz), outside) << text;
    const struct {
        const char *percent, *watt;
        bool outside;
    } pairs[] = {{"21", "2", true},  {"21", "3", false},    {"20", "21", false},
                 {"-1", "21", true}, {"20,5", "2,5", true}, {"20,5", "20", false}};
    for (const auto &p : pairs)
        EXPECT_EQ(beideAußerhalb(p.percent, p.watt), p.outside) << p.percent << ' ' << p.watt;
    EXPECT_THROW(beideAußerhalb("21", ""), Fehler);
}

TEST_F(Specification, IsListedInTheNumbersOfThePerson) {
    change("DELETE FROM Toleranzen");
    change("INSERT INTO Toleranzen (ID, Bezeichnung, Prozent, Watt, GrenzAbw) VALUES "
           "(4, 'Test', 5, 3, 2), (5, 'D''Arc', 7.5, 4.5, 1.2), (6, 'leer', NULL, NULL, NULL)");
    EXPECT_EQ(listed(), (QStringList{"D'Arc   (7,5% ; 4,5W ; 1,2 1/min)", "leer   (% ; W ;  1/min)",
                                     "Test   (5% ; 3W ; 2 1/min)"}));
    EXPECT_EQ(toleranzMitID(5)->prozent, "7,5");
    EXPECT_EQ(toleranzMitID(6)->prozent, "");
    EXPECT_FALSE(toleranzMitID(7));
    useEnglish();
    EXPECT_EQ(listed().first(), "D'Arc   (7.5% ; 4.5W ; 1.2 rpm)");
    for (const char *percent : {"7.5", "7,5"})
        EXPECT_EQ(toleranzMitWerten(percent, "4,5"), "D'Arc");
    for (const char *watt : {"", "4", "x"})
        EXPECT_FALSE(toleranzMitWerten("7.5", watt)) << watt;
}

TEST_F(Specification, IsWrittenWholeOrNotAtAll) {
    const auto rows = [this] {
        return column("SELECT ID || ' ' || Bezeichnung || ' ' || Prozent || ' ' || Watt || ' ' || "
                      "GrenzAbw || ' ' || GKlasse || ' ' || Messverfahren FROM Toleranzen "
                      "ORDER BY ID");
    };
    change("DELETE FROM Toleranzen");
    const Toleranz good{" Ärzte's", "7,5", "3", "1000", "frei", "نص"};
    toleranzEinfügen(good);
    const QString id = column("SELECT ID FROM Toleranzen").first();
    EXPECT_EQ(rows(), QStringList{id + "  Ärzte's 7.5 3 1000 frei نص"});
    EXPECT_TRUE(bezeichnungVergeben(" ÄRZTE'S"));
    EXPECT_FALSE(bezeichnungVergeben("Ärzte"));

    const auto key = static_cast<Schlüssel>(id.toInt());
    for (QString Toleranz::*number : {&Toleranz::prozent, &Toleranz::watt, &Toleranz::grenzAbw}) {
        Toleranz bad = good;
        bad.*number = "";
        EXPECT_FALSE(bad.vollständig());
        EXPECT_THROW(toleranzEinfügen(bad), Fehler);
        EXPECT_THROW(toleranzÄndern(key, bad), Fehler);
    }
    EXPECT_EQ(rows().size(), 1);
    toleranzÄndern(key, {"", "8", "2,5", "0", "", ""});
    EXPECT_EQ(rows(), QStringList{id + "  8 2.5 0  "});
    toleranzLöschen(key);
    EXPECT_EQ(rows(), QStringList());
    EXPECT_THROW(toleranzÄndern(key, good), Fehler) << "gone meanwhile";
}

} // namespace
