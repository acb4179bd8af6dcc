// A filled database takes the place of the one in use: whatever fails, and wherever the process is
// killed, a whole database lies under the name in use.
#include <QDir>
#include <QFile>

#include <cerrno>
#include <csignal>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include "platform/files.h"
#include "store/databasecopy.h"
#include "store/rowcopy.h"
#include "store/scripts.h"
#include "store/swap.h"
#include "workshop.h"

namespace {

using namespace platform;
using namespace support;

class Swap : public Workshop {
  protected:
    ~Swap() override { setFileWatcher({}); }

    /// The database in use is told by its company: "old", or "new" once it is swapped.
    void fill(const std::function<bool(const CopyState &)> &goesOn = {}) {
        change("UPDATE System SET Firmenname = 'old'");
        if (!QFile::exists(gelieferteDatenbank))
            legeUpdateAn(gelieferteDatenbank, "470");
        copyDatabase(gelieferteDatenbank, gefüllteDatenbank);
        RowCopy copy(datenbankName, gefüllteDatenbank, goesOn);
        for (const QString &table : copy.tables())
            copy.replace(table);
        record = copy.finish();
        on(gefüllteDatenbank, "UPDATE System SET Firmenname = 'new'");
    }
    static void on(const QString &file, const QString &sql) {
        Datenbank store;
        store.openFile(file);
        store.execute(sql);
    }
    /// What the next start finds, and leaves behind.
    static QString nextStart() {
        recoverDatabaseName();
        gDatenbank.openFile(datenbankName);
        EXPECT_EQ(grid("PRAGMA integrity_check"), "ok");
        EXPECT_EQ(grid("SELECT count(*) FROM Kunden, Rezeptnamen"), "60");
        const QString found = grid("SELECT Firmenname FROM System");
        gDatenbank.close();
        clearLeftovers();
        return found + ' ' + QDir().entryList({"ToDelete*", "*.part*"}).join(' ');
    }
    /// Runs it in a process that ends as if it were killed, at the latest at its end.
    static void killed(const std::function<void()> &body) {
        const pid_t child = ::fork();
        if (child == 0) {
            body();
            ::_exit(0);
        }
        ::waitpid(child, nullptr, 0);
    }

    CopyRecord record;
};

TEST_F(Swap, IsWholeWhereverItStops) {
    fill();
    QStringList steps;
    setFileWatcher([&](const QString &operation, const QString &file) {
        steps += operation + ' ' + file;
        return 0;
    });
    const auto rights = QFile::permissions(datenbankName) | QFile::WriteGroup;
    QFile::setPermissions(datenbankName, rights);
    const auto restore = [&] {
        setFileWatcher({});
        QFile::remove(gefüllteDatenbank);
        on(datenbankName, "UPDATE System SET Firmenname = 'old'");
        fill();
    };
    swapDatabase(true);
    const int count = static_cast<int>(steps.size());
    EXPECT_EQ(steps.join(", "),
              "remove ToDelete.mdb, link ToDelete.mdb, sync ., move torvena470.mdb, sync ., "
              "remove ToDelete.mdb, remove torvena470_neu.mdb");
    EXPECT_EQ(QDir().entryList(QDir::Files), QStringList{datenbankName});
    EXPECT_EQ(QFile::permissions(datenbankName), rights);
    const int moved = 3;
    for (int step = 0; step < count; ++step) {
        SCOPED_TRACE(step);
        restore();
        int at = 0;
        setFileWatcher([&](const QString &, const QString &) { return at++ == step ? EACCES : 0; });
        EXPECT_EQ(raised([] { swapDatabase(true); }), step > moved ? 70 : 75);
        setFileWatcher({});
        EXPECT_EQ(nextStart(), step > moved ? "new " : "old ");

        restore();
        killed([&] {
            setFileWatcher([&, now = 0](const QString &, const QString &) mutable {
                if (now++ == step)
                    ::_exit(1);
                return 0;
            });
            swapDatabase(true);
        });
        EXPECT_EQ(nextStart(), step > moved ? "new " : "old ");
    }
    // Without second names a copy keeps the old one.
    restore();
    setFileWatcher([](const QString &operation, const QString &) {
        EXPECT_TRUE(operation != "move" || QFile::exists(abgelösteDatenbank) ||
                    !QFile::exists(gefüllteDatenbank) || QFile::exists("ToDelete.mdb.part"));
        return operation == "link" ? EPERM : 0;
    });
    swapDatabase(true);
    EXPECT_EQ(nextStart(), "new ");
    // An older build may have been stopped between two renamings.
    QFile::rename(datenbankName, abgelösteDatenbank);
    EXPECT_EQ(nextStart(), "new ");
}

TEST_F(Swap, AJournalBesideEitherNameIsNotRolledIntoTheOther) {
    for (const QString name : {"torvena470.mdb-journal", "torvena470_empty.mdb-wal"}) {
        fill();
        QFile journal(name);
        EXPECT_TRUE(journal.open(QIODevice::WriteOnly));
        EXPECT_EQ(raised([] { swapDatabase(false); }), fehlernummer::PathAccess);
        journal.remove();
        EXPECT_EQ(nextStart(), "old ");
    }
}

TEST_F(Swap, FillingThatIsKilledOrFullIsBegunAnew) {
    QFile::remove(gelieferteDatenbank);
    change("INSERT INTO Messwerte (ProtokollID, Soll_P, ZulAbw) WITH RECURSIVE n(i) AS (SELECT 1 "
           "UNION ALL SELECT i + 1 FROM n WHERE i < 30000) SELECT 1, i, 1 FROM n");
    killed([&] {
        fill([](const CopyState &state) {
            if (state.table == "Messwerte" && state.done > 10'000)
                ::_exit(1);
            return true;
        });
    });
    EXPECT_TRUE(QFile::exists(gefüllteDatenbank));
    EXPECT_EQ(nextStart(), "old ");

    rlimit usual{};
    ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &usual), 0);
    std::signal(SIGXFSZ, SIG_IGN);
    const rlimit small{400'000, usual.rlim_max};
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &small), 0);
    EXPECT_NE(raised([] { copyDatabase(datenbankName, "copy.mdb"); }), 0);
    copyDatabase(gelieferteDatenbank, gefüllteDatenbank);
    {
        RowCopy copy(datenbankName, gefüllteDatenbank);
        EXPECT_NE(raised([&] {
                      copy.replace("Messwerte");
                      copy.finish();
                  }),
                  0);
    }
    setrlimit(RLIMIT_FSIZE, &usual);
    EXPECT_EQ(QDir().entryList({"copy*", "*.part*", "*-journal"}), QStringList());
    fill();
    EXPECT_TRUE(checkFilled(datenbankName, gefüllteDatenbank, record).empty());
    swapDatabase(false);
    EXPECT_EQ(nextStart(), "new ");
}

TEST_F(Swap, WhatIsOpenIsCopiedWithoutLosingItsLocks) {
    gDatenbank.openFile(datenbankName);
    gDatenbank.together([] {
        gDatenbank.execute("UPDATE System SET Firmenname = 'held'");
        const QString first = safetyCopy(datenbankName);
        EXPECT_EQ(safetyCopy(datenbankName), QString(first).replace(".mdb", "_1.mdb"));
        Datenbank other;
        other.openFile(datenbankName);
        EXPECT_EQ(raised([&] { other.execute("DELETE FROM Kunden"); }), 3045);
    });
    EXPECT_EQ(grid("SELECT Firmenname FROM System"), "held");
}

TEST_F(Swap, TheCheckFindsWhatIsNotThere) {
    for (const Case &c : cases(R"(
            "" -> "" | DELETE FROM Rezepte WHERE RezeptID = 5 -> Rezepte: 27 statt 37 Zeilen
            | INSERT INTO Kunden DEFAULT VALUES -> Kunden: 13 statt 12 Zeilen
            | UPDATE Ergometer SET KundenID = 99 WHERE GerätID < 4
              -> Ergometer.KundenID: 3 Verweise ins Leere
            | DROP INDEX KundenName -> ""
            | ALTER TABLE Kunden ADD COLUMN Fax DEFAULT 1 -> Kunden.Fax: Spalte ohne Gegenstück)")) {
        fill();
        if (!c.in.isEmpty())
            on(c.in.startsWith("ALTER") ? datenbankName : gefüllteDatenbank, c.in);
        QStringList found;
        for (const Text &text : checkFilled(datenbankName, gefüllteDatenbank, record))
            found += text.german;
        EXPECT_EQ(found.join(", "), c.out) << c;
    }
    record.extra.remove("Kunden");
    EXPECT_TRUE(checkFilled(datenbankName, gefüllteDatenbank, record).empty()) << "has its own";
    record.extra["Rezepte"] += 2;
    EXPECT_EQ(checkFilled(datenbankName, gefüllteDatenbank, record).at(0).german,
              "Rezepte: 37 statt 39 Zeilen");
    record.extra["Rezepte"] -= 2;
    on(gefüllteDatenbank, "DELETE FROM Kunden");
    EXPECT_EQ(checkFilled(datenbankName, gefüllteDatenbank, record).at(0).german,
              "Kunden: 12 Zeilen werden nicht übernommen");
    QFile file(gefüllteDatenbank);
    ASSERT_TRUE(file.open(QIODevice::ReadWrite) && file.seek(file.size() / 8192 * 4096));
    file.write(QByteArray(4096, 'x'));
    file.close();
    QStringList found;
    EXPECT_TRUE(raised([&] {
                    found += checkFilled(datenbankName, gefüllteDatenbank, record).at(0).german;
                }) == 3343 ||
                found.join("").startsWith("Die neue Datenbank ist beschädigt"));
}

} // namespace
