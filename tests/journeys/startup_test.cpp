// Damaged databases, the language of the run, and the date of the lever arm: what the desktop shows
// and what is told.
#include <QFile>
#include <QProgressBar>

#include "scripts.h"
#include "startup.h"

namespace {

using namespace support;
using namespace platform;

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
void PrintTo(const Day &day, std::ostream *out) {
    *out << day.date.toString(Qt::ISODate).toStdString();
}
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

} // namespace
