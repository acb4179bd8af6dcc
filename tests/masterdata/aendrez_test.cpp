// A recipe is changed: the working copy of its steps, what becomes of it, and the way back.
#include <QAbstractItemView>

#include "session/session.h"
#include "workplace.h"

namespace {

using namespace support;

class RecipeEditor : public Workplace {
  protected:
    RecipeEditor() {
        change("INSERT INTO Rezeptnamen (RezeptID, RezName, ToleranzID) VALUES "
               "(50, 'Fünf', 1), (51, 'Eins', 2), (52, 'Leer', 1)");
        change("INSERT INTO Rezepte (RezeptID, Prüfschritt, Drehzahl, Leistung, Prüfart) VALUES "
               "(50, '1', '61', 10, '1'), (50, '2', '62,5', 20, '1'), (50, '3', '63', 30, '2'), "
               "(50, '4', '64', 40, '1'), (50, '5', '65', 50, '1'), (51, '1', '71', 70, '2')");
        views["copy"] = [] { return steps("ÄndRez_temp"); };
        views["five"] = [] { return steps("Rezepte WHERE RezeptID = 50 ORDER BY rowid"); };
        views["one"] = [] { return steps("Rezepte WHERE RezeptID = 51 ORDER BY rowid"); };
        // Of Fünf, of Eins, of all others together.
        views["specs"] = [] {
            return grid("SELECT sum(ToleranzID * (RezeptID = 50)), sum(ToleranzID * "
                        "(RezeptID = 51)), sum(ToleranzID * (RezeptID NOT IN (50, 51))) "
                        "FROM Rezeptnamen");
        };
        views["title"] = [] { return platform::frontScreen()->caption(); };
        views["fields"] = [] { return fields(); };
        views["look"] = [] { return fields() + " [" + steps("ÄndRez_temp") + ']'; };
        roads["maintain"] = [this](const QString &) { return go("login ; mnuRezepte ; @Rezepte"); };
        roads["edit"] = [this](const QString &recipe) {
            return go("cmbRezeptname = " + recipe + " ; pbÄndRez ; @ÄndRez");
        };
    }
    static QString steps(const QString &of) {
        return column("SELECT Prüfschritt || ':' || Drehzahl FROM " + of).join(' ');
    }
    /// Number, speed, power and type as in a German session; Save, New, Insert and Delete as far as
    /// they can be pressed; the row of the grid.
    static QString fields() {
        const auto shown = [](const char *name) { return text(frm::ÄndRez, name); };
        QString line = shown("laPrSchritt") + '|' + shown("txtDrehzahl") + '|' +
                       shown("txtLeistung") + '|' + shown("cmbPrArt").left(1) + ' ';
        if (english())
            line.replace('.', ',').replace('P', 'L').replace('S', 'D');
        for (const char *button : {"SpbSpeichern", "NpbNeu", "IpbEinfuegen", "DpbLoeschen"})
            line += canPress(frm::ÄndRez, button + 1) ? *button : '-';
        const auto *grid = control<QAbstractItemView>(frm::ÄndRez, "DBGridRez");
        return line + ' ' + QString::number(grid->currentIndex().row());
    }
};

JOURNEY_P(RecipeEditor, StepsOfTheWorkingCopy) {
    co_await go(R"(
        maintain ; edit Fünf ; title == Änderung im Rezept 'Fünf' | Canges In Recipe 'Fünf'
        laRezName == Fünf ; focus cmbToleranz ; cmbToleranz == medizinische Geräte
        look == 1|61|10|L SNID 0 [1:61 2:62,5 3:63 4:64 5:65]
        pbVorheriger ; fields == 1|61|10|L SNID 0
        pbNext ; fields == 2|62,5|20|L SNID 1 ; pbNext ; fields == 3|63|30|D SNID 2
        pbVorheriger ; fields == 2|62,5|20|L SNID 1
        pbNext ; DBGridRez ^ ; key Down ; fields == 4|64|40|L SNID 3
        pbLetzter ; fields == 5|65|50|L SNID 4 ; pbNext ; fields == 5|65|50|L SNID 4
        pbFirst ; look == 1|61|10|L SNID 0 [1:61 2:62,5 3:63 4:64 5:65]
        # The list has no order, so the new one stands last; the fields stay as they are.
        pbEinfuegen ; look == 1|61|10|L SNID 0 [2:61 3:62,5 4:63 5:64 6:65 1:61]
        mouse DBGridRez 2 ; fields == 2|61|10|L SNID 0
        pbNeu ; fields == 7||| S-ID 5    # behind the greatest, not behind the last row
        txtDrehzahl = 99 ; txtLeistung = 20 ; cmbPrArt := Leistungsmessung ; look == 7|99|20|L S-ID 5 [2:61 3:62,5 4:63 5:64 6:65 1:61]
        pbSpeichern ; look == 7|99|20|L SNID 6 [2:61 3:62,5 4:63 5:64 6:65 1:61 7:99]
        pbLoeschen ; look == 1|61|10|L SNID 5 [2:61 3:62,5 4:63 5:64 6:65 1:61]
        pbLoeschen ; look == 1|61|10|L SNID 0 [1:61 2:62,5 3:63 4:64 5:65]
        pbNext ; fields == 2|62,5|20|L SNID 1
        pbLoeschen ; look == 2|63|30|D SNID 1 [1:61 2:63 3:64 4:65]
        pbLetzter ; fields == 4|65|50|L SNID 3
        pbLoeschen ; look == 3|64|40|L SNID 2 [1:61 2:63 3:64]
        pbNeu ; fields == 4||| S-ID 2 ; pbFirst ; fields == 1|61|10|L SNID 0
        pbNeu ; fields == 4||| S-ID 2
        txtDrehzahl = 99 ; txtLeistung = 20 ; cmbPrArt := Leistungsmessung ; fields == 4|99|20|L S-ID 2
        pbSpeichern ; look == 4|99|20|L SNID 3 [1:61 2:63 3:64 4:99]
        close ; @Rezepte ; change DELETE FROM ÄndRez_temp
        edit Eins ; cmbToleranz == stationäre Trainingsgeräte ; look == 1|71|70|D SNID 0 [1:71]
        pbLoeschen ; look == 1|71|70|D SNID -1 []    # the fields stay
        pbLetzter ; look == 1|71|70|D SNID -1 []
        pbLoeschen ; look == ||| -N-- -1 []
        pbNeu ; look == 1||| S--- -1 []
        txtDrehzahl = 99 ; txtLeistung = 20 ; cmbPrArt := Leistungsmessung ; look == 1|99|20|L S--- -1 []
        pbSpeichern ; look == 1|99|20|L SNID 0 [1:99]
        close ; @Rezepte ; change DELETE FROM ÄndRez_temp
        edit Leer ; look == ||| -N-- -1 [] ; pbNeu ; look == 1||| S--- -1 []
        beeps == 0 ; five == 1:61 2:62,5 3:63 4:64 5:65 ; one == 1:71)");
}

JOURNEY_P(RecipeEditor, FourWaysOut) {
    co_await go("maintain");
    // What is changed beside the step that is put in, and how it is left: what is stored and what
    // is in the copy then. The specification is written at once, whatever is answered.
    for (const Case &c : cases(R"(
             pbok -> one == 1:71 ; copy == |
             cmbToleranz ^ ; key Up ; specs == 1|1|8 ; pbok -> one == 2:71 1:71 ; copy == |
             pbexit -> one == 1:71 ; copy == |
             cmbToleranz ^ ; key Up ; ? saveSteps no ; pbexit -> one == 1:71 ; copy == |
             cmbPrArt ^ ; key Up ; ? saveSteps yes ; pbexit -> one == 2:71 1:71 ; copy == |
             key Escape -> one == 1:71 ; copy == |
             cmbPrArt ^ ; key Up ; ? saveSteps no ; key Escape -> one == 1:71 ; copy == |
             cmbToleranz ^ ; key Up ; ? saveSteps yes ; key Escape -> one == 2:71 1:71 ; copy == |
             close -> one == 1:71 ; copy == 2:71 1:71 |
             cmbToleranz ^ ; key Up ; close -> one == 1:71 ; copy == 2:71 1:71)")) {
        change("DELETE FROM ÄndRez_temp");
        change("DELETE FROM Rezepte WHERE RezeptID = 51");
        change("INSERT INTO Rezepte VALUES (51, '1', '71', 70, '2', NULL, NULL)");
        change("UPDATE Rezeptnamen SET ToleranzID = 2 WHERE RezeptID = 51");
        co_await go("edit Eins ; pbEinfuegen ; " + c.in + " ; @Rezepte ; " + c.out);
        co_await go(c.in[3] == 'T' ? "specs == 1|1|8 ; lbRezTol == medizinische Geräte"
                                   : "specs == 1|2|8 ; lbRezTol == stationäre Trainingsgeräte");
    }
}

JOURNEY_P(RecipeEditor, WhatStaysInTheCopyIsFoundByTheNext) {
    co_await go(R"(
        # By the close box nothing is checked or asked.
        maintain ; edit Eins ; copy == 1:71 ; txtDrehzahl = x ; close ; @Rezepte
        edit Eins ; copy == 1:71 1:71 ; txtDrehzahl = x ; close ; @Rezepte
        edit Eins ; copy == 1:71 1:71 1:71 ; txtDrehzahl = 70 ; pbok ; @Rezepte
        one == 1:71 1:71 1:71 ; copy ==
        # A commit that fails half-way: neither a second try nor a discard loses the steps.
        edit Fünf ; txtLeistung = 11 ; spoil INSERT Rezepte ; ? failure(1123) ; pbok ; front == ÄndRez ; five ==
        ? saveSteps no ; ? failure(1123) ; pbexit ; front == ÄndRez ; five == ; close ; @Rezepte
        mend ; edit Fünf ; txtLeistung = 12 ; pbok ; @Rezepte ; five == 1:61 2:62,5 3:63 4:64 5:65)");
}

JOURNEY_P(RecipeEditor, FieldsAreCheckedWhenTheyAreLeft) {
    co_await go(R"(
        maintain ; edit Fünf
        txtDrehzahl = 601 ; ? editSpeedRange ; txtDrehzahl ! ; txtDrehzahl == 61 ; focus txtDrehzahl
        # The way out does not lead past the check either.
        txtDrehzahl = 6 W ; ? editSpeedNumber ; pbok ; txtDrehzahl == 61 ; focus txtDrehzahl
        txtLeistung = -1 ; ? editPowerRange ; txtLeistung ! ; txtLeistung == 10 ; focus txtLeistung
        txtLeistung = 6 W ; ? editPowerNumber ; pbexit ; txtLeistung == 10 ; focus txtLeistung
        # Asks after a change alone, and what is empty is none.
        txtDrehzahl = ; txtDrehzahl ! ; focus txtLeistung ; txtLeistung = ; txtLeistung ! ; focus cmbPrArt
        pbexit ; @Rezepte
        edit Fünf ; txtDrehzahl = 0 ; txtDrehzahl ! ; focus txtLeistung ; ? saveSteps no ; pbexit ; @Rezepte
        edit Fünf ; txtLeistung = 0 ; txtLeistung ! ; focus cmbPrArt ; ? saveSteps no ; pbexit ; @Rezepte
        # Nor does the field take the keyboard that a new step would hand on.
        edit Fünf ; pbNeu ; txtDrehzahl = 500 ; ? editSpeedRange ; cmbPrArt ^ ; focus txtDrehzahl ; txtDrehzahl ==)");
}

JOURNEY_P(RecipeEditor, IncompleteStepsAreNotStored) {
    co_await go(R"(
        maintain ; edit Eins ; pbNeu ; ? noNumber(1023E, ) ; pbEinfuegen
        ? editIncomplete( die Drehzahl, Leistung und Prüfart) ; pbSpeichern
        txtDrehzahl = 60 ; cmbPrArt := Leistungsmessung ; ? editIncomplete( die Leistung) ; pbSpeichern
        txtDrehzahl = ; txtLeistung = 100 ; ? editIncomplete( die Drehzahl) ; pbSpeichern
        # The English words count for nothing, under English either.
        txtDrehzahl = 60 ; cmbPrArt := Power Measurement ; ? editIncomplete( die Prüfart) ; pbSpeichern
        txtLeistung = ; cmbPrArt := Speed Measurement ; ? editIncomplete( die Leistung und Prüfart) ; pbSpeichern
        txtLeistung = 400 ; cmbPrArt := Leistungsmessung ; ? torque ; pbSpeichern ; focus txtDrehzahl ; copy == 1:71
        # No torque at standstill.
        txtDrehzahl = 0 ; pbSpeichern ; focus pbNeu ; copy == 1:71 2:0 ; sql SELECT Prüfart FROM ÄndRez_temp == 2+1)");
}

JOURNEY_P(RecipeEditor, LettersStandForWholeWords) {
    change("INSERT INTO Toleranzen (ID, Bezeichnung) VALUES (7, 'without tolerance')");
    // A word that names no specification leaves the one in force.
    co_await go("maintain ; edit Fünf");
    co_await go(english() ? R"(
        cmbPrArt = s ; cmbPrArt == Speed Measurement ; cmbPrArt = 1 ; cmbPrArt == Power Measurement
        ? noRecord(1120) ; cmbToleranz = s ; cmbToleranz == medizinische Geräte
        ? noRecord(1120) ; cmbToleranz = M ; cmbToleranz == medizinische Geräte ; specs == 1|2|8
        cmbToleranz = w ; cmbToleranz == Without Tolerance ; specs == 7|2|8)"
                          : R"(
        cmbPrArt = d ; cmbPrArt == Drehzahlmessung ; cmbPrArt = 1 ; cmbPrArt == Leistungsmessung ; specs == 1|2|8
        cmbToleranz = s ; cmbToleranz == stationäre Trainingsgeräte ; specs == 2|2|8
        cmbToleranz = M ; cmbToleranz == medizinische Geräte ; specs == 1|2|8
        ? noRecord(1120) ; cmbToleranz = O ; cmbToleranz == medizinische Geräte ; specs == 1|2|8)");
    co_await go(R"(
        # A wrong one empties the type, of all boxes; left, the box shows what is in force.
        beeps == 0 ; cmbToleranz = x ; beeps == 1 ; cmbPrArt ==
        cmbPrArt = 1 ; cmbToleranz == medizinische Geräte | Without Tolerance
        cmbPrArt = x ; beeps == 1 ; cmbPrArt == ; specs == 1|2|8 | 7|2|8
        pbNeu ; txtDrehzahl = 90 ; txtLeistung = 77 ; cmbPrArt ^ ; cmbPrArt := Leistungsmessung)");
    form(frm::Meldung1).show(); // what is typed stays, whatever comes to the front meanwhile
    co_await go(R"(
        @Meldung1 ; @ÄndRez ; pass 100 ; fields == 6|90|77|L S-ID 4 ; focus cmbPrArt
        cmbToleranz == medizinische Geräte | Without Tolerance)");
}

JOURNEY_P(RecipeEditor, ByKeyboardFromTheDesktopAndBack) {
    co_await go(R"(
        login ; pbRezept ; @Rezepte ; cmbRezeptname = Fünf ; pbok ; @Desktop ; mnuRezepte ; @Rezepte
        cmbRezeptname = Fünf ; cmbRezeptname ! ; focus pbÄndRez ; key Return ; @ÄndRez
        cannot Desktop.pbKunde ; hidden Rezepte.pbok
        focus cmbToleranz ; key Down ; key Return
        focus txtDrehzahl ; txtDrehzahl + 70 ; key Return    # over what is selected
        focus txtLeistung ; key Return ; focus cmbPrArt ; cmbPrArt := Drehzahlmessung ; key Return
        focus pbSpeichern ; key Return ; pbNeu
        focus txtDrehzahl ; txtDrehzahl + 66 ; key Return ; focus txtLeistung ; txtLeistung + 60 ; key Return
        # Of a new one, leaving the type is enough, wherever to.
        focus cmbPrArt ; cmbPrArt := Drehzahlmessung ; key Backtab ; focus pbSpeichern ; key Return ; focus pbNeu
        ? saveSteps yes ; key Escape ; @Rezepte ; five == 1:70 2:62,5 3:63 4:64 5:65 6:66
        DBGridRez rows~ ^([^+]+\+){5}6.66.60.[^+]+$ ; Desktop.txtRezName == medizinische Geräte
        pbok ; @Desktop ; can pbKunde    # chooses nothing here
        desktop == |||Fünf|stationäre Trainingsgeräte)");
    EXPECT_EQ(gToleranzID, 2);
}

JOURNEY_P(RecipeEditor, FailuresAreTold) {
    co_await go(R"(
        maintain ; cmbRezeptname = Fünf ; spoil SELECT Toleranzen ; ? failureAt(NR01) ; pbÄndRez ; @ÄndRez ; mend
        cmbPrArt := Leistungsmessung ; spoil UPDATE ÄndRez_temp ; ? failure(1035) ; pbSpeichern ; mend
        spoil SELECT ÄndRez_temp ; ? failed(1126, 3078) ; pbNeu ; mend ; pbFirst
        pbNeu ; txtDrehzahl = 66 ; txtLeistung = 9 ; cmbPrArt := Leistungsmessung
        spoil INSERT ÄndRez_temp ; ? failure(1127) ; pbSpeichern ; mend
        spoil SELECT ÄndRez_temp ; ? failed(1034, 3078) ; pbSpeichern ; ? failed(1023E, 3078) ; pbEinfuegen
        ? failed(1023E, 3078) ; pbLoeschen ; fields == 6|66|9|L S-ID 4
        ? saveSteps no ; ? failed(1124, 3078) ; pbexit ; front == ÄndRez
        mend ; close ; @Rezepte ; copy == 1:61 2:62,5 3:63 4:64 5:65
        pbÄndRez ; spoil SELECT ÄndRez_temp ; ? failed(1122, 3078) ; @ÄndRez ; mend)");
}

} // namespace
