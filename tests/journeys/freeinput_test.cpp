// Steps that stand in no recipe: set-points typed in, and speed zero.
#include "measuringsession.h"

namespace {

using namespace support;
using namespace platform;

/// Free input has keys and boxes of its own in each language.
class FreeInput : public MeasuringSession, public testing::WithParamInterface<int> {
  protected:
    FreeInput() { setLanguage(GetParam()); }
    void expectInputError(const Text &text) {
        expectBox(text, Critical, {"Eingabefehler", "Input Error"});
    }
};

INSTANTIATE_TEST_SUITE_P(Languages, FreeInput, testing::Values(1, 2));

TEST_P(FreeInput, LimitsAndKeys) {
    const auto journey = [this]() -> Journey {
        co_await measure();
        co_await settled("1", 60);
        co_await freeInput();
        EXPECT_EQ(shown("txtSoll_n") + shown("txtSoll_P") + shown("cmbMessArt"), "");
        EXPECT_FALSE(live());
        struct Wrong {
            const char *box;
            const char *good;
            QStringList beyond;
            Text notNumeric;
            Text outside;
        };
        const Wrong cases[] = {
            {"txtSoll_n",
             "130",
             {"131"}, // a minus is a key of the correction there
             {"Drehzahl muss ein nummerischer Wert sein!",
              "Number of revolutions must be a numeric value!"},
             {"Drehzahl liegt außerhalb des gültigen Bereiches",
              "The permissible number of revolutions has been exeeded!"}},
            {"txtSoll_P",
             "800",
             {"801", "-1"},
             {"Leistung muss ein nummerischer Wert sein!", "Power must be a numeric value!"},
             {"Leistung liegt außerhalb des gültigen Bereiches",
              "Permissible power has been exeeded!"}},
        };
        for (const Wrong &wrong : cases) {
            SCOPED_TRACE(wrong.box);
            type(frm::Messen, wrong.box, wrong.good);
            enter(frm::Messen, wrong.box);
            for (const QString &bad : wrong.beyond + QStringList{"x"}) {
                expectInputError(bad == "x" ? wrong.notNumeric : wrong.outside);
                type(frm::Messen, wrong.box, bad);
                enter(frm::Messen, wrong.box);
                EXPECT_TRUE(boxes.allCame());
                EXPECT_EQ(shown(wrong.box), wrong.good);
                EXPECT_TRUE(control<QWidget>(frm::Messen, wrong.box)->hasFocus());
            }
        }
        EXPECT_FALSE(canPress(frm::Messen, "pbAusführen")); // the type is missing

        const QString power = english() ? "Power Measurement" : "Leistungsmessung";
        const QString speed = english() ? "Speed Measurement" : "Drehzahlmessung";
        for (const auto &[key, chosen] : {std::pair{english() ? "p" : "l", power},
                                          {english() ? "S" : "D", speed},
                                          {"1", power},
                                          {"2", speed}}) {
            type(frm::Messen, "cmbMessArt", key);
            EXPECT_EQ(shown("cmbMessArt"), chosen) << key;
        }
        beeps = 0;
        type(frm::Messen, "cmbMessArt", english() ? "l" : "s");
        EXPECT_EQ(shown("cmbMessArt"), "");
        EXPECT_EQ(beeps, 1);

        // 60 N m
        typeSetpoints("50", "315", "1");
        EXPECT_TRUE(waits("pbAusführen"));
        expectBox({"Das zulässige Drehmoment ist überschritten!\r\n"
                   "Bitte geben Sie andere Werte ein!",
                   "The permissible torque has been exeeded!\r\nPlease enter other values!"},
                  Critical, {"Drehmoment<=60Nm", "Torque<=60Nm"});
        press(frm::Messen, "pbAusführen");
        EXPECT_TRUE(boxes.allCame());
        EXPECT_FALSE(loaded(frm::Meldung));
        // Pressed by its access key from a box that was not left, the box is judged first.
        type(frm::Messen, "txtSoll_P", "314");
        enter(frm::Messen, "txtSoll_P");
        type(frm::Messen, "txtSoll_n", "500");
        expectInputError({"Drehzahl liegt außerhalb des gültigen Bereiches",
                          "The permissible number of revolutions has been exeeded!"});
        press(frm::Messen, "pbAusführen");
        EXPECT_TRUE(boxes.allCame());
        EXPECT_FALSE(loaded(frm::Meldung));
        EXPECT_EQ(shown("txtSoll_n"), "50");
        press(frm::Messen, "pbAusführen");
        co_await settled("FR", 50);
        expectEmptyProtocol();
        co_await leaveMeasuring();
    };
    run(journey());
}

TEST_F(MeasuringSession, FreeStepsRepeatInOrderOfTime) {
    const auto journey = [this]() -> Journey {
        co_await measure();
        line.stand().setLoad(100);
        co_await settled("1", 60);
        save();
        co_await settled("2", 80);
        co_await freeInput();
        typeSetpoints("70", "200", "1");
        line.stand().clearWires();
        for (const int load : {203, 198}) {
            line.stand().setLoad(load);
            if (load == 203)
                press(frm::Messen, "pbAusführen");
            co_await settled("FR", 70);
            EXPECT_FALSE(control(frm::Messen, "txtIST_n_ergom")->isVisible());
            save();
            EXPECT_EQ(selectedStep(), "FR");
        }
        EXPECT_EQ(line.stand().wire().substr(0, 13), "-*E-2450+>>>6");
        EXPECT_EQ(rows("Prüfschritt || ' ' || Soll_n || ' ' || Soll_P || ' ' || "
                       "substr(Ist_P_torvena, 1, 3)"),
                  (QStringList{"1 60,0 100,0 100", "FR 70 200 203", "FR 70 200 198"}));
        EXPECT_EQ(gridSteps(), (QStringList{"1", "FR", "FR"}));
        // Back to where the recipe is.
        co_await settled("FR", 70);
        press(frm::Messen, "pbMessen");
        co_await settled("2", 80);
        co_await leaveMeasuring();
    };
    run(journey());
}

TEST_P(FreeInput, SpeedZeroAndAReadingThatIsNoNumber) {
    const auto journey = [this]() -> Journey {
        co_await measure();
        line.stand().setLoad(110); // not within 5 %
        co_await settled("1", 60);
        save();
        co_await settled("2", 80);
        for (const bool byEnter : {true, false}) {
            type(frm::Messen, "txtIST_n_ergom", english() ? "80,5" : "80.5");
            // The title is German in both languages.
            boxes.expect(english() ? "Input must be a numerical value!"
                                   : "Eingabe muss ein nummerischer Wert sein!",
                         "Fehler", Exclamation);
            if (byEnter)
                enter(frm::Messen, "txtIST_n_ergom");
            else
                save(); // as by its access key
            EXPECT_TRUE(boxes.allCame());
            EXPECT_EQ(shown("txtIST_n_ergom"), "");
            EXPECT_TRUE(control<QWidget>(frm::Messen, "txtIST_n_ergom")->hasFocus());
            EXPECT_FALSE(canPress(frm::Messen, "pbSpeichern"));
            EXPECT_EQ(storedSteps(), QStringList{"1"});
        }
        line.stand().clearWires();
        press(frm::Messen, "pbDrehzNull");
        co_await settled("FR", 0);
        EXPECT_EQ(line.stand().wire(), "--*E-0000+>>>6");
        EXPECT_EQ(line.stand().speed(), 0);
        EXPECT_EQ(shown("txtMessArt"), "Leistungsmessung"); // in both languages
        EXPECT_FALSE(canPress(frm::Messen, "pbDrehzNull"));
        expectBox({"Fehler 3018 -  11 Division durch Null: Bei 0 W gibt es keine relative "
                   "Messunsicherheit.",
                   "ERROR 3018 -  11 Division by zero: at 0 W there is no relative uncertainty."},
                  Critical, {"!! Achtung Fehler !!", " !! Attention !!"});
        save();
        const QStringList stored = rows("Prüfschritt || ' ' || Soll_n || ' ' || Soll_P || ' ' || "
                                        "Ist_n_torvena || ' ' || MU_ohne || ' ' || MU_mit || ' ' "
                                        "|| MU_Proz");
        EXPECT_EQ(stored.value(1),
                  english() ? "FR 0 0 0.00 no no 0.3" : "FR 0 0 0,00 nein nein 0.3");
        co_await settled("FR", 0);
        press(frm::Messen, "pbMessen");
        EXPECT_TRUE(control<QAbstractButton>(frm::Messen, "pbDrehzNull")->isEnabled());
        co_await settled("2", 80);
        co_await leaveMeasuring();
    };
    run(journey());
}

} // namespace
