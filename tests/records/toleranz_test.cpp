// Specifications without a screen: rounding, limits, and the rows of the store.
#include "records/toleranz.h"

#include "workshop.h"

namespace {

using namespace support;

class Specification : public Workshop {
  protected:
    Specification() { gDatenbank.openFile(datenbankName); }
    static QString shownRows() {
        QStringList texts;
        for (Recordset rows = toleranzListe(); !rows.atEnd(); rows.moveNext())
            texts += rows["Toleranz"].text();
        return texts.join('+');
    }
};

TEST_F(Specification, IsRoundedToTenthsAndFromAThresholdOnToHalves) {
    // Percent and watt; whole numbers stay as they were typed.
    const auto table = cases(
        "7 -> | 7,0 -> | 5,96 -> | 7,2 -> 7,0, 7,0 | 7,3 -> 7,5, 7,5 | 7,7 -> 7,5, 7,5 | "
        "7,8 -> 8,0, 8,0 | 5,9 -> 6,0, 6,0 | 4,9 -> 4,9, 5,0 | 4,3 -> 4,3, 4,5 | 3,3 -> 3,3, 3,5 | "
        "2,9 -> 2,9, 2,9 | 2,33 -> 2,3, 2,3 | 2,25 -> 2,2, 2,2 | 2,35 -> 2,4, 2,4 | "
        "7,25 -> 7,0, 7,0 | 7,75 -> 8,0, 8,0 | 20,5 -> 20,5, 20,5 | 19,9 -> 20,0, 20,0 | "
        "-0,5 -> -0,5, -0,5");
    const auto rounded = [](const QString &text, int halves) {
        return leistungGerundet(text, halves).value_or(QString());
    };
    for (const Case &c : table) {
        EXPECT_EQ(rounded(c.in, halbeSchritteAbProzent), c.out_(0)) << c;
        EXPECT_EQ(rounded(c.in, halbeSchritteAbWatt), c.out_(1)) << c;
    }
    EXPECT_EQ(drehzahlGerundet("1,25"), "1,2");
    EXPECT_EQ(drehzahlGerundet("1000"), "1000");
    for (const char *none : {"", "abc", "5.96"})
        EXPECT_EQ(raised([&] { leistungGerundet(none, 5); }), 13) << none;

    setLanguage(2);
    for (Case c : table)
        EXPECT_EQ(rounded(c.in.replace(',', '.'), halbeSchritteAbWatt), "") << c;
    EXPECT_EQ(drehzahlGerundet("1.25"), "1.2");
}

TEST_F(Specification, HasLimits) {
    for (const Case &c : cases("0 -> in | 20 -> in | 20,5 -> in | 21 -> out | -1 -> out | "
                               "20.5 -> out | -0,5 -> in | abc -> in"))
        EXPECT_EQ(außerhalb(c.in, 0, größteLeistungstoleranz), c.out == "out") << c;
    for (const Case &c : cases("21, 2 -> out | 21, 3 -> in | 20, 21 -> in | -1, 21 -> out | "
                               "20,5, 2,5 -> out | 20,5, 20 -> in"))
        EXPECT_EQ(beideAußerhalb(c.in_(0), c.in_(1)), c.out == "out") << c;
    EXPECT_EQ(raised([] { beideAußerhalb("21", ""); }), 13);
}

TEST_F(Specification, IsListedInTheNumbersOfThePerson) {
    change("DELETE FROM Toleranzen");
    change("INSERT INTO Toleranzen (ID, Bezeichnung, Prozent, Watt, GrenzAbw) VALUES "
           "(4, 'Test', 5, 3, 2), (5, 'D''Arc', 7.5, 4.5, 1.2), (6, 'leer', NULL, NULL, NULL)");
    EXPECT_EQ(shownRows(), "D'Arc   (7,5% ; 4,5W ; 1,2 1/min)+leer   (% ; W ;  1/min)+"
                           "Test   (5% ; 3W ; 2 1/min)");
    EXPECT_EQ(toleranzMitID(5)->prozent, "7,5");
    EXPECT_EQ(toleranzMitID(6)->prozent, "");
    EXPECT_FALSE(toleranzMitID(7));
    setLanguage(2);
    EXPECT_EQ(shownRows().section('+', 0, 0), "D'Arc   (7.5% ; 4.5W ; 1.2 rpm)");
    for (const Case &c : cases("7.5, 4,5 -> D'Arc | 7,5, 4,5 -> D'Arc | 7.5 -> | 7.5, 4 -> | "
                               "7.5, x ->"))
        EXPECT_EQ(toleranzMitWerten(c.in_(0), c.in_(1)).value_or(QString()), c.out) << c;
}

TEST_F(Specification, IsWrittenWholeOrNotAtAll) {
    const auto rows = [] { return grid("SELECT * FROM Toleranzen ORDER BY ID"); };
    change("DELETE FROM Toleranzen");
    const Toleranz good{" Ärzte's", "7,5", "3", "1000", "frei", "نص"};
    toleranzEinfügen(good);
    const QString id = column("SELECT ID FROM Toleranzen").first();
    const auto key = static_cast<Schlüssel>(id.toInt());
    EXPECT_TRUE(bezeichnungVergeben(" ÄRZTE'S"));
    EXPECT_FALSE(bezeichnungVergeben("Ärzte"));
    for (QString Toleranz::*number : {&Toleranz::prozent, &Toleranz::watt, &Toleranz::grenzAbw}) {
        Toleranz bad = good;
        bad.*number = "";
        EXPECT_FALSE(bad.vollständig());
        EXPECT_EQ(raised([&] { toleranzEinfügen(bad); }), 13);
        EXPECT_EQ(raised([&] { toleranzÄndern(key, bad); }), 13);
    }
    EXPECT_EQ(rows(), id + "| Ärzte's|7.5|3|1000|frei|نص");
    toleranzÄndern(key, {"", "8", "2,5", "0", "", ""});
    EXPECT_EQ(rows(), id + "||8|2.5|0||");
    toleranzLöschen(key);
    EXPECT_EQ(rows(), "");
    EXPECT_EQ(raised([&] { toleranzÄndern(key, good); }), 3021) << "gone meanwhile";
}

} // namespace
