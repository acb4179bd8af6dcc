// Damaged databases, the language of the run, and the date of the lever arm: what the desktop shows
// and what is told.
#include <QDir>
#include <QFile>
#include <QProgressBar>

#include "measuring.h"
#include "records/hebelarm.h"
#include "records/normal.h"

namespace {

using namespace support;

using Startup = Measuring;

JOURNEY_ROWS(Startup, WithoutDatabase,
             "3024 Die Datei \"torvena470.mdb\" wurde im Arbeitsverzeichnis nicht gefunden.",
             "3343 Die Datenbank ist beschädigt. Bitte spielen Sie eine Sicherungskopie ein.") {
    QFile file(datenbankName);
    file.remove();
    if (givenRow.startsWith("3343") && file.open(QIODevice::WriteOnly))
        file.write("Kunden und Rezepte, von Hand aufgeschrieben. Keine Datenbank.\n");
    file.close();
    // One box for one cause, in German while no language could be read.
    const QString begin = "? startFailed(" + givenRow.left(4) + ") ; login ; box == Fehler 1002- ";
    co_await go(begin + givenRow);
    co_await go(R"(
        ? notOpen(1070) ; ?* notOpen(1077) ; pbKunde ; @Kunden ; pbAbbrechen ; @Desktop
        direction ; pbMotein ; wire == -*E-2100+>>> ; pbMotaus    # the stand needs no database
        ? end yes ; pbBeenden ; pass 100 ; process == over)");
}

JOURNEY(Startup, DatabaseLockedForTheFirstScreenOnly) {
    Datenbank other;
    other.openFile(datenbankName);
    other.execute("BEGIN EXCLUSIVE");
    expectKnown("startFailed(3045)");
    start();
    other.execute("ROLLBACK");
    co_await go(R"(
        @Login ; txtUserName = M. Prüfer ; pbok ; @Desktop ; choose AEH-001, Kurzprüfung ; can pbMessen)");
}

JOURNEY_P(Startup, DatabaseOfAnOlderBuildIsBroughtUpToDateOnce) {
    change("PRAGMA user_version = 0");
    change("DROP TRIGGER ProtokollGelöscht");
    co_await go(R"(
        ? broughtUp ; select ; sql PRAGMA user_version == 5
        sql SELECT count(*) FROM sqlite_master WHERE name = 'ProtokollGelöscht' == 1)");
    const QStringList copies = QDir().entryList({"torvena470_vor_*.mdb"});
    EXPECT_EQ(copies.size(), 1);
    gDatenbank.openFile(copies.value(0));
    EXPECT_EQ(grid("PRAGMA user_version"), "0");
}

JOURNEY(Startup, TitlesAreTakenBeforeAColumnIsMissing) {
    change("DROP TABLE System");
    change("CREATE TABLE System AS SELECT 'Haus', 'Titel', 10, 10");
    start();
    co_await go(R"(
        Splash.lbFirmenname == Haus ; Splash.lblProductName == Titel ; language == 1
        @Login ; txtUserName = X ; pbok ; @Desktop ; hidden pbReset pbEndprüf)");
}

// How far the desktop comes; the stand needs no more.
JOURNEY_ROWS(Startup, MissingTables,
             R"(DROP TABLE Interface
                ? noTable(D_6002, Interface) ; select ; txtPrüfer == ; txtNormal ~ ^ SerienNr. $)",
             R"(DELETE FROM Normalkalibrierdaten
                ? noRecord(D_6002) ; select ; txtPrüfer == M. Prüfer ; txtNormal ~ ^ SerienNr. $)",
             R"(DELETE FROM Hebelarmkalibrierung
                ? failed(D_6002, 3021) ; login ; box == Fehler D_6002 -  3021 Es gibt noch keine Hebelarmkalibrierung. ; choose AEH-001, Kurzprüfung
                txtPrüfer == M. Prüfer ; txtNormal == Drehmomentnormal SerienNr. TN-1001)") {
    change(givenRow.section('\n', 0, 0));
    co_await go(givenRow.section('\n', 1));
    co_await go(R"(
        title == torvena ; can pbMessen ; direction ; pbMotein ; wire == -*E-2100+>>> ; pbMotaus
        ? end yes ; pbBeenden ; pass 100 ; process == over)");
}

JOURNEY_ROWS(Startup, SystemIsTakenFromOneRowOnly, "DELETE FROM System",
             "INSERT INTO System SELECT * FROM System") {
    change(givenRow);
    co_await go(R"(
        login ; language == 0 ; runningIn ~ ^0 ; txtNormal == ; title ==
        mnuEnglisch ; txtNormal == Drehmomentnormal SerienNr. TN-1001 ; pbKunde == &Customer
        mnuDeutsch ; pbKunde == &Kunde ; mnuEnglisch
        sql SELECT Sprache FROM System ~ ^(1\+1)?$    # for this run only
        ? end yes ; pbBeenden ; pass 100 ; process == over)");
}

// The day, what is left in percent.
JOURNEY_ROWS(Startup, DueDateOfTheLeverArm, "2024-01-15 100", "2024-04-15 50", "2024-07-15 0",
             "2024-07-16 0") {
    change("INSERT INTO Hebelarmkalibrierung (Prüfdatum) VALUES ('2024-01-15 16:30:00')");
    const QString day = givenRow.section(' ', 0, 0);
    clock.setDay(QDate::fromString(day, Qt::ISODate));
    co_await go("login");
    const auto *frame = control(frm::Desktop, "FrHebelarm");
    EXPECT_EQ(frame->property("title"), "Nächste Hebelarmkalibrierung fällig am 15.07.2024");
    EXPECT_EQ(frame->palette().color(QPalette::WindowText) == QColor(255, 0, 0),
              day > "2024-07-15");
    const auto *bar = control<QProgressBar>(frm::Desktop, "ProgressBar1");
    EXPECT_EQ(bar->value(), givenRow.section(' ', 1).toInt());
    EXPECT_EQ(bar->property("ton") == "alarm", day > "2024-07-15");
    EXPECT_EQ(hebelarmRest(clock.now().date(), clock.now().date(), clock.now().date()), 0);
}

} // namespace
