// The desktop: what a selection allows, and the choice of the motor's direction.
#include "auswahl.h"
#include "front.h"
#include "msgbox.h"
#include "session.h"
#include "workplace.h"

namespace {

using namespace support;
using namespace platform;

class Desktop : public Workplace, public testing::WithParamInterface<int> {
  protected:
    Desktop() { setLanguage(GetParam()); }

    static bool enabled(const char *name) {
        auto *object = control<QObject>(frm::Desktop, name);
        const auto *action = qobject_cast<QAction *>(object);
        return action ? action->isEnabled() : control<QWidget>(frm::Desktop, name)->isEnabled();
    }
    static bool lit(const char *arrow) { return control(frm::MotorDrehR, arrow)->isEnabled(); }
    static Journey openDirection() {
        press(frm::Desktop, "pbDrehR");
        co_await arrive(frm::MotorDrehR);
        EXPECT_FALSE(loaded(frm::Desktop)->usable());
    }
    QString word(int direction) const {
        return direction == 1 ? english() ? "Right" : "Rechtslauf"
               : english()    ? "Left"
                              : "Linkslauf";
    }
    void expectNoDirection() {
        expectBox({"Sie haben keine Drehrichtung gewählt!\r\nDer Motor kann nicht eingeschaltet "
                   "werden.",
                   "Please select a direction of rotation for the motor!\r\nIt is not possible to "
                   "switch the motor on."},
                  Exclamation, {"Meldung", "Message"});
    }
};

INSTANTIATE_TEST_SUITE_P(Languages, Desktop, testing::Values(1, 2));

TEST_P(Desktop, BeginsWithWhatNeedsNoSelection) {
    for (const int finalTest : {0, -1}) {
        change("UPDATE System SET Endprüfung = ?", {finalTest});
        forgetSession();
        const auto journey = [this, finalTest]() -> Journey {
            co_await logIn();
            for (const char *off : {"pbMotein", "pbMotaus", "pbGerät", "pbBlutdruck",
                                    "pbSecControl", "pbMessen", "mnuGerät", "mnuStartMessen"})
                EXPECT_FALSE(enabled(off)) << off;
            for (const char *on : {"pbKunde", "pbRezept", "pbDrehR", "pbBeenden", "mnuKunden",
                                   "mnuRezept", "mnuSSParameter", "mnuEinlaufen", "mnuBeenden"})
                EXPECT_TRUE(enabled(on)) << on;
            for (const char *hidden : {"pbReset", "pbEndprüf"})
                EXPECT_EQ(control(frm::Desktop, hidden)->isVisible(), finalTest != 0) << hidden;
            expectBox({"Wollen Sie das Programm wirklich beenden?",
                       "Do you really want to terminate the program?"},
                      YesNo + Question, {"Programmende", "End Of Program"}, Yes);
            press(frm::Desktop, "pbBeenden");
        };
        run(journey());
    }
}

TEST_P(Desktop, AllowsWhatTheSelectionAllows) {
    const struct {
        const char *customer, *ident, *recipe;
        bool unit, measuring;
    } cases[] = {
        {"", "", "Kurz", false, false},         {"Praxis", "", "", true, false},
        {"Praxis", "", "Kurz", true, false},    {"Praxis", "4711", "", true, false},
        {"Praxis", "4711", "Kurz", true, true}, {"Praxis", "", "Kurz", true, false},
        {"Praxis", "4711", "Kurz", true, true}, {"Praxis", "4711", "", true, false},
    };
    const auto journey = [&]() -> Journey {
        co_await logIn();
        for (const auto &c : cases) {
            SCOPED_TRACE(std::string(c.customer) + '/' + c.ident + '/' + c.recipe);
            kundeWählen(c.customer, 1);
            gerätWählen("Typ", c.ident);
            rezeptWählen(c.recipe);
            EXPECT_EQ(text(frm::Desktop, "txtKunde"), c.customer);
            EXPECT_EQ(text(frm::Desktop, "txtGerätID"), c.ident);
            EXPECT_EQ(text(frm::Desktop, "txtRezept"), c.recipe);
            for (const char *name : {"pbGerät", "mnuGerät"})
                EXPECT_EQ(enabled(name), c.unit) << name;
            EXPECT_EQ(enabled("pbBlutdruck"), c.unit && exists(frm::Blutdruck));
            EXPECT_EQ(enabled("pbSecControl"), *c.ident && exists(frm::SecControl));
            for (const char *name : {"pbMessen", "mnuStartMessen"})
                EXPECT_EQ(enabled(name), c.measuring) << name;
        }
        // A measurement that was forbidden is allowed by a choice, and by nothing else.
        rezeptWählen("Kurz");
        EXPECT_TRUE(enabled("pbMessen"));
        front().setMessenEnabled(false);
        support::choose(frm::Desktop, english() ? "mnuDeutsch" : "mnuEnglisch");
        datumZeigen("01.01.2030");
        EXPECT_FALSE(enabled("pbMessen"));
        EXPECT_FALSE(enabled("mnuStartMessen"));
        rezeptWählen("Kurz");
        EXPECT_TRUE(enabled("pbMessen"));
        EXPECT_TRUE(enabled("mnuStartMessen"));
    };
    run(journey());
}

TEST_P(Desktop, DirectionOfRotation) {
    const auto journey = [this]() -> Journey {
        co_await logIn();
        co_await openDirection();
        EXPECT_FALSE(canPress(frm::MotorDrehR, "pbok"));
        EXPECT_FALSE(lit("laLinks") || lit("laRechts"));
        for (const int direction : {2, 1, 2}) {
            press(frm::MotorDrehR, direction == 1 ? "obRechts" : "obLinks");
            EXPECT_EQ(gDrehrichtung, direction);
            EXPECT_EQ(lit("laRechts"), direction == 1);
            EXPECT_EQ(lit("laLinks"), direction == 2);
            EXPECT_TRUE(control(frm::MotorDrehR, "pbok")->hasFocus());
        }
        EXPECT_EQ(text(frm::Desktop, "lbDrehrichtung"), "");
        QTest::keyClick(control(frm::MotorDrehR, "pbok"), Qt::Key_Return);
        co_await arrive(frm::Desktop);
        EXPECT_EQ(text(frm::Desktop, "lbDrehrichtung"), word(2));
        EXPECT_TRUE(canPress(frm::Desktop, "pbMotein"));

        // Shown again as it is; a calibration goes on where it waits.
        front().setMoteinEnabled(false);
        co_await openDirection();
        EXPECT_TRUE(control<QAbstractButton>(frm::MotorDrehR, "obLinks")->isChecked());
        EXPECT_TRUE(lit("laLinks"));
        press(frm::MotorDrehR, "obRechts");
        gFormStatus = formstatus::RichtungFehlt;
        press(frm::MotorDrehR, "pbok");
        EXPECT_EQ(gFormStatus, formstatus::Einlaufen);
        co_await arrive(frm::Desktop);
        EXPECT_EQ(text(frm::Desktop, "lbDrehrichtung"), word(1));
        EXPECT_FALSE(enabled("pbMotein"));

        co_await openDirection();
        expectNoDirection();
        press(frm::MotorDrehR, "pbAbbrechen");
        co_await arrive(frm::Desktop);
        EXPECT_EQ(gDrehrichtung, 0);
        co_await openDirection();
        EXPECT_FALSE(canPress(frm::MotorDrehR, "pbok"));
        loaded(frm::MotorDrehR)->close();
        co_await arrive(frm::Desktop);
        EXPECT_EQ(gDrehrichtung, 0);
    };
    run(journey());
}

TEST_P(Desktop, ADirectionThatAMeasurementWaitsFor) {
    const auto journey = [this]() -> Journey {
        co_await select();
        for (const bool wanted : {false, true}) {
            co_await openDirection();
            gMessenFreigabe = wanted;
            press(frm::MotorDrehR, "obLinks");
            press(frm::MotorDrehR, "pbok");
            EXPECT_EQ(gDesktopFolge, wanted ? desktopfolge::Korrektur : desktopfolge::Nichts);
            co_await pass(500);
            EXPECT_EQ(loaded(frm::StatMessen) != nullptr, wanted);
        }
        co_await arrive(frm::VorStatNPK);
        EXPECT_EQ(gDesktopFolge, desktopfolge::Nichts);
    };
    run(journey());
}

} // namespace
