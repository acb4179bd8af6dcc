// The database behind the program: values, rows, failures and files; and what is typed into a
// search.

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <csignal>
#include <limits>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include "database.h"
#include "recordsetmodel.h"
#include "runtime.h"
#include "scripts.h"
#include "sqltext.h"

namespace {

using namespace platform;

/// The number of what it raises; 0 for nothing.
template <class Body>
int raised(Body body) {
    try {
        body();
    } catch (const Fehler &fehler) {
        return fehler.number();
    }
    return 0;
}

QString joined(Recordset rows, const QString &column) {
    QStringList texts;
    for (; !rows.atEnd(); rows.moveNext())
        texts += rows[column].text();
    return texts.join(' ');
}

class Store : public testing::Test {
  protected:
    Store() {
        Datenbank::createFile(mPath, {"CREATE TABLE Schritte (Nr TEXT PRIMARY KEY COLLATE NOCASE, "
                                      "Name TEXT COLLATE NOCASE, Wert)",
                                      "INSERT INTO Schritte (Nr, Name) VALUES ('10', 'Zehn'), "
                                      "('9', 'Ähre'), ('2', 'zwei'), ('2a', 'ZWEI')"});
        mStore.openFile(mPath);
    }
    /// A file of the directory with this content.
    QString file(const QString &name, const QByteArray &content) {
        QFile file(mDirectory.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
        return file.fileName();
    }
    QStringList files() {
        return QDir(mDirectory.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot);
    }

    QTemporaryDir mDirectory;
    const QString mPath = mDirectory.filePath("torvena470.mdb");
    Datenbank mStore;
};

TEST_F(Store, ValuesComeBackAsTheyWereGiven) {
    const struct {
        QVariant value;
        const char *type;
        QString text;
        double number = 0;
    } cases[] = {
        {"O'Malley's \"Gym\"; DROP TABLE Schritte; --", "text",
         "O'Malley's \"Gym\"; DROP TABLE Schritte; --"},
        {" מכון שיקום 💪 ÄÖÜ ", "text", " מכון שיקום 💪 ÄÖÜ "},
        {QString::fromUtf16(u"a\0b", 3), "text", QString::fromUtf16(u"a\0b", 3)},
        {QString(), "text", ""}, // a text that is empty, not a missing one
        {"60,5", "text", "60,5", 60.5},
        {"60.5 W", "text", "60.5 W", 60.5},
        {QVariant(), "null", ""},
        {true, "integer", "-1", -1},
        {false, "integer", "0", 0},
        {QDate(2026, 2, 1), "text", "2026-02-01", 2026},
        {QDateTime({2026, 2, 1}, {9, 5, 7, 30}), "text", "2026-02-01 09:05:07.030", 2026},
        {QTime(9, 5), "text", "09:05:00.000", 9},
        {QDateTime(), "null", ""},
        {std::numeric_limits<qlonglong>::max(), "integer", "9223372036854775807",
         9223372036854775807.0},
        {0.1, "real", "0.1", 0.1},
        {3.0, "real", "3", 3},
        {-1e-12, "real", "-1e-12", -1e-12},
    };
    for (const auto &c : cases) {
        const std::string which = c.value.toString().toStdString();
        EXPECT_EQ(mStore.execute("UPDATE Schritte SET Wert = ?2 WHERE Nr = ?1", {"9", c.value}), 1);
        const Recordset row = mStore.open(
            "SELECT Wert, typeof(Wert), Wert IS ? FROM Schritte WHERE Nr = '9'", {c.value});
        EXPECT_EQ(row[0].text(), c.text) << which;
        EXPECT_EQ(row[0].number(), c.number) << which;
        const bool null = c.type == std::string("null");
        EXPECT_EQ(row[0].isNull(), null) << which;
        EXPECT_EQ(raised([&] { row[0].requiredNumber(); }), null ? 94 : 0) << which;
        EXPECT_EQ(row[1].text(), c.type) << which;
        EXPECT_EQ(row[2].whole(), 1) << which;
    }
    EXPECT_EQ(raised([&] {
                  mStore.execute("DELETE FROM Schritte WHERE Nr = ?", {1, 2});
              }),
              fehlernummer::StatementFailed);
    EXPECT_EQ(mStore.execute("DELETE FROM Schritte WHERE Nr = 'zwölf'"), 0);
    EXPECT_EQ(mStore.execute("DELETE FROM Schritte WHERE Name = 'Zwei'"), 2) << "case is nothing";
}

TEST_F(Store, RowsStayAsTheyWereWhenAsked) {
    Recordset rows = mStore.open("SELECT Nr FROM Schritte ORDER BY val(Nr), Nr");
    rows.moveLast();
    const Recordset copy = rows;
    mStore.execute("DELETE FROM Schritte");
    mStore.close();
    EXPECT_EQ(rows.count(), 4);
    EXPECT_EQ(rows["nr"].text(), "10");
    rows.moveFirst();
    EXPECT_EQ(joined(rows, "Nr"), "2 2a 9 10");
    EXPECT_EQ(copy[0].text(), "10") << "a copy has a cursor of its own";
}

TEST_F(Store, CursorStandsOnARowBeforeOrBehind) {
    const struct {
        const char *where, *moves; // next, previous, last
        const char *at;            // null for no row
        bool start = false, end = false;
    } cases[] = {{"1", "", "10"},
                 {"1", "n", "9"},
                 {"1", "l", "2a"},
                 {"1", "nnnnnn", nullptr, false, true},
                 {"1", "lnnp", "2a"},
                 {"1", "ppn", "10"},
                 {"1", "p", nullptr, true},
                 {"0", "nn", nullptr, true, true},
                 {"0", "lp", nullptr, true, true}};
    for (const auto &c : cases) {
        SCOPED_TRACE(std::string(c.where) + c.moves);
        Recordset rows = mStore.open(
            QString("SELECT Nr, Name FROM Schritte WHERE %1 ORDER BY rowid").arg(c.where));
        for (const char move : std::string(c.moves))
            move == 'n' ? rows.moveNext() : move == 'p' ? rows.movePrevious() : rows.moveLast();
        EXPECT_EQ(rows.atStart(), c.start);
        EXPECT_EQ(rows.atEnd(), c.end);
        EXPECT_EQ(rows.empty(), QString(c.where) == "0");
        if (c.at) {
            EXPECT_EQ(rows[0].text(), c.at);
            EXPECT_EQ(rows["NR"].text(), c.at);
        } else {
            EXPECT_EQ(raised([&] { rows[0]; }), fehlernummer::NoCurrentRecord);
            EXPECT_EQ(raised([&] { rows["Nr"]; }), fehlernummer::NoCurrentRecord);
            EXPECT_FALSE(rows.empty() && rows.findLast("Name", ""));
        }
        for (const int column : {-1, 2})
            EXPECT_EQ(raised([&] { rows[column]; }), fehlernummer::MissingColumn);
        EXPECT_EQ(raised([&] { rows["Wert"]; }), fehlernummer::MissingColumn);
    }
    Recordset rows = mStore.open("SELECT Nr, Name FROM Schritte ORDER BY rowid");
    EXPECT_TRUE(rows.findFirst("NAME", "Zwei"));
    EXPECT_EQ(rows[0].text(), "2");
    EXPECT_TRUE(rows.findLast("name", "zwei"));
    EXPECT_EQ(rows[0].text(), "2a");
    EXPECT_TRUE(rows.findFirst("Name", "äHRE"));
    EXPECT_FALSE(rows.findFirst("Name", "zwe") || rows.findLast("Nam", "zwei"));
    EXPECT_EQ(rows[0].text(), "9") << "it stays";
}

TEST_F(Store, FailuresHaveNumbers) {
    const struct {
        const char *sql;
        int number;
        const char *german;
    } cases[] = {
        {"SELECT * FROM Fehlt", 3078, "Die Tabelle wurde nicht gefunden: no such table: Fehlt"},
        {"DELETE FROM Fehlt", 3078, "Die Tabelle wurde nicht gefunden: no such table: Fehlt"},
        {"SELECT Fehlt FROM Schritte", 3265,
         "Die Spalte wurde nicht gefunden: no such column: Fehlt"},
        {"UPDATE Schritte SET Fehlt = 1", 3265,
         "Die Spalte wurde nicht gefunden: no such column: Fehlt"},
        {"INSERT INTO Schritte (Fehlt) VALUES (1)", 3265,
         "Die Spalte wurde nicht gefunden: table Schritte has no column named Fehlt"},
        {"INSERT INTO Schritte (Nr) VALUES ('2A')", 3022,
         "Der Datensatz verletzt einen Schlüssel: UNIQUE constraint failed: Schritte.Nr"},
        {"SELEC 1", 3075, "Die Anweisung ist fehlgeschlagen: near \"SELEC\": syntax error"},
    };
    for (const auto &c : cases) {
        for (const bool read : {true, false}) {
            try {
                read ? void(mStore.open(c.sql)) : void(mStore.execute(c.sql));
                ADD_FAILURE() << c.sql;
            } catch (const Fehler &fehler) {
                EXPECT_EQ(fehler.number(), c.number) << c.sql;
                EXPECT_EQ(fehler.text().german.toStdString(), c.german);
                EXPECT_FALSE(fehler.text().english.isEmpty());
            }
        }
    }
    EXPECT_EQ(joined(mStore.open("SELECT Nr FROM Schritte ORDER BY rowid"), "Nr"), "10 9 2 2a");
    mStore.close();
    EXPECT_FALSE(mStore.isOpen());
    EXPECT_EQ(raised([&] { mStore.open("SELECT 1"); }), 3420);
    EXPECT_EQ(raised([&] { mStore.execute("DELETE FROM Schritte"); }), 3420);
}

TEST_F(Store, WhatBelongsTogetherHoldsOrDoesNot) {
    const auto add = [&](const char *last) {
        return raised([&] {
            mStore.together([&] {
                mStore.execute("DELETE FROM Schritte WHERE Nr = '9'");
                mStore.execute("INSERT INTO Schritte (Nr) VALUES (?)", {last});
            });
        });
    };
    Datenbank other;
    other.openFile(mPath);
    EXPECT_EQ(add("10"), 3022);
    EXPECT_EQ(other.execute("UPDATE Schritte SET Wert = 1"), 4) << "nothing done, nothing held";
    EXPECT_EQ(add("11"), 0);
    EXPECT_EQ(joined(other.open("SELECT Nr FROM Schritte ORDER BY rowid"), "Nr"), "10 2 2a 11");
}

TEST_F(Store, AWriteWaitsForNobodyForLong) {
    Datenbank other;
    other.openFile(mPath);
    other.execute("BEGIN IMMEDIATE");
    EXPECT_EQ(raised([&] { mStore.execute("DELETE FROM Schritte"); }), 3045);
    EXPECT_EQ(mStore.open("SELECT * FROM Schritte").count(), 4) << "reading goes on";
    other.execute("COMMIT");
    EXPECT_EQ(mStore.execute("DELETE FROM Schritte"), 4);
}

TEST_F(Store, OnlyASoundFileIsOpened) {
    const QString whole = mDirectory.filePath("whole");
    legeDatenbankAn(whole, true);
    QFile source(whole);
    ASSERT_TRUE(source.open(QIODevice::ReadOnly));
    const QByteArray content = source.readAll();
    const QString locked = file("locked", content);
    Datenbank other;
    other.openFile(locked);
    other.execute("BEGIN EXCLUSIVE");
    const std::pair<QString, int> cases[] = {
        {mDirectory.filePath("missing/torvena470.mdb"), 3024},
        {mDirectory.path(), 3024},
        {file("text", QByteArray("Kunden, von Hand aufgeschrieben.\n").repeated(400)), 3343},
        {file("nothing", {}), 3343},
        {file("head", content.left(50)), 3343},
        {file("page", content.left(4096)), 3343},
        {file("nearly", content.chopped(4096)), 3343},
        {locked, 3045},
    };
    const QStringList before = files();
    for (const auto &[path, number] : cases) {
        mStore.openFile(whole);
        EXPECT_EQ(raised([&] { mStore.openFile(path); }), number) << path.toStdString();
        EXPECT_FALSE(mStore.isOpen()) << path.toStdString();
    }
    EXPECT_EQ(files(), before) << "nothing is created";
    other.close();
    mStore.openFile(locked);
    EXPECT_TRUE(mStore.isOpen());
}

TEST_F(Store, ACopyOfTheFileIsACopyOfTheData) {
    mStore.open("PRAGMA journal_mode=WAL"); // by a tool of somebody
    mStore.openFile(mPath);
    EXPECT_EQ(mStore.open("PRAGMA journal_mode")[0].text(), "delete");
    EXPECT_EQ(mStore.open("PRAGMA synchronous")[0].whole(), 2) << "full";
    mStore.execute("INSERT INTO Schritte (Nr) VALUES ('neu')");
    EXPECT_EQ(files(), QStringList{"torvena470.mdb"});
    ASSERT_TRUE(QFile::copy(mPath, mPath + ".copy"));
    Datenbank copy;
    copy.openFile(mPath + ".copy");
    EXPECT_EQ(copy.open("SELECT 1 FROM Schritte WHERE Nr = 'NEU'").count(), 1);
}

TEST_F(Store, NewFilesAreWholeOrNotThere) {
    const QString fresh = mDirectory.filePath("fresh.mdb");
    const QStringList before = files();
    EXPECT_NE(raised([&] { legeDatenbankAn(mDirectory.filePath("no/such/dir.mdb"), false); }), 0);
    EXPECT_EQ(raised([&] { legeDatenbankAn(mPath, false); }), fehlernummer::PermissionDenied);
    EXPECT_EQ(mStore.open("SELECT * FROM Schritte").count(), 4) << "what is there stays";

    // The disk is full half-way.
    rlimit usual{};
    ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &usual), 0);
    const auto previous = std::signal(SIGXFSZ, SIG_IGN);
    const rlimit small{30'000, usual.rlim_max};
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &small), 0);
    EXPECT_EQ(raised([&] { legeDatenbankAn(fresh, true); }), fehlernummer::StatementFailed);
    setrlimit(RLIMIT_FSIZE, &usual);
    std::signal(SIGXFSZ, previous);
    EXPECT_EQ(files(), before);

    // What an interrupted try has left over is no obstacle.
    file("fresh.mdb.new", "rest");
    legeDatenbankAn(fresh, false);
    mStore.openFile(fresh);
    EXPECT_EQ(mStore.open("SELECT * FROM System").count(), 1);
    EXPECT_EQ(files(), (QStringList{"fresh.mdb", "torvena470.mdb"}));
}

TEST_F(Store, HeldByAnotherProgram) {
    EXPECT_FALSE(fnc_DateiGeöffnet(mPath)) << "open here, but at rest";
    EXPECT_EQ(raised([&] { fnc_DateiGeöffnet(mPath + "x"); }), fehlernummer::FileNotFound);
    mStore.close();
    int ready[2];
    ASSERT_EQ(pipe(ready), 0);
    const pid_t child = fork();
    if (child == 0) {
        Datenbank other;
        other.openFile(mPath);
        other.execute("BEGIN IMMEDIATE");
        if (write(ready[1], "x", 1) == 1)
            pause();
        _exit(0);
    }
    close(ready[1]);
    char byte = 0;
    EXPECT_EQ(read(ready[0], &byte, 1), 1);
    EXPECT_TRUE(fnc_DateiGeöffnet(mPath));
    kill(child, SIGKILL);
    waitpid(child, nullptr, 0);
    close(ready[0]);
    EXPECT_FALSE(fnc_DateiGeöffnet(mPath));
}

TEST_F(Store, FunctionsOfStatements) {
    mStore.execute("INSERT INTO Schritte (Nr, Name) VALUES ('FR', NULL)");
    EXPECT_EQ(joined(mStore.open("SELECT Nr FROM Schritte ORDER BY val(Nr), Nr"), "Nr"),
              "FR 2 2a 9 10");
    const Recordset values =
        mStore.open("SELECT Val('12,5'), val(' 1 2.5 W'), VAL(NULL), val('-3'), val(7.25)");
    const double expected[] = {12, 12.5, 0, -3, 7.25};
    for (int i = 0; i < 5; ++i)
        EXPECT_EQ(values[i].number(), expected[i]) << i;
    for (const auto &[pattern, found] : {std::pair{"Z*", "10 2 2a"}, {"ä*", "9"}, {"", "FR"}})
        EXPECT_EQ(joined(mStore.open("SELECT Nr FROM Schritte WHERE Muster(?, Name) ORDER BY rowid",
                                     {pattern}),
                         "Nr"),
                  found);
    for (const auto &[a, b, same] : {std::tuple{"Öztürk", "öZTÜRK", true},
                                     {"O'Malley", "o'malley", true},
                                     {"Straße", "Strasse", false},
                                     {"Ärzte", "Arzte", false},
                                     {"Praxis*", "Praxis 1", false},
                                     {" Praxis", "Praxis", false}})
        EXPECT_EQ(mStore.open("SELECT Gleich(?, ?)", {a, b})[0].whole(), same) << a << '|' << b;
    platform::setNumberLocale(QLocale(QLocale::German, QLocale::Germany));
    const Recordset numbers = mStore.open("SELECT CStr(7.5), CStr(20), CStr(-0.5), CStr(NULL)");
    platform::setNumberLocale(QLocale());
    const char *shown[] = {"7,5", "20", "-0,5", ""};
    for (int i = 0; i < 4; ++i)
        EXPECT_EQ(numbers[i].text(), shown[i]);
}

TEST(Search, PatternsOfAPerson) {
    const QString longName = QString("a").repeated(255);
    const struct {
        QString pattern;
        QString text;
        bool fits;
    } cases[] = {
        {"Klinik", "klinik", true},
        {"Klinik", "Klinikum", false},
        {"linik", "Klinik", false},
        {"Klinik*", "Klinik", true},
        {"*am*", "Klinik am See", true},
        {"Kl?nik", "Klonik", true},
        {"Kl?nik", "Klnik", false},
        {"*", "", true},
        {"", "x", false},
        {"ÄHRE*ß", "ährenfeld-groß", true},
        {"ahre*", "Ährenfeld", false},
        {"a\nb*", "A\nB\nc", true},
        {"Studio ?", "Studio 💪", true},
        {"מכון*", "מכון שיקום", true},
        // No other character means anything.
        {"Dr. *", "Drx y", false},
        {"[K]linik", "Klinik", false},
        {"(a|b)+^$\\d{1}#%_", "(A|B)+^$\\D{1}#%_", true},
        {"\\Q*\\E", "x", false},
        {longName + "*", longName, true},
        {QString("*").repeated(60) + "b", longName, false},
    };
    for (const auto &c : cases) {
        EXPECT_EQ(passtZumMuster(c.pattern, c.text), c.fits)
            << c.pattern.toStdString() << " / " << c.text.toStdString();
    }
}

TEST(TextsOfTheDatabase, DatesAndDecimalSigns) {
    const struct {
        const char *iso, *shown;
    } cases[] = {{"2024-02-29", "29.02.2024"},
                 {"2024-12-01 09:30:00", "01.12.2024"},
                 {"2023-02-29", ""},
                 {"01.12.2024", ""},
                 {"", ""}};
    for (const auto &c : cases)
        EXPECT_EQ(datumText(datumAus(c.iso)), c.shown) << c.iso;
    QString text = "1,2,3.4";
    fnc_KommaZuPunkt(text);
    EXPECT_EQ(text, "1.2.3.4");
    EXPECT_EQ(fnc_OhnePunkt("1.200.5,4"), "12005,4");
}

TEST_F(Store, GridShowsChosenColumns) {
    RecordsetModel model;
    model.setSpalten({{"name", "Bezeichnung"}, {"NR", "Schritt", Qt::AlignRight}, {"fehlt", ""}});
    model.setRecordset(mStore.open("SELECT Nr, Name FROM Schritte ORDER BY rowid"));
    EXPECT_EQ(model.rowCount(), 4);
    EXPECT_EQ(model.headerData(1, Qt::Horizontal, Qt::DisplayRole), "Schritt");
    EXPECT_FALSE(model.headerData(3, Qt::Horizontal, Qt::DisplayRole).isValid());
    const QModelIndex last = model.index(3, 1); // a view may keep it
    EXPECT_EQ(model.data(last, Qt::DisplayRole), "2a");
    EXPECT_EQ(model.data(last, Qt::TextAlignmentRole).toInt(), int(Qt::AlignRight));
    EXPECT_FALSE(model.data(model.index(0, 2), Qt::DisplayRole).isValid());
    EXPECT_EQ(model.rowCount(last), 0);
    model.setRecordset({});
    EXPECT_FALSE(model.data(last, Qt::DisplayRole).isValid());
    model.setSpalten({});
    EXPECT_FALSE(model.data(last, Qt::TextAlignmentRole).isValid());
}

} // namespace
