// The shaft that may be turning, and values that do not belong to what is shown: what must never
// happen, whatever fails and whatever is typed.
#include "measuring.h"

namespace {

using namespace support;

using Shaft = Measuring;

JOURNEY_P(Shaft, IsStoppedByEveryOrderlyEnd) {
    co_await go(R"(
        select ; direction ; pbMotein ; pass 3000 ; stand fault silent on
        # The stop before the correction fails: nobody is told to uncouple.
        ? notRunIn yes ; ? noController ; ? correctionAborted ; pbMessen ; @Desktop ; motor ~ ^on Motaus
        cannot pbMessen ; laInfo ~ neu wählen | choose)");
    // A start that fails, too, begins and ends nothing.
    expectKnown("noController");
    EXPECT_FALSE(fnc_BefehlSenden("E", gDrehrichtung, "60"));
    co_await go(R"(
        motor ~ ^on Motaus
        # The end says that the stop failed, and stays when told so.
        ? end yes ; ? noController ; ? motorOffAtEnd ; ? endAnyway no ; pbBeenden ; front == Desktop
        motor ~ ^on Motaus ; stand fault none
        ? end yes ; pbBeenden ; front == ; wire ~ \*E-0000\+>>>$ ; shaft ~ ^set=0.00)");
}

JOURNEY(Shaft, IsStoppedBySignals) {
    co_await go(R"(
        measure ; step 1 60 ; stand fault silent on
        ? noController ; ? motorOff ; ? noController ; ? emptyProtocol ; leave ; motor ~ ^on Motaus
        stand fault none ; terminated == now ; shaft ~ ^set=0.00)");
}

JOURNEY(Shaft, SignalsLeaveNoEmptyHead) {
    // From a list that has the keyboard: closing its window still tells of it.
    co_await go(R"(
        measure ; step 1 60 ; pbFreieEing ; until laPrSchritt == FR ; pass 20 ; cmbMessArt = 2
        terminated == now ; shaft ~ ^set=0.00)");
    Datenbank after;
    after.openFile(datenbankName);
    EXPECT_TRUE(
        after.open("SELECT 1 FROM Protokoll_temp WHERE ProtokollID = ?", {gProtokollID}).empty());
}

JOURNEY(Shaft, HasADirection) {
    co_await go("select ; direction");
    gEingelaufen = true;
    co_await go(R"(
        pbDrehR ; @MotorDrehR ; ? noDirection ; pbAbbrechen ; @Desktop
        ? directionFirst ; pbMessen ; @MotorDrehR)");
}

// What a correction has to judge by is missing, or nothing was received.
JOURNEY(Shaft, CorrectionJudgesWhatIsThere) {
    co_await go(R"(
        select ; stand offsetdrift 1000 ; begin ; ? correctionAborted ; pbok ; @NachStatNPK    # far out
        pbok ; @Desktop ; stand offsetdrift 0 ; begin ; stand fault silent on
        ? noStream ; ? correctionOff ; pbok ; pass 17000    # nothing is left of it to judge
        front == StatMessen ; stand fault none ; abort
        change UPDATE Normalkalibrierdaten SET VK1_R = NULL
        pbRezept ; @Rezepte ; cmbRezeptname = Kurzprüfung ; pbok ; @Desktop
        ? failed(4040, 94) ; ? correctionAborted ; pbMessen ; @Desktop ; shaft ~ factor=none)");
}

using Belonging = Measuring;

JOURNEY(Belonging, KeysInFreeInputChangeTheBoxAlone) {
    co_await go(R"(
        measure ; step 1 60 ; pbFreieEing ; until laPrSchritt == FR ; pass 20
        txtSoll_n = 130 ; txtSoll_n + + ; ? freeSpeedRange ; txtSoll_n !
        laKorrF == 1,0000 ; txtSoll_n == ; txtSoll_n + - ; ? freeSpeedRange ; txtSoll_n !
        # The button follows the three fields, both ways.
        txtSoll_n = 70 ; txtSoll_n ! ; txtSoll_P = 200 ; txtSoll_P ! ; cmbMessArt > 2 ; shown txtIST_n_ergom ; cmbMessArt > 1 ; hidden txtIST_n_ergom ; waits pbAusführen
        txtSoll_n = ; cannot pbAusführen ; txtSoll_n = 70 ; txtSoll_n ! ; waits pbAusführen
        txtSoll_P = ; cannot pbAusführen ; txtSoll_P = 200 ; txtSoll_P ! ; waits pbAusführen
        txtSoll_P = 0.700 ; ? freePowerNumber ; txtSoll_P !    # not 700 here and 0.7 there
        txtSoll_P == 200 ; pbAusführen ; step FR 70 ; pbMessen ; step 1 60 ; ? emptyProtocol ; leave)");
}

JOURNEY(Belonging, APassSendsNoSpeedOutsideItsRange) {
    change("UPDATE Rezepte SET Drehzahl = '20' WHERE RezeptID = 1 AND Prüfschritt = '1'");
    co_await go("stand load 30 ; measure ; step 1 20");
    for (int i = 0; i < 200; ++i)
        act("pbPlus"); // 40: the factor is 2
    co_await go(R"(
        pbÜbernehmen ; step 1 40 ; wire ~ . ; ? freeSpeedRange ; pbSpeichern ; until told == yes
        pass 1000 ; wire == - ; shaft ~ ^set=40.00 ; txtSoll_n == 160,0    # of 80 at 2
        status == 6 ; cannot pbSpeichern)");
    for (int i = 0; i < 200; ++i)
        act("pbMinus");
    co_await go(R"(
        pbÜbernehmen ; step 2 140
        txtSoll_n ^ ; txtSoll_n + - ; pbMessen ; step 2 139.9)"); // no other limit on such a step
    for (int i = 0; i < 31; ++i)
        act("pbPlus");
    co_await go(R"(
        pbÜbernehmen ; step 2 143 ; pbPlus ; ? freeSpeedRange ; pbÜbernehmen ; until told == yes ; pass 100
        shaft ~ ^set=143.00 ; txtSoll_n == 143,0 ; leave)");
}

// A controller that answers late: passes overtake each other, and none is left to itself.
JOURNEY(Belonging, FreeInputBehindAPassThatWasOvertaken) {
    co_await go(R"(
        measure ; step 1 60 ; stand fault deaf 2 ; pbMessen ; @Meldung ; pass 2500 ; pbMessen
        pass 2100 ; pbFreieEing ; until laPrSchritt == FR ; released == no
        pbDrehzNull ; step FR 0 ; ? emptyProtocol ; leave)");
}

JOURNEY(Belonging, OnlyValuesOfTheSetPointShownAreStored) {
    co_await go(R"(
        # A corrected speed that was not sent; by keys the step is sent anew.
        measure ; stand load 100 ; step 1 60 ; pbPlus ; pass 10000 ; cannot pbSpeichern
        txtSoll_n ^ ; txtSoll_n + + ; waits pbMessen ; pbMessen ; step 1 60.2
        waiting == pbSpeichern ; cannot pbÜbernehmen)");
    // A second press is none, and the stream of the step before opens nothing.
    auto *button = control<QAbstractButton>(frm::Messen, "pbSpeichern");
    button->click();
    button->setEnabled(true);
    button->click();
    act("stored Prüfschritt == 1");
    for (int i = 0; i < 20; ++i) {
        co_await pass(100);
        if (text(frm::Messen, "laPrSchritt") == "1")
            act("cannot Messen.pbSpeichern");
    }
    co_await go("step 2 80.3 ; txtIST_n_ergom = 80 ; can pbSpeichern ; leave");
}

JOURNEY(Belonging, RowsOfAnotherRecipeAreNotMixed) {
    co_await go("measure ; stand load 100 ; step 1 60 ; pbSpeichern ; step 2 80");
    // Corrected, under the other number format; beyond any correction; of another power.
    for (const Case &row : cases("66.0, 100.0 -> 66.0 100.0 | 66,1, 100,0 -> 60,0 100,0 | "
                                 "60,0, 25,0 -> 60,0 100,0")) {
        change("UPDATE Messwerte_temp SET Soll_n = ?, Soll_P = ? WHERE ProtokollID = ?",
               {row.in_(0), row.in_(1), gProtokollID});
        co_await go("pbFirst ; pbAusführen ; step 1 60 ; pbSpeichern ; step 2 80");
        act("stored Soll_n || ' ' || Soll_P == " + row.out);
    }
    co_await go(R"(
        # An uncertainty that is missing stores no row.
        change UPDATE MU_Drehzahl SET MU = NULL
        txtIST_n_ergom = 80 ; ? failed(3018, 94) ; pbSpeichern
        stored Prüfschritt == 1 ; laPrSchritt == 2
        pbMessen ; step 2 80 ; txtIST_n_ergom = 80 ; strip == Nicht zu beurteilen ; leave)");
}

} // namespace
