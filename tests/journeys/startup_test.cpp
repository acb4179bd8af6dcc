// Damaged databases, the language of the run, and the date of the lever arm: what the desktop shows
// and what is told.
#include <QFile>
#include <QProgressBar>

#include "scripts.h"
#include "start.h"
#include "startup.h"

namespace {

using namespace support;
using namespace platform;

TEST_F(Startup, WithoutDatabase) {
    const std::pair<bool, const char *> cases[] = {
        {false, "3024 Die Datei \"torvena470.mdb\" wurde im Arbeitsverzeichnis nicht gefunden."},
        {true, "3343 Die Datenbank ist beschädigt. Bitte spielen Sie eine Sicherungskopie ein."}};
    for (const auto &[there, box] : cases) {
        QFile file(datenbankName);
        file.remove();
        if (there && file.open(QIODevice::WriteOnly))
            file.write("Kunden und Rezepte, von Hand aufgeschrieben. Keine Datenbank.\n");
        file.close();
        const auto journey = [this](const char *what) -> Journey {
            // One box for one cause, in German while no language could be read.
            boxes.expect(QString("Fehler 1002- ") + what, "Fehler", Critical);
            co_await logIn();
            EXPECT_TRUE(boxes.allCame());
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
        run(journey(box));
    }
}

TEST_F(Startup, DatabaseLockedForTheFirstScreenOnly) {
    Datenbank other;
    other.openFile(datenbankName);
    other.execute("BEGIN EXCLUSIVE");
    const auto journey = [this, &other]() -> Journey {
        boxes.expect("Fehler 1002- 3045 …", "Fehler", Critical);
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

TEST_F(Startup, TitlesAreTakenBeforeAColumnIsMissing) {
    change("DROP TABLE System");
    change("CREATE TABLE System AS SELECT 'Haus', 'Titel', 10, 10");
    start();
    EXPECT_EQ(text(frm::Splash, "lbFirmenname") + text(frm::Splash, "lblProductName"), "HausTitel");
    EXPECT_EQ(gSprache, 1);
}

TEST_F(Startup, MissingTables) {
    struct Case {
        const char *damage;
        const char *box;
        const char *inspector; // how far the desktop came
        const char *standard;
    };
    constexpr Case cases[] = {
        {"DROP TABLE Interface", "3078 Die Tabelle wurde nicht gefunden: no such table: Interface",
         "", " SerienNr. "},
        {"DELETE FROM Normalkalibrierdaten", "3021 Kein aktueller Datensatz.", "M. Prüfer",
         " SerienNr. "},
        {"DELETE FROM Hebelarmkalibrierung", "3021 Es gibt noch keine Hebelarmkalibrierung.",
         "M. Prüfer", "Drehmomentnormal SerienNr. TN-1001"},
    };
    for (const Case &missing : cases) {
        SCOPED_TRACE(missing.damage);
        forgetSession();
        change(missing.damage);
        const auto journey = [this, &missing]() -> Journey {
            expectDesktopFailure(missing.box);
            co_await select();
            EXPECT_EQ(text(frm::Desktop, "txtPrüfer"), missing.inspector);
            EXPECT_EQ(text(frm::Desktop, "txtNormal"), missing.standard);
            EXPECT_EQ(loaded(frm::Desktop)->caption(), "torvena");
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
        for (const auto &[menu, button] :
             {std::pair{"mnuEnglisch", "&Customer"}, {"mnuDeutsch", "&Kunde"}}) {
            support::choose(frm::Desktop, menu);
            EXPECT_EQ(text(frm::Desktop, "pbKunde"), button);
            EXPECT_EQ(column("SELECT Sprache FROM System"), QStringList{"1"}); // stays
        }
    };
    run(journey());
}

TEST_F(Startup, DueDateOfTheLeverArm) {
    change("INSERT INTO Hebelarmkalibrierung (Prüfdatum) VALUES ('2024-01-15 16:30:00')");
    struct Day {
        QDate date;
        int left; // %
    };
    for (const Day &day : {Day{QDate(2024, 1, 15), 100}, Day{QDate(2024, 4, 15), 50},
                           Day{QDate(2024, 7, 15), 0}, Day{QDate(2024, 7, 16), 0}}) {
        SCOPED_TRACE(day.date.toString(Qt::ISODate).toStdString());
        forgetSession();
        clock.setDay(day.date);
        run(logIn());
        auto *frame = control(frm::Desktop, "FrHebelarm");
        EXPECT_EQ(frame->property("title"), "Nächste Hebelarmkalibrierung fällig am 15.07.2024");
        EXPECT_EQ(frame->palette().color(QPalette::WindowText) == QColor(255, 0, 0),
                  day.date > QDate(2024, 7, 15));
        EXPECT_EQ(control<QProgressBar>(frm::Desktop, "ProgressBar1")->value(), day.left);
        programmAufräumen();
    }
}

} // namespace
