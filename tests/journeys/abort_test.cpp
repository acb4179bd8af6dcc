// Every way out of a measurement, from the login to the last notice: what is told, that the motor
// stands, and that the next measurement works.
#include "measuring.h"

namespace {

using namespace support;

class Abort : public Measuring {
  protected:
    Abort() {
        // The measurement has been left with nothing stored; also what might still come has come.
        roads["left"] = [this](const QString &) {
            return go(
                R"(@Desktop ; pass 5000 ; idle == yes ; head == ; wireNow ~ -\*E-0000\+>>>$)");
        };
    }
};

JOURNEY_P(Abort, Login) {
    for (const char *way : {"pbCancel", "close"}) {
        start();
        co_await go("@Login ; ? login ; txtUserName ! ; front == Login ; " + QString(way) +
                    " ; pass 3000 ; front == ; wire ==");
        for (const frm name : {frm::Splash, frm::Login, frm::Desktop})
            EXPECT_FALSE(loaded(name));
    }
}

JOURNEY_P(Abort, DirectionThatTheMeasurementAsksFor) {
    co_await go(R"(
        select ; ? notRunIn no ; pbMessen ; pass 100 ; front == Desktop ; released == no
        ? notRunIn yes ; ? directionFirst ; pbMessen ; @MotorDrehR ; released == yes
        close ; @Desktop ; released == no)");
    for (int i = 0; i < 2; ++i) {
        co_await go(R"(
            # The measurement goes on by itself, once and again.
            ? notRunIn yes ; ? directionFirst ; pbMessen ; @MotorDrehR ; released == yes
            obRechts ; pbok ; @VorStatNPK ; pbok ; until can StatMessen.pbWeiter ; close ; @Desktop
            pbDrehR ; @MotorDrehR ; ? noDirection ; pbAbbrechen ; @Desktop ; released == no)");
    }
}

JOURNEY_P(Abort, Correction) {
    co_await go(R"(
        # A wait that went on would tell so after 15 s.
        select ; begin ; pbok ; until wireNow ~ f$ ; pass 1000 ; abort ; wire ~ -$ ; pass 20000
        begin ; pbok ; until wireNow ~ t$ ; pass 1000 ; abort ; wire ~ -$ ; pass 20000
        begin ; close ; @StatMessen ; pass 5000 ; cannot pbWeiter ; abort    # in the instruction
        begin ; pbok ; until can StatMessen.pbWeiter ; close ; @Desktop ; pass 1000 ; idle == yes)");
}

JOURNEY_P(Abort, CorrectionNotWhileTheMotorIsStopped) {
    co_await go(R"(
        select ; direction ; pbMotein ; pass 10000 ; ? notRunIn yes ; pbMessen
        # The line is in use: nobody may get at it, from here or from the desktop.
        until wireNow ~ g$ ; cannot StatMessen.pbAbbrechen ; close ; cannot Desktop.pbMotaus
        @VorStatNPK ; shaft ~ motor=off ; pbok ; until can StatMessen.pbWeiter)");
}

JOURNEY_P(Abort, ProtocolDialogAndMeasuring) {
    co_await go(R"(
        select ; correct ; ? emptyProtocol ; pbexit ; left
        correct ; ? emptyProtocol ; close ; left
        correct ; protocol Gleich ; pbAbbrechen ; @Meldung
        notice == Meldung: Beenden des Messens | Message: Terminate the Measuring ; ? emptyProtocol ; left
        correct ; protocol Am Kreuz ; step 1 60 ; ? emptyProtocol ; close ; left
        # The exchange comes to its end first.
        correct ; protocol Mittendrin ; step 1 60 ; wire ~ . ; pbMessen ; until wireNow ~ .
        ? emptyProtocol ; close Messen ; left ; wire == -*E-2100+>>>6-*E-0000+>>>
        whole Wiederholung)");
}

JOURNEY_P(Abort, DuringTheNoticeBetweenSteps) {
    co_await go(R"(
        # Out of use: neither its buttons nor its close box act.
        measure ; stand load 100 ; step 1 60 ; pbSpeichern ; @Meldung
        cannot Messen.pbAbbrechen ; close Messen
        # A notice that a person closes lets the next step begin at once, and only once.
        wire ~ . ; close Meldung ; step 2 80 ; wire == -*E-2800+>>>6
        pbAbbrechen ; @Meldung ; close ; @Desktop ; pass 5000 ; idle == yes ; stored Prüfschritt == 1)");
}

} // namespace
