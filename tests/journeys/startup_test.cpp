// From the start to the desktop and back to the end: damaged databases, running-in, the language
// of the run, and the way out with the motor running.
#include <QFile>
#include <QProgressBar>

#include "scripts.h"
#include "session.h"
#include "start.h"
#include "workplace.h"

namespace {

using namespace support;
using namespace platform;

class Startup : public Workplace {
  protected:
    void expectDesktopFailure(const QString &what) {
        boxes.expect("Fehler D_6002 -  " + what, "!! Achtung Fehler !!", Critical);
    }
    void expectQuestion(int answer) {
        expectBox({"Wollen Sie das Programm wirklich beenden?",
                   "Do you really want to terminate the program?"},
                  YesNo + Question, {"Programmende", "End Of Program"}, answer);
    }
    Journey end() {
        expectQuestion(Yes);
        press(frm::Desktop, "pbBeenden");
        co_await pass(100);
        EXPECT_FALSE(loaded(frm::Desktop));
        EXPECT_FALSE(gDesktopAktiv);
    }
    Journey motorRuns() {
        co_await chooseDirection();
        line.stand().clearWires();
        press(frm::Desktop, "pbMotein");
        EXPECT_EQ(line.stand().wire(), "-*E-2100+>>>");
    }
};

TEST_F(Startup, WithoutDatabase) {
    struct Case {
        const char *name;
        Text box;
    };
    const Case cases[] = {
        {"missing",
         {"3024 Die Datei \"torvena470.mdb\" wurde im Arbeitsverzeichnis nicht gefunden.",
          "3024 The file \"torvena470.mdb\" was not found in the working directory."}},
        {"text",
         {"3343 Die Datenbank ist beschädigt. Bitte spielen Sie eine Sicherungskopie ein.",
          "3343 The database is damaged. Please restore a safety copy."}},
        {"locked",
         {"3045 Die Datenbank ist von einem anderen Programm gesperrt. Bitte schließen Sie es.",
          "3045 The database is locked by another program. Please close it."}},
    };
    for (const Case &damage : cases) {
        SCOPED_TRACE(damage.name);
        Datenbank other;
        const QString kind = damage.name;
        if (kind == "locked") {
            legeDatenbankAn(datenbankName, false);
            other.openFile(datenbankName);
            other.execute("BEGIN EXCLUSIVE");
        } else {
            QFile file(datenbankName);
            file.remove();
            if (kind == "text" && file.open(QIODevice::WriteOnly))
                file.write("Kunden und Rezepte, von Hand aufgeschrieben. Keine Datenbank.\n");
        }
        const auto journey = [this, &damage]() -> Journey {
            boxes.expect("Error 1002- " + damage.box.english, "Error", Critical); // no language yet
            boxes.expect("Fehler 1002- " + damage.box.german, "Fehler", Critical);
            expectDesktopFailure("3420 Die Datenbank ist nicht geöffnet.");
            co_await logIn();
            boxes.expect("Fehler 1070 -  3420 Die Datenbank ist nicht geöffnet.",
                         "!! Achtung Fehler !!", Critical);
            boxes.allow("Fehler 1077 -  3420 Die Datenbank ist nicht geöffnet."); // tries again
            press(frm::Desktop, "pbKunde");
            co_await arrive(frm::Kunden);
            press(frm::Kunden, "pbAbbrechen");
            co_await arrive(frm::Desktop);
            co_await motorRuns(); // the stand needs no database
            press(frm::Desktop, "pbMotaus");
            co_await end();
        };
        run(journey());
        QFile::remove(datenbankName);
    }
}

TEST_F(Startup, DatabaseLockedForTheFirstScreenOnly) {
    Datenbank other;
    other.openFile(datenbankName);
    other.execute("BEGIN EXCLUSIVE");
    const auto journey = [this, &other]() -> Journey {
        boxes.expect("Error 1002- 3045 …", "Error", Critical);
        start();
        other.execute("ROLLBACK");
        co_await arrive(frm::Login);
        type(frm::Login, "txtUserName", "M. Prüfer");
        press(frm::Login, "pbok");
        co_await arrive(frm::Desktop);
        const DemoNames names = demoNames();
        co_await choose(names.customer, names.ident, names.recipe);
        co_await wholeMeasurement("Doch noch");
    };
    run(journey());
}

TEST_F(Startup, MissingTables) {
    struct Case {
        const char *damage;
        const char *box;
        const char *inspector; // how far the desktop came
        const char *standard;
        bool calibrated;
    };
    constexpr Case cases[] = {
        {"DROP TABLE Interface", "3078 Die Tabelle wurde nicht gefunden: no such table: Interface",
         "", " SerienNr. ", false},
        {"DELETE FROM Interface", "3021 Kein aktueller Datensatz.", "", " SerienNr. ", false},
        {"DELETE FROM Normalkalibrierdaten", "3021 Kein aktueller Datensatz.", "M. Prüfer",
         " SerienNr. ", false},
        {"DROP TABLE Hebelarmkalibrierung",
         "3078 Die Tabelle wurde nicht gefunden: no such table: Hebelarmkalibrierung", "M. Prüfer",
         "Drehmomentnormal SerienNr. TN-1001", true},
        {"DELETE FROM Hebelarmkalibrierung", "3021 Es gibt noch keine Hebelarmkalibrierung.",
         "M. Prüfer", "Drehmomentnormal SerienNr. TN-1001", true},
    };
    for (const Case &missing : cases) {
        SCOPED_TRACE(missing.damage);
        forgetSession();
        change(missing.damage);
        const auto journey = [this, &missing]() -> Journey {
            expectDesktopFailure(missing.box);
            co_await logIn();
            EXPECT_EQ(text(frm::Desktop, "txtPrüfer"), missing.inspector);
            EXPECT_EQ(text(frm::Desktop, "txtNormal"), missing.standard);
            EXPECT_EQ(!text(frm::Desktop, "txtKalDat").isEmpty(), missing.calibrated);
            EXPECT_EQ(loaded(frm::Desktop)->caption(), "torvena");
            const DemoNames names = demoNames();
            co_await choose(names.customer, names.ident, names.recipe);
            EXPECT_TRUE(canPress(frm::Desktop, "pbMessen"));
            co_await motorRuns();
            press(frm::Desktop, "pbMotaus");
            co_await end();
        };
        run(journey());
        QFile::remove(datenbankName);
        legeDatenbankAn(datenbankName, true);
    }
}

TEST_F(Startup, SystemTakenFromOneRowOnly) {
    for (const char *damage : {"DELETE FROM System", "INSERT INTO System SELECT * FROM System"}) {
        SCOPED_TRACE(damage);
        forgetSession();
        change(damage);
        const auto journey = [this]() -> Journey {
            co_await logIn();
            EXPECT_EQ(gSprache, 0);
            EXPECT_EQ(gEinlaufzeit, 0);
            EXPECT_EQ(text(frm::Desktop, "txtNormal"), "");
            EXPECT_EQ(loaded(frm::Desktop)->caption(), "");
            support::choose(frm::Desktop, "mnuEnglisch");
            EXPECT_EQ(text(frm::Desktop, "txtNormal"), "Drehmomentnormal SerienNr. TN-1001");
            EXPECT_EQ(text(frm::Desktop, "pbKunde"), "&Customer");
            co_await end();
        };
        run(journey());
        QFile::remove(datenbankName);
        legeDatenbankAn(datenbankName, false);
    }
}

TEST_F(Startup, LanguageOfTheRun) {
    const auto journey = [this]() -> Journey {
        co_await logIn();
        for (const auto &[menu, button, caption] :
             {std::tuple{"mnuEnglisch", "&Customer", "Select Customer"},
              {"mnuDeutsch", "&Kunde", "Kunde auswählen"}}) {
            support::choose(frm::Desktop, menu);
            EXPECT_EQ(text(frm::Desktop, "pbKunde"), button);
            EXPECT_EQ(loaded(frm::Desktop)->caption(), "torvena");
            press(frm::Desktop, "pbKunde");
            co_await arrive(frm::Kunden);
            EXPECT_EQ(loaded(frm::Kunden)->caption(), caption);
            press(frm::Kunden, "pbAbbrechen");
            co_await arrive(frm::Desktop);
        }
        support::choose(frm::Desktop, "mnuEnglisch");
        EXPECT_EQ(column("SELECT Sprache FROM System"), QStringList{"1"}); // not for the next run
        co_await end();
    };
    run(journey());
}

/// Days on which the program is started; the lever arm is due on 15.07.2024.
struct Day {
    QDate date;
    int left; // %
    bool red;
};
class LeverArm : public Startup, public testing::WithParamInterface<Day> {};

INSTANTIATE_TEST_SUITE_P(Days, LeverArm,
                         testing::Values(Day{QDate(2024, 1, 15), 100, false},
                                         Day{QDate(2024, 4, 15), 50, false},
                                         Day{QDate(2024, 7, 15), 0, false},
                                         Day{QDate(2024, 7, 16), 0, true}));

TEST_P(LeverArm, DueDate) {
    change("INSERT INTO Hebelarmkalibrierung (Prüfdatum) VALUES ('2024-01-15 16:30:00')");
    clock.setDay(GetParam().date);
    run(logIn());
    auto *frame = control(frm::Desktop, "FrHebelarm");
    EXPECT_EQ(frame->property("title"), "Nächste Hebelarmkalibrierung fällig am 15.07.2024");
    EXPECT_EQ(frame->palette().color(QPalette::WindowText) == QColor(255, 0, 0), GetParam().red);
    EXPECT_EQ(control<QProgressBar>(frm::Desktop, "ProgressBar1")->value(), GetParam().left);
}

TEST_F(Startup, RunningInCountsDown) {
    struct Case {
        QVariant time; // minutes.seconds
        QStringList shown;
    };
    const Case cases[] = {{0.03, {"00:02", "00:01", "00:00", "over"}},
                          {0, {"over"}},
                          {1.75, {"01:74", "01:73"}},
                          {QVariant(), {"09:59", "09:58"}}};
    for (const Case &running : cases) {
        SCOPED_TRACE(running.shown.join(' ').toStdString());
        change("UPDATE System SET Einlzeit2 = ?", {running.time});
        const auto journey = [this, &running]() -> Journey {
            co_await logIn();
            co_await motorRuns();
            const double begin = clock.elapsed();
            double second = 0;
            for (const QString &shown : running.shown) {
                second += 1000;
                const double wait = begin + second - clock.elapsed() + 5;
                co_await pass(wait);
                if (shown != "over") {
                    EXPECT_EQ(text(frm::Desktop, "lbEinlauf"), shown);
                    EXPECT_FALSE(gEingelaufen);
                    continue;
                }
                EXPECT_TRUE(gEingelaufen);
                EXPECT_EQ(text(frm::Desktop, "lbEinlauf"), "00:00");
                EXPECT_EQ(text(frm::Meldung1, "laMeldung1"), "Die Einlaufzeit");
                EXPECT_EQ(text(frm::Meldung1, "laMeldung2"), "ist beendet.");
                co_await arrive(frm::Desktop);
                EXPECT_NEAR(clock.elapsed() - begin, second + 2'020, 30);
            }
            // Motor off stops it for good.
            const bool done = gEingelaufen;
            press(frm::Desktop, "pbMotaus");
            const QString stopped = text(frm::Desktop, "lbEinlauf");
            co_await pass(3'000);
            EXPECT_EQ(text(frm::Desktop, "lbEinlauf"), stopped);
            EXPECT_EQ(gEingelaufen, done);
            EXPECT_EQ(text(frm::Desktop, "laInfo"), "Motor ist ausgeschaltet");
            co_await end();
        };
        run(journey());
    }
}

TEST_F(Startup, EndWithTheMotorRunning) {
    const auto journey = [this]() -> Journey {
        co_await logIn();
        co_await motorRuns();
        line.stand().clearWires();
        expectQuestion(No);
        press(frm::Desktop, "pbBeenden");
        co_await pass(5'000);
        EXPECT_EQ(line.stand().wire(), "");
        EXPECT_EQ(line.stand().speed(), 60);
        EXPECT_TRUE(canPress(frm::Desktop, "pbMotaus"));
        expectQuestion(Yes);
        loaded(frm::Desktop)->close();
        co_await pass(100);
        EXPECT_EQ(line.stand().wire(), "-*E-0000+>>>");
        EXPECT_EQ(line.stand().setSpeed(), 0);
        EXPECT_FALSE(loaded(frm::Desktop));
        EXPECT_FALSE(gDatenbank.isOpen());
    };
    run(journey());
}

// Told to end by the system: without a question, but not without stopping the motor.
TEST_F(Startup, EndFromOutside) {
    for (const bool inAnExchange : {false, true}) {
        SCOPED_TRACE(inAnExchange);
        forgetSession();
        const auto journey = [this, inAnExchange]() -> Journey {
            co_await select();
            if (inAnExchange) {
                co_await chooseDirection();
                clock.after(30, beendenOhneFrage);
                press(frm::Desktop, "pbMotein");
                EXPECT_EQ(line.stand().setSpeed(), 60);
            } else {
                co_await correctZeroPoint();
                co_await newProtocol("Unterbrochen");
                co_await settled("1", 60);
                beendenOhneFrage();
            }
            co_await pass(1'000);
            const std::string &wire = line.stand().wire();
            EXPECT_GT(wire.rfind("*E-0000+>>>"), wire.rfind("*E-2100+>>>"));
            EXPECT_EQ(line.stand().setSpeed(), 0);
            EXPECT_FALSE(gDesktopAktiv);
            EXPECT_FALSE(gDatenbank.isOpen());
        };
        run(journey());
        programmAufräumen();
    }
}

// The countdown goes on while a question is open, and its notice comes and goes underneath.
TEST_F(Startup, RunningInEndsUnderTheQuestion) {
    change("UPDATE System SET Einlzeit2 = 0.03");
    const auto journey = [this]() -> Journey {
        co_await select();
        co_await motorRuns();
        boxes.expect("Das Gerät ist noch nicht eingelaufen!…", Yes, [this] {
            EXPECT_FALSE(gEingelaufen);
            clock.run(4'500);
            EXPECT_TRUE(gEingelaufen);
            EXPECT_TRUE(loaded(frm::Meldung1));
        });
        press(frm::Desktop, "pbMessen");
        co_await arrive(frm::VorStatNPK);
        co_await pass(3'000);
        EXPECT_FALSE(loaded(frm::Meldung1));
        press(frm::VorStatNPK, "pbok");
        co_await until("the correction", [] { return canPress(frm::StatMessen, "pbWeiter"); });
        EXPECT_EQ(line.stand().speed(), 0);
    };
    run(journey());
}

/// Runs in German and in English.
class MissingPort : public Startup, public testing::WithParamInterface<int> {};

INSTANTIATE_TEST_SUITE_P(Languages, MissingPort, testing::Values(1, 2));

TEST_P(MissingPort, LeadsToTheSettings) {
    setLanguage(GetParam());
    const auto journey = [this]() -> Journey {
        co_await logIn();
        co_await chooseDirection();
        for (const bool occupied : {true, false}) {
            if (occupied) {
                line.occupy(true);
                expectBox({"Fehler mI 2 -  8005 belegt", "ERROR mSI 2 -  8005 in use"}, Critical,
                          {"!! Achtung Fehler !!", " !! Attention !!"});
            } else {
                line.unplug();
            }
            expectBox({"Die Schnittstellenparameter gibt es nicht. \r"
                       "Bitte korrigieren Sie die Einstellungen!",
                       "The interface settings do not exist . \rPlease correct it!"},
                      Exclamation, {"Achtung!", "Attention!"});
            press(frm::Desktop, "pbMotein");
            co_await arrive(frm::Interface);
            EXPECT_FALSE(canPress(frm::Desktop, "pbMotein")); // it is modal
            line.occupy(false);
            line.plug();
            press(frm::Interface, "pbok");
            co_await arrive(frm::Desktop);
        }
        press(frm::Desktop, "pbMotein");
        EXPECT_TRUE(gMotorEin);
        EXPECT_EQ(line.stand().setSpeed(), 60);
    };
    run(journey());
}

} // namespace
