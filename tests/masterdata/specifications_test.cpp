// The screen of the specifications: its states, its checks, what it writes, and failures.
#include "masterdata/frmToleranzen.h"
#include "workplace.h"

namespace {

using namespace support;

class Specifications : public Workplace {
  protected:
    Specifications() {
        deliver();
        // Enabled buttons, name and numbers when the block is shown, the picker, the keyboard.
        views["look"] = [] {
            if (!loaded(frm::Toleranzen))
                return QString("closed");
            const auto shown = [](const char *field) { return text(frm::Toleranzen, field); };
            QString seen;
            for (const char *button : {"pbNew", "pbEdit", "pbDelete", "pbSave"})
                seen += control(frm::Toleranzen, button)->isEnabled() ? button[2] : '-';
            seen += control(frm::Toleranzen, "txtTolBez")->isVisible()
                        ? " [" + shown("txtTolBez") + ' ' + shown("txtTolProz") + '/' +
                              shown("txtTolWatt") + '/' + shown("txtAbw") + "] "
                        : " [] ";
            return seen + shown("cmbBezTol").section("   ", 0, 0) + " @" +
                   loaded(frm::Toleranzen)->focusWidget()->objectName();
        };
        roads["pick"] = [this](const QString &row) { // by hand, from the picker
            return go("cmbBezTol ^ ; cmbBezTol > " + row);
        };
        roads["fill"] = [this](const QString &name) {
            return go("txtTolBez = " + name +
                      " ; txtTolProz = 4 ; txtTolWatt = 2 ; txtAbw = 1 ; "
                      "cmbGKlasse = m ; txtMessverfahren = V ; key Tab");
        };
    }
    static void deliver() {
        change("DELETE FROM Toleranzen");
        change("INSERT INTO Toleranzen VALUES "
               "(11, 'Alpha', 5, 3, 2, 'Medizinische Geräte', 'Verfahren A'), "
               "(12, 'Beta', 10, 5, 5, 'Stationary Devices', 'Verfahren B'), "
               "(13, 'Gamma', 8, 8, 1, 'frei', 'Verfahren C')");
    }
};

// The way from the opening -> how the screen looks then -> what is stored when not the same.
JOURNEY_P(Specifications, FollowTheirStates) {
    const QHash<QString, QString> stored{
        {"", "Alpha 5 3 2+Beta 10 5 5+Gamma 8 8 1"},
        {"inserted", "Alpha 5 3 2+Beta 10 5 5+Gamma 8 8 1+Neu 4 2 1"},
        {"changed", "Alpha 5 3 2+Anders 10 5 5+Gamma 8 8 1"},
        {"alike", "Alpha 5 3 2+Alpha 10 5 5+Gamma 8 8 1"},
        {"deleted", "Alpha 5 3 2+Gamma 8 8 1"}};
    const QString table = R"(hidden pbEdit -> N--- []  @cmbBezTol
        pbok -> closed
        pbexit -> closed
        pbNew -> ---- [ //]  @txtTolBez
        pick 2 -> N-D- [Beta 10/5/5] Beta @txtTolBez
        # edit, not changed: the next one is shown
        pick 2 ; pick 1 -> N-D- [Alpha 5/3/2] Alpha @cmbBezTol
        pick 2 ; key Tab ; pick 2 -> N-D- [Beta 10/5/5] Beta @cmbBezTol
        pick 2 ; pick 1 ; txtTolBez = Alpha ; key Tab -> N-D- [Alpha 5/3/2] Alpha @txtTolProz
        # edit, changed: both answers drop the input
        pick 2 ; txtTolBez = X ; key Tab -> N-DS [X 10/5/5] Beta @txtTolProz
        pick 2 ; txtTolBez = X ; ? changed? yes ; pick 1 -> N-DS [Alpha 5/3/2] Alpha @txtTolBez
        pick 2 ; txtTolBez = X ; ? changed? yes ; pick 1 ; pick 3 -> N-DS [Gamma 8/8/1] Gamma @cmbBezTol
        pick 2 ; txtTolBez = X ; ? changed? no ; pick 1 -> N-DS [Alpha 5/3/2] Alpha @cmbBezTol
        pick 2 ; txtTolProz = ; key Tab ; ? changed? no ; pick 1 ; pick 2 -> N-DS [Beta 10/5/5] Beta @cmbBezTol
        # the class alone is no change, and neither is the method
        pick 2 ; cmbGKlasse = m ; txtMessverfahren = X ; pick 1 -> N-DS [Alpha 5/3/2] Alpha @pbSave
        # leaving the watts compares them with the percentage
        pick 2 ; txtTolWatt = 5 ; ? changed? no ; pick 3 -> N-DS [Gamma 8/8/1] Gamma @cmbBezTol
        pick 3 ; txtTolWatt = 8 ; pick 2 -> N-D- [Beta 10/5/5] Beta @cmbBezTol
        pick 2 ; pbNew -> ---- [ //]  @txtTolBez
        # new: a pick asks only when there is something to save
        pbNew ; pick 2 -> N-D- [Beta 10/5/5] Beta @txtTolBez
        pbNew ; fill Neu -> ---S [Neu 4/2/1]  @pbSave
        pbNew ; fill Neu ; ? new? yes ; pick 2 -> N-DS [Beta 10/5/5] Beta @txtTolBez
        pbNew ; fill Neu ; ? new? no ; pick 2 -> N-DS [Beta 10/5/5] Beta @txtTolBez
        pbNew ; fill Neu ; ? new? cancel ; pick 2 -> ---S [Neu 4/2/1]  @txtTolBez
        pbNew ; fill Neu ; txtTolBez = ; key Tab -> ---- [ 4/2/1]  @txtTolProz
        pbNew ; fill Neu ; txtMessverfahren = ; ? incomplete ; pbSave ; ? incomplete ; pbSave -> ---S [Neu 4/2/1]  @pbSave
        pbNew ; fill Neu ; ? inserted ; pbSave -> N--S []  @cmbBezTol -> inserted
        pbNew ; fill Neu ; ? inserted ; pbSave ; pbSave ; pbok -> closed -> inserted
        pbNew ; fill Neu ; ? inserted ; pbSave ; pick 4 -> N-DS [Neu 4/2/1] Neu @txtTolBez -> inserted
        pbNew ; fill Neu ; ? leaveNew? yes ; ? inserted ; pbok -> closed -> inserted
        pbNew ; fill Neu ; ? leaveNew? no ; pbok -> closed
        pbNew ; ? leaveNew? yes ; ? incomplete ; pbok -> closed
        pbNew ; fill Neu ; pbexit -> closed
        # the class last; Enter in the last field is enough to save, whatever the others hold
        pbNew ; fill Neu ; cmbGKlasse = ; txtAbw = 2 ; key Tab ; cannot pbSave ; cmbGKlasse > 1 -> ---S [Neu 4/2/2]  @cmbGKlasse
        pbNew ; txtTolProz = 5 ; txtMessverfahren ^ ; cannot pbSave ; key Return ; ? incomplete ; pbSave -> ---S [ 5//]  @pbSave
        pbNew ; txtMessverfahren ^ ; key Return ; ? new? no ; cmbBezTol ^ ; key Down -> N-DS [Alpha 5/3/2] Alpha @txtTolBez
        # saving and leaving in edit mode
        pick 2 ; txtTolBez + Anders ; key Tab ; ? updated ; pbSave -> NED- [] Anders @cmbBezTol -> changed
        pick 2 ; txtTolBez = Anders ; key Tab ; ? updated ; pbSave ; ? delete? yes ; pbDelete -> N--- []  @cmbBezTol -> deleted
        pick 2 ; txtTolBez = Anders ; key Tab ; ? updated ; pbSave ; pick 1 -> N-D- [Alpha 5/3/2] Alpha @txtTolBez -> changed
        pick 2 ; ? leaveEdit? no ; pbok -> closed
        pick 2 ; txtTolBez = Anders ; ? leaveEdit? yes ; ? updated ; pbok -> closed -> changed
        pick 2 ; txtTolBez = Anders ; pbexit -> closed
        pick 2 ; txtTolBez = Alpha ; key Tab ; ? updated ; pbSave -> NED- [] Alpha @cmbBezTol -> alike
        # deletion
        pick 2 ; ? delete? no ; pbDelete -> N-D- [Beta 10/5/5] Beta @txtTolBez
        pick 2 ; txtTolBez = X ; ? delete? yes ; pbDelete -> N--- []  @cmbBezTol -> deleted
        # what is refused, and what is rounded: under a comma only
        pbNew ; txtTolBez = BETA ; ? double ; key Tab -> ---- [ //]  @txtTolBez
        pbNew ; txtTolProz = 21 ; ? percent ; key Tab -> ---- [ //]  @txtTolProz
        pbNew ; txtTolProz = -1 ; ? percent ; key Tab -> ---- [ //]  @txtTolProz
        pbNew ; txtTolWatt = 21 ; ? watt ; key Tab -> ---- [ //]  @txtTolWatt
        pbNew ; txtAbw = -1 ; ? speed ; key Tab -> ---- [ //]  @txtAbw
        pick 1 ; txtTolProz = 21 ; ? percent ; key Tab -> N-D- [Alpha 5/3/2] Alpha @txtTolProz
        pick 1 ; txtTolWatt = -3 ; ? watt ; key Tab -> N-D- [Alpha 5/5/2] Alpha @txtTolWatt
        pick 1 ; txtAbw = -1 ; ? speed ; key Tab -> N-D- [Alpha 5/3/2] Alpha @txtAbw
        pbNew ; txtTolProz = 20 ; key Tab ; txtAbw = 1000 ; key Tab -> ---- [ 20//1000]  @cmbGKlasse
        pbNew ; txtTolProz = 4,33 | 4.33 ; txtTolWatt = 4,3 | 4.3 ; txtAbw = 1,26 | 1.26 ; key Tab -> ---- [ 4,3/4,5/1,3]  @cmbGKlasse | ---- [ 4.33/4.3/1.3]  @cmbGKlasse
        # what is no number is told, and the entry goes on
        pbNew ; txtTolProz = abc ; ? noNumber(Tol04, abc) ; key Tab -> ---- [ abc//]  @txtTolWatt
        pbNew ; txtTolWatt = abc ; ? noNumber(Tol05, abc) ; key Tab -> ---- [ /abc/]  @txtAbw
        pbNew ; txtAbw = abc ; ? noNumber(Tol05, abc) ; key Tab -> ---- [ //abc]  @cmbGKlasse
        # an empty number cannot be stored, and the edit mode is over by then
        pick 2 ; txtAbw = ; key Tab ; ? noNumber(Tol08, ) ; pbSave ; txtMessverfahren = ; cmbGKlasse = m ; txtAbw = 1 ; key Tab -> N-D- [Beta 10/5/1] Beta @cmbGKlasse
        pbNew ; fill Neu ; txtTolWatt = abc ; ? noNumber(Tol05, abc) ; key Tab ; ? noNumber(Tol08, abc) ; pbSave -> ---- [Neu 4/abc/1]  @cmbBezTol)";
    co_await logIn();
    for (const QString &row : table.split('\n')) {
        const QStringList cells = row.trimmed().split(" -> ");
        if (cells.size() < 2) // a comment
            continue;
        co_await go("mnuToleranzen ; @Toleranzen ; " + cells[0] + " ; look == " + cells[1]);
        EXPECT_EQ(column("SELECT Bezeichnung || ' ' || Prozent || ' ' || Watt || ' ' || GrenzAbw "
                         "FROM Toleranzen ORDER BY ID")
                      .join('+'),
                  stored[cells.value(2)])
            << row;
        if (loaded(frm::Toleranzen))
            co_await go("key Escape");
        co_await go("@Desktop");
        deliver();
    }
}

JOURNEY_P(Specifications, CompleteTheirClass) {
    co_await logIn();
    co_await go(R"(
        mnuToleranzen ; @Toleranzen ; cmbBezTol rows~ Gamma   .8%...8W...1 1/min.$ | Gamma   .8%...8W...1 rpm.$
        pick 3 ; cmbGKlasse == frei
        cmbGKlasse rows Medizinische Geräte+Stationäre Trainingsgeräte | Medical Devices+Stationary Devices
        cmbGKlasse = S ; cmbGKlasse == Stationäre Trainingsgeräte | Stationary Devices
        cmbGKlasse = Hm ; cmbGKlasse == Medizinische Geräte | Medical Devices
        cmbGKlasse = Rad ; cmbGKlasse == Rad ; cmbGKlasse = mx ; cmbGKlasse == x
        cmbGKlasse = m ; key Backspace ; cmbGKlasse ==
        # The class alone is written, though no prompt sees it.
        cmbGKlasse + m ; cmbGKlasse ! ; key Tab ; ? updated ; pbSave
        sql SELECT GKlasse, Messverfahren FROM Toleranzen WHERE ID = 13 == Medizinische Geräte|Verfahren C | Medical Devices|Verfahren C
        # Entries that read the same mean the first.
        change UPDATE Toleranzen SET Bezeichnung = 'Alpha', Prozent = 5, Watt = 3, GrenzAbw = 2
        key Escape ; @Desktop ; mnuToleranzen ; @Toleranzen ; pick 3 ; txtMessverfahren == Verfahren A)");
}

JOURNEY_P(Specifications, AreTestedOnDemand) {
    const auto tested = [](bool (frmToleranzen::*test)()) {
        return [test] { return QString::number((loaded<frmToleranzen>()->*test)()); };
    };
    views["alike"] = tested(&frmToleranzen::func_Test_Double);
    views["beyond"] = tested(&frmToleranzen::func_Test_Interval);
    co_await logIn();
    co_await go(R"(
        mnuToleranzen ; @Toleranzen ; pbNew
        txtTolBez := BETA ; txtTolProz := 1 ; txtTolWatt := 1 ; ? taken ; alike == 1
        txtTolBez := X ; txtTolProz := 8,0 ; txtTolWatt := 8.0 ; ? combination(Gamma) ; alike == 1
        txtTolProz := 8 ; txtTolWatt := 7 ; alike == 0 ; beyond == 0
        txtTolProz := 21 ; txtTolWatt := 2 ; ? interval ; beyond == 1
        txtTolWatt := ; ? noNumber(Tol04, ) ; beyond == 0
        spoil SELECT Toleranzen ; ? noTable(Tol03, Toleranzen) ; alike == 0)");
}

JOURNEY_P(Specifications, TellWhatCannotBeReadOrWritten) {
    co_await logIn();
    co_await go(R"(
        mnuToleranzen ; @Toleranzen ; spoil SELECT Toleranzen ; ? noTable(Tol07, Toleranzen) ; pick 2
        ? noTable(Tol02, Toleranzen) ; pick 1 ; cmbBezTol ~ ^Beta    # the one whose fields are shown
        ? delete? yes ; ? noTable(Tol06, Toleranzen) ; pbDelete
        pbNew ; txtTolBez = X ; ? noTable(Tol05, Toleranzen) ; key Tab
        key Escape ; @Desktop ; ? noTable(Tol01, Toleranzen) ; mnuToleranzen ; @Toleranzen)");
}

JOURNEY_P(Specifications, ReachTheChosenRecipe) {
    change("UPDATE Rezeptnamen SET ToleranzID = 12");
    co_await logIn();
    co_await go(R"(
        pbRezept ; @Rezepte ; cmbRezeptname = Kurzprüfung ; pbok ; @Desktop ; mnuToleranzen ; @Toleranzen
        pick 2 ; txtTolBez = Anders ; key Tab ; ? updated ; pbSave ; key Escape ; @Desktop
        desktop == |||Kurzprüfung|Anders ; mnuToleranzen ; @Toleranzen
        # Without it the recipe could not be measured with.
        pick 2 ; ? delete? yes ; pbDelete ; key Escape ; @Desktop ; desktop == ||||)");
}

} // namespace
