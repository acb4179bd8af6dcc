// A new recipe: its name, its steps, leaving it, and filling it from another one.
#include <QTest>

#include "session/session.h"
#include "workplace.h"

namespace {

using namespace support;

class NewRecipe : public Workplace {
  protected:
    NewRecipe() {
        views["stored"] = [] {
            return grid("SELECT Prüfschritt || ':' || Drehzahl || '/' || Leistung || '/' || "
                        "Prüfart FROM Rezepte WHERE RezeptID = ? ORDER BY Val(Prüfschritt)",
                        {gRezeptID});
        };
        views["fields"] = [] { return fields(); };
        views["look"] = [this] {
            const QString beeped(std::exchange(beeps, 0), '!');
            return fields() + beeped + " [" + views["stored"]() + ']';
        };
        views["session"] = [] { return QString("%1 %2").arg(gRezeptID).arg(gToleranzID); };
        roads["new"] = [this](const QString &) { return go("pbNeuRezept ; @NeuRezept"); };
        roads["named"] = [this](const QString &) {
            return go("txtRezName = Kür's ; cmbToleranz > stationäre Trainingsgeräte "
                      "; ? saveName yes ; pbRezSave");
        };
    }
    /// Step and fields as in a German session, what laInfo says, which control has the keyboard,
    /// what can be pressed.
    static QString fields() {
        static const auto infos =
            cases("Bitte geben Sie einen Rezeptnamen ein und wählen Sie eine Spezifikation. -> "
                  "Please enter a recipe name and choose a specification. | "
                  "Geben Sie bitte die Daten für den neuen Prüfschritt ein! -> "
                  "Please enter data for the actual test step! | "
                  "Sie können den Prüfschritt speichern! -> You can save the test step! | "
                  "Sie können die Daten für diesen Prüfschritt ändern! -> "
                  "It is possible to change data for this test step!");
        const auto shown = [](const char *name) { return text(frm::NeuRezept, name); };
        QString line = shown("lbStepCount") + ' ' + shown("txtDrehzahl") + '/' +
                       shown("txtLeistung") + '/' + shown("cmbPrArt").left(1) + ' ';
        line.replace("/P ", "/L ").replace("/S ", "/D ");
        for (size_t i = 0; i < infos.size(); ++i) {
            if (shown("laInfo") == (english() ? infos[i].out : infos[i].in))
                line += QStringList{"name", "enter", "save", "change"}[static_cast<int>(i)];
        }
        line += '@' + loaded(frm::NeuRezept)->focusWidget()->objectName() + ' ';
        for (const char *button :
             {"SpbSave", "NpbAddNew", "EpbEinfuegen", "LpbLoeschen", "KpbKopie", "(pbFirst",
              "<pbPrevious", ">pbNext", ")pbLast", "Opbok"})
            line += canPress(frm::NeuRezept, button + 1) ? QString(*button) : QString();
        return line.trimmed();
    }
};

JOURNEY_P(NewRecipe, NameIsSavedFirst) {
    co_await go(R"(
        login ; mnuRezepte ; @Rezepte ; new ; fields == // name@txtRezName
        cannot txtDrehzahl txtLeistung cmbPrArt
        txtRezName = Kür ; cannot pbRezSave ; txtRezName ! ; focus cmbToleranz ; key Down ; can pbRezSave
        txtRezName = ; key Space ; cannot pbRezSave ; txtRezName = KURZPRÜFUNG ; ? recipeTaken ; txtRezName !
        txtRezName == ; cmbToleranz == medizinische Geräte ; focus txtRezName
        txtRezName = Kür ; ? saveName no ; cmbToleranz !
        txtRezName == ; cmbToleranz == ; focus txtRezName
        # A specification that is not there exactly once gives no key.
        txtRezName = O'Neill "Kür" ; key Space ; cmbToleranz > stationäre Trainingsgeräte
        change INSERT INTO Toleranzen (ID, Bezeichnung) VALUES (9, 'stationäre Trainingsgeräte')
        ? saveName yes ; ? twoSpecifications(1030) ; pbRezSave
        change DELETE FROM Toleranzen WHERE ID <> 1
        ? saveName yes ; ? noRecord(1030) ; pbRezSave ; sql SELECT max(RezeptID) FROM Rezeptnamen == 5
        change INSERT INTO Toleranzen (ID, Bezeichnung) VALUES (2, 'stationäre Trainingsgeräte')
        ? saveName yes ; pbRezSave ; look == 1 // enter@txtDrehzahl K []
        sql SELECT RezName || ToleranzID FROM Rezeptnamen WHERE RezeptID > 5 == O'Neill "Kür" 2
        lbRezSaved ~ ^O'Neill "Kür" $ ; lbToleranzSave == stationäre Trainingsgeräte
        hidden txtRezName cmbToleranz pbRezSave
        # Enter goes on, and after the type it stores.
        txtDrehzahl = 60 ; key Return ; focus txtLeistung ; txtLeistung = 100 ; key Return ; focus cmbPrArt
        cmbPrArt = L | P ; key Return ; look == 2 // enter@txtDrehzahl (<>)O [1:60/100/1]
        pbok ; @Rezepte ; cmbRezeptname ~ ^O'Neill "Kür" $ ; lbRezTol == stationäre Trainingsgeräte)");
}

JOURNEY_P(NewRecipe, StepsAreStoredOneByOne) {
    co_await go(R"(
        login ; mnuRezepte ; @Rezepte ; new ; named
        txtLeistung = 100 ; cmbPrArt = 1 ; look == 1 /100/L enter@cmbPrArt K [] ; cmbPrArt = P | L ; look == 1 /100/ enter@cmbPrArt K! []
        txtDrehzahl = 60 ; cmbPrArt ^ ; key Down ; look == 1 60/100/L save@cmbPrArt SK [] ; cmbPrArt ! ; focus pbSave
        cmbPrArt = x ; look == 1 60/100/ save@cmbPrArt SK! []
        cmbPrArt = 2 ; look == 1 60/100/D save@pbSave SK []
        cmbPrArt = 1 ; pbSave ; look == 2 // enter@txtDrehzahl (<>)O [1:60/100/1]
        pbPrevious ; look == 1 60/100/L change@txtDrehzahl NEL(<>)O [1:60/100/1]
        pbPrevious ; look == 1 60/100/L change@txtDrehzahl NEL(<>)O! [1:60/100/1]
        pbAddNew ; look == 2 // enter@txtDrehzahl (<>)O [1:60/100/1]
        mouse DBGridRez 1 ; look == 1 60/100/L change@DBGridRez NEL(<>)O [1:60/100/1]
        DBGridRez ! ; focus txtDrehzahl ; pbAddNew
        txtDrehzahl = 80 ; txtLeistung = 0 ; cmbPrArt = 2 ; pbSave ; look == 3 // enter@txtDrehzahl (<>)O [1:60/100/1+2:80/0/2]
        txtDrehzahl = 90 ; txtLeistung = 9 ; cmbPrArt = 1 ; pbSave ; look == 4 // enter@txtDrehzahl (<>)O [1:60/100/1+2:80/0/2+3:90/9/1]
        txtDrehzahl = 1 ; look == 4 1// enter@txtDrehzahl (<>)O [1:60/100/1+2:80/0/2+3:90/9/1]
        pbPrevious ; look == 3 90/9/L change@txtDrehzahl NEL(<>)O [1:60/100/1+2:80/0/2+3:90/9/1]
        pbNext ; look == 3 90/9/L change@txtDrehzahl NEL(<>)O! [1:60/100/1+2:80/0/2+3:90/9/1]
        pbPrevious ; look == 2 80/0/D change@txtDrehzahl NEL(<>)O [1:60/100/1+2:80/0/2+3:90/9/1]
        pbEinfuegen ; look == 2 80/0/D change@pbEinfuegen NEL(<>)O [1:60/100/1+2:80/0/2+3:80/0/2+4:90/9/1]
        DBGridRez rows~ ^1.60.100.[^+]*\+2.80.0.[^+]*\+3.80.0.[^+]*\+4.90.9.[^+]*$
        txtLeistung = 7 ; cmbPrArt = 1 ; pbSave ; look == 2 80/7/L save@txtDrehzahl SNEL(<>)O [1:60/100/1+2:80/7/1+3:80/0/2+4:90/9/1]
        pbFirst ; pbEinfuegen ; look == 1 60/100/L change@pbEinfuegen SNEL(<>)O [1:60/100/1+2:60/100/1+3:80/7/1+4:80/0/2+5:90/9/1]
        DBGridRez ^ ; key Down 2 ; pbLoeschen ; look == 3 80/0/D change@pbLoeschen SNEL(<>)O [1:60/100/1+2:60/100/1+3:80/0/2+4:90/9/1]
        pbLast ; pbLoeschen ; look == 3 80/0/D change@pbLoeschen SNEL(<>)O [1:60/100/1+2:60/100/1+3:80/0/2]
        pbFirst ; pbLoeschen ; pbLoeschen ; look == 1 80/0/D change@pbLoeschen SNEL(<>)O [1:80/0/2]
        pbLoeschen ; look == 1 80/0/D change@pbLoeschen SNEL(<>) []
        pbNext ; look == 1 80/0/D change@pbNext SNEL(<>) []
        pbLoeschen ; look == // change@pbAddNew N(<>) []
        txtDrehzahl = 50 ; txtLeistung = 5 ; cmbPrArt = 1 ; look == 1 50/5/L save@pbSave SN(<>) []
        pbSave ; look == 2 // enter@txtDrehzahl (<>)O [1:50/5/1]
        sql SELECT count(*) FROM Rezepte WHERE RezeptID <= 5 == 37 ; txtDrehzahl = 90 ; txtLeistung = 7)");
    form(frm::Meldung1).show(); // what is typed stays, whatever comes to the front meanwhile
    co_await go("@Meldung1 ; @NeuRezept ; pass 100 ; fields == 2 90/7/ enter@txtLeistung (<>)O");
}

JOURNEY_P(NewRecipe, ValuesAreCheckedWhenTheFieldIsLeft) {
    co_await go(R"(
        login ; mnuRezepte ; @Rezepte ; new ; named
        txtDrehzahl = 1x ; ? newSpeedNumber ; txtDrehzahl ! ; txtDrehzahl == ; focus txtDrehzahl
        txtDrehzahl = 0 ; ? newSpeedRange ; txtDrehzahl ! ; txtDrehzahl == ; focus txtDrehzahl
        txtLeistung = x ; ? newPowerNumber ; txtLeistung ! ; txtLeistung == ; focus txtLeistung
        txtLeistung = 601 ; ? newPowerRange ; txtLeistung ! ; txtLeistung == ; focus txtLeistung)");
    // Where the decimal sign is a comma, points part thousands and mean nothing.
    co_await go(english() ? R"(
        txtDrehzahl = 60,5 ; ? newSpeedNumber ; txtDrehzahl ! ; txtDrehzahl = 1.2.0 ; ? newSpeedNumber ; txtDrehzahl !
        txtDrehzahl = . ; ? newSpeedNumber ; txtDrehzahl ! ; txtLeistung = . ; ? newPowerNumber ; txtLeistung !
        txtDrehzahl = 60.5 ; txtDrehzahl ! ; txtDrehzahl == 60.5 ; txtLeistung = 12.5 ; txtLeistung ! ; txtLeistung == 12.5)"
                          : R"(
        txtDrehzahl = 60.5 ; ? newSpeedRange ; txtDrehzahl ! ; txtLeistung = . ; ? newPowerNumber ; txtLeistung !
        txtDrehzahl = . ; txtDrehzahl ! ; txtDrehzahl == ; focus txtLeistung
        txtDrehzahl = 1.2.0 ; txtDrehzahl ! ; txtDrehzahl == 120 ; txtLeistung = 12.5 ; txtLeistung ! ; txtLeistung == 125)");
    co_await go(R"(
        txtDrehzahl = 60,5 | 60.5 ; txtDrehzahl ! ; txtDrehzahl == 60,5 | 60.5 ; txtLeistung = 0 ; txtLeistung ! ; txtLeistung == 0
        txtDrehzahl = 60 ; txtLeistung = 400 ; cmbPrArt = 1 ; ? torque ; pbSave ; fields == 1 60/400/L save@txtDrehzahl SK
        txtDrehzahl := ; ? newIncomplete( die Drehzahl) ; pbSave
        txtLeistung := ; ? newIncomplete( die Drehzahl, Leistung) ; pbSave
        cmbPrArt := ; ? newIncomplete( die Drehzahl, Leistung und Prüfart) ; pbSave ; stored ==
        txtDrehzahl = 100 ; txtLeistung = 600 ; cmbPrArt = 1 ; pbSave ; stored == 1:100/600/1
        # A stored step is shown: the first leaving of its speed is not checked.
        pbFirst ; txtDrehzahl = 130 ; txtDrehzahl ! ; txtDrehzahl == 130 ; txtLeistung ! ; focus pbSave
        txtDrehzahl = 130 ; ? newSpeedRange ; txtDrehzahl ! ; txtDrehzahl ==)");
}

JOURNEY_P(NewRecipe, LeavingDecidesWhetherItStays) {
    co_await go("login ; mnuRezepte ; @Rezepte ; new");
    // What stays of it; "+" stands for a step stored.
    for (const Case &c : cases(R"(
             close -> |
             named ; key Escape -> |
             named ; txtDrehzahl = 60 ; ? discard yes ; pbexit -> |
             named ; txtDrehzahl = 60 ; txtLeistung = 100 ; cmbPrArt = 1 ; ? discard no ; close -> Kür's 1:60/100/1 |
             named ; txtLeistung = 60 ; ? discard no ; ? newIncomplete( die Drehzahl und Prüfart) ; key Escape ; ? discard yes ; key Escape -> |
             named ; txtDrehzahl = 60 ; txtLeistung = 400 ; cmbPrArt = 1 ; ? discard no ; ? torque ; close ; ? discard yes ; close -> |
             named ; txtDrehzahl = 500 ; ? newSpeedRange ; pbexit ; front == NeuRezept ; pbexit -> |
             named ; txtLeistung = 700 ; ? newPowerRange ; key Escape ; front == NeuRezept ; key Escape -> |
             named ; + ; ? discard yes ; close -> |
             named ; + ; ? discard no ; key Escape -> Kür's 1:60/100/1 |
             named ; + ; txtDrehzahl = 80 ; txtLeistung = 0 ; cmbPrArt = 2 ; ? discard no ; pbexit -> Kür's 1:60/100/1+2:80/0/2 |
             named ; + ; txtDrehzahl = 80 ; ? discard no ; ? newIncomplete( die Leistung und Prüfart) ; pbexit ; ? discard yes ; close -> |
             named ; + ; pbFirst ; ? discard no ; close -> Kür's 1:60/100/1+1:60/100/1 |
             named ; + ; pbFirst ; ? discard yes ; pbexit -> )")) {
        SCOPED_TRACE(c.in.toStdString());
        QString way = c.in;
        way.replace("+ ;", "txtDrehzahl = 60 ; txtLeistung = 100 ; cmbPrArt = 1 ; pbSave ;");
        co_await go(way + " ; @Rezepte");
        const QString names = grid("SELECT RezName FROM Rezeptnamen WHERE RezeptID > 5");
        EXPECT_EQ((names + ' ' + views["stored"]()).trimmed(), c.out);
        change("DELETE FROM Rezepte WHERE RezeptID > 5");
        change("DELETE FROM Rezeptnamen WHERE RezeptID > 5");
        co_await go("new");
    }
    // The mouse goes on to the button once the refused value is gone.
    co_await go("named ; txtDrehzahl = 500");
    expectKnown("newSpeedRange");
    QTest::mouseClick(control(frm::NeuRezept, "pbexit"), Qt::LeftButton);
    co_await go(R"(
        @Rezepte ; pbexit ; @Desktop
        # Without any recipe the menu leads here, and leaving on to the empty list.
        change DELETE FROM Rezeptnamen
        mnuRezepte ; @NeuRezept ; key Escape ; @Rezepte ; cannot Desktop.pbKunde ; can pbNeuRezept ; cmbRezeptname ==)");
}

JOURNEY_P(NewRecipe, IsFilledFromAnother) {
    change("INSERT INTO Rezeptnamen (RezeptID, RezName, ToleranzID) VALUES (77, 'Verwaist', 99)");
    change(
        "UPDATE Rezepte SET Drehzahl = '60.5', SSCode = 'x' WHERE RezeptID = 1 AND Leistung > 0");
    co_await go(R"(
        login ; pbRezept ; @Rezepte ; cmbRezeptname = Studio Dauerbetrieb ; pbok ; @Desktop ; session == 5 2
        mnuRezepte ; @Rezepte ; new ; named
        pbKopie ; @RezeptKopie ; laInfo == Rezeptanzahl: 7 | Number Of Recipes: 7 ; lbSpezifikation == Spezifikation: | Specification:
        cmbRezeptname = Training Basis ; lbRezTol == stationäre Trainingsgeräte
        ? noRecord(1012) ; cmbRezeptname = Verwaist ; lbRezTol == ; cannot pbok
        cmbRezeptname = xyz ; ? noRecipeFound ; cmbRezeptname !
        cmbRezeptname = Kurzprüfung ; can pbok ; pbexit ; @NeuRezept ; look == 1 // enter@pbKopie K(<>) []
        # In the list, with nothing to copy.
        pbKopie ; @RezeptKopie ; cmbRezeptname = Kür's ; can pbok ; pbok ; @NeuRezept ; look == 1 // enter@pbKopie NK(<>) []
        pbKopie ; @RezeptKopie ; cmbRezeptname = kurzpr ; cannot pbok ; cmbRezeptname ! ; @NeuRezept
        look == 1 60,5/100/L change@txtDrehzahl NEL(<>)O [1:60,5/100/1+2:80/0/2] | 1 60.5/100/D change@txtDrehzahl NEL(<>)O [1:60.5/100/2+2:80/0/2]
        sql SELECT count(*) FROM Rezepte WHERE SSCode = 'x' == 1
        # Where the decimal sign is a point it is none for thousands.
        txtDrehzahl = 61,5 | 61.5 ; cmbPrArt = 1 ; pbSave ; stored == 1:61,5/100/1+2:80/0/2 | 1:61.5/100/1+2:80/0/2
        session == 78 2 ; ? discard yes ; pbexit ; @Rezepte
        sql SELECT RezName FROM Rezeptnamen WHERE RezeptID > 5 == Verwaist
        pbexit ; @Desktop ; session == 5 2)");
}

JOURNEY_P(NewRecipe, FailuresAreToldAndLoseNothing) {
    co_await go(R"(
        login ; mnuRezepte ; @Rezepte
        spoil SELECT Toleranzen ; ? failureAt(NR01) ; new ; mend ; close ; @Rezepte ; new
        txtRezName = Kür ; cmbToleranz > 1 ; spoil SELECT Rezeptnamen ; ? failed(1041, 3078) ; pbRezSave ; mend
        # A name whose key the session cannot hold does not stay without steps.
        change UPDATE sqlite_sequence SET seq = 2147483647 WHERE name = 'Rezeptnamen'
        ? saveName yes ; ? failed(1030, 6) ; pbRezSave ; sql SELECT max(RezeptID) FROM Rezeptnamen == 5
        change UPDATE sqlite_sequence SET seq = 100 WHERE name = 'Rezeptnamen'
        named ; spoil SELECT Rezeptnamen ; ? failed(1016, 3078) ; pbKopie ; @RezeptKopie ; mend ; close ; @NeuRezept
        # A step that fails ends the copy; those before it stay.
        pbKopie ; @RezeptKopie ; cmbRezeptname = Training Basis ; spoil INSERT Rezepte WHEN new.Prüfschritt = '2'
        ? failure(1036) ; pbok ; @NeuRezept ; mend ; txtLeistung = 90 ; cmbPrArt = 1 ; pbSave ; stored == 1:60/90/1
        pbAddNew ; txtDrehzahl = 80 ; txtLeistung = 0 ; cmbPrArt = 2 ; pbSave ; pbFirst
        cmbPrArt ^ ; key Backtab ; focus txtLeistung    # the way back is free
        # Renumbering that ends half-way: the list tells what is stored.
        spoil UPDATE Rezepte WHEN old.Prüfschritt = '1' ; ? failure(1023E) ; pbEinfuegen
        stored == 1:60/90/1+3:80/0/2 ; DBGridRez rows~ ^1.60.90.[^+]*\+3.80.0.[^+]*$ ; mend
        pbLast ; pbLoeschen ; pbFirst ; txtLeistung = 50 ; cmbPrArt = 2
        spoil UPDATE Rezepte ; ? failure(1035) ; pbSave ; mend
        spoil SELECT Rezepte ; ? failed(1034, 3078) ; pbSave ; ? failed(1023E, 3078) ; pbEinfuegen
        ? failed(1023E, 3078) ; pbLoeschen ; ? discard no ; ? failed(1036, 3078) ; pbexit ; ? failed(1032, 3078) ; pbAddNew
        fields ~ ^1 60/50/D ; mend ; pbSave ; stored == 1:60/50/2
        # Half gone, it is no recipe that could be used.
        spoil DELETE Rezeptnamen ; ? discard yes ; ? failure(1023) ; pbexit ; front == NeuRezept ; DBGridRez rows ; cannot pbok
        pbLoeschen ; spoil SELECT Rezepte ; txtDrehzahl = 5 ; txtLeistung = 5 ; ? failed(1038, 3078) ; cmbPrArt = 1 ; mend)");
}

} // namespace
