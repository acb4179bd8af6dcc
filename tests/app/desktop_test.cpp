// The desktop: what a selection allows, the road that it shows, the choice of the motor's
// direction.
#include <QTest>

#include "app/arbeitsweg.h"
#include "link/motorlampe.h"
#include "painted.h"
#include "session/auswahl.h"
#include "session/motorfenster.h"
#include "session/session.h"
#include "windows/waiting.h"
#include "workplace.h"

namespace {

using namespace support;

class Desktop : public Workplace {
  protected:
    Desktop() {
        views["chosen"] = [] { return QString::number(gDrehrichtung); };
        views["road"] = [] { // the buttons that wait to be pressed
            QStringList names;
            for (const auto *button : loaded(frm::Desktop)->findChildren<QAbstractButton *>()) {
                if (platform::isWaiting(button))
                    names += button->objectName();
            }
            return names.join(' ');
        };
        views["lamp"] = [] { return control(frm::Desktop, "anzMotor")->accessibleName(); };
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
    co_await go("can pbGerät mnuGerät ; cannot pbMessen mnuStartMessen ; road == pbGerät ; desktop "
                "~ ^Praxis...Kurz");
    gEingelaufen = true;
    gerätWählen("Typ", "4711");
    co_await go("can pbMessen mnuStartMessen ; road == pbMessen ; desktop ~ ^Praxis.Typ.4711.Kurz");
    // A measurement that was forbidden is allowed by a choice, and by nothing else.
    motorfenster().setMessenEnabled(false);
    act(english() ? "mnuDeutsch" : "mnuEnglisch");
    datumZeigen("01.01.2030");
    co_await go("cannot pbMessen mnuStartMessen ; road ==");
    rezeptWählen("Kurz");
    co_await go("can pbMessen mnuStartMessen");
}

// Chosen: kunde, gerät, rezept, direction; motor turning, run in. Then the buttons that can be
// pressed; none is named for nothing.
TEST(Road, OneStationWaits) {
    for (const Case &c : cases(R"(
            -, KRD -> K | R, KRD -> K | K, KGRD -> G | KG, KGRD -> R | KR, KGRD -> G
            | KGR, KGRDS -> D | KGRD, KGRDES -> E | KGRDm, KGRS -> - | KGRDmi, KGRS -> S
            | KGRi, KGRDS -> S | KGRDi, KGRDES -> S | KGRDi, KGRDE -> - | KGRD, KGR -> -
            | Kdi, KR -> - | KGDmi, KGR -> R)")) {
        const auto is = [&c](char letter) { return c.in_(0).contains(letter); };
        const Wegstand stand{is('K'), is('G'), is('R'), is('D'), is('m'), is('i')};
        const QString letters = "KGRDES";
        std::set<Station> usable;
        for (const QChar letter : c.in_(1))
            usable.insert(Station(letters.indexOf(letter)));
        const auto next = nächsterSchritt(stand, usable);
        EXPECT_EQ(next ? letters[int(*next)] : QChar('-'), c.out) << c;
    }
}

JOURNEY_P(Desktop, LeadsTheOperator) {
    // The keyboard goes on with the road; the line that the motor is on ends with any stop.
    co_await go(R"(
        login ; road == pbKunde ; pbRezept ; @Rezepte ; cmbRezeptname = Kurzprüfung ; pbok ; @Desktop
        road == pbKunde ; focus pbKunde ; choose AEH-001, Kurzprüfung ; road == pbDrehR ; focus pbDrehR
        lamp == Motor aus | Motor off ; direction ; road == pbMotein ; focus pbMotein
        pbMotein ; road == ; lamp == Motor ein | Motor on ; pass 3000
        ? notRunIn yes ; pbMessen ; @VorStatNPK ; lamp == Motor aus | Motor off
        Desktop.laInfo == ; pbok ; until can StatMessen.pbWeiter ; close ; @Desktop ; road == pbMessen
        pbMotein ; pbMotaus ; begin ; Desktop.laInfo == Motor ist ausgeschaltet | Motor is switched off)");
}

JOURNEY_P(Desktop, DirectionOfRotation) {
    co_await logIn();
    co_await go(R"(
        pbDrehR ; @MotorDrehR ; cannot pbok Desktop.pbKunde laLinks laRechts
        obLinks ; chosen == 2 ; can laLinks ; cannot laRechts ; focus pbok
        obRechts ; chosen == 1 ; can laRechts ; cannot laLinks ; obLinks ; can laLinks
        cannot laRechts ; Desktop.lbDrehrichtung ==
        key Return ; @Desktop ; lbDrehrichtung == Linkslauf | Left ; can pbMotein)");
    co_await go("pbDrehR ; @MotorDrehR");
    QTest::mouseClick(control(frm::MotorDrehR, "laRechts"), Qt::LeftButton);
    co_await go("checked obRechts ; chosen == 1 ; obLinks ; pbok ; @Desktop");
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

TEST_F(Workshop, LampAndArrowTurnAsTheShaftDoes) { // left | right, off and on, then the arrow
    for (const Case &c : cases("0 -> _k_k|k_k_ _A.A|A_ _|_ | 1 -> _k_k|k_k_ _A.A|A_ _T_|_"
                               " | 2 -> _k_k|k_k_ _A|A.A_ _|_T_")) {
        gDrehrichtung = c.in.toShort();
        platform::Bild lamp, arrow;
        QStringList halves;
        for (const bool on : {false, true}) {
            gMotorEin = on;
            motorZeigen(lamp);
            const QImage image = painted(lamp, {200, 200});
            halves += along(image, 0.62, 0, 0.5) + '|' + along(image, 0.62, 0.5);
        }
        richtungZeigen(arrow);
        const QImage image = painted(arrow, {200, 200});
        halves += along(image, 0.65, 0, 0.5) + '|' + along(image, 0.65, 0.5);
        EXPECT_EQ(halves.join(' '), c.out) << c;
    }
    gMotorEin = false;
}

} // namespace
