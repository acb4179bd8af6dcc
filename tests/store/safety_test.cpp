// Safety copies and the way back from one: whatever fails, and wherever the process is killed, a
// whole database lies under the name in use or the damaged one does, and the older copies are
// whole.
#include <QDir>
#include <QFile>

#include <cerrno>
#include <csignal>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include "platform/files.h"
#include "store/safety.h"
#include "store/scripts.h"
#include "workshop.h"

namespace {

using namespace platform;
using namespace support;

class Safety : public Workshop {
  protected:
    ~Safety() override { setFileWatcher({}); }

    static inline const QDate today{2026, 11, 23};

    /// Sound copies of the days before, each told by its company.
    static void copiesOf(int days) {
        for (int day = days; day > 0; --day) {
            change("UPDATE System SET Firmenname = ?", {QString::number(day)});
            makeSafetyCopy(".", today.addDays(-day));
        }
        change("UPDATE System SET Firmenname = 'now'");
    }
    /// All that lies there, the damaged ones marked with "!".
    static QString lies() {
        QStringList days;
        for (const SafetyCopy &copy : checkedSafetyCopies("."))
            days += copy.day.toString("dd") + (copy.damage.english.isEmpty() ? "" : "!");
        return days.join(' ');
    }
    static QString unfinished() {
        return QDir().entryList({"*.part*"}).join(' ') +
               QDir(sicherungsordner).entryList({"*.part*"}).join(' ');
    }
    static QString company(const QString &file) {
        Datenbank store;
        store.openFile(file);
        return store.open("SELECT Firmenname FROM System")[0].text();
    }
    static void overwrite(const QString &name, qint64 at, qint64 length) {
        QFile file(name);
        ASSERT_TRUE(file.open(QIODevice::ReadWrite) && file.seek(at));
        file.write(QByteArray(length, 'x'));
    }
    /// Runs it in a process that ends as if it were killed before the file step.
    static void killedAt(int step, const std::function<void()> &body) {
        const pid_t child = ::fork();
        if (child == 0) {
            setFileWatcher([step, now = 0](const QString &, const QString &) mutable {
                if (now++ == step)
                    ::_exit(1);
                return 0;
            });
            body();
            ::_exit(0);
        }
        ::waitpid(child, nullptr, 0);
    }
    static QStringList steps(const std::function<void()> &body) {
        QStringList all;
        setFileWatcher([&](const QString &operation, const QString &file) {
            all += operation + ' ' + QDir().relativeFilePath(file);
            return 0;
        });
        body();
        setFileWatcher({});
        return all;
    }
};

TEST_F(Safety, OneADayAndOnlyOfWhatIsNew) {
    EXPECT_TRUE(safetyCopyDue(".", today));
    makeSafetyCopy(".", today);
    EXPECT_EQ(company(safetyCopies(".").at(0).path), company(datenbankName));
    EXPECT_FALSE(safetyCopyDue(".", today.addDays(1))) << "nothing was written";
    change("UPDATE System SET Firmenname = 'later'");
    EXPECT_FALSE(safetyCopyDue(".", today));
    EXPECT_TRUE(safetyCopyDue(".", today.addDays(1)));
    EXPECT_TRUE(safetyCopyDue(".", today.addDays(-1))) << "a clock that was set back";
    const QString stick = copyDatabaseTo(".", "stick", today);
    EXPECT_EQ(copyDatabaseTo(".", "stick", today), QString(stick).replace(".mdb", "_1.mdb"));
    EXPECT_EQ(company(stick), "later");
}

TEST_F(Safety, KeepsTenAndTheLastOfEachMonth) {
    for (const Case &c : cases(R"(
            "" -> "" | 2026-01-01..10 -> "" | 2026-01-01..11 -> 2026-01-01
            | 2026-01-30 2026-01-31 2026-02-01..10 -> 2026-01-30
            | 2026-02-10 2026-01-31 2025-02-27 2025-02-28 2024-02-01 2026-02-01..09 -> 2025-02-27
            | 2025-12-31 2026-01-01 2026-02-01..10 -> "")")) {
        std::vector<QDate> days;
        for (const QString &word : c.in.split(' ', Qt::SkipEmptyParts)) {
            const QDate first = QDate::fromString(word.left(10), Qt::ISODate);
            const int last = word.contains("..") ? word.section("..", 1).toInt() : first.day();
            for (int day = first.day(); day <= last; ++day)
                days.push_back({first.year(), first.month(), day});
        }
        QStringList gone;
        for (const QDate &day : superfluousDays(days))
            gone += day.toString(Qt::ISODate);
        EXPECT_EQ(gone.join(' '), c.out) << c;
    }
}

TEST_F(Safety, OldCopiesStayWhereverACopyStops) {
    copiesOf(12);
    const QString old = lies();
    QFile stranger(QString(sicherungsordner) + "/torvena470_2020-01-01_Umbau.mdb");
    EXPECT_TRUE(stranger.open(QIODevice::WriteOnly));
    const auto make = [] {
        makeSafetyCopy(".", today);
        pruneSafetyCopies(".");
    };
    const QString name = QString(sicherungsordner) + "/torvena470_2026-11-23.mdb";
    const QStringList all = steps(make);
    EXPECT_EQ(all.join(", "), "move " + name +
                                  ", sync Sicherung, remove "
                                  "Sicherung/torvena470_2026-11-13.mdb, remove "
                                  "Sicherung/torvena470_2026-11-12.mdb, remove "
                                  "Sicherung/torvena470_2026-11-11.mdb");
    EXPECT_EQ(lies(), "23 22 21 20 19 18 17 16 15 14");
    EXPECT_TRUE(stranger.exists());
    for (int step = 0; step < all.size(); ++step) {
        SCOPED_TRACE(step);
        for (const bool killed : {true, false}) {
            QDir(sicherungsordner).removeRecursively();
            copiesOf(12);
            if (killed) {
                killedAt(step, make);
            } else {
                setFileWatcher([&, now = 0](const QString &, const QString &) mutable {
                    return now++ == step ? ENOSPC : 0;
                });
                EXPECT_EQ(raised(make), fehlernummer::PathAccess);
                setFileWatcher({});
                EXPECT_EQ(unfinished(), "");
            }
            const QString left = lies();
            EXPECT_TRUE(step < 3 ? left.endsWith(old) : left.contains(old.left(26))) << left;
            EXPECT_FALSE(left.contains('!'));
            make();
            EXPECT_EQ(lies().left(8), "23 22 21") << "the next one comes through";
            EXPECT_EQ(unfinished(), "");
            EXPECT_EQ(company(datenbankName), "now");
        }
    }
}

TEST_F(Safety, ACopyThatIsBrokenOffFullOrDamagedIsNone) {
    change("INSERT INTO Messwerte (ProtokollID, Soll_P, ZulAbw) WITH RECURSIVE n(i) AS (SELECT 1 "
           "UNION ALL SELECT i + 1 FROM n WHERE i < 60000) SELECT 1, i, 1 FROM n");
    copiesOf(1);
    const pid_t child = ::fork(); // killed between two parts of the copy
    if (child == 0) {
        makeSafetyCopy(".", today, [](int done, int) {
            if (done > 0)
                ::_exit(1);
            return true;
        });
        ::_exit(0);
    }
    ::waitpid(child, nullptr, 0);
    EXPECT_NE(unfinished(), "");
    EXPECT_EQ(lies(), "22");
    EXPECT_EQ(raised([] { makeSafetyCopy(".", today, [](int done, int) { return done == 0; }); }),
              fehlernummer::UserInterrupt);
    EXPECT_EQ(unfinished(), "");

    rlimit usual{};
    ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &usual), 0);
    std::signal(SIGXFSZ, SIG_IGN);
    const rlimit small{400'000, usual.rlim_max};
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &small), 0);
    EXPECT_NE(raised([] { makeSafetyCopy(".", today); }), 0);
    EXPECT_NE(raised([] { restoreSafetyCopy(".", safetyCopies(".").at(0), today); }), 0);
    setrlimit(RLIMIT_FSIZE, &usual);
    EXPECT_EQ(lies() + unfinished() + QDir().entryList({"*besch*"}).join(""), "22");
    EXPECT_EQ(company(datenbankName), "now");

    Datenbank other;
    other.openFile(datenbankName);
    other.execute("BEGIN EXCLUSIVE");
    EXPECT_EQ(raised([] { makeSafetyCopy(".", today); }), fehlernummer::DatabaseLocked);
    EXPECT_EQ(raised([] { Datenbank::damageIn(datenbankName); }), fehlernummer::DatabaseLocked)
        << "a lock is no damage";
    other.close();

    const pid_t writer = ::fork(); // what it leaves is rolled back before it is copied
    if (writer == 0) {
        Datenbank store;
        store.openFile(datenbankName);
        store.execute("PRAGMA cache_size = 5");
        store.execute("BEGIN");
        store.execute("UPDATE System SET Firmenname = hex(zeroblob(100000))");
        ::_exit(0);
    }
    ::waitpid(writer, nullptr, 0);
    EXPECT_GT(QFile(QString(datenbankName) + "-journal").size(), 512);
    EXPECT_EQ(company(copyDatabaseTo(".", "stick", today)), "now");

    const qint64 size = QFile(datenbankName).size();
    overwrite(datenbankName, size / 8192 * 4096, 4096);
    EXPECT_FALSE(Datenbank::damageIn(datenbankName).isEmpty());
    EXPECT_EQ(raised([] { makeSafetyCopy(".", today); }), fehlernummer::DatabaseDamaged);
    EXPECT_EQ(lies() + unfinished(), "22");
}

TEST_F(Safety, TheWayBackIsWholeWhereverItStops) {
    copiesOf(4);
    QFile cut(safetyCopies(".").at(0).path);
    EXPECT_TRUE(cut.resize(cut.size() / 2));
    overwrite(safetyCopies(".").at(1).path, 0, 4096);
    EXPECT_EQ(lies(), "22! 21! 20 19");
    const SafetyCopy copy = *newestSoundCopy(".");
    EXPECT_EQ(copy.day, today.addDays(-3));
    const auto damage = [] {
        for (const QString &file : QDir().entryList({"*besch*"}))
            QFile::remove(file);
        legeDatenbankAn("fresh", true);
        moveFile("fresh", datenbankName);
        overwrite(datenbankName, 4096, QFile(datenbankName).size() - 4096);
        QFile journal(QString(datenbankName) + "-journal");
        EXPECT_TRUE(journal.open(QIODevice::WriteOnly));
        journal.write(QByteArray(100, '\0')); // not hot, but it belongs to the damaged file
    };
    const auto restore = [&copy] { restoreSafetyCopy(".", copy, today); };
    damage();
    const QStringList all = steps(restore);
    const QString kept = "torvena470_beschädigt_2026-11-23.mdb", used = datenbankName;
    EXPECT_EQ(all.join(", "), "link " + kept + ", link " + kept + "-journal, sync ., remove " +
                                  used + "-journal, remove " + used + "-wal, move " + used +
                                  ", sync .");
    EXPECT_EQ(company(datenbankName), "3");
    EXPECT_FALSE(Datenbank::damageIn(kept).isEmpty());
    EXPECT_FALSE(QFile::exists(used + "-journal"));
    const auto moved = all.indexOf("move " + used);
    for (int step = 0; step < all.size(); ++step) {
        SCOPED_TRACE(step);
        for (const bool killed : {true, false}) {
            damage();
            if (killed) {
                killedAt(step, restore);
            } else {
                setFileWatcher([&, now = 0](const QString &, const QString &) mutable {
                    return now++ == step ? EACCES : 0;
                });
                EXPECT_EQ(raised(restore), fehlernummer::PathAccess);
                setFileWatcher({});
            }
            EXPECT_EQ(Datenbank::damageIn(datenbankName).isEmpty(), step > moved);
            EXPECT_EQ(lies(), "22! 21! 20 19");
            restore(); // offered again at the next start
            EXPECT_EQ(company(datenbankName), "3");
            EXPECT_EQ(unfinished(), "");
        }
    }
    // Whatever became of the file, nothing but the names of what is kept differs.
    const std::function<void()> ruins[] = {
        [&] { overwrite(used, 0, 100); }, [&] { overwrite(used, 100, 3996); },
        [&] { EXPECT_TRUE(QFile::resize(used, 0)); },
        [&] { EXPECT_TRUE(QFile::resize(used, 5000)); }, [&] { EXPECT_TRUE(QFile::remove(used)); }};
    for (const auto &ruin : ruins) {
        damage();
        ruin();
        const bool gone = !QFile::exists(used);
        EXPECT_EQ(restoreSafetyCopy(".", copy, today), gone ? "" : kept);
        EXPECT_EQ(company(used), "3");
        EXPECT_TRUE(QFile::exists(kept) != gone && QFile::exists(kept + "-journal"));
        EXPECT_FALSE(QFile::exists(used + "-journal"));
    }
    // Without second names a copy keeps the damaged one.
    damage();
    setFileWatcher(
        [](const QString &operation, const QString &) { return operation == "link" ? EPERM : 0; });
    restore();
    EXPECT_EQ(company(datenbankName), "3");
    EXPECT_TRUE(QFile::exists(kept) && QFile::exists(kept + "-journal"));
}

} // namespace
