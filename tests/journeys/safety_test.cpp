// The shaft that may be turning, and values that do not belong to what is shown: what must never
// happen, whatever fails and whatever is typed.
#include "controller.h"
#include "linefaults.h"
#include "measuringsession.h"
#include "start.h"

namespace {

using namespace support;
using namespace platform;

class Shaft : public LineFaults {
  protected:
    void expectEnd(int answer) {
        boxes.expect("Wollen Sie das Programm wirklich beenden?", answer);
    }
    /// Running-in has begun and the controller has fallen silent.
    Journey turningAndSilent() {
        co_await select();
        co_await chooseDirection();
        press(frm::Desktop, "pbMotein");
        co_await pass(3'000);
        line.stand().setFaults({.silent = true});
    }
    static void expectOnlyMotorOff() {
        EXPECT_TRUE(canPress(frm::Desktop, "pbMotaus"));
        EXPECT_FALSE(canPress(frm::Desktop, "pbMotein"));
        EXPECT_TRUE(gMotorEin);
    }
};

TEST_F(Shaft, IsStoppedByEveryOrderlyEnd) {
    const auto journey = [this]() -> Journey {
        co_await turningAndSilent();
        // The stop before the correction fails: nobody is told to uncouple.
        gEingelaufen = true;
        expectNoController();
        expectCorrectionAborted();
        press(frm::Desktop, "pbMessen");
        co_await arrive(frm::Desktop);
        expectOnlyMotorOff();
        EXPECT_FALSE(canPress(frm::Desktop, "pbMessen"));
        EXPECT_TRUE(text(frm::Desktop, "laInfo").contains("neu wählen"));
        // A start that fails, too, begins and ends nothing.
        expectNoController();
        EXPECT_FALSE(fnc_BefehlSenden("E", gDrehrichtung, "60"));
        expectOnlyMotorOff();
        // The end says that the stop failed, and stays when told so.
        for (const int anyway : {No, Yes}) {
            expectEnd(Yes);
            if (anyway == No)
                expectNoController();
            if (anyway == No) {
                expectMotorOff(Exclamation);
                boxes.expect(
                    "Der Motor konnte nicht ausgeschaltet werden und dreht sich vielleicht "
                    "noch.\rSoll das Programm trotzdem beendet werden?",
                    "Programmende", YesNo + Exclamation + SecondButtonDefault, No);
            }
            press(frm::Desktop, "pbBeenden");
            EXPECT_EQ(loaded(frm::Desktop) != nullptr, anyway == No);
            if (anyway == No) {
                expectOnlyMotorOff();
                heal();
            }
        }
        EXPECT_TRUE(line.stand().wire().ends_with("*E-0000+>>>"));
        EXPECT_EQ(line.stand().setSpeed(), 0);
    };
    run(journey());
}

TEST_F(Shaft, IsStoppedBySignals) {
    const auto journey = [this]() -> Journey {
        co_await measure();
        co_await settled("1", 60);
        line.stand().setFaults({.silent = true});
        boxes.allow("…");
        co_await leaveMeasuring();
        expectOnlyMotorOff();
        heal();
        beendenOhneFrage();
        EXPECT_EQ(line.stand().setSpeed(), 0);
    };
    run(journey());
}

TEST_F(Shaft, SignalsLeaveNoEmptyHead) {
    const auto journey = [this]() -> Journey {
        co_await measure();
        co_await settled("1", 60);
        beendenOhneFrage();
        EXPECT_EQ(line.stand().setSpeed(), 0);
        Datenbank after;
        after.openFile(datenbankName);
        EXPECT_TRUE(after.open("SELECT 1 FROM Protokoll_temp WHERE ProtokollID = ?", {gProtokollID})
                        .empty());
    };
    run(journey());
}

TEST_F(Shaft, HasADirection) {
    const auto journey = [this]() -> Journey {
        co_await select();
        co_await chooseDirection();
        gEingelaufen = true;
        press(frm::Desktop, "pbDrehR");
        co_await arrive(frm::MotorDrehR);
        boxes.expect("Sie haben keine Drehrichtung gewählt!…");
        press(frm::MotorDrehR, "pbAbbrechen");
        co_await arrive(frm::Desktop);
        boxes.expect("Bitte wählen Sie zuerst eine Motor-Drehrichtung");
        press(frm::Desktop, "pbMessen");
        co_await arrive(frm::MotorDrehR);
    };
    run(journey());
}

// What a correction has to judge by is missing, or nothing was received.
TEST_F(Shaft, CorrectionJudgesWhatIsThere) {
    const auto journey = [this]() -> Journey {
        co_await select();
        line.stand().setOffsetDrift(1'000); // far out
        co_await startMeasuring();
        expectCorrectionAborted();
        press(frm::VorStatNPK, "pbok");
        co_await arrive(frm::NachStatNPK);
        press(frm::NachStatNPK, "pbok");
        co_await arrive(frm::Desktop);
        line.stand().setOffsetDrift(0);
        co_await startMeasuring(); // nothing is left of it to judge
        line.stand().setFaults({.silent = true});
        expectNoStream();
        press(frm::VorStatNPK, "pbok");
        co_await told(17'000);
        EXPECT_TRUE(inFront(frm::StatMessen));
        heal();
        co_await abortCorrection();

        change("UPDATE Normalkalibrierdaten SET VK1_R = NULL");
        boxes.expect("Fehler 4040 -  94 …");
        expectCorrectionAborted();
        press(frm::Desktop, "pbRezept");
        co_await arrive(frm::Rezepte);
        type(frm::Rezepte, "cmbRezeptname", demoNames().recipe);
        press(frm::Rezepte, "pbok");
        co_await arrive(frm::Desktop);
        press(frm::Desktop, "pbMessen");
        co_await arrive(frm::Desktop);
        EXPECT_FALSE(line.stand().factorWritten());
    };
    run(journey());
}

class Belonging : public MeasuringSession {
  protected:
    static void key(const QString &text) {
        QTest::keyClicks(control(frm::Messen, "txtSoll_n"), text);
    }
    void expectOutside() {
        boxes.expect("Drehzahl liegt außerhalb des gültigen Bereiches", "Eingabefehler", Critical);
    }
};

TEST_F(Belonging, KeysInFreeInputChangeTheBoxAlone) {
    const auto journey = [this]() -> Journey {
        co_await measure();
        co_await settled("1", 60);
        co_await freeInput();
        type(frm::Messen, "txtSoll_n", "130");
        key("+");
        expectOutside();
        enter(frm::Messen, "txtSoll_n");
        EXPECT_EQ(shown("laKorrF"), "1,0000");
        EXPECT_EQ(shown("txtSoll_n"), "");
        key("-");
        expectOutside();
        enter(frm::Messen, "txtSoll_n");

        // The button follows the three fields, both ways.
        typeSetpoints("70", "200", "1");
        EXPECT_TRUE(waits("pbAusführen"));
        for (const char *box : {"txtSoll_n", "txtSoll_P"}) {
            const QString before = shown(box);
            control<QLineEdit>(frm::Messen, box)->clear();
            EXPECT_FALSE(canPress(frm::Messen, "pbAusführen")) << box;
            type(frm::Messen, box, before);
            enter(frm::Messen, box);
            EXPECT_TRUE(waits("pbAusführen")) << box;
        }
        boxes.expect("Leistung muss ein nummerischer Wert sein!");
        type(frm::Messen, "txtSoll_P", "0.700"); // not 700 here and 0.7 there
        enter(frm::Messen, "txtSoll_P");
        EXPECT_EQ(shown("txtSoll_P"), "200");
        press(frm::Messen, "pbAusführen");
        co_await settled("FR", 70);
        press(frm::Messen, "pbMessen");
        co_await settled("1", 60);
        co_await leaveMeasuring();
    };
    boxes.allow("Protokoll enthält keine Daten…");
    run(journey());
}

TEST_F(Belonging, APassSendsNoSpeedOutsideItsRange) {
    change("UPDATE Rezepte SET Drehzahl = '20' WHERE RezeptID = 1 AND Prüfschritt = '1'");
    const auto journey = [this]() -> Journey {
        line.stand().setLoad(30);
        co_await measure();
        co_await settled("1", 20);
        for (int i = 0; i < 200; ++i)
            press(frm::Messen, "pbPlus"); // 40: the factor is 2
        press(frm::Messen, "pbÜbernehmen");
        co_await settled("1", 40);
        line.stand().clearWires();
        expectOutside();
        save(); // 80 / min at 2
        co_await until("the box", [this] { return boxes.allCame(); });
        co_await pass(1'000);
        EXPECT_EQ(line.stand().wire(), "-");
        EXPECT_EQ(line.stand().setSpeed(), 40);
        EXPECT_EQ(shown("txtSoll_n"), "160,0");
        EXPECT_EQ(gMessStatus, messstatus::Ruhe);
        EXPECT_FALSE(canPress(frm::Messen, "pbSpeichern"));
        for (int i = 0; i < 200; ++i)
            press(frm::Messen, "pbMinus");
        press(frm::Messen, "pbÜbernehmen");
        co_await settled("2", 140);
        co_await leaveMeasuring();
    };
    run(journey());
}

TEST_F(Belonging, OnlyValuesOfTheSetPointShownAreStored) {
    const auto journey = [this]() -> Journey {
        co_await measure();
        line.stand().setLoad(100);
        co_await settled("1", 60);
        // A corrected speed that was not sent; by keys the step is sent anew.
        press(frm::Messen, "pbPlus");
        co_await pass(10'000);
        EXPECT_FALSE(canPress(frm::Messen, "pbSpeichern"));
        control<QWidget>(frm::Messen, "txtSoll_n")->setFocus();
        key("+");
        EXPECT_TRUE(waits("pbMessen"));
        press(frm::Messen, "pbMessen");
        co_await settled("1", 60.2);
        EXPECT_FALSE(waits("pbMessen") || canPress(frm::Messen, "pbÜbernehmen"));
        // A second press is none, and the stream of the step before opens nothing.
        auto *button = control<QAbstractButton>(frm::Messen, "pbSpeichern");
        button->click();
        button->setEnabled(true);
        button->click();
        EXPECT_EQ(storedSteps(), QStringList{"1"});
        for (int i = 0; i < 20; ++i) {
            co_await pass(100);
            if (shown("laPrSchritt") == "1") {
                EXPECT_FALSE(canPress(frm::Messen, "pbSpeichern"));
            }
        }
        co_await settled("2", 80.3);
        type(frm::Messen, "txtIST_n_ergom", "80");
        EXPECT_TRUE(canPress(frm::Messen, "pbSpeichern"));
        co_await leaveMeasuring();
    };
    run(journey());
}

TEST_F(Belonging, RowsOfAnotherRecipeAreNotMixed) {
    const auto journey = [this]() -> Journey {
        co_await measure();
        line.stand().setLoad(100);
        const auto setpoints = [this] { return rows("Soll_n || ' ' || Soll_P").join('|'); };
        const auto measureAgain = [this](const QString &soll_n, const QString &soll_P) -> Journey {
            change("UPDATE Messwerte_temp SET Soll_n = ?, Soll_P = ? WHERE ProtokollID = ?",
                   {soll_n, soll_P, gProtokollID});
            press(frm::Messen, "pbFirst");
            press(frm::Messen, "pbAusführen");
            co_await settled("1", 60);
            save();
            co_await settled("2", 80);
        };
        co_await settled("1", 60);
        save();
        co_await settled("2", 80);
        co_await measureAgain("66.0", "100.0"); // corrected, under the other number format
        EXPECT_EQ(setpoints(), "66.0 100.0");
        co_await measureAgain("66,1", "100,0");
        EXPECT_EQ(setpoints(), "60,0 100,0");
        co_await measureAgain("60,0", "25,0");
        EXPECT_EQ(setpoints(), "60,0 100,0");
        // An uncertainty that is missing stores no row.
        change("UPDATE MU_Drehzahl SET MU = NULL");
        type(frm::Messen, "txtIST_n_ergom", "80");
        boxes.expect("Fehler 3018 -  94 …");
        save();
        EXPECT_EQ(storedSteps(), QStringList{"1"});
        EXPECT_EQ(shown("laPrSchritt"), "2");
        co_await leaveMeasuring();
    };
    run(journey());
}

} // namespace
