// The update of the database: from the menu through the question and the end of the program to the
// next start; which rows each version moves; what is refused, cancelled, locked, or does not match.
#include <QDir>
#include <QFile>
#include <QTimer>

#include "app/start.h"
#include "platform/files.h"
#include "session/session.h"
#include "store/rowcopy.h"
#include "store/scripts.h"
#include "store/swap.h"
#include "store/trailcheck.h"
#include "windows/filechoice.h"
#include "workplace.h"

namespace {

using namespace support;
using namespace platform;

using Rows = QMap<QString, QString>; // by table

class Updating : public Workplace {
  protected:
    Updating() {
        // What a laboratory has in each of its tables, and values that are kept as they were.
        for (const char *entered :
             {"INSERT INTO EP (EP_ID, SerienNr) VALUES (7, 'E7')",
              "INSERT INTO EP_Messwerte (ProtokollID, Prüfschritt) VALUES (7, '1')",
              "INSERT INTO EP_Rezeptnamen (RezeptID, RezName) VALUES (3, 'Serie')",
              "INSERT INTO EP_Rezepte (RezeptID, Prüfschritt, SSCode) VALUES (3, '1', 'W150[13]')",
              "UPDATE SecondInterface SET PortNr = 9", "UPDATE Interface SET PortNr = 3",
              "UPDATE System SET Firmenname = 'Labor'", "DELETE FROM Kunden WHERE KundenID = 12",
              "UPDATE Protokoll SET Spezifikation = NULL, Kunde = NULL WHERE ProtokollID = 3",
              "UPDATE Messwerte SET ZulAbw = NULL WHERE ProtokollID = 3",
              "UPDATE Hebelarmkalibrierung SET NK_ID = 1 WHERE ID = 4",
              "UPDATE Toleranzen SET Prozent = 4"})
            change(entered);
        views["process"] = [] {
            return gDesktopAktiv || gDatenbank.isOpen() || loaded(frm::Desktop) ? "runs" : "over";
        };
        views["files"] = [] { // beside the database in use
            QStringList names = QDir().entryList({"*.mdb*", "*.part"}, QDir::Files);
            names.removeAll(datenbankName);
            return names.join(' ').replace(day, "DAY");
        };
        views["filled"] = [] { return gUpdateBeimBeenden ? "yes" : "no"; };
    }
    ~Updating() override {
        setFileWatcher({});
        setFileChooser({});
    }

    static void deliver(const QString &version, const QString &until = {}) {
        QFile::remove(gelieferteDatenbank);
        legeUpdateAn(gelieferteDatenbank, version);
        Datenbank file;
        file.openFile(gelieferteDatenbank);
        file.execute("INSERT INTO Hebelarmkalibrierung DEFAULT VALUES"); // stays behind
        if (!until.isEmpty())
            file.execute("INSERT INTO Normalkalibrierdaten_neu (SerienNr, kalibriertBis, Gain_L) "
                         "VALUES ('TN-1001', ?, 4711)",
                         {until});
    }
    static Rows rowsOf(const QString &path) {
        Datenbank file;
        file.openFile(path);
        Rows rows;
        Recordset tables = file.open("SELECT name FROM sqlite_master WHERE type = 'table'");
        for (; !tables.atEnd(); tables.moveNext()) {
            QStringList lines;
            const QString table = tables[0].text();
            Recordset all = file.open("SELECT * FROM \"" + table + "\" ORDER BY 1, rowid");
            for (; !all.atEnd(); all.moveNext()) {
                QStringList cells;
                for (int cell = 0; cell < all.columns().size(); ++cell)
                    cells += all[cell].isNull() ? "NULL" : all[cell].text();
                lines += cells.join('|');
            }
            rows[table] = lines.join('\n');
        }
        rows["triggers"] = QString::number(
            file.open("SELECT count(*) FROM sqlite_master WHERE type = 'trigger' AND name NOT GLOB "
                      "'Nachweis*'")[0]
                .whole());
        return rows;
    }

    static inline const QString day = QDate::currentDate().toString("dd.MM.yyyy");
};

JOURNEY_P(Updating, FromTheMenuToTheNextStart) {
    change("UPDATE MU_Leistung SET MU = 0.5 WHERE ID = 2");
    deliver("470");
    const Rows before = rowsOf(datenbankName);
    co_await go(R"(
        login ; mnuUpdate ; @Refresh ; can pbUpdateDb pbSearch ; txtDb_neu ~ torvena470_neu.mdb$
        ? otherUncertainties(MU_Leistung) ; ? restart? cancel ; pbUpdateDb ; @Refresh ; filled == no
        can pbUpdateDb ; files == torvena470_DAY.mdb torvena470_empty.mdb torvena470_neu.mdb
        ? otherUncertainties(MU_Leistung) ; ? restart? ; ? end no ; pbUpdateDb ; @Desktop
        pass 100 ; filled == yes ; ? end yes ; pbBeenden ; pass 100 ; process == over
        files == torvena470_DAY.mdb torvena470_DAY_1.mdb)");
    Rows after = rowsOf(datenbankName);
    for (const QString &table : before.keys())
        EXPECT_EQ(after.take(table), before[table]) << table;
    EXPECT_TRUE(after.isEmpty()) << QStringList(after.keys()).join(' ');
    EXPECT_EQ(rowsOf("torvena470_" + day + ".mdb"), before);
    programmAufräumen();
    forgetSession();
    co_await go("login ; choose AEH-001, Kurzprüfung ; sql SELECT Firmenname FROM System == Labor");
}

// The version; what is special about the file in use; the tables that come from it, or those of
// 301; whether the delivered calibration is another; the place that tells of a table that is not
// there, which stops no other.
JOURNEY_ROWS(Updating, MovesTheTablesOfItsVersion, "301//301/2099-01-01", "302//301/2099-01-01",
             "203//301/2099-01-01", "301//301/same", "301/DROP TABLE SecControl_temp/301/same/R_05",
             "301/DROP TABLE Toleranzen/301/same/R_05",
             "301/ALTER TABLE Ergometer RENAME COLUMN IdentNr TO Identnr/301/same",
             "203/DROP TABLE System;DROP TABLE Rezepte/203/same/R_04",
             "470/DROP TABLE SecControl_temp/470/same", "470//470/2099-01-01", "470//470/same",
             "203/DELETE FROM Normalkalibrierdaten WHERE NK_ID = 1/203/2099-01-01",
             "203/DROP TABLE System/203/2099-01-01", "203/DROP TABLE System/203/same") {
    const QStringList row = givenRow.split('/');
    start();
    if (row[2] == "203") {
        change("UPDATE Rezeptnamen SET Toleranz = 'ohne Toleranz'");
        change("UPDATE Rezeptnamen SET Toleranz = 'Medizinische Geräte' WHERE RezeptID = 2");
        change("UPDATE Rezeptnamen SET Toleranz = NULL WHERE RezeptID = 3");
        change("ALTER TABLE Rezeptnamen DROP COLUMN ToleranzID");
    }
    if (row[1].startsWith("DROP")) {
        for (const QString form : {"neu", "alt"}) {
            for (const QString view : {"Bericht1", "Bericht3", "Bericht4", "BerichtKopf"})
                change("DROP VIEW " + view + form);
        }
    }
    for (const QString &sql : row[1].split(';', Qt::SkipEmptyParts))
        change(sql);
    gDatenbank.openFile(datenbankName);
    const QString last = grid("SELECT NK_ID, kalibriertBis FROM Normalkalibrierdaten "
                              "ORDER BY NK_ID DESC LIMIT 1");
    const bool added = row[3] != "same";
    deliver(row[0], added ? row[3] : last.section('|', 1));
    const Rows used = rowsOf(datenbankName), delivered = rowsOf(gelieferteDatenbank);
    gDesktopAktiv = true;
    form(frm::Refresh).show();
    const QString failure =
        row.value(4).isEmpty() ? "" : " ; ? updateFailure(" + row[4] + ", 3078)";
    co_await go("@Refresh" + failure + " ; ? restart? cancel ; pbUpdateDb ; @Refresh");
    const Rows filled = rowsOf(gefüllteDatenbank);
    EXPECT_EQ(rowsOf(datenbankName), used);

    const QStringList of203{"Ergometer", "Interface", "Kunden", "Protokoll", "Rezepte"};
    const QStringList of301{"Blutdruck",      "Blutdruck_temp", "Messwerte",       "Messwerte_temp",
                            "Protokoll_temp", "SecControl",     "SecControl_temp", "Rezeptnamen",
                            "System",         "Toleranzen"};
    for (const QString gone : {"ToDo", "Normalkalibrierdaten_neu"})
        EXPECT_FALSE(filled.contains(gone));
    QStringList others{"Nachweis",
                       "ToDo",
                       "Normalkalibrierdaten_neu",
                       "Normalkalibrierdaten",
                       "Hebelarmkalibrierung",
                       "sqlite_sequence"};
    if (row[2] == "203")
        others += "Rezeptnamen";
    for (const QString &table : delivered.keys()) {
        const bool moves =
            row[2] == "470" || of203.contains(table) || (row[2] == "301" && of301.contains(table));
        if (!others.contains(table)) {
            EXPECT_EQ(filled[table], moves ? used.value(table, delivered[table]) : delivered[table])
                << table;
        }
    }
    gDatenbank.openFile(gefüllteDatenbank);
    EXPECT_TRUE(filled["Nachweis"].startsWith(used["Nachweis"]));
    EXPECT_TRUE(!row[1].isEmpty() || checkTrail(gDatenbank).found.empty());
    EXPECT_EQ(filled["Normalkalibrierdaten"].startsWith(used["Normalkalibrierdaten"]), true);
    const int newest = last.section('|', 0, 0).toInt() + (added ? 1 : 0);
    EXPECT_EQ(grid("SELECT NK_ID, Gain_L = 4711 FROM Normalkalibrierdaten ORDER BY NK_ID DESC "
                   "LIMIT 1"),
              QString("%1|%2").arg(newest).arg(added ? 1 : 0));
    if (row[2] == "470") {
        EXPECT_EQ(filled["Hebelarmkalibrierung"], used["Hebelarmkalibrierung"]);
    } else {
        EXPECT_EQ(grid("SELECT count(*), sum(NK_ID = " + QString::number(newest) +
                       ") FROM Hebelarmkalibrierung"),
                  "8|8");
    }
    if (row[2] == "203") {
        EXPECT_EQ(grid("SELECT RezeptID, Toleranz, ToleranzID FROM Rezeptnamen"),
                  "1|stationäre Trainingsgeräte|2+2|Medizinische Geräte|1+3|NULL|2+"
                  "4|stationäre Trainingsgeräte|2+5|stationäre Trainingsgeräte|2");
    }
    gDatenbank.execute("INSERT INTO Kunden DEFAULT VALUES");
    EXPECT_EQ(grid("SELECT MAX(KundenID) FROM Kunden"), "13") << "a number does not come back";
    gDatenbank.openFile(datenbankName);
}

JOURNEY(Updating, TakesWhatIsTooOldToBeBroughtUpToDate) {
    change("ALTER TABLE System DROP COLUMN Version");
    change("PRAGMA user_version = 0");
    deliver("203");
    co_await go(R"(
        ? startFailed(3265) ; login ; mnuUpdate ; @Refresh ; ? restart? cancel ; pbUpdateDb
        files == torvena470_DAY.mdb torvena470_empty.mdb torvena470_neu.mdb)");
    gDatenbank.openFile(gefüllteDatenbank);
    EXPECT_EQ(grid("PRAGMA user_version"), "0") << "its next start fills in what it never kept";
}

JOURNEY_P(Updating, RefusesWhatIsNoUpdate) {
    legeDatenbankAn("plain", false);
    for (const char *file : {"none", "unknown"}) {
        deliver("301");
        QFile::copy(gelieferteDatenbank, file);
    }
    for (const auto &[name, sql] : {std::pair{"none", "UPDATE ToDo SET ja = 0"},
                                    {"unknown", "UPDATE ToDo SET Funktion = '303'"}}) {
        Datenbank file;
        file.openFile(name);
        file.execute(sql);
    }
    QFile text("text");
    EXPECT_TRUE(text.open(QIODevice::WriteOnly));
    text.write(QByteArray("Kunden, von Hand aufgeschrieben.\n").repeated(400));
    text.close();
    QFile::remove(gelieferteDatenbank);
    const Rows before = rowsOf(datenbankName);
    QString asked;
    setFileChooser([&](const QString &filter) {
        asked = filter;
        return QString("plain");
    });
    co_await go(R"(
        login ; mnuUpdate ; @Refresh ; txtDb_neu == ; cannot pbUpdateDb ; focus pbSearch ; pbSearch
        txtDb_neu == plain ; ? noUpdateFile ; pbUpdateDb ; focus pbSearch ; files == torvena470_DAY.mdb
        txtDb_neu = none ; ? noUpdateFile ; pbUpdateDb
        txtDb_neu = unknown ; ? noUpdateFile ; pbUpdateDb
        txtDb_neu = torvena470.mdb ; ? noUpdateFile ; pbUpdateDb
        txtDb_neu = text ; ? updateFailure(R_09, 3343) ; pbUpdateDb
        txtDb_neu = nowhere ; ? updateFailure(R_09, 53) ; pbUpdateDb ; filled == no
        files ~ ^(torvena470_DAY(_[1-3])?.mdb.?){4}$ ; pbexit ; @Desktop)");
    EXPECT_EQ(asked, ".mdb (torvena470_neu.mdb)");
    EXPECT_EQ(rowsOf(datenbankName), before);
}

// Once: behind it nothing more can be written.
JOURNEY_ROWS(Updating, TellsWhichDatabaseIsDamaged, "new/Die neue Datenbank",
             "empty/Die neue Datenbank", "used/Die Datenbank") {
    const QStringList row = givenRow.split('/');
    deliver("301");
    co_await go("login ; mnuUpdate ; @Refresh");
    gDatenbank.openFile(row[0] == "used" ? datenbankName : gelieferteDatenbank);
    const int page = grid("SELECT rootpage FROM sqlite_master WHERE name = 'Kunden'").toInt();
    gDatenbank.openFile(datenbankName);
    QFile file(row[0] == "used" ? datenbankName : gelieferteDatenbank);
    EXPECT_TRUE(file.open(QIODevice::ReadWrite) && file.seek((page - 1) * 4096));
    file.write(QByteArray(4096, 'x'));
    if (row[0] == "empty")
        file.resize(0);
    file.close();
    co_await go("? updateFailed(3343 " + row[1] + " ist) ; pbUpdateDb ; filled == no");
}

JOURNEY(Updating, IsCancelledWhileItCopies) {
    change(
        "INSERT INTO Messwerte_temp (ProtokollID, ZulAbw) WITH RECURSIVE n(i) AS (SELECT 1 UNION "
        "ALL SELECT i + 1 FROM n WHERE i < 300000) SELECT 9000, 1 FROM n");
    deliver("470");
    const auto content = [] {
        QFile file(datenbankName);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    };
    const QByteArray before = content();
    co_await go("login ; mnuUpdate ; @Refresh");
    QStringList shown;
    QTimer watch; // ticks inside of the copying
    QObject::connect(&watch, &QTimer::timeout, [&] {
        const QString table = text(frm::Refresh, "laTabelle");
        if (!table.isEmpty() && !shown.contains(table))
            shown += table;
        if (!table.startsWith("Tabelle Messwerte_temp"))
            return;
        EXPECT_TRUE(control(frm::Refresh, "ProgressBar1")->property("value").toInt() > 0);
        EXPECT_FALSE(canPress(frm::Refresh, "pbUpdateDb") || canPress(frm::Refresh, "pbSearch"));
        form(frm::Refresh).close();
    });
    watch.start(0);
    co_await go("pbUpdateDb ; filled == no ; laTabelle == ; focus pbSearch ; can pbUpdateDb");
    watch.stop();
    EXPECT_EQ(shown.value(0), "Die neue Datenbank wird kopiert.");
    EXPECT_EQ(shown.last(), "Tabelle Messwerte_temp, 300.036 Zeilen");
    co_await go("files == torvena470_DAY.mdb torvena470_neu.mdb");
    setFileWatcher([](const QString &operation, const QString &file) {
        return operation == "move" && file != gefüllteDatenbank ? EACCES : 0;
    });
    co_await go(R"(
        ? updateFailure(R_02, 75) ; pbUpdateDb ; files == torvena470_DAY.mdb torvena470_neu.mdb
        filled == no ; key Escape ; @Desktop)");
    EXPECT_TRUE(content() == before);
}

// What happens before the end; the boxes; whether the new database is in use then.
JOURNEY_ROWS(Updating, TellsAtTheEndWhatIsInTheWay,
             "count/? end yes ; ? updateAnyway?(Kunden: 0 statt 11 Zeilen) no/old",
             "count/? end yes ; ? updateAnyway?(Kunden: 0 statt 11 Zeilen) yes/new",
             "later/? end yes ; ? updateAnyway?(Die Datenbank wurde nach dem Kopieren) no/old",
             "open/? end yes ; ? updateLocked ; ? update75/old",
             "locked/? end yes ; ? updateLocked ; ? update75/old",
             "released/? end yes ; ? updateLocked/new", "denied/? end yes ; ? update75/old",
             "kept/? end yes ; ? failure(6005)/new") {
    const QStringList row = givenRow.split('/');
    deliver("470");
    co_await logIn();
    co_await go("mnuUpdate ; @Refresh ; ? restart? ; ? end no ; pbUpdateDb ; @Desktop");
    {
        Datenbank filled;
        filled.openFile(gefüllteDatenbank);
        filled.execute("UPDATE System SET Firmenname = 'Neu'");
        if (row[0] == "count")
            filled.execute("DELETE FROM Kunden");
    }
    if (row[0] == "later")
        gDatenbank.execute("UPDATE System SET EinlW = 61");
    Datenbank other;
    if (QStringList{"open", "locked", "released"}.contains(row[0]))
        other.openFile(datenbankName);
    if (row[0] == "locked")
        other.execute("BEGIN IMMEDIATE");
    if (row[0] == "released") {
        expectKnown("end", Yes);
        expectKnown("updateLocked", OK, [&] { other.close(); });
        co_await go("pbBeenden");
    } else {
        setFileWatcher([&](const QString &operation, const QString &file) {
            const bool fails = row[0] == "denied" ? operation == "link"
                               : row[0] == "kept" ? file == gelieferteDatenbank
                                                  : false;
            return fails ? EACCES : 0;
        });
        co_await go(row[1] + " ; pbBeenden");
    }
    other.close();
    co_await go("pass 100 ; process == over");
    Rows after = rowsOf(datenbankName);
    EXPECT_EQ(after["System"].startsWith("Neu|"), row[2] == "new");
    EXPECT_FALSE(QFile::exists(abgelösteDatenbank));
    EXPECT_EQ(QFile::exists(gelieferteDatenbank), row[2] == "old" || row[0] == "kept");
}

} // namespace
