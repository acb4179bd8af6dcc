// The stand verified with its lever arm: the sequence, what is stored, and each way out of it.
#include <QDir>

#include "calibration/hebelarmwerte.h"
#include "measuring.h"

namespace {

using namespace support;

class LeverArm : public Measuring {
  protected:
    LeverArm() {
        views["stage"] = [] { return QString::number(int(gFormStatus)); };
        views["new"] = [] { // rows besides those of the sample data
            return grid("SELECT count(*) - 8 FROM Hebelarmkalibrierung");
        };
        views["stored"] = [] { // the newest
            return grid("SELECT Prüfer, Erdschwere, round(Rechts, 1), round(Links, 1), "
                        "Streu_R < 0.01 AND Streu_L < 0.01, NK_ID FROM Hebelarmkalibrierung "
                        "ORDER BY ID DESC LIMIT 1");
        };
        views["done"] = [] { // stages, by label and sign
            QString shown;
            const std::pair<const char *, const char *> stages[] = {{"Label7", "anzEinlaufen"},
                                                                    {"Label8", "anzKorrektur"},
                                                                    {"Label9", "anzSeite1"},
                                                                    {"Label10", "anzSeite2"}};
            for (const auto &[label, sign] : stages) {
                const bool done =
                    control(frm::Kalibrierung, label)->isVisibleTo(loaded(frm::Kalibrierung));
                shown += done ? 'x' : '-';
                EXPECT_EQ(control(frm::Kalibrierung, sign)->accessibleName(),
                          done        ? text(frm::Kalibrierung, label)
                          : english() ? "open"
                                      : "offen");
            }
            return shown;
        };
        views["kept"] = [] { // limits, left and right
            return control(frm::MomentKal, "anzUrteil_L")->accessibleName() + ", " +
                   control(frm::MomentKal, "anzUrteil_R")->accessibleName();
        };
        views["due"] = [] {
            return loaded(frm::Desktop)->findChild<QGroupBox *>("FrHebelarm")->title();
        };
        // To the running-in, whose notice comes next.
        roads["open"] = [this](const QString &) {
            return go("mnuKalibrierung ; @Kalibrierung ; pbStart ; pass 2000 ; stage == 3");
        };
        // To the instruction above the entry of gravity.
        roads["corrected"] = [this](const QString &) {
            return go("open ; pass 600000 ; @VorStatNPK ; pbok ; until can StatMessen.pbWeiter "
                      "; pbWeiter ; @NachStatNPK");
        };
        // To the first run, with the arm on a side.
        roads["mounted"] = [this](const QString &side) {
            return go("stand lever none ; stand mode lever ; corrected ; stand lever " + side +
                      " ; pbok ; @Oberfl ; txtOberfl = 9,8108 ; pbWeiter ; @MomentKal");
        };
        roads["run"] = [this](const QString &) { return go("until can pbWiederholen"); };
        // The arm on a side, and the run that the instruction leads to.
        roads["hang"] = [this](const QString &side) {
            return go("@NachStatNPK ; stand lever " + side + " ; pbok ; @MomentKal");
        };
    }
};

JOURNEY_P(LeverArm, BothSidesInOrder) {
    change("UPDATE Hebelarmkalibrierung SET Prüfdatum = '2020-01-31 10:00:00'");
    co_await logIn();
    co_await go(R"(
        due ~ 31.07.2020$ ; stand mode lever ; mnuKalibrierung ; @Kalibrierung ; stage == 2
        title == Hebelarmkalibrierung | Lever Arm Calibration ; done == ---- ; waits pbStart ; focus pbStart
        pbHistory ; @History ; pbexit ; @Kalibrierung ; stage == 2 ; focus pbStart
        laText == Dieses Programm gestattet Ihnen die turnusmäßige Überprüfung des Mess-Systems mittels Momenteinleitung durch den Hebelarm | This program permits you to inspect the measurement system at regular intervals by means of moment initiation through the lever arm.
        laDrehrichtung == Rechtslauf | Right-Handed Rotation ; Desktop.lbDrehrichtung == Rechtslauf | Right
        pbStart ; pass 2000 ; stage == 3 ; laInfo == Motor ist eingeschaltet | Motor is switched on
        motor ~ ^on.*60$ ; shaft ~ direction=right ; cannot pbStart ; lbEinlauf ~ 09:5 ; Desktop.lbEinlauf ~ 09:5
        pass 597000 ; stage == 3 ; pass 2000 ; stage == 4 ; notice ~ Einlaufzeit | Running-in ; done == ----
        pass 2000 ; @VorStatNPK ; done == x--- ; Kalibrierung.laInfo == Statische Nullpunkt-Korrektur | Static Zero-Point Correction
        motor ~ off.*0$ ; pbok ; until can StatMessen.pbWeiter ; pbWeiter ; @NachStatNPK ; stage == 5 ; done == xx--
        title == Vorbereitung der Hebelarmkalibrierung | Preparations For The Lever Arm Calibration
        laText ~ ^Montieren Sie den Hebelarm für Linkskalibrierung | ^Mount the lever arm for left-handed
        stand lever left ; pbok ; @Oberfl ; title == Örtliche Fallbeschleunigung | Local Gravity ; stage == 6 ; cannot pbWeiter
        ? gravityText ; close ; txtOberfl = abc ; can pbWeiter ; ? gravityText ; pbWeiter ; txtOberfl == ; focus txtOberfl
        txtOberfl = 9,79 ; ? gravityRange ; pbWeiter ; txtOberfl == ; txtOberfl = 9.82 ; txtOberfl ! ; focus pbWeiter ; pbWeiter
        @MomentKal ; title == Momentmessung mit dem Hebelarm | Moment Measurement With The Lever Arm ; stage == 7 ; Kalibrierung.Label5 == Fallbeschleunigung in m/s² | Survicial Gravity In m/s²
        Kalibrierung.lbEinlauf == 9,8200 | 9.8200 ; Kalibrierung.laInfo == Kalibrierung | Calibration
        txtOffset1_L == -30,000 | -30.000 ; txtOffset1_R == 30,000 | 30.000 ; txtOffset2_L == ; cannot pbWeiter pbWiederholen
        until laInfo ~ ^7.(Messwerte|Measuring Values)$ ; kept == noch nicht gemessen, noch nicht gemessen | not measured yet, not measured yet ; key Return ; run ; stage == 8 ; done == xxx-
        laInfo ~ ^Ist die Messung in Ordnung | ^When measurement is o.k. ; pbWeiter == &Wechseln | &Change ; focus pbWeiter ; waits pbWeiter
        txtOffset2_L ~ ^-29,9[67]. | ^-29.9[67]. ; laStreu_L ~ ^0,00 | ^0.00 ; laOffsetDiff_L ~ ^0,02 | ^0.02 ; txtOffset2_R ==
        pbWeiter ; @NachStatNPK ; title == Vorbereitung der Hebelarmkalibrierung | Preparation For The Lever Arm Calibration
        laText ~ ^Montieren Sie den Hebelarm auf der anderen Seite.\sBitte achten Sie auf eine waagerechte Ausrichtung des Hebelarms!$ | ^Mount lever arm on the other side.\sMake sure the lever arm is in horizontal position!$
        hang right ; run ; done == xxxx ; pbWeiter == &Beenden | &Terminate ; new == 0 ; pbWeiter
        @Kalibrierung ; stage == 9 ; new == 1 ; stored == M. Prüfer|9.82|30|-30|1|2
        pbAbbrechen == &Beenden | &Terminate ; focus pbAbbrechen ; waits pbAbbrechen ; pbAbbrechen ; @Desktop ; stage == 0 ; idle == yes)");
    const QString due = clock.now().date().addMonths(6).toString("dd.MM.yyyy");
    EXPECT_TRUE(views["due"]().endsWith(due)) << due;
    // What is stored is the last sample's moment, not the mean that was judged.
    EXPECT_EQ(grid("SELECT Rechts FROM Hebelarmkalibrierung ORDER BY ID DESC LIMIT 1").toDouble(),
              std::round(gRechts * 1000) / 1000);
}

JOURNEY_P(LeverArm, ASideOutOfLimitsBlocksUntilItWasRepeated) {
    co_await go(R"(
        change UPDATE Normalkalibrierdaten SET GrenzwStreubreite = 0.05
        login ; stand moment 30.5 ; mounted left ; ? momentOut ; run ; done == xxx- ; stage == 7 ; laOffsetDiff_L ~ ^-0[,.](50|49)
        cannot pbWeiter ; focus pbWiederholen ; laInfo ~ linke Seite | left side
        kept == nicht eingehalten, noch nicht gemessen | not kept, not measured yet
        # On the other side by mistake: in order, but the first one is not.
        stand moment 30 ; pbWiederholen ; hang right ; run ; cannot pbWeiter ; done == xxxx ; new == 0
        pbWiederholen ; laText ~ wie in der Bedienungsanleitung beschrieben | as described in the Operating Instructions
        stand noise 15 ; hang left ; ? spreadOut ; run ; cannot pbWeiter
        stand noise 30 ; stand moment 31 ; pbWiederholen ; hang left ; ? bothOut ; run ; cannot pbWeiter
        # Without the arm nothing is measured, and nothing changes.
        stand noise 0.1 ; stand moment 30 ; pbWiederholen ; hang none ; ? noMoment ; run ; cannot pbWeiter ; txtOffset2_L ~ ^-3[01]
        pbWiederholen ; hang left ; run ; can pbWeiter ; kept == eingehalten, eingehalten | kept, kept
        # The other side, out of limits after all.
        stand moment 30.5 ; pbWiederholen ; hang right ; ? momentOut ; run ; cannot pbWeiter ; laInfo ~ rechte Seite | right side
        kept == eingehalten, nicht eingehalten | kept, not kept ; pbWiederholen ; picture == Hebelarm waagerecht, rechts | Lever arm level, right
        stand moment 30 ; hang right ; run ; can pbWeiter ; pbWeiter ; @Kalibrierung ; new == 1 ; stored ~ \|30\|-30\|1)");
}

JOURNEY_P(LeverArm, WithoutTheArmAndTwiceOnOneSide) {
    co_await go(R"(
        login ; mounted none ; ? noMoment ; run ; cannot pbWeiter ; focus pbWiederholen ; done == xx-- ; stage == 8
        pbWiederholen ; stage == 5 ; hang right ; run ; can pbWeiter ; pbWeiter == &Wechseln | &Change ; txtOffset2_L ==
        pbWeiter ; hang right ; run ; pbWeiter == &Wechseln | &Change ; pbWeiter ; hang left ; run ; pbWeiter == &Beenden | &Terminate
        # Cancelled with both sides in order: nothing is stored.
        ? leverAborted ; ? correctionLoaded ; pbAbbrechen ; @Kalibrierung ; stage == 10 ; new == 0 ; wire ~ r$
        laInfo == Kalibrierung wurde abgebrochen! | Calibration has been dicontinued! ; focus pbAbbrechen ; pbAbbrechen ; @Desktop)");
}

JOURNEY_P(LeverArm, WrongModeIsAskedForAgain) {
    co_await go(R"(
        login ; corrected ; stand lever left ; pbok ; @Oberfl ; txtOberfl = 9,8
        ? wrongMode ; pbWeiter ; @NachStatNPK ; stage == 5
        stand fault silent on ; after 500 cannot Kalibrierung.pbAbbrechen ; ? noMode ; ? wrongMode ; pbok ; pass 21000 ; @NachStatNPK
        stand fault none ; stand mode lever ; pbok ; @MomentKal ; run ; can pbWeiter)");
}

JOURNEY_P(LeverArm, EachWayOutStopsTheMotor) {
    co_await go(R"(
        login ; open ; close ; @Desktop ; motor ~ ^off Motein 0 ; stage == 0 ; idle == yes
        open ; pass 600000 ; @VorStatNPK ; close ; @StatMessen ; ? correctionAborted ; pbAbbrechen
        @Kalibrierung ; stage == 10 ; laInfo ~ abgebrochen! | dicontinued! ; pbAbbrechen ; @Desktop ; motor ~ off
        # The stop is not taken: told, and Motor AUS of the desktop goes on being usable.
        open ; stand fault silent on ; ? noController ; ? motorOffAtEnd ; pbAbbrechen ; pass 9000
        @Desktop ; motor ~ ^on Motaus 60 ; stand fault none ; pbMotaus ; pass 3000 ; motor ~ off Motein 0
        # The correction closed within the sequence does not come around again.
        open ; pass 600000 ; @VorStatNPK ; close ; @StatMessen ; close ; @Kalibrierung ; stage == 10 ; pbAbbrechen ; @Desktop
        # Gravity is not known.
        corrected ; pbok ; @Oberfl ; key Escape ; @Kalibrierung ; stage == 0 ; pbAbbrechen ; @Desktop
        corrected ; pbok ; @Oberfl ; pbAbbrechen ; @Kalibrierung ; laInfo ~ abgebrochen! | dicontinued! ; pbAbbrechen ; @Desktop ; motor ~ off)");
}

JOURNEY_P(LeverArm, AControllerThatFallsSilent) {
    co_await go(R"(
        login ; mounted left ; run ; pbWeiter ; @NachStatNPK ; stand fault silent on
        ? noStream ; ? leverFailed ; pbok ; @MomentKal ; pass 15100 ; @Kalibrierung ; new == 0 ; pbAbbrechen ; @Desktop
        stand fault none ; mounted left ; until laInfo ~ ^5.
        stand fault silent on ; ? noStreamAnyMore ; ? leverFailed ; pass 15100 ; @Kalibrierung)");
}

// In the middle of a run, then with a controller that does not answer any more: tried again until
// the operator gives up.
JOURNEY_P(LeverArm, CancelledUnderARun) {
    co_await go(R"(
        login ; mounted left ; run ; pbWeiter ; hang right ; until laInfo ~ ^5.
        ? leverAborted ; ? correctionLoaded ; pbAbbrechen ; @Kalibrierung ; stage == 10 ; new == 0 ; pbAbbrechen ; @Desktop ; idle == yes
        mounted left ; run
        stand fault deaf 3 ; ? leverAborted ; ? noController ; ? reallyDiscontinue no ; ? correctionLoaded ; close ; pass 20000 ; @Kalibrierung ; pbAbbrechen ; @Desktop
        mounted left ; run
        stand fault silent on ; ? leverAborted ; ? noController ; ? reallyDiscontinue yes ; after 500 cannot MomentKal.pbAbbrechen ; pbAbbrechen ; pass 20000 ; @Kalibrierung ; stage == 10)");
}

JOURNEY_ROWS(LeverArm, WhatIsMissingIsToldBeforeTheMotorRuns, "DELETE FROM Hebelarmkalibrierung",
             "UPDATE Hebelarmkalibrierung SET Links = NULL",
             "UPDATE Normalkalibrierdaten SET AnzahlStreu = 1",
             "UPDATE Normalkalibrierdaten SET AnzahlStreu = NULL",
             "UPDATE Normalkalibrierdaten SET GrenzwStreubreite = NULL") {
    change(givenRow);
    co_await go(R"(
        ?* failure(D_6002) ; login ; mnuKalibrierung ; @Kalibrierung ; ? failure(4021) ; pbStart
        stage == 2 ; can pbStart ; motor ~ off ; wire == ; pbAbbrechen ; @Desktop)");
}

JOURNEY_P(LeverArm, ReferenceAndStoreThatFailLater) {
    co_await go(R"(
        login ; stand mode lever ; corrected ; stand lever left ; pbok ; @Oberfl ; txtOberfl = 9,8
        spoil SELECT Hebelarmkalibrierung ; ? failure(4022) ; pbWeiter ; @Kalibrierung ; stage == 10 ; laInfo ~ abgebrochen! | dicontinued!
        mend ; pbAbbrechen ; @Desktop ; stand lever none
        corrected ; stand lever left ; pbok ; @Oberfl ; txtOberfl = 9,8 ; pbWeiter ; @MomentKal ; run ; pbWeiter ; hang right ; run
        spoil INSERT Hebelarmkalibrierung ; ? failure(4032) ; pbWeiter ; front == MomentKal ; new == 0 ; mend
        pbWeiter ; @Kalibrierung ; new == 1)");
}

// What the desktop's running-in left does not lead past the checks of the start, and a line that
// was away between two sides is found again.
JOURNEY_P(LeverArm, RunningInOfTheDesktopAndALineThatWasAway) {
    co_await go(R"(
        select ; direction ; pbMotein ; pass 3000 ; mnuKalibrierung ; @Kalibrierung ; pass 620000
        front == Kalibrierung ; stage == 2 ; notice == ; motor ~ ^on.*60$ ; pbAbbrechen ; @Desktop ; motor ~ off
        mounted left ; run ; pbWeiter ; @NachStatNPK ; line out ; pass 500 ; line in
        picture == Hebelarm waagerecht, rechts | Lever arm level, right
        hang right ; run ; can pbWeiter ; pbWeiter ; @Kalibrierung ; new == 1)");
}

// Told to end while the question stands, the process ends.
JOURNEY(LeverArm, EndOfTheProcessUnderTheQuestion) {
    change("UPDATE Normalkalibrierdaten SET AnzahlStreu = 2"); // which do for a spread
    co_await go("login ; mounted left ; run ; laStreu_L ~ ^0,0 ; stand fault silent on");
    boxes.expect("Die Kalibrierung wurde abgebrochen", "", -1, platform::OK, beendenOhneFrage);
    co_await go("pbAbbrechen ; pass 100 ; wireNow ~ ^.{0,200}$");
    EXPECT_FALSE(gDesktopAktiv);
}

// The running-in ends under another screen; a start that fails; a direction taken back.
JOURNEY_P(LeverArm, TheStart) {
    co_await go(R"(
        login ; mnuKalibrierung ; @Kalibrierung ; stand fault silent on ; ? noController ; ? motorNotOn ; pbStart ; pass 9000
        stage == 1 ; laInfo == ; can pbStart ; stand fault none)");
    gDrehrichtung = 0;
    co_await go(R"(
        ? leverDirection ; pbStart ; @MotorDrehR ; obRechts ; pbok ; @Kalibrierung ; pass 2000 ; stage == 3 ; motor ~ ^on.*60$
        laDrehrichtung == Rechtslauf | Right ; terminated == now ; motor ~ 0$)");
}

} // namespace
