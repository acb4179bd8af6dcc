// The database behind the program: values, rows, failures and files; and what is typed into a
// search.
#include <QDir>
#include <QFile>

#include <csignal>

#include <sys/resource.h>

#include "controls/recordsetmodel.h"
#include "platform/runtime.h"
#include "store/scripts.h"
#include "store/sqltext.h"
#include "workshop.h"

namespace {

using namespace platform;
using namespace support;

class Store : public Workshop {
  protected:
    Store() {
        QFile::remove(datenbankName);
        Datenbank::createFile(datenbankName,
                              {"CREATE TABLE Schritte (Nr TEXT PRIMARY KEY COLLATE NOCASE, "
                               "Name TEXT COLLATE NOCASE, Wert)",
                               "INSERT INTO Schritte (Nr, Name) VALUES ('10', 'Zehn'), "
                               "('9', 'Ähre'), ('2', 'zwei'), ('2a', 'ZWEI')"});
        store.openFile(datenbankName);
    }
    static QString numbers() { return column("SELECT Nr FROM Schritte ORDER BY rowid").join(' '); }
    int executed(const QString &sql) {
        return raised([&] { store.execute(sql); });
    }
    static void file(const QString &name, const QByteArray &content) {
        QFile file(name);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
    }
    static QStringList files() { return QDir().entryList(QDir::Files); }

    Datenbank &store = gDatenbank;
};

TEST_F(Store, ValuesComeBackAsTheyWereGiven) {
    QStringList came;
    for (const QVariant &value : QVariantList{
             "O'Malley's \"מכון\" 💪; DROP TABLE Schritte; --", QString(), "60,5", QVariant(), true,
             false, QDate(2026, 2, 1), QDateTime({2026, 2, 1}, {9, 5, 7, 30}), QTime(9, 5), QDate(),
             QDateTime(), QTime(), Q_INT64_C(9223372036854775807), 0.1, 0.5F}) {
        EXPECT_EQ(store.execute("UPDATE Schritte SET Wert = ?2 WHERE Nr = ?1", {"9", value}), 1);
        const Recordset row = store.open(
            "SELECT Wert, typeof(Wert) FROM Schritte WHERE Nr = '9' AND Wert IS ?", {value});
        came += row[1].text() + ' ' + row[0].text() + ' ' + CStr(row[0].number());
        const bool null = row[1].text() == "null";
        EXPECT_EQ(row[0].isNull(), null) << came.last();
        EXPECT_EQ(raised([&] { row[0].requiredNumber(); }), null ? 94 : 0) << came.last();
    }
    EXPECT_EQ(
        came.join(" / "),
        "text O'Malley's \"מכון\" 💪; DROP TABLE Schritte; -- 0 / text  0 / text 60,5 60,5 / "
        "null  0 / integer -1 -1 / integer 0 0 / text 2026-02-01 2026 / "
        "text 2026-02-01 09:05:07.030 2026 / text 09:05:00.000 9 / null  0 / null  0 / null  0 / "
        "integer 9223372036854775807 9,22337203685478E+18 / real 0.1 0,1 / real 0.5 0,5");
}

TEST_F(Store, CursorStandsOnARowBeforeOrBehind) {
    for (const Case &c : cases( // next, previous, last
             "1 -> 10 | 1 n -> 9 | 1 l -> 2a | 1 nnnnnn -> end | 1 lnnp -> 2a | 1 ppn -> 10 | "
             "1 p -> start | 0 nn -> start end | 0 lp -> start end")) {
        SCOPED_TRACE(testing::Message() << c);
        Recordset rows = store.open("SELECT Nr, Name FROM Schritte WHERE " + c.in.left(1));
        for (const QChar move : c.in.mid(2))
            move == 'n' ? rows.moveNext() : move == 'p' ? rows.movePrevious() : rows.moveLast();
        EXPECT_EQ(rows.atStart(), c.out.contains("start"));
        EXPECT_EQ(rows.atEnd(), c.out.contains("end"));
        EXPECT_EQ(rows.empty(), c.in[0] == '0');
        const int none = rows.atStart() || rows.atEnd() ? fehlernummer::NoCurrentRecord : 0;
        EXPECT_EQ(raised([&] { EXPECT_EQ(rows["NR"].text(), c.out); }), none);
        EXPECT_FALSE(rows.empty() && rows.findLast("Name", ""));
    }
    Recordset rows = store.open("SELECT Nr, Name FROM Schritte ORDER BY rowid");
    for (const int column : {-1, 2})
        EXPECT_EQ(raised([&] { rows[column]; }), fehlernummer::MissingColumn);
    EXPECT_EQ(raised([&] { rows["Wert"]; }), fehlernummer::MissingColumn);
    EXPECT_TRUE(rows.findFirst("NAME", "Zwei") && rows[0].text() == "2");
    EXPECT_TRUE(rows.findLast("name", "zwei") && rows[0].text() == "2a");
    EXPECT_TRUE(rows.findFirst("Name", "äHRE"));
    EXPECT_FALSE(rows.findFirst("Name", "zwe") || rows.findLast("Nam", "zwei"));
    EXPECT_EQ(rows[0].text(), "9") << "it stays";
    rows.moveFirst();
    EXPECT_EQ(rows[0].text(), "10");
}

TEST_F(Store, FailuresHaveNumbers) {
    const auto fail = [this](const char *table) {
        for (const Case &c : cases(table)) {
            EXPECT_EQ(raised([&] { store.open(c.in); }), c.out.toInt()) << c;
            EXPECT_EQ(executed(c.in), c.out.toInt()) << c;
        }
    };
    fail(R"(DELETE FROM Fehlt -> 3078 | SELECT Fehlt FROM Schritte -> 3265 | SELEC 1 -> 3075
        | INSERT INTO Schritte (Fehlt) VALUES (1) -> 3265
        | INSERT INTO Schritte (Nr) VALUES ('2A') -> 3022)");
    store.open("PRAGMA query_only = 1"); // as on a disk that must not be written to
    EXPECT_EQ(executed("DELETE FROM Schritte"), fehlernummer::ReadOnly);
    store.close();
    EXPECT_FALSE(store.isOpen());
    fail("SELECT 1 -> 3420");
}

TEST_F(Store, WhatBelongsTogetherHoldsOrDoesNot) {
    const auto add = [&](const char *last) {
        return raised([&] {
            store.together([&] {
                store.execute("DELETE FROM Schritte WHERE Nr = '9'");
                store.execute("INSERT INTO Schritte (Nr) VALUES (?)", {last});
            });
        });
    };
    EXPECT_EQ(add("10"), 3022);
    change("UPDATE Schritte SET Wert = 1"); // nothing is held
    EXPECT_EQ(numbers(), "10 9 2 2a");
    EXPECT_EQ(add("11"), 0);
    change("UPDATE Schritte SET Wert = 1");
    Datenbank reader; // keeps it from being committed
    reader.openFile(datenbankName);
    reader.execute("BEGIN");
    reader.open("SELECT * FROM Schritte");
    EXPECT_EQ(add("12"), 3045);
    reader.close();
    EXPECT_EQ(numbers(), "10 2 2a 11");
    EXPECT_EQ(add("13"), 0);
}

TEST_F(Store, OnlyASoundFileIsOpened) {
    legeDatenbankAn("whole", true);
    QFile source("whole");
    ASSERT_TRUE(source.copy("locked") && source.open(QIODevice::ReadOnly));
    QByteArray content = source.readAll();
    file("text", QByteArray("Kunden, von Hand aufgeschrieben.\n").repeated(400));
    file("nothing", {});
    file("nearly", content.chopped(4096));
    file("within", content.replace(content.size() / 8192 * 4096, 4096, QByteArray(4096, 'x')));
    Datenbank other;
    other.openFile("locked");
    other.execute("BEGIN EXCLUSIVE");
    const QStringList before = files();
    for (const Case &c : cases(R"(missing/torvena470.mdb -> 3024 | . -> 3024 | text -> 3343
            | nothing -> 3343 | nearly -> 3343 | locked -> 3045)")) {
        store.openFile("whole");
        EXPECT_EQ(raised([&] { store.openFile(c.in); }), c.out.toInt()) << c;
        EXPECT_FALSE(store.isOpen()) << c;
    }
    EXPECT_EQ(files(), before) << "nothing is created";
    EXPECT_EQ(raised([] { bringeDatenbankAufStand("within"); }), 3343);
    Datenbank::createFile("foreign", {"CREATE TABLE Kunden (Name)"});
    EXPECT_EQ(raised([] { bringeDatenbankAufStand("foreign"); }), 3078);
}

TEST_F(Store, ACopyOfTheFileIsACopyOfTheDataAndNobodyWaitsForLong) {
    store.open("PRAGMA journal_mode=WAL"); // by a tool of somebody
    store.openFile(datenbankName);
    EXPECT_EQ(grid("PRAGMA synchronous"), "2") << "full";
    store.execute("INSERT INTO Schritte (Nr) VALUES ('neu')");
    EXPECT_EQ(files(), QStringList{datenbankName}) << "no journal that a copy would leave behind";
    const int milliseconds = store.open("PRAGMA busy_timeout")[0].whole();
    EXPECT_TRUE(milliseconds >= 200 && milliseconds <= 1000) << milliseconds;
}

TEST_F(Store, NewFilesAreWholeOrNotThere) {
    const auto made = [](const char *name, bool demo = false) {
        return raised([&] { legeDatenbankAn(name, demo); });
    };
    EXPECT_NE(made("no/such/dir.mdb"), 0);
    EXPECT_EQ(made(datenbankName), fehlernummer::PermissionDenied);
    EXPECT_EQ(numbers(), "10 9 2 2a") << "what is there stays";

    // The disk is full half-way.
    rlimit usual{};
    ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &usual), 0);
    std::signal(SIGXFSZ, SIG_IGN);
    const rlimit small{30'000, usual.rlim_max};
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &small), 0);
    EXPECT_EQ(made("fresh.mdb", true), fehlernummer::StatementFailed);
    setrlimit(RLIMIT_FSIZE, &usual);
    EXPECT_EQ(files(), QStringList{datenbankName});

    // What an interrupted try has left over is no obstacle.
    file("fresh.mdb.new", "rest");
    EXPECT_EQ(made("fresh.mdb"), 0);
    store.openFile("fresh.mdb");
    EXPECT_EQ(grid("SELECT count(*) FROM System"), "1");
    EXPECT_EQ(files(), (QStringList{"fresh.mdb", datenbankName}));
}

TEST_F(Store, HeldByAnother) {
    EXPECT_FALSE(fnc_DateiGeöffnet(datenbankName)) << "open, but at rest";
    EXPECT_EQ(raised([] { fnc_DateiGeöffnet("none"); }), fehlernummer::FileNotFound);
    store.execute("BEGIN IMMEDIATE");
    EXPECT_TRUE(fnc_DateiGeöffnet(datenbankName));
    store.close();
    EXPECT_FALSE(fnc_DateiGeöffnet(datenbankName));
}

TEST_F(Store, FunctionsOfStatements) {
    for (const Case &c : cases(R"(
            Val('12,5') -> 12 | VAL(NULL) -> 0 | val(7.25) -> 7.25 | CStr(7.5) -> 7,5
            | CStr(NULL) -> NULL | Gleich('Öztürk', 'öZTÜRK') -> 1 | Gleich('Straße', 'Strasse') -> 0
            | Gleich('Ärzte', 'Arzte') -> 0 | Gleich('Praxis*', 'Praxis 1') -> 0
            | Muster('Z*', 'zwei') -> 1 | Muster('zwei', 'Z*') -> 0 | Muster('', NULL) -> 1)"))
        EXPECT_EQ(grid("SELECT " + c.in), c.out) << c;
}

TEST(Search, PatternsOfAPerson) {
    for (const Case &c : cases(R"(
            Klinik, klinik -> 1 | Klinik, Klinikum -> 0 | linik, Klinik -> 0 | Klinik*, Klinik -> 1
            | *am*, Klinik am See -> 1 | Kl?nik, Klonik -> 1 | Kl?nik, Klnik -> 0 | * -> 1 | , x -> 0
            | ÄHRE*ß, ährenfeld-groß -> 1 | ahre*, Ährenfeld -> 0 | Studio ?, Studio 💪 -> 1
            | a?b, a
b -> 1 | Dr. *, Drx y -> 0 | [K]linik, Klinik -> 0 | \Q*\E, x -> 0
            | (a|b)+^$\d{1}#%_, (A|B)+^$\D{1}#%_ -> 1)"))
        EXPECT_EQ(passtZumMuster(c.in_(0), c.in_(1)), c.out == "1") << c;
    // One that would be tried for ages
    EXPECT_FALSE(passtZumMuster(QString("*").repeated(60) + "b", QString("a").repeated(255)));
}

TEST_F(Store, GridShowsChosenColumns) {
    RecordsetModel model;
    model.setSpalten({{"name", "Bezeichnung"}, {"NR", "Schritt", Qt::AlignRight}, {"fehlt", ""}});
    model.setRecordset(store.open("SELECT Nr, Name FROM Schritte ORDER BY rowid"));
    EXPECT_EQ(model.headerData(1, Qt::Horizontal, Qt::DisplayRole), "Schritt");
    const QModelIndex last = model.index(3, 1); // a view may keep it
    const auto shown = [&](int role = Qt::DisplayRole) {
        return model.data(last, role).toString();
    };
    EXPECT_EQ(shown(), "2a");
    EXPECT_EQ(shown(Qt::TextAlignmentRole).toInt(), int(Qt::AlignRight));
    EXPECT_FALSE(model.data(model.index(0, 2), Qt::DisplayRole).isValid());
    model.setRecordset(store.open("SELECT 2.5 AS Nr FROM Schritte"));
    EXPECT_EQ(shown(), "2,5") << "as the person writes numbers";
    model.setSpalten({{"Nr", ""}, {"Nr", "", {}, "0.000"}});
    EXPECT_EQ(shown(), "2,500");
    model.setSpalten({{"Tag", ""}, {"Tag", "", {}, "dd.mm.yyyy"}});
    model.setRecordset(store.open("SELECT '2024-02-29 10:00:00' AS Tag FROM Schritte"));
    EXPECT_EQ(shown(), "29.02.2024");
    model.setRecordset({});
    EXPECT_EQ(shown(), "");
}

} // namespace
