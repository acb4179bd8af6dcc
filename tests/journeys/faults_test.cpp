// A controller that does not do as it should, from motor on to the stream of a step: what is told,
// that nothing hangs, and that the program goes on as soon as the controller does.
#include "measuring.h"

namespace {

using namespace support;

using LineFaults = Measuring;

JOURNEY_P(LineFaults, MotorOnAndOff) {
    change("UPDATE System SET Einlzeit2 = NULL"); // ten minutes if nothing is stored
    co_await go(R"(
        select ; direction ; stand fault deaf 2 ; pbMotein ; motor == on Motaus 60
        laInfo == Motor wird eingeschaltet | Motor is switched on ; keyboard == pbMotaus ; cannot pbDrehR ; pass 2005
        lbEinlauf == 09:58 ; stand fault deaf 2 ; pbMotaus ; motor == off Motein 0
        laInfo == Motor ist ausgeschaltet | Motor is switched off
        pass 5000 ; lbEinlauf == 09:58 ; speed == 0    # running-in stops with the motor
        stand fault deaf 3 ; ? noController ; ? motorNotOn ; pbMotein ; motor == off Motein 0
        keyboard == pbMotein ; can pbDrehR ; laInfo == ; pbMotein ; motor == on Motaus 60
        stand fault deaf 3 ; ? noController ; ? motorOffAtEnd ; pbMotaus ; motor == on Motaus 60
        keyboard == pbMotaus ; pbMotaus ; motor == off Motein 0
        stand fault silent on ; ? noController ; ? motorNotOn ; pbMotein ; motor == off Motein 0
        stand fault none ; pbMotein ; motor == on Motaus 60
        stand fault silent on ; ? noController ; ? motorOffAtEnd ; pbMotaus ; motor == on Motaus 60
        stand fault none ; pbMotaus ; motor == off Motein 0)");
}

JOURNEY_P(LineFaults, RefusedSpeedLeavesTheScreen) {
    co_await go(R"(
        select ; correct ; obNeu ; stand fault deaf 3
        ? noController ; ? motorOn ; ? refused ; ? emptyProtocol ; pbok ; @Desktop ; idle == yes
        correct ; obNeu ; stand fault silent on    # nor is the stop heard
        ? noController ; ? motorOn ; ? refused ; ? noController ; ? emptyProtocol ; pbok ; @Desktop
        stand fault none ; idle == yes)");
}

JOURNEY_P(LineFaults, SilentStreamWaitsForTheOperator) {
    co_await go(R"(
        select ; begin ; pbok ; until can StatMessen.pbWeiter ; pbWeiter ; @NachStatNPK
        stand fault deaf 3 ; ? noController ; pbok ; @ProtokollNr    # when the measurement is opened
        protocol Trotzdem ; stand fault silent on ; pass 120000 ; live == || ; cannot pbSpeichern
        stand fault none ; step 1 60 ; stand fault silent on
        ? noController ; ? motorOff ; ? noController ; ? emptyProtocol ; leave
        stand fault none ; whole Danach)");
}

// A frame that was begun must end within 18 s; at 15 1/min one takes 24 s, and each is cut.
JOURNEY_P(LineFaults, CutFramesAreTold) {
    change("UPDATE Rezepte SET Drehzahl = '15' WHERE RezeptID = 1 AND Prüfschritt = '1'");
    co_await go(R"(
        select ; correct ; stand fault cut 1 ; protocol Cut ; until txtIST_n_torvena ~ .)");
    const double begin = clock.elapsed();
    expectKnown("noData", platform::OK,
                [this, begin] { EXPECT_NEAR(clock.elapsed() - begin, 18'000, 50); });
    co_await go(R"(
        until told == yes ; pass 100 ; stand fault none ; stand load 20
        pass 60000 ; step 1 15 ; txtIST_P_torvena ~ ^20 ; pbSpeichern    # one may be wrong still
        stored Prüfschritt == 1 ; step 2 80 ; leave)");
}

} // namespace
