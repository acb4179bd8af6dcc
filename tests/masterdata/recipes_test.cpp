// Recipes: looked at, chosen for the session, and deleted.
#include "choosing.h"

namespace {

using namespace support;
using namespace platform;

class Recipes : public Choosing {
  protected:
    static QStringList steps() { return listed(frm::Rezepte, "DBGridRez"); }
    static QString box() { return text(frm::Rezepte, "cmbRezeptname"); }
    static QString count() {
        return text(frm::Rezepte, "laInfo")
            .remove(english() ? "Number Of Recipes: " : "Rezeptanzahl: ");
    }
    static Journey leave() {
        press(frm::Rezepte, "pbexit");
        co_await arrive(frm::Desktop);
    }
};

INSTANTIATE_TEST_SUITE_P(Languages, Recipes, testing::Values(1, 2));

TEST_P(Recipes, AreShownAndChosen) {
    const auto journey = [this]() -> Journey {
        co_await open("pbRezept", frm::Rezepte);
        EXPECT_EQ(count(), "5");
        for (const char *button : {"pbNeuRezept", "pbÄndRez", "pbDelete"})
            EXPECT_FALSE(control(frm::Rezepte, button)->isVisible()) << button;
        EXPECT_TRUE(
            visibleTexts(frm::Rezepte).contains(english() ? "Speed (1/min)" : "Drehzahl (1/min)"));
        type(frm::Rezepte, "cmbRezeptname", "bis");
        EXPECT_EQ(listed(frm::Rezepte, "lstRezepte"),
                  (QStringList{"Medizin 25 bis 400 W", "Reha bis 150 W"}));
        EXPECT_EQ(steps(), QStringList());
        enter(frm::Rezepte, "cmbRezeptname"); // the first of two, to be confirmed
        EXPECT_EQ(box(), "Medizin 25 bis 400 W");
        EXPECT_EQ(text(frm::Rezepte, "lbRezTol"), "medizinische Geräte");
        EXPECT_EQ(steps()[9],
                  english() ? "10|70|400|Power Measurement" : "10|70|400|Leistungsmessung  ");
        EXPECT_EQ(steps()[10],
                  english() ? "11|50|50|Speed Measurement" : "11|50|50|Drehzahlmessung  ");
        for (const char *nothing : {"", "x", "(*"}) {
            paste(frm::Rezepte, "cmbRezeptname", nothing);
            EXPECT_EQ(steps(), QStringList());
            EXPECT_EQ(text(frm::Rezepte, "lbRezTol"), "");
            EXPECT_EQ(canPress(frm::Rezepte, "pbok"), *nothing != 0);
            if (*nothing) {
                expectNothingFound({"Rezepte", "Recipes"});
                press(frm::Rezepte, "pbok");
            }
        }
        type(frm::Rezepte, "cmbRezeptname", "studio dauerbetrieb");
        press(frm::Rezepte, "pbok");
        co_await arrive(frm::Desktop);
        EXPECT_EQ(desktop(), "|||Studio Dauerbetrieb|stationäre Trainingsgeräte");
        EXPECT_EQ(gRezeptID, 5);
        EXPECT_EQ(gToleranzID, 2);
        EXPECT_TRUE(gMessverfahren.startsWith("Vergleich"));
    };
    run(journey());
}

TEST_P(Recipes, WithoutSpecificationAreRefused) {
    change("INSERT INTO Rezeptnamen (RezeptID, RezName, ToleranzID) VALUES (77, 'Verwaist', 99)");
    const auto journey = [this]() -> Journey {
        co_await recipe("Kurzprüfung");
        co_await open("pbRezept", frm::Rezepte);
        expectNoRecord("1012");
        type(frm::Rezepte, "cmbRezeptname", "Verwaist");
        EXPECT_TRUE(boxes.allCame());
        EXPECT_EQ(steps(), QStringList());
        expectNoRecord("1012");
        press(frm::Rezepte, "pbok");
        EXPECT_TRUE(inFront(frm::Rezepte));
        co_await leave();
        EXPECT_EQ(gRezeptID, 1);
        EXPECT_EQ(gToleranzID, 1);
        EXPECT_EQ(desktop(), "|||Kurzprüfung|medizinische Geräte");

        // The specification of the chosen one goes while another is looked at.
        change("UPDATE Rezeptnamen SET ToleranzID = 99 WHERE RezeptID = 1");
        co_await open("pbRezept", frm::Rezepte);
        type(frm::Rezepte, "cmbRezeptname", "Training Basis");
        co_await leave();
        EXPECT_EQ(desktop(), "||||") << "it could not be measured with";
    };
    run(journey());
}

TEST_P(Recipes, TheOnlyOneWaitsForOk) {
    change("DELETE FROM Rezeptnamen WHERE RezeptID <> 4");
    const auto journey = [this]() -> Journey {
        co_await open("pbRezept", frm::Rezepte);
        EXPECT_EQ(box(), "Training Basis");
        EXPECT_EQ(steps().size(), 6);
        EXPECT_TRUE(focused(frm::Rezepte, "pbok"));
        key(frm::Rezepte, "pbok", Qt::Key_Return);
        co_await arrive(frm::Desktop);
        EXPECT_EQ(desktop(), "|||Training Basis|stationäre Trainingsgeräte");

        // Told once when it cannot be used.
        change("UPDATE Rezeptnamen SET ToleranzID = 99");
        expectNoRecord("1012");
        co_await open("pbRezept", frm::Rezepte);
        co_await leave();
        change("DELETE FROM Rezeptnamen");
        co_await open("pbRezept", frm::Rezepte);
        EXPECT_EQ(count(), "0");
        EXPECT_FALSE(canPress(frm::Rezepte, "pbok"));
    };
    run(journey());
}

TEST_P(Recipes, AreDeletedWithTheirSteps) {
    const auto journey = [this]() -> Journey {
        co_await maintain();
        EXPECT_TRUE(canPress(frm::Rezepte, "pbNeuRezept"));
        for (const char *button : {"pbÄndRez", "pbDelete", "pbok"})
            EXPECT_FALSE(canPress(frm::Rezepte, button)) << button;
        // What ends half-way is shown as it is stored.
        type(frm::Rezepte, "cmbRezeptname", "Training Basis");
        spoil("DELETE", "Rezeptnamen");
        boxes.expect(english() ? "Do you really want …" : "Wollen sie die Tabelle …", Yes);
        expectFailure("1018");
        press(frm::Rezepte, "pbDelete");
        mend();
        EXPECT_EQ(box(), "Training Basis");
        EXPECT_EQ(listed(frm::Rezepte, "DBGridRez"), QStringList());
        for (const bool yes : {false, true}) {
            type(frm::Rezepte, "cmbRezeptname", "Reha bis 150 W");
            expectBox({"Wollen sie die Tabelle Reha bis 150 W wirklich löschen?",
                       "Do you really want to delete the table 'Reha bis 150 W'?"},
                      YesNo + Question, {"Achtung!", "ATTENTION"}, yes ? Yes : No);
            press(frm::Rezepte, "pbDelete");
            EXPECT_TRUE(boxes.allCame());
            EXPECT_EQ(box() + text(frm::Rezepte, "lbRezTol"), "");
            EXPECT_EQ(count(), yes ? "4" : "5");
            EXPECT_EQ(column("SELECT count(*) FROM Rezepte WHERE RezeptID = 3"),
                      QStringList{yes ? "0" : "7"});
        }
        EXPECT_EQ(column("SELECT count(*) FROM Rezepte"), QStringList{"24"});
        type(frm::Rezepte, "cmbRezeptname", "bis");
        EXPECT_TRUE(canPress(frm::Rezepte, "pbÄndRez"));
        press(frm::Rezepte, "pbok"); // just closes; nothing is chosen here
        co_await arrive(frm::Desktop);
        EXPECT_EQ(desktop(), "||||");
    };
    run(journey());
}

} // namespace
