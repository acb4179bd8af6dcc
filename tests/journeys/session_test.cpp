// What an operator does within one measuring session: navigation, free input, correction, speed
// zero, and what that puts on the wire and into the database.
#include <QTableView>

#include "runtime.h"
#include "session.h"
#include "waiting.h"
#include "workplace.h"

namespace {

using namespace support;
using namespace platform;

class MeasuringSession : public Workplace {
  protected:
    static QString shown(const char *box) { return text(frm::Messen, box); }
    static bool waits(const char *button) {
        return isWaiting(control<QAbstractButton>(frm::Messen, button));
    }
    static bool live() { return !shown("txtIST_n_torvena").isEmpty(); }
    static QStringList gridSteps() {
        const QAbstractItemModel *model = control<QTableView>(frm::Messen, "DBGrid1")->model();
        QStringList steps;
        for (int row = 0; row < model->rowCount(); ++row)
            steps += model->index(row, 0).data().toString();
        return steps;
    }
    static QString selectedStep() {
        const auto *grid = control<QTableView>(frm::Messen, "DBGrid1");
        const QModelIndexList rows = grid->selectionModel()->selectedRows();
        return rows.size() == 1 ? rows[0].data().toString() : QString();
    }
    QStringList rows(const QString &columns) {
        return column("SELECT " + columns + " FROM Messwerte_temp WHERE ProtokollID = ? "
                      "ORDER BY MDat, rowid",
                      {gProtokollID});
    }
    /// Set-points of free input; the type by its key.
    static void typeSetpoints(const QString &speed, const QString &power, const QString &key) {
        type(frm::Messen, "txtSoll_n", speed);
        enter(frm::Messen, "txtSoll_n");
        type(frm::Messen, "txtSoll_P", power);
        enter(frm::Messen, "txtSoll_P");
        type(frm::Messen, "cmbMessArt", key);
    }
    Journey freeInput() {
        press(frm::Messen, "pbFreieEing");
        co_await until("free input", [] { return shown("laPrSchritt") == "FR"; });
        co_await pass(20);
    }
};

TEST_F(MeasuringSession, Navigation) {
    const auto journey = [this]() -> Journey {
        co_await measure();
        line.stand().setLoad(100);
        co_await settled("1", 60);
        EXPECT_TRUE(canPress(frm::Messen, "pbSpeichern"));
        beeps = 0;
        press(frm::Messen, "pbPrevious");
        EXPECT_EQ(shown("laPrSchritt"), "1");
        EXPECT_EQ(beeps, 1);
        press(frm::Messen, "pbNext");
        EXPECT_EQ(shown("laPrSchritt"), "2");
        EXPECT_EQ(shown("txtSoll_n"), "80,0");
        EXPECT_EQ(beeps, 1);
        press(frm::Messen, "pbNext");
        EXPECT_EQ(shown("laPrSchritt"), "2");
        EXPECT_EQ(beeps, 2);
        press(frm::Messen, "pbFirst");
        EXPECT_EQ(shown("laPrSchritt"), "1");
        press(frm::Messen, "pbLast");
        EXPECT_EQ(shown("laPrSchritt"), "2");
        EXPECT_EQ(beeps, 2);

        // The old set-point goes on being measured, but cannot be stored under the new one.
        EXPECT_TRUE(waits("pbAusführen"));
        type(frm::Messen, "txtIST_n_ergom", "60");
        co_await pass(13'000);
        EXPECT_TRUE(shown("txtIST_n_torvena").startsWith("60,") ||
                    shown("txtIST_n_torvena").startsWith("59,"));
        EXPECT_FALSE(canPress(frm::Messen, "pbSpeichern"));
        line.stand().clearWires();
        press(frm::Messen, "pbAusführen");
        EXPECT_FALSE(waits("pbAusführen"));
        co_await arrive(frm::Meldung);
        EXPECT_EQ(text(frm::Meldung, "laMeldung2"), "Nächster Prüfschritt!");
        EXPECT_FALSE(canPress(frm::Messen, "pbSpeichern"));
        co_await until("the new stream", [this] { return line.stand().wire().ends_with("6"); });
        EXPECT_FALSE(live());
        co_await settled("2", 80);
        EXPECT_EQ(line.stand().wire(), "-*E-2800+>>>6");

        // The last step ends the recipe, whichever others are missing.
        EXPECT_FALSE(canPress(frm::Messen, "pbSpeichern"));
        type(frm::Messen, "txtIST_n_ergom", "80");
        expectRecipeEnd();
        save();
        co_await pass(3'000);
        EXPECT_EQ(shown("laPrSchritt"), "2");
        EXPECT_EQ(line.stand().wire().back(), '-');
        EXPECT_NEAR(line.stand().speed(), 80, 0.1);

        // A step behind the end: stored, and again, with no message and nothing started.
        press(frm::Messen, "pbFirst");
        press(frm::Messen, "pbAusführen");
        co_await settled("1", 60);
        for (int i = 0; i < 2; ++i) {
            save();
            EXPECT_FALSE(loaded(frm::Meldung));
            EXPECT_EQ(storedSteps(), (QStringList{"2", "1"}));
            EXPECT_EQ(gridSteps(), (QStringList{"1", "2"}));
            EXPECT_EQ(selectedStep(), "1");
            co_await settled("1", 60);
        }
        co_await leaveMeasuring();
        expectIdleDesktop();
    };
    run(journey());
}

TEST_F(MeasuringSession, CorrectionFactor) {
    const auto journey = [this]() -> Journey {
        co_await measure();
        line.stand().setLoad(100);
        co_await settled("1", 60);
        EXPECT_EQ(shown("laKorrF"), "1,0000");
        press(frm::Messen, "pbPlus");
        EXPECT_EQ(shown("txtSoll_n"), "60,1");
        EXPECT_EQ(shown("laKorrF"), "1,0017");
        EXPECT_TRUE(waits("pbÜbernehmen"));
        line.stand().clearWires();
        co_await pass(7'000);
        EXPECT_EQ(line.stand().wire(), "");
        press(frm::Messen, "pbÜbernehmen");
        EXPECT_FALSE(waits("pbÜbernehmen"));
        EXPECT_FALSE(canPress(frm::Messen, "pbÜbernehmen"));
        co_await settled("1", 60.1);
        EXPECT_EQ(line.stand().wire(), "-*E-2103+>>>6");
        save();
        EXPECT_EQ(rows("Soll_n"), QStringList{"60,1"});

        // It goes along to the next step; the keys change it like the buttons, but offer nothing.
        co_await settled("2", 80.1);
        EXPECT_EQ(shown("txtSoll_n"), "80,1");
        auto *box = control<QWidget>(frm::Messen, "txtSoll_n");
        sendKeys(*box, "+");
        EXPECT_EQ(shown("txtSoll_n"), "80,2");
        EXPECT_EQ(shown("laKorrF"), "1,0025");
        sendKeys(*box, "---");
        EXPECT_EQ(shown("txtSoll_n"), "79,9");
        EXPECT_FALSE(canPress(frm::Messen, "pbÜbernehmen"));
        press(frm::Messen, "pbMinus");
        EXPECT_EQ(shown("txtSoll_n"), "79,8");
        EXPECT_EQ(shown("laKorrF"), "0,9975");

        // Measured again, a step keeps the set-point it was first stored with.
        press(frm::Messen, "pbFirst");
        EXPECT_EQ(shown("txtSoll_n"), "59,9");
        press(frm::Messen, "pbAusführen");
        co_await settled("1", 59.9);
        save();
        const QStringList stored = rows("Soll_n || ' ' || substr(Ist_n_torvena, 1, 4)");
        EXPECT_EQ(stored.size(), 1);
        EXPECT_TRUE(stored.value(0) == "60,1 59,9" || stored.value(0) == "60,1 59,8")
            << stored.value(0).toStdString();
        co_await settled("2", 79.8);
        co_await leaveMeasuring();
    };
    run(journey());
}

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
            const char *beyond;
            Text notNumeric;
            Text outside;
        };
        const Wrong cases[] = {
            {"txtSoll_n",
             "130",
             "131",
             {"Drehzahl muss ein nummerischer Wert sein!",
              "Number of revolutions must be a numeric value!"},
             {"Drehzahl liegt außerhalb des gültigen Bereiches",
              "The permissible number of revolutions has been exeeded!"}},
            {"txtSoll_P",
             "800",
             "801",
             {"Leistung muss ein nummerischer Wert sein!", "Power must be a numeric value!"},
             {"Leistung liegt außerhalb des gültigen Bereiches",
              "Permissible power has been exeeded!"}},
        };
        for (const Wrong &wrong : cases) {
            SCOPED_TRACE(wrong.box);
            type(frm::Messen, wrong.box, wrong.good);
            enter(frm::Messen, wrong.box);
            for (const QString bad : {wrong.beyond, "-1", "x"}) {
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
        for (const auto &[key, chosen] :
             {std::pair{english() ? "p" : "l", power}, {english() ? "S" : "D", speed},
              {"1", power}, {"2", speed}}) {
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
        type(frm::Messen, "txtSoll_P", "314");
        press(frm::Messen, "pbAusführen");
        co_await settled("FR", 50);
        expectEmptyProtocol();
        co_await leaveMeasuring();
    };
    run(journey());
}

TEST_P(FreeInput, RepeatsInOrderOfTime) {
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
                  (QStringList{english() ? "1 60.0 100.0 100" : "1 60,0 100,0 100", "FR 70 200 203",
                               "FR 70 200 198"}));
        EXPECT_EQ(gridSteps(), (QStringList{"1", "FR", "FR"}));
        // Back to where the recipe is.
        co_await settled("FR", 70);
        press(frm::Messen, "pbMessen");
        co_await settled("2", 80);
        co_await leaveMeasuring();
    };
    run(journey());
}

TEST_P(FreeInput, SpeedZero) {
    const auto journey = [this]() -> Journey {
        co_await measure();
        line.stand().setLoad(110); // not within 5 %
        co_await settled("1", 60);
        save();
        co_await settled("2", 80);
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
        EXPECT_EQ(stored.value(1), english() ? "FR 0 0 0.00 no no 0.3" : "FR 0 0 0,00 nein nein 0.3");
        co_await settled("FR", 0);
        press(frm::Messen, "pbMessen");
        EXPECT_TRUE(control<QAbstractButton>(frm::Messen, "pbDrehzNull")->isEnabled());
        co_await settled("2", 80);
        co_await leaveMeasuring();
    };
    run(journey());
}

TEST_F(MeasuringSession, RowThatCannotBeStored) {
    const auto journey = [this]() -> Journey {
        co_await measure();
        line.stand().setLoad(100);
        co_await settled("1", 60);
        Datenbank other;
        other.openFile(datenbankName);
        other.execute("BEGIN IMMEDIATE");
        const Text title{"!! Achtung Fehler !!", {}};
        expectBox({"Fehler 3016 -  3045 Die Datenbank ist von einem anderen Programm gesperrt. "
                   "Bitte schließen Sie es.",
                   {}},
                  Critical, title);
        save();
        other.execute("ROLLBACK");
        other.execute("ALTER TABLE Messwerte_temp RENAME TO Weggenommen");
        expectBox({"Fehler 3016 -  3078 Die Tabelle wurde nicht gefunden: no such table: "
                   "Messwerte_temp",
                   {}},
                  Critical, title);
        save();
        other.execute("ALTER TABLE Weggenommen RENAME TO Messwerte_temp");
        EXPECT_TRUE(boxes.allCame());

        // The measurement runs on, the step is the same.
        EXPECT_FALSE(loaded(frm::Meldung));
        line.stand().setLoad(98);
        co_await until("another frame", [] { return shown("txtIST_P_torvena").startsWith("98"); });
        EXPECT_EQ(shown("laPrSchritt"), "1");
        EXPECT_EQ(storedSteps(), QStringList());
        save();
        // On disk for others before anything else happens.
        EXPECT_EQ(other.open("SELECT 1 FROM Messwerte_temp WHERE ProtokollID = ? AND "
                             "Ist_P_torvena LIKE '98%'",
                             {gProtokollID})
                      .count(),
                  1);
        co_await settled("2", 80);
        co_await leaveMeasuring();
    };
    run(journey());
}

TEST_F(MeasuringSession, ContinuedProtocols) {
    const auto journey = [this]() -> Journey {
        const DemoNames names = demoNames();
        co_await logIn();
        co_await choose(names.customer, "AEH-017", names.recipe);
        for (const bool leaveEmpty : {false, true}) {
            co_await correctZeroPoint();
            EXPECT_FALSE(canPress(frm::ProtokollNr, "obLetztes"));
            press(frm::ProtokollNr, "obVorhanden");
            EXPECT_EQ(text(frm::ProtokollNr, "cmbVorhanden"), "21 - Nachmessung");
            press(frm::ProtokollNr, "pbok");
            co_await settled("1", 60);
            EXPECT_EQ(gridSteps(), QStringList());
            if (leaveEmpty) {
                expectEmptyProtocol();
                co_await leaveMeasuring();
                EXPECT_EQ(column("SELECT 1 FROM Protokoll_temp WHERE ProtokollID = 21"),
                          QStringList());
                break;
            }
            save();
            co_await settled("2", 80);
            co_await leaveMeasuring();
            EXPECT_EQ(column("SELECT Prüfschritt FROM Messwerte_temp WHERE ProtokollID = 21"),
                      QStringList{"1"});
            change("DELETE FROM Messwerte_temp WHERE ProtokollID = 21");
        }

        // The last one, on its day: what it holds is shown in the order of the steps.
        co_await correctZeroPoint();
        EXPECT_FALSE(canPress(frm::ProtokollNr, "obVorhanden"));
        co_await newProtocol("Der letzte");
        co_await settled("1", 60);
        save();
        co_await settled("2", 80);
        co_await leaveMeasuring();
        const int number = gProtokollID;
        for (const char *step : {"10", "FR", "2"})
            change("INSERT INTO Messwerte_temp (ProtokollID, Prüfschritt) VALUES (?, ?)",
                   {number, step});
        co_await correctZeroPoint();
        press(frm::ProtokollNr, "obLetztes");
        press(frm::ProtokollNr, "pbok");
        co_await settled("1", 60);
        EXPECT_EQ(gProtokollID, number);
        EXPECT_EQ(gridSteps(), (QStringList{"1", "2", "10", "FR"}));
        EXPECT_TRUE(loaded(frm::Messen)->caption().endsWith(QString::number(number) +
                                                            "-Der letzte"))
            << loaded(frm::Messen)->caption().toStdString();
        co_await leaveMeasuring(); // with nothing new, but not empty
        EXPECT_EQ(storedSteps().size(), 4);
    };
    run(journey());
}

// A notice may close while the set-point before it is still being sent.
TEST_F(MeasuringSession, OnePassAtATime) {
    const auto journey = [this]() -> Journey {
        co_await measure();
        co_await settled("1", 60);
        line.stand().clearWires();
        line.stand().setFaults({.deafFrames = 2});
        press(frm::Messen, "pbMessen");
        co_await until("the set-point", [this] { return !line.stand().wire().empty(); });
        press(frm::Messen, "pbMessen");
        co_await until("the second notice to close", [] { return !loaded(frm::Meldung); });
        EXPECT_EQ(line.stand().wire().find('6'), std::string::npos);
        co_await settled("1", 60);
        co_await pass(30'000);
        EXPECT_EQ(line.stand().wire(), "-*E-2100+--*E-2100+--*E-2100+>>>6-*E-2100+>>>6");

        // The same with one that is refused for good: told once, left once.
        line.stand().clearWires();
        line.stand().setFaults({.deafFrames = 3});
        press(frm::Messen, "pbMessen");
        co_await until("the set-point", [this] { return !line.stand().wire().empty(); });
        press(frm::Messen, "pbMessen");
        expectBox({"1 - Keine Kommunikation mit dem Controller möglich!", {}}, Critical,
                  {"Fehlermeldung", {}});
        expectBox({"Fehler", {}}, Critical, {"Motor ein", {}});
        expectBox({"Fehler im Gerät oder in der Kommunikation", {}}, Critical, {"Fehler", {}});
        expectEmptyProtocol();
        co_await arrive(frm::Desktop);
        co_await pass(10'000);
        EXPECT_EQ(line.stand().wire(), "-*E-2100+--*E-2100+--*E-2100+---*E-0000+>>>");
        expectIdleDesktop();
        co_await wholeMeasurement("Danach");
    };
    run(journey());
}

} // namespace
