// The database as a whole: damage is found behind the first window and locks measuring until a
// safety copy is in place; a copy is made at the end of a day on which something was written.
#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QFile>

#include <cerrno>

#include <sys/wait.h>
#include <unistd.h>

#include "app/datenbankpruefung.h"
#include "app/start.h"
#include "platform/files.h"
#include "session/session.h"
#include "store/safety.h"
#include "workplace.h"

namespace {

using namespace support;
using namespace platform;

class Damage : public Workplace {
  protected:
    Damage() {
        change("UPDATE System SET Endprüfung = -1");
        views["process"] = [] {
            return gDesktopAktiv || gDatenbank.isOpen() || loaded(frm::Desktop) ? "runs" : "over";
        };
        views["copies"] = [] {
            QStringList days;
            for (const SafetyCopy &copy : safetyCopies("."))
                days += QString::number(copy.day.daysTo(QDate::currentDate()));
            return days.join(' ');
        };
        roads["end"] = [this](const QString &box) {
            return go(QString("? end yes ; %1 ; pbBeenden ; pass 100 ; process == over")
                          .arg(box.isEmpty() ? "pass 0" : "? " + box));
        };
        roads["again"] = [this](const QString &) {
            programmAufräumen();
            forgetSession();
            return go("login");
        };
    }
    ~Damage() override {
        setFileWatcher({});
        sicherungsgeduld = 2'000;
    }
    static void company(const QString &name) { change("UPDATE System SET Firmenname = ?", {name}); }
    /// The page that the table begins with; the rest can be read.
    static void overwrite(const QString &table) {
        gDatenbank.openFile(datenbankName);
        const qint64 page =
            gDatenbank.open("SELECT rootpage FROM sqlite_master WHERE name = ?", {table})[0]
                .whole();
        gDatenbank.close();
        QFile file(datenbankName);
        ASSERT_TRUE(file.open(QIODevice::ReadWrite) && file.seek((page - 1) * 4096));
        file.write(QByteArray(4096, 'x'));
    }

    static inline const QDate today = QDate::currentDate();
};

JOURNEY_P(Damage, OfAPageLocksMeasuringUntilTheCopyIsInPlace) {
    company("before");
    makeSafetyCopy(".", today.addDays(-2));
    makeSafetyCopy(".", today.addDays(-1));
    QFile cut(safetyCopies(".").at(0).path);
    EXPECT_TRUE(cut.resize(cut.size() - 5000));
    company("after");
    overwrite("Messwerte");
    const QString kept = "torvena470_beschädigt_" + today.toString(Qt::ISODate);
    const QString day = today.addDays(-2).toString("dd.MM.yyyy");
    co_await go(R"(
        ? damaged? no ; login ; laInfo ~ ^Messen ist gesperrt|^Measuring is locked
        choose AEH-001, Kurzprüfung ; cannot pbMessen mnuStartMessen mnuKalibrierung pbEndprüf
        laInfo ~ beschädigt|damaged ; direction ; can pbMotein pbKunde ; end ; copies == 1 2)");
    EXPECT_TRUE(boxes.seen().at(0).text.contains(' ' + day + '.')) << "the sound one is offered";
    // What fails on the way leaves it as it was.
    setFileWatcher(
        [](const QString &operation, const QString &) { return operation == "move" ? EACCES : 0; });
    co_await go("? damaged? yes ; ? notRestored ; again ; cannot mnuKalibrierung ; end");
    setFileWatcher({});
    co_await go("? damaged? yes ; ? restored(" + day + ", " + kept + R"(_1.mdb) ; again
        laInfo == ; choose AEH-001, Kurzprüfung ; can pbMessen mnuKalibrierung pbEndprüf
        sql SELECT Firmenname FROM System == before ; copies == 1 2
        sql SELECT Neu LIKE '%eingesetzt%' FROM Nachweis WHERE Vorgang = 'Vermerk' ORDER BY Nr DESC LIMIT 1 == 1)");
    EXPECT_FALSE(Datenbank::damageIn(kept + "_1.mdb").isEmpty());
    co_await go("end ; again ; can mnuKalibrierung");
}

JOURNEY(Damage, OfAFileThatDoesNotOpenIsMendedBehindItsBox) {
    makeSafetyCopy(".", today.addDays(-1));
    QFile file(datenbankName);
    EXPECT_TRUE(file.resize(0));
    expectKnown("startFailed(3343)");
    expectKnown("damaged?", Yes);
    expectKnown("restored(" + today.addDays(-1).toString("dd.MM.yyyy") +
                ", torvena470_beschädigt_" + today.toString(Qt::ISODate) + ".mdb)");
    start();
    co_await go(R"(
        pass 300 ; Splash.lblProductName == torvena ; @Login ; txtUserName = X ; pbok ; @Desktop
        choose AEH-001, Kurzprüfung ; can pbMessen)");
}

JOURNEY(Damage, OfAFileThatIsGoneIsMendedToo) {
    makeSafetyCopy(".", today.addDays(-1));
    EXPECT_TRUE(QFile::remove(datenbankName));
    const QString day = today.addDays(-1).toString("dd.MM.yyyy");
    expectKnown("startFailed(3024)");
    expectKnown("missing?(" + day + ')', Yes);
    expectKnown("restoredMissing(" + day + ')');
    start();
    co_await go(R"(
        pass 300 ; @Login ; txtUserName = X ; pbok ; @Desktop
        choose AEH-001, Kurzprüfung ; can pbMessen)");
}

JOURNEY(Damage, IsToldWhereThereIsNoSoundCopy) {
    overwrite("Messwerte");
    co_await go("? damagedNoCopy ; login ; cannot mnuKalibrierung ; end ; copies ==");
}

JOURNEY(Damage, IsNeitherALockNorAJournal) {
    const pid_t child = ::fork(); // killed with half of its change written
    if (child == 0) {
        Datenbank store;
        store.openFile(datenbankName);
        store.execute("PRAGMA cache_size = 5");
        store.execute("BEGIN");
        store.execute("UPDATE Kunden SET Straße = hex(zeroblob(30000))");
        store.execute("UPDATE System SET Firmenname = 'half'");
        ::_exit(0);
    }
    ::waitpid(child, nullptr, 0);
    EXPECT_TRUE(QFile::exists("torvena470.mdb-journal"));
    start();
    EXPECT_FALSE(QFile::exists("torvena470.mdb-journal"));
    EXPECT_NE(grid("SELECT Firmenname FROM System"), "half");
    Datenbank other;
    other.openFile(datenbankName);
    other.execute("BEGIN EXCLUSIVE");
    co_await go("pass 1000");
    other.execute("ROLLBACK");
    co_await go("@Login ; txtUserName = X ; pbok ; @Desktop ; can mnuKalibrierung");
    EXPECT_EQ(gDatenbankzustand, Datenbankzustand::Heil) << "made up for at the desktop";
}

JOURNEY_P(Damage, ACopyIsMadeAtTheEndOfADay) {
    makeSafetyCopy(".", today.addDays(-400));
    co_await go("login ; end ; copies == 400"); // nothing was written
    company("new");
    co_await go("again ; end ; copies == 0 400");
    company("newer");
    co_await go("again ; end ; copies == 0 400");
    const QString copy = safetyCopies(".").at(0).path;
    EXPECT_TRUE(QFile::remove(copy));
    co_await go("again");
    beendenOhneFrage();
    co_await go("copies == 400");
    for (const char *box : {"noSafetyCopy", "notPruned"}) {
        setFileWatcher([box](const QString &operation, const QString &) {
            return operation == QString(box == QString("notPruned") ? "remove" : "move") ? EACCES
                                                                                         : 0;
        });
        for (int month = 1; month < 14; ++month) // of the month before, of which one stays
            QFile::copy(
                safetyCopies(".").back().path,
                QString("%1/torvena470_2020-01-%2.mdb").arg(sicherungsordner).arg(10 + month));
        co_await go(QString("again ; end ") + box);
        setFileWatcher({});
    }
}

/// Presses the button of the window as soon as it shows.
class Skipping : public QObject {
  public:
    bool eventFilter(QObject *watched, QEvent *event) override {
        if (watched->objectName() == "Sicherungsfenster" && event->type() == QEvent::Show) {
            caption = watched->findChild<QAbstractButton *>()->text();
            QMetaObject::invokeMethod(
                watched, [watched] { watched->findChild<QAbstractButton *>()->click(); },
                Qt::QueuedConnection);
        }
        return false;
    }
    QString caption;
};

JOURNEY_P(Damage, ALongCopyCanBeSkipped) {
    Skipping skipping;
    qApp->installEventFilter(&skipping);
    co_await go("login ; end ; copies == 0");
    EXPECT_EQ(skipping.caption, "") << "a short one shows nothing";
    EXPECT_TRUE(QFile::remove(safetyCopies(".").at(0).path));
    sicherungsgeduld = 0;
    co_await go("again ; end ; copies ==");
    EXPECT_EQ(skipping.caption, english() ? "&Skip" : "&Überspringen");
}

} // namespace
