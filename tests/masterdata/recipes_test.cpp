// Recipes: looked at, chosen for the session, and deleted.
#include "session/session.h"
#include "workplace.h"

namespace {

class Recipes : public support::Workplace {
  protected:
    Recipes() {
        views["session"] = [] { return QString("%1 %2").arg(gRezeptID).arg(gToleranzID); };
    }
};

JOURNEY_P(Recipes, AreShownAndChosen) {
    co_await logIn();
    co_await go(R"(
        pbRezept ; @Rezepte ; laInfo == Rezeptanzahl: 5 | Number Of Recipes: 5
        hidden pbNeuRezept pbÄndRez pbDelete
        cmbRezeptname = bis ; lstRezepte rows Medizin 25 bis 400 W+Reha bis 150 W ; DBGridRez rows
        cmbRezeptname !    # the first of two, to be confirmed
        cmbRezeptname == Medizin 25 bis 400 W ; lbRezTol == medizinische Geräte)");
    EXPECT_EQ(support::control<QAbstractItemView>(frm::Rezepte, "DBGridRez")
                  ->model()
                  ->headerData(1, Qt::Horizontal)
                  .toString(),
              english() ? "Speed\nrpm" : "Drehzahl\n1/min");
    co_await go(R"(
        DBGridRez rows~ ^1\|.*\+2\|.*\+10.70.400.Leistungsmessung  \+11.50.50.Drehzahlmessung  \+ | ^1\|.*\+2\|.*\+10.70.400.Power Measurement\+11.50.50.Speed Measurement\+
        cmbRezeptname := ; DBGridRez rows ; lbRezTol == ; cannot pbok
        cmbRezeptname := x ; DBGridRez rows ; lbRezTol == ; ? noRecipeFound ; pbok
        cmbRezeptname := (* ; DBGridRez rows ; lbRezTol == ; ? noRecipeFound ; pbok
        cmbRezeptname = bis ; mouse lstRezepte Reha bis 150 W ; cmbRezeptname == Reha bis 150 W
        cmbRezeptname = studio dauerbetrieb ; pbok ; @Desktop
        desktop == |||Studio Dauerbetrieb|stationäre Trainingsgeräte ; session == 5 2)");
    EXPECT_TRUE(gMessverfahren.startsWith("Vergleich"));
}

JOURNEY_P(Recipes, WithoutSpecificationAreRefused) {
    change("INSERT INTO Rezeptnamen (RezeptID, RezName, ToleranzID) VALUES (77, 'Verwaist', 99)");
    co_await logIn();
    co_await go(R"(
        pbRezept ; @Rezepte ; cmbRezeptname := Kurzprüfung ; pbok ; @Desktop
        pbRezept ; @Rezepte ; ? noRecord(1012) ; cmbRezeptname = Verwaist ; DBGridRez rows
        ? noRecord(1012) ; pbok ; front == Rezepte
        pbexit ; @Desktop ; session == 1 1 ; desktop == |||Kurzprüfung|medizinische Geräte
        # The specification of the chosen one goes while another is looked at.
        change UPDATE Rezeptnamen SET ToleranzID = 99 WHERE RezeptID = 1
        pbRezept ; @Rezepte ; cmbRezeptname = Training Basis ; pbexit ; @Desktop ; desktop == ||||)");
}

JOURNEY_P(Recipes, TheOnlyOneWaitsForOk) {
    change("DELETE FROM Rezeptnamen WHERE RezeptID <> 4");
    co_await logIn();
    co_await go(R"(
        pbRezept ; @Rezepte ; cmbRezeptname == Training Basis ; focus pbok
        DBGridRez rows~ ^1.60.50.([^+]*\+){5}6[^+]*$
        key Return ; @Desktop ; desktop == |||Training Basis|stationäre Trainingsgeräte
        change UPDATE Rezeptnamen SET ToleranzID = 99
        ? noRecord(1012) ; pbRezept ; @Rezepte    # told once
        pbexit ; @Desktop
        change DELETE FROM Rezeptnamen
        pbRezept ; @Rezepte ; laInfo == Rezeptanzahl: 0 | Number Of Recipes: 0 ; cannot pbok)");
}

JOURNEY_P(Recipes, AreDeletedWithTheirSteps) {
    co_await logIn();
    co_await go(R"(
        mnuRezepte ; @Rezepte ; can pbNeuRezept ; cannot pbÄndRez pbDelete pbok
        # What ends half-way is shown as it is stored.
        cmbRezeptname = Training Basis ; spoil DELETE Rezeptnamen
        ? deleteRecipe(Training Basis) yes ; ? failure(1018) ; pbDelete
        mend ; cmbRezeptname == Training Basis ; DBGridRez rows
        cmbRezeptname = Reha bis 150 W ; ? deleteRecipe(Reha bis 150 W) no ; pbDelete
        cmbRezeptname == ; lbRezTol == ; laInfo == Rezeptanzahl: 5 | Number Of Recipes: 5
        sql SELECT count(*) FROM Rezepte WHERE RezeptID = 3 == 7
        cmbRezeptname = Reha bis 150 W ; ? deleteRecipe(Reha bis 150 W) yes ; pbDelete
        cmbRezeptname == ; lbRezTol == ; laInfo == Rezeptanzahl: 4 | Number Of Recipes: 4
        sql SELECT count(*) FROM Rezepte WHERE RezeptID = 3 == 0
        sql SELECT count(*) FROM Rezepte == 24
        # Nothing is chosen here; nor does the next choice keep the buttons of this way in.
        cmbRezeptname = bis ; can pbÄndRez ; pbok ; @Desktop ; desktop == ||||
        pbRezept ; @Rezepte ; hidden pbNeuRezept pbÄndRez pbDelete ; pbexit ; @Desktop
        mnuRezepte ; @Rezepte ; shown pbNeuRezept pbÄndRez pbDelete)");
}

} // namespace
