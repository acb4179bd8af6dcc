// The desktop: what a selection allows, and the choice of the motor's direction.
#include "session/auswahl.h"
#include "session/motorfenster.h"
#include "session/session.h"
#include "workplace.h"

namespace {

using namespace support;

class Desktop : public Workplace {
  protected:
    Desktop() {
        views["chosen"] = [] { return QString::number(gDrehrichtung); };
    }
};

JOURNEY_ROWS(Desktop, BeginsWithWhatNeedsNoSelection, "0 hidden", "-1 shown") {
    change("UPDATE System SET Endprüfung = " + givenRow.section(' ', 0, 0));
    co_await logIn();
    co_await go(givenRow.section(' ', 1) + R"( pbReset pbEndprüf
        cannot pbMotein pbMotaus pbGerät pbBlutdruck pbSecControl pbMessen mnuGerät mnuStartMessen
        txtKalDat ~ ^\d\d[.]\d\d[.]20 ; can pbKunde pbRezept pbDrehR pbBeenden mnuKunden mnuRezept mnuSSParameter mnuEinlaufen mnuBeenden
        ? end yes ; pbBeenden)");
}

JOURNEY_P(Desktop, AllowsWhatTheSelectionAllows) {
    co_await logIn();
    co_await go("cannot pbGerät mnuGerät pbMessen mnuStartMessen ; desktop == ||||");
    kundeWählen("Praxis", 1);
    rezeptWählen("Kurz");
    co_await go("can pbGerät mnuGerät ; cannot pbMessen mnuStartMessen ; desktop ~ ^Praxis...Kurz");
    gerätWählen("Typ", "4711");
    co_await go("can pbMessen mnuStartMessen ; desktop ~ ^Praxis.Typ.4711.Kurz");
    // A measurement that was forbidden is allowed by a choice, and by nothing else.
    motorfenster().setMessenEnabled(false);
    act(english() ? "mnuDeutsch" : "mnuEnglisch");
    datumZeigen("01.01.2030");
    co_await go("cannot pbMessen mnuStartMessen");
    rezeptWählen("Kurz");
    co_await go("can pbMessen mnuStartMessen");
}

JOURNEY_P(Desktop, DirectionOfRotation) {
    co_await logIn();
    co_await go(R"(
        pbDrehR ; @MotorDrehR ; cannot pbok Desktop.pbKunde laLinks laRechts
        obLinks ; chosen == 2 ; can laLinks ; cannot laRechts ; focus pbok
        obRechts ; chosen == 1 ; can laRechts ; cannot laLinks ; obLinks ; can laLinks
        cannot laRechts ; Desktop.lbDrehrichtung ==
        key Return ; @Desktop ; lbDrehrichtung == Linkslauf | Left ; can pbMotein)");
    // Shown again as it is; a calibration goes on where it waits.
    motorfenster().setMoteinEnabled(false);
    co_await go(
        "pbDrehR ; @MotorDrehR ; can laLinks ; cannot laRechts ; checked obLinks ; obRechts");
    gFormStatus = Formstatus::RichtungFehlt;
    co_await go("pbok");
    EXPECT_EQ(gFormStatus, Formstatus::Einlaufen);
    co_await go(R"(
        @Desktop ; lbDrehrichtung == Rechtslauf | Right ; cannot pbMotein
        pbDrehR ; @MotorDrehR ; ? noDirection ; pbAbbrechen ; @Desktop ; chosen == 0
        pbDrehR ; @MotorDrehR ; cannot pbok ; close ; @Desktop ; chosen == 0)");
}

} // namespace
