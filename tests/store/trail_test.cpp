// The trail against what is done with the functions of the program, against changes made past it
// and to it, and through everything that gives a database another shape.
#include <QFile>

#include <random>

#include "records/arbeitskopie.h"
#include "records/archiv.h"
#include "records/blatt.h"
#include "records/geraetedaten.h"
#include "records/kundendaten.h"
#include "records/loeschung.h"
#include "records/messwerte.h"
#include "records/protokollnummer.h"
#include "store/databasecopy.h"
#include "store/rowcopy.h"
#include "store/scripts.h"
#include "store/swap.h"
#include "store/trail.h"
#include "store/trailcheck.h"
#include "workshop.h"

namespace {

using namespace platform;
using namespace support;

class Trail : public Workshop {
  protected:
    Trail() { gDatenbank.openFile(datenbankName); }
    ~Trail() override { setTrailPerson({}); }

    static QString found(Datenbank &store = gDatenbank) {
        QStringList all;
        for (const Text &text : checkTrail(store).found)
            all += text.german;
        return all.join('\n');
    }
    static int links() { return grid("SELECT count(*) FROM Nachweis").toInt(); }
    static QStringList takeOff(const QString &triggers = "Nachweis*") {
        const QString which = " FROM sqlite_master WHERE type = 'trigger' AND name GLOB ?";
        const QStringList statements = column("SELECT sql" + which, {triggers});
        for (const QString &name : column("SELECT name" + which, {triggers}))
            gDatenbank.execute("DROP TRIGGER \"" + name + '"');
        return statements;
    }
    /// Runs it without the triggers, which are there again behind it.
    static void past(const std::function<void()> &change, const QString &triggers = "Nachweis*") {
        const QStringList statements = takeOff(triggers);
        change();
        for (const QString &statement : statements)
            gDatenbank.execute(statement);
    }
    static void customers() {
        for (const char *name : {"Eins", "Zwei", "Drei", "Vier", "Fünf"})
            kundeEinfügen({name, "Weg 1", "01234", "Ort"});
    }

    std::mt19937 random{4711};
    int upTo(int last) { return std::uniform_int_distribution(0, last)(random); }
};

/// Each row of the tables that it covers, by table and key.
using Rows = QMap<QString, QString>;
Rows rowsNow() {
    Rows rows;
    for (const QString &table : trailTables(gDatenbank)) {
        Recordset all = gDatenbank.open("SELECT rowid, " +
                                        rowExpression(trailColumns(gDatenbank, "main", table)) +
                                        " FROM \"" + table + '"');
        for (; !all.atEnd(); all.moveNext())
            rows[table + ' ' + all[0].text()] = all[1].text();
    }
    return rows;
}

TEST_F(Trail, LeadsFromEachStateToTheNext) {
    setTrailPerson([] { return gPrüfer; });
    gKundenID = 1;
    gGerätID = 1;
    gToleranzID = 1;
    gDrehrichtung = 1;
    gMessverfahren = "Vergleich";
    const auto protocol = [&](const QString &table, const QString &key = "ProtokollID") {
        const QStringList all = column("SELECT " + key + " FROM " + table);
        return all.isEmpty() ? 0 : all[upTo(static_cast<int>(all.size()) - 1)].toInt();
    };
    const std::function<void()> operations[] = {
        [&] { kopfAnlegen(nächsteProtokollNr(), "Neu"); },
        [&] { blattkopfAnlegen(nächsteProtokollNr(), "O'Hara \"\\\n", Inhalt::SecControl); },
        [&] {
            messwertSpeichern(protocol("Protokoll_temp"),
                              {QString::number(upTo(99)), "100", "60,1", "99,5", "0", "15,8",
                               upTo(2) ? QString::number(upTo(9)) : freierSchritt,
                               Prüfart::Leistung, 60},
                              {true, "ja", 0.1 * upTo(9)});
        },
        [&] {
            blattSpeichern(Inhalt::Blutdruck, protocol("Protokoll_temp"),
                           {{{0, "MU"}, "±3"}, {{upTo(6), "auf"}, QString::number(upTo(300))}});
        },
        [&] { kopfNachführen(protocol("Protokoll_temp")); },
        [&] { archivieren(protocol("Protokoll_temp")); },
        [&] {
            kundeEinfügen({"Kunde " + QString::number(upTo(999)), "", "", "Ort"});
        },
        [&] {
            kundeÄndern({"Anders", "Weg", "1", "Ort", upTo(8) + 1});
        },
        [&] {
            gerätEinfügen(gKundenID, {"Rad", "Werk", "S", QString::number(upTo(9999))});
        },
        [&] {
            Arbeitskopie steps(ordentlicheRezepte);
            steps.füllen(protocol("Rezepte", "RezeptID"));
            gDatenbank.execute("UPDATE ÄndRez_temp SET Leistung = ?", {upTo(500)});
            const Schlüssel taken = protocol("Rezeptnamen", "RezeptID");
            steps.fnc_ÄnderungenÜbernehmen(taken);
            if (upTo(2) == 0)
                rezeptLöschen(taken);
        },
        [&] { gDatenbank.execute("UPDATE Toleranzen SET Prozent = Prozent + 0.1"); },
        [&] { archivköpfeLöschen(std::vector<Schlüssel>{protocol("Protokoll")}, [](int) {}); },
        [&] { datensatzLöschen(Löschziel::Gerät, protocol("Ergometer", "GerätID")); },
        [&] {
            gDatenbank.together([&] {
                gDatenbank.execute("DELETE FROM Rezepte");
                throw Fehler(fehlernummer::UserInterrupt, {}); // undone, links and all
            });
        },
    };
    Rows rows = rowsNow();
    int last = links();
    for (int turn = 0; turn < 60; ++turn) {
        gPrüfer = "Person " + QString::number(turn);
        const auto &operation = operations[turn < 14 ? turn : upTo(13)];
        const int failure = raised(operation);
        EXPECT_TRUE(failure == 0 || failure == fehlernummer::UserInterrupt ||
                    failure == fehlernummer::NoCurrentRecord)
            << turn << ' ' << failure;
        Recordset added =
            gDatenbank.open("SELECT Tabelle || ' ' || Schlüssel, ifnull(Alt, ''), "
                            "ifnull(Neu, ''), Person, Vorgang, json_valid(ifnull(Neu, Alt)) "
                            "FROM Nachweis WHERE Nr > ? ORDER BY Nr",
                            {last});
        for (; !added.atEnd(); added.moveNext()) {
            const QString row = added[0].text();
            EXPECT_EQ(added[1].text(), rows.value(row)) << turn << row;
            rows[row] = added[2].text();
            if (rows[row].isEmpty())
                rows.remove(row);
            EXPECT_EQ(added[3].text() + added[5].text(), gPrüfer + '1');
            EXPECT_EQ(added[4].text(), added[1].text().isEmpty()   ? "neu"
                                       : added[2].text().isEmpty() ? "gelöscht"
                                                                   : "geändert");
        }
        EXPECT_EQ(rows, rowsNow()) << turn;
        last = links();
        EXPECT_EQ(found(), "") << turn;
    }
    EXPECT_GT(last, 200);
}

TEST_F(Trail, ShowsChangesThatWereMadePastIt) {
    customers();
    gDatenbank.execute("UPDATE Messwerte SET Soll_n = '61' WHERE ProtokollID > 5");
    const QStringList tables = trailTables(gDatenbank);
    for (int turn = 0; turn < 100;) {
        const QString table = tables[upTo(static_cast<int>(tables.size()) - 1)];
        const QStringList keys = column("SELECT rowid FROM \"" + table + '"');
        if (keys.isEmpty())
            continue;
        ++turn;
        const QString key = keys[upTo(static_cast<int>(keys.size()) - 1)];
        const QStringList columns = trailColumns(gDatenbank, "main", table);
        const QString cell = columns[1 + upTo(static_cast<int>(columns.size()) - 2)];
        const QString at = " FROM \"" + table + "\" WHERE rowid = " + key;
        const QString copied = "\"" + columns.mid(1).join("\", \"") + '"';
        const QString sql = QStringList{
            "UPDATE \"" + table + "\" SET \"" + cell + "\" = CASE typeof(\"" + cell +
                "\") WHEN 'integer' THEN \"" + cell + "\" + 1 WHEN 'real' THEN \"" + cell +
                "\" * 1.000001 ELSE ifnull(\"" + cell + "\", '') || ' ' END WHERE rowid = " + key,
            "DELETE" + at,
            "INSERT INTO \"" + table + "\" (" + copied + ") SELECT " + copied + at}[turn % 3];
        gDatenbank.execute("BEGIN");
        past([&] { EXPECT_EQ(gDatenbank.execute(sql), 1); }, "Nachweis_" + table + "_*");
        const QString told = found();
        const bool touched = turn % 3 < 2 && !column("SELECT 1 FROM Nachweis WHERE Tabelle = ? AND "
                                                     "Schlüssel = ?",
                                                     {table, key})
                                                  .isEmpty();
        EXPECT_TRUE(
            told.contains("Tabelle " + table + (touched ? ", Schlüssel " + key + ':' : ":")))
            << sql << '\n'
            << told;
        EXPECT_FALSE(touched && told.contains('\n')) << told;
        gDatenbank.execute("ROLLBACK");
    }
    EXPECT_EQ(found(), "");
    past([] {
        gDatenbank.execute("UPDATE Kunden SET Ort = 'Stadt', PLZ = '' WHERE Name = 'Drei'");
    });
    EXPECT_EQ(found(), "Tabelle Kunden, Schlüssel 15: am Nachweis vorbei geändert nach Nr. 4: Ort: "
                       "Ort → Stadt, PLZ: 01234 → ");
}

TEST_F(Trail, ShowsChangesOfItsLinks) {
    customers(); // links 2 to 6
    const QString chain =
        "Kettenglied(Nr, Zeit, 'x', Tabelle, Vorgang, Schlüssel, Alt, Neu, Vorher)";
    for (const Case &c : cases(R"(
            UPDATE Nachweis SET Person = 'x' WHERE Nr = 3 -> Nachweis Nr. 3 wurde geändert.
            | UPDATE Nachweis SET Alt = '' WHERE Nr = 3 -> Nachweis Nr. 3 wurde geändert.
            | UPDATE Nachweis SET Person = 'x', Kette = CHAIN WHERE Nr = 3
              -> Nachweis Nr. 4 schließt nicht an das Glied davor an
            | DELETE FROM Nachweis WHERE Nr IN (3, 4) -> Im Nachweis fehlt: Nr. 3–4.
            | DELETE FROM Nachweis WHERE Nr > 5 -> Im Nachweis fehlt: Nr. 6.
            | INSERT INTO Nachweis SELECT 7, Zeit, Person, Tabelle, Vorgang, Schlüssel, Alt, Neu, Vorher,
              Kette FROM Nachweis WHERE Nr = 6 -> Nachweis Nr. 7 schließt nicht an das Glied davor an
            | DELETE FROM Nachweis WHERE Nr = 1 -> Der Nachweis beginnt nicht mit einem Bestand.
            | DELETE FROM Nachweis -> Im Nachweis fehlt: Nr. 1–6.
            | DROP TRIGGER NachweisBleibt -> fehlen oder wurden geändert: NachweisBleibt.
            | DROP TRIGGER Nachweis_EP_neu -> fehlen oder wurden geändert: Nachweis_EP_neu.
            | DROP TABLE Nachweis -> Die Tabelle Nachweis fehlt.
            | INSERT INTO Kunden DEFAULT VALUES -> "")")) {
        gDatenbank.execute("BEGIN");
        if (c.in.startsWith("DROP") || c.out.isEmpty())
            gDatenbank.execute(c.in);
        else
            past([&] { gDatenbank.execute(QString(c.in).replace("CHAIN", chain)); });
        EXPECT_TRUE(c.out.isEmpty() ? found().isEmpty() : found().contains(c.out)) << c << '\n'
                                                                                   << found();
        gDatenbank.execute("ROLLBACK");
    }
    past([] { // a tail that was cut off with its counter still misses its rows
        gDatenbank.execute("DELETE FROM Nachweis WHERE Nr > 4");
        gDatenbank.execute("UPDATE sqlite_sequence SET seq = 4 WHERE name = 'Nachweis'");
    });
    EXPECT_EQ(found(),
              "Tabelle Kunden: Zeilen eingefügt (2) am Nachweis vorbei, seit dem Bestand Nr. 1.");
}

TEST_F(Trail, NobodyElseWritesAndNothingIsTakenBack) {
    const auto foreign = [](const QString &sql) { // without the functions of the program
        return raised([&] { Datenbank::createFile(datenbankName, {sql}); });
    };
    EXPECT_EQ(foreign("SELECT * FROM Kunden, Nachweis, Bericht1neu, NachweisNeu"), 0);
    for (const char *sql :
         {"UPDATE Kunden SET Ort = 'x'", "DELETE FROM EP", "INSERT INTO EP DEFAULT VALUES"})
        EXPECT_EQ(foreign(sql), fehlernummer::StatementFailed) << sql;
    EXPECT_EQ(foreign("DELETE FROM Nachweis"), fehlernummer::DuplicateKey);
    EXPECT_EQ(raised([] { gDatenbank.execute("UPDATE Nachweis SET Person = 'x'"); }),
              fehlernummer::DuplicateKey);
    gDatenbank.execute("UPDATE Kunden SET Ort = Ort");
    gDatenbank.execute("REPLACE INTO Kunden (KundenID, Name) VALUES (3, 'Anders')");
    EXPECT_EQ(grid("SELECT Vorgang, Schlüssel FROM Nachweis WHERE Nr > 1"), "gelöscht|3+neu|3");
    noteInTrail(gDatenbank, "Sicherungskopie eingespielt");
    EXPECT_EQ(found(), "");
    EXPECT_EQ(trailHead(gDatenbank).number, 4);
}

TEST_F(Trail, GoesOnWhenTheDatabaseIsBroughtUpToDate) {
    const auto states = [] {
        return grid(
            "SELECT Nr, Schlüssel, (SELECT group_concat(key) FROM "
            "json_each(Neu, '$.Tabellen')) FROM Nachweis WHERE Vorgang = 'Bestand' AND Nr > 1");
    };
    // One that never had a trail.
    takeOff();
    gDatenbank.execute("DROP TABLE Nachweis");
    gDatenbank.execute("PRAGMA user_version = 3");
    EXPECT_EQ(checkTrail(gDatenbank).noted.size(), 1U);
    EXPECT_EQ(found(), "");
    bringeDatenbankAufStand(datenbankName);
    EXPECT_EQ(links(), 1);
    customers();
    bringeDatenbankAufStand(datenbankName);
    EXPECT_EQ(links(), 6) << "nothing was new";
    EXPECT_EQ(found(), "");

    // One to whose tables columns come.
    past([] {
        gDatenbank.execute("DELETE FROM Nachweis WHERE Nr > 0");
        gDatenbank.execute("DELETE FROM sqlite_sequence WHERE name = 'Nachweis'");
    });
    takeOff("Nachweis_Rezeptnamen_*");
    gDatenbank.execute("ALTER TABLE Rezeptnamen DROP COLUMN ToleranzID");
    gDatenbank.together([] { layTrail(gDatenbank, "Früher"); });
    customers();
    gDatenbank.execute("UPDATE Rezeptnamen SET RezName = 'Eins' WHERE RezeptID = 1");
    EXPECT_EQ(found(), "");
    for (const bool tampered : {false, true}) {
        QFile::remove("tampered");
        copyDatabase(datenbankName, "tampered");
        gDatenbank.openFile("tampered");
        if (tampered)
            past([] { gDatenbank.execute("UPDATE Rezeptnamen SET RezName = 'Anders'"); });
        bringeDatenbankAufStand("tampered");
        EXPECT_EQ(states(), QString("8|Auf Stand %1 gebracht|Rezeptnamen").arg(datenbankStand));
        EXPECT_EQ(found(), tampered
                               ? QString("Vor dem Bestand Nr. 8 (Auf Stand %1 gebracht) wurde am "
                                         "Nachweis vorbei geändert: Rezeptnamen.")
                                     .arg(datenbankStand)
                               : QString());
        gDatenbank.openFile(datenbankName);
    }
}

TEST_F(Trail, MovesWithTheRowsOfAnUpdate) {
    customers();
    gDatenbank.execute("DELETE FROM Kunden WHERE Name = 'Zwei'");
    for (const QString more : {"",
                               "INSERT INTO Normalkalibrierdaten_neu (kalibriertBis) VALUES "
                               "('2099-01-01')",
                               "DROP TABLE Nachweis"}) {
        QFile::remove(gefüllteDatenbank);
        legeUpdateAn(gefüllteDatenbank, "470");
        {
            Datenbank file;
            file.openFile(gefüllteDatenbank);
            if (!more.isEmpty())
                file.execute(more);
        }
        RowCopy copy(datenbankName, gefüllteDatenbank);
        for (const QString &table : copy.tables())
            copy.replace(table);
        if (more.startsWith("INSERT"))
            copy.addDeliveredCalibration();
        const CopyRecord record = copy.finish();
        EXPECT_TRUE(checkFilled(datenbankName, gefüllteDatenbank, record).empty());
        Datenbank filled;
        filled.openFile(gefüllteDatenbank);
        EXPECT_EQ(found(filled), "") << more;
        EXPECT_EQ(trailHead(filled).number, more.startsWith("INSERT") ? 8 : 7) << more;
        filled.execute("UPDATE Kunden SET Ort = 'x'");
        EXPECT_EQ(found(filled), "") << more;
    }
    // What was changed past it shows behind an update as before.
    past([] { gDatenbank.execute("UPDATE Kunden SET Ort = 'Stadt' WHERE Name = 'Drei'"); });
    QFile::remove(gefüllteDatenbank);
    legeUpdateAn(gefüllteDatenbank, "470");
    RowCopy copy(datenbankName, gefüllteDatenbank);
    for (const QString &table : copy.tables())
        copy.replace(table);
    copy.finish();
    Datenbank filled;
    filled.openFile(gefüllteDatenbank);
    EXPECT_EQ(found(filled), found());
    EXPECT_NE(found(), "");
}

} // namespace
