// The delivered SQL: tables, stored queries, rows and demo data.

#include <gtest/gtest.h>

#include <QDate>
#include <QFile>
#include <QHash>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <optional>

#include "database.h"
#include "scripts.h"

namespace {

QStringList columnsOf(const QString &table) {
    return gDatenbank.open("SELECT * FROM " + table + " LIMIT 0").columns();
}

/// Names, types, defaults and keys in their order.
QStringList definitionOf(const QString &table) {
    QStringList result;
    Recordset columns = gDatenbank.open("PRAGMA table_info(" + table + ")");
    for (; !columns.atEnd(); columns.moveNext()) {
        result += columns["name"].text() + ' ' + columns["type"].text() + ' ' +
                  columns["dflt_value"].text() + ' ' + columns["pk"].text();
    }
    return result;
}

int valueOf(const QString &sql) {
    return gDatenbank.open(sql)[0].whole();
}

/// The first column of all rows, joined by blanks.
QString listOf(const QString &sql) {
    QStringList result;
    for (Recordset rows = gDatenbank.open(sql); !rows.atEnd(); rows.moveNext())
        result += rows[0].text();
    return result.join(' ');
}

/// The number of what the statement raises; 0 for nothing.
int raised(const char *sql) {
    try {
        gDatenbank.execute(sql);
    } catch (const Fehler &fehler) {
        return fehler.number();
    }
    return 0;
}

class Schema : public testing::Test {
  protected:
    explicit Schema(bool demo = false) {
        const QString path = mDirectory.filePath("torvena470.mdb");
        legeDatenbankAn(path, demo);
        gDatenbank.openFile(path);
    }
    ~Schema() override { gDatenbank.close(); }

    QTemporaryDir mDirectory;
};

class DemoData : public Schema {
  protected:
    DemoData() : Schema(true) {}
};

TEST_F(Schema, TablesThatRowsMoveBetweenHaveTheSameColumns) {
    const std::pair<QString, QString> pairs[] = {
        {"Protokoll_temp", "Protokoll"}, {"Messwerte_temp", "Messwerte"},
        {"Blutdruck_temp", "Blutdruck"}, {"SecControl_temp", "SecControl"},
        {"ÄndRez_temp", "Rezepte"},      {"ÄndRez_temp", "EP_Rezepte"},
    };
    for (const auto &[from, to] : pairs) {
        EXPECT_FALSE(definitionOf(from).isEmpty()) << qPrintable(from);
        EXPECT_EQ(definitionOf(from), definitionOf(to)) << qPrintable(from + ' ' + to);
    }
}

TEST_F(Schema, StagingTablesFitTheirViews) {
    for (const QString page : {"1", "2", "3", "4"}) {
        QStringList staging = columnsOf("Bericht" + page);
        if (page == "2") {
            EXPECT_EQ(staging.takeLast(), "Konform");
        }
        EXPECT_EQ(columnsOf("Bericht" + page + "neu"), staging) << qPrintable(page);
        EXPECT_EQ(columnsOf("Bericht" + page + "alt"), staging) << qPrintable(page);
    }
    EXPECT_EQ(columnsOf("EP_Bericht"), columnsOf("EP_Bericht5"));
}

TEST_F(Schema, WorkingAndArchiveViewsAreTheSameButForTheTables) {
    const auto definition = [](const QString &view) {
        QString sql =
            gDatenbank.open("SELECT sql FROM sqlite_master WHERE name = ?", {view})[0].text();
        sql.remove(QRegularExpression("--[^\n]*"));
        sql.replace(QRegularExpression("\\s+"), " ");
        return sql;
    };
    for (const QString view : {"BerichtKopf", "Bericht1", "Bericht2", "Bericht3", "Bericht4"}) {
        QString working = definition(view + "neu");
        EXPECT_TRUE(working.contains("_temp")) << qPrintable(view);
        working.remove("_temp").replace(QRegularExpression("(Bericht\\w+)neu"), "\\1alt");
        EXPECT_EQ(working, definition(view + "alt")) << qPrintable(view);
    }
}

TEST_F(Schema, ColumnsReadByPositionStandWhereTheyAreRead) {
    const std::pair<const char *, const char *> cases[] = {
        {"Kunden", "KundenID Name Straße PLZ Ort"},
        {"Normalkalibrierdaten", "NK_ID SerienNr Normal - kalibriertBis - Offset Gain_R Gain_L "
                                 "VK1_R VK1_L - GrenzwStreubreite AnzahlStreu"},
        {"Hebelarmkalibrierung", "ID - Prüfdatum - Rechts Links"},
        {"Historie", "ID"},
        {"System", "Firmenname Produktname Einlzeit Einlzeit2 - - Sprache - EinlW"},
        {"Interface", "PortNr Parameter"},
        {"MU_Leistung", "- bis MU"},
        {"MU_Drehzahl", "- bis MU"},
    };
    for (const auto &[table, names] : cases) {
        const QStringList columns = columnsOf(table), expected = QString(names).split(' ');
        for (int i = 0; i < expected.size(); ++i)
            EXPECT_TRUE(expected[i] == "-" || columns.value(i) == expected[i]) << table << i;
    }
}

TEST_F(Schema, DeliveredRowsCarryTheStart) {
    for (const QString table : {"System", "Interface", "SecondInterface"})
        EXPECT_EQ(valueOf("SELECT COUNT(*) FROM " + table), 1) << qPrintable(table);
    EXPECT_EQ(listOf("SELECT Bezeichnung FROM Toleranzen WHERE ID = 1"), "medizinische Geräte");
    EXPECT_EQ(listOf("SELECT Bezeichnung FROM Toleranzen WHERE ID = 2"),
              "stationäre Trainingsgeräte");

    EXPECT_EQ(listOf("SELECT ID || HebelarmNr FROM Historie"), "1HA-1001");
    EXPECT_EQ(valueOf("SELECT COUNT(*) FROM Normalkalibrierdaten "
                      "WHERE date() BETWEEN kalibriertVon AND kalibriertBis"),
              1);

    // An update file is told by this table.
    EXPECT_EQ(raised("SELECT ToDo.Funktion FROM ToDo WHERE ja = true"),
              platform::fehlernummer::MissingTable);
}

TEST_F(Schema, TheStoreFillsDatesAndRefusesASecondHead) {
    gDatenbank.execute("INSERT INTO Protokoll_temp (ProtokollID) VALUES ('7')");
    EXPECT_EQ(listOf("SELECT ErstellDatum FROM Protokoll_temp WHERE ProtokollID = 7"),
              QDate::currentDate().toString(Qt::ISODate));
    gDatenbank.execute("INSERT INTO Messwerte_temp (ProtokollID, Prüfschritt) VALUES (7, 'FR')");
    gDatenbank.execute("INSERT INTO Messwerte_temp (ProtokollID, Prüfschritt) VALUES (7, 'FR')");
    const QRegularExpression time("^\\d{4}-\\d\\d-\\d\\d \\d\\d:\\d\\d:\\d\\d\\.\\d{3}$");
    EXPECT_TRUE(
        time.match(gDatenbank.open("SELECT MDat FROM Messwerte_temp")[0].text()).hasMatch());

    const char *const head = "INSERT INTO Protokoll SELECT * FROM Protokoll_temp";
    EXPECT_EQ(raised(head), 0);
    EXPECT_EQ(raised(head), platform::fehlernummer::DuplicateKey) << "a second head";
}

TEST_F(Schema, ADeletedCounterDoesNotComeBack) {
    const QPair<QString, QString> tables[] = {
        {"Kunden", "KundenID"},         {"Ergometer", "GerätID"},          {"Toleranzen", "ID"},
        {"Rezeptnamen", "RezeptID"},    {"Normalkalibrierdaten", "NK_ID"}, {"EP", "EP_ID"},
        {"EP_Rezeptnamen", "RezeptID"}, {"Hebelarmkalibrierung", "ID"},
    };
    for (const auto &[table, id] : tables) {
        const QString insert = "INSERT INTO " + table + " DEFAULT VALUES";
        const QString highest = "SELECT MAX(" + id + ") FROM " + table;
        gDatenbank.execute(insert);
        const int first = valueOf(highest);
        gDatenbank.execute("DELETE FROM " + table + " WHERE " + id + " = ?", {first});
        gDatenbank.execute(insert);
        EXPECT_EQ(valueOf(highest), first + 1) << qPrintable(table);
    }
}

TEST_F(Schema, RowsOfOneKeyAreFoundWithoutReadingTheTable) {
    const char *const sources[] = {
        "Messwerte_temp WHERE ProtokollID = 1 AND Prüfschritt = '2'",
        "Blutdruck WHERE ProtokollID = 1 AND Normalanzeige = 50",
        "Blutdruck_temp WHERE ProtokollID = 1",
        "Protokoll WHERE KundenID = 1",
        "Protokoll WHERE GerätID = 1",
        "Protokoll_temp WHERE KundenID = 1 AND GerätID = 1",
        "Kunden WHERE Name = 'a'",
        "Ergometer WHERE KundenID = 1",
        "Ergometer WHERE IdentNr = 'a'",
        "Rezeptnamen WHERE RezName = 'a'",
        "Rezepte WHERE RezeptID = 1 AND Prüfschritt = 2",
        "EP_Rezepte WHERE RezeptID = 1",
        "EP WHERE SerienNr = 'a'",
        "Bericht1alt WHERE ProtokollID = 1",
        "Bericht2alt WHERE ProtokollID = 1 ORDER BY Gruppe, Prüfschritt, ErgometerMW, TorvenaMW",
        "EP_Bericht WHERE ProtokollID = 1",
    };
    for (const char *source : sources) {
        Recordset plan = gDatenbank.open(QString("EXPLAIN QUERY PLAN SELECT * FROM ") + source);
        for (; !plan.atEnd(); plan.moveNext()) {
            const QString step = plan["detail"].text();
            EXPECT_TRUE(!step.startsWith("SCAN") || step == "SCAN System")
                << source << ": " << qPrintable(step);
        }
    }
}

// A directory of an older build ------------------------------------------------------------------

TEST_F(DemoData, AnOlderDatabaseGetsWhatIsNewAndKeepsItsRows) {
    const QString path = mDirectory.filePath("torvena470.mdb");
    const auto made = [] {
        return listOf("SELECT type || name || sql FROM sqlite_master "
                      "WHERE name NOT LIKE 'sqlite%' ORDER BY name");
    };
    const char *const tables[] = {"SecControl", "SecControl_temp", "System", "EP", "Bericht4"};
    const auto shape = [&] {
        QStringList all{listOf("SELECT name FROM sqlite_master ORDER BY name")};
        for (const char *table : tables)
            all += definitionOf(table);
        return all.join('\n');
    };
    const QString fresh = made(), whole = shape();
    bringeDatenbankAufStand(path);
    EXPECT_EQ(made(), fresh) << "nothing was missing";

    for (const char *older :
         {"DROP VIEW Bericht3neu", "DROP VIEW Bericht3alt", "DROP VIEW Historie",
          "CREATE VIEW Historie AS SELECT 1", "DROP TRIGGER ProtokollGelöscht",
          "DROP INDEX KundenName", "DROP TABLE SecondInterface", "DROP TABLE Bericht4",
          "CREATE TABLE Bericht4 (ProtokollID, MU)",
          "ALTER TABLE SecControl DROP COLUMN GeräteableitI_MU",
          "ALTER TABLE SecControl_temp DROP COLUMN GeräteableitI_MU",
          "ALTER TABLE System DROP COLUMN Endprüfung", "UPDATE System SET Firmenname = 'Wir'",
          "DROP TABLE EP",
          // Half-way this is in the way of an index: then nothing has happened.
          "DROP INDEX BlutdruckStufe",
          "INSERT INTO Blutdruck (ProtokollID, Normalanzeige) VALUES (0, 0), (0, 0)"})
        ASSERT_EQ(raised(older), 0) << older;
    const QString before = made();
    EXPECT_THROW(bringeDatenbankAufStand(path), Fehler);
    EXPECT_EQ(made(), before);
    gDatenbank.execute("DELETE FROM Blutdruck WHERE ProtokollID = 0");
    const QString rows = "SELECT Firmenname || count(*) || group_concat(KennNr_STK) "
                         "FROM System, SecControl";
    const QString kept = listOf(rows);
    bringeDatenbankAufStand(path);
    EXPECT_EQ(shape(), whole);
    EXPECT_EQ(listOf("SELECT HebelarmNr FROM Historie WHERE ID = 1"), "HA-1001");
    EXPECT_EQ(listOf(rows), kept);
    EXPECT_EQ(listOf("SELECT PortNr FROM SecondInterface"), "4") << "with its delivered row";
    EXPECT_EQ(valueOf("SELECT Endprüfung FROM System"), 0);

    // Rows could be moved into wrong columns: refused.
    gDatenbank.execute("ALTER TABLE SecControl ADD COLUMN Neu");
    EXPECT_THROW(bringeDatenbankAufStand(path), Fehler);
}

// Measuring results ------------------------------------------------------------------------------

class Results : public Schema {
  protected:
    Results() {
        gDatenbank.execute("INSERT INTO Protokoll_temp (ProtokollID, Protokollname, PrüfungsArt) "
                           "VALUES (1, 'P', 1)");
    }
    void measured(const QString &step, const QVariant &setPower, const QVariant &speed,
                  const QVariant &power, const QVariant &reading) {
        gDatenbank.execute(
            "INSERT INTO Messwerte_temp (ProtokollID, Prüfschritt, Soll_n, Soll_P, Ist_n_torvena, "
            "Ist_P_torvena, Ist_n_ergom, MU_ohne, MU_mit, MU_Proz) "
            "VALUES (1, ?, '60,0', ?, ?, ?, ?, 'ja', '?', 0.3)",
            {step, setPower, speed, power, reading});
    }
};

TEST_F(Results, AreComputedFromTextsWithCommaOrPoint) {
    const std::optional<double> none;
    const struct {
        // set power, speed and power of the standard, reading of the ergometer
        QVariant setPower, speed, power, reading;
        int group;
        double ergometer, standard;
        std::optional<double> permitted, relative, used;
        double other;
    } cases[] = {
        // 5 %, but at least 3 W
        {"180,0", "59,98", "180,25", "0", 1, 180, 180.25, 9, -0.14, 2.78, 59.98},
        {"180.0", "59.98", "180.25", "0", 1, 180, 180.25, 9, -0.14, 2.78, 59.98},
        {"40,0", "60,00", "37,00", "0", 1, 40, 37, 3, 7.5, 100, 60},
        {"40,0", "60,00", "43,00", " 0", 1, 40, 43, 3, -7.5, 100, 60},
        {"200,0", "60,00", "189,98", "0", 1, 200, 189.98, 10, 5.01, 100.2, 60},
        // setpoint 0 W, and rows without a reading
        {"0", "0,00", "1,20", "0", 1, 0, 1.2, 3, none, 40, 0},
        {"100,0", "60,00", "95,00", "", 1, 100, 95, 5, 5, 100, 60},
        {"100,0", "60,00", "95,00", {}, 1, 100, 95, 5, 5, 100, 60},
        // 2 1/min
        {"100,0", "58,00", "99,00", "60,5", 2, 60.5, 58, 2, 4.13, 125, 99},
        {"100,0", "61.50", "99.00", "60", 2, 60, 61.5, 2, -2.5, 75, 99},
        {"100,0", "1,50", "99,00", "0,0", 2, 0, 1.5, 2, none, 75, 99},
    };
    for (const auto &row : cases) {
        SCOPED_TRACE(row.setPower.toString().toStdString() + " W, " +
                     row.power.toString().toStdString() + " W, reading " +
                     row.reading.toString().toStdString());
        gDatenbank.execute("DELETE FROM Messwerte_temp");
        measured("1", row.setPower, row.speed, row.power, row.reading);
        Recordset result = gDatenbank.open("SELECT * FROM Bericht2neu WHERE ProtokollID = 1");
        ASSERT_EQ(result.count(), 1);
        EXPECT_EQ(result["Gruppe"].whole(), row.group);
        EXPECT_DOUBLE_EQ(result["ErgometerMW"].number(), row.ergometer);
        EXPECT_DOUBLE_EQ(result["TorvenaMW"].number(), row.standard);
        EXPECT_DOUBLE_EQ(result["TorvenaMW2"].number(), row.other);
        const std::pair<const char *, std::optional<double>> nullable[] = {
            {"ZulAbw", row.permitted}, {"RelAbw", row.relative}, {"TolAusN", row.used}};
        for (const auto &[column, expected] : nullable) {
            EXPECT_EQ(result[column].isNull(), !expected) << column;
            EXPECT_DOUBLE_EQ(result[column].number(), expected.value_or(0)) << column;
        }
    }
}

TEST_F(Results, RoundTheSpeedLimitToTheEvenNeighbour) {
    measured("1", "100,0", "59,00", "100,00", "60");
    for (const auto &[stored, used] : {std::pair{0.5, 0}, {0.6, 1}, {1.5, 2}, {2.5, 2}, {3.5, 4}}) {
        gDatenbank.execute("UPDATE Toleranzen SET GrenzAbw = ?", {stored});
        Recordset result = gDatenbank.open("SELECT ZulAbw, TolAusN FROM Bericht2neu");
        EXPECT_DOUBLE_EQ(result["ZulAbw"].number(), used) << stored;
        EXPECT_EQ(result["TolAusN"].isNull(), used == 0) << stored;
    }
}

TEST_F(Results, AreStagedInTheOrderOfStepsWithFreeStepsLast) {
    for (const QString step : {"FR", "10", "2", "1"})
        measured(step, "100,0", "60,00", "100,00", "0");
    measured("FR", "50,0", "60,00", "50,00", "0");
    measured("3", "100,0", "60,00", "100,00", "60,1");
    gDatenbank.execute(
        "INSERT INTO Bericht2 SELECT ProtokollID, ProtokollName, Drehrichtung, "
        "Gruppe, Prüfschritt, ErgometerMW, TorvenaMW, ZulAbw, RelAbw, TolAusN, "
        "TorvenaMW2, MU_ohne, MU_mit, MU_Proz, 'mit' AS Konform FROM Bericht2neu "
        "WHERE ProtokollID = 1 ORDER BY gruppe, prüfschritt, ergometermw, torvenamw");
    EXPECT_EQ(listOf("SELECT Prüfschritt FROM Bericht2"), "1 2 10 FR FR 3");
    EXPECT_EQ(listOf("SELECT ErgometerMW FROM Bericht2 WHERE Prüfschritt = 'FR'"), "50 100");
}

TEST_F(Schema, ReportsOutliveWhatTheyReferTo) {
    gDatenbank.execute("INSERT INTO Protokoll (ProtokollID, Protokollname, GerätID, KundenID, "
                       "PrüfungsArt, NK_ID) VALUES (1, 'P', 99, 99, 99, 99)");
    gDatenbank.execute("INSERT INTO Messwerte (ProtokollID, Prüfschritt, Soll_P, Ist_P_torvena, "
                       "Ist_n_ergom) VALUES (1, '1', '100,0', '95,00', '0')");
    gDatenbank.execute("UPDATE Protokoll SET ErstellDatum = '2024-02-29'");
    EXPECT_EQ(listOf("SELECT NächsteKalibrierung FROM Bericht1alt"), "02/2026");
    gDatenbank.execute("INSERT INTO SecControl (ProtokollID) VALUES (1)");
    gDatenbank.execute("INSERT INTO Blutdruck (ProtokollID, Normalanzeige) VALUES (1, 0)");
    for (const QString page : {"1", "2", "3", "4"}) {
        const Recordset rows =
            gDatenbank.open("SELECT * FROM Bericht" + page + "alt WHERE ProtokollID = 1");
        ASSERT_EQ(rows.count(), 1) << qPrintable(page);
        EXPECT_EQ(rows["ProtokollName"].text(), "P") << qPrintable(page);
    }
    const Recordset result = gDatenbank.open("SELECT * FROM Bericht2alt");
    EXPECT_TRUE(result["ZulAbw"].isNull());
    EXPECT_TRUE(result["TolAusN"].isNull());
    EXPECT_DOUBLE_EQ(result["RelAbw"].number(), 5);
}

// Demo data --------------------------------------------------------------------------------------

TEST_F(DemoData, HangsTogether) {
    QStringList strays{
        "Protokoll JOIN Protokoll_temp USING (ProtokollID)",
        "(SELECT IdentNr FROM Ergometer GROUP BY IdentNr HAVING COUNT(*) > 1)",
        "Rezeptnamen WHERE ToleranzID NOT IN (SELECT ID FROM Toleranzen)",
        "Rezeptnamen WHERE RezeptID NOT IN (SELECT RezeptID FROM Rezepte)",
        "Rezepte WHERE Val(Drehzahl) NOT BETWEEN 1 AND 120 OR "
        "Val(Leistung) / Val(Drehzahl) * 60 / 2 / 3.14 NOT BETWEEN 0 AND 60", // N m
    };
    for (const QString state : {"", "_temp"}) {
        const QString head = "Protokoll" + state;
        strays += head + " P LEFT JOIN Ergometer E USING (GerätID) "
                         "LEFT JOIN Normalkalibrierdaten N USING (NK_ID) "
                         "WHERE E.KundenID IS NOT P.KundenID "
                         "OR P.ErstellDatum NOT BETWEEN N.kalibriertVon AND N.kalibriertBis";
        for (const QString detail : {"Messwerte", "Blutdruck", "SecControl"})
            strays += detail + state + " LEFT JOIN " + head +
                      " P USING (ProtokollID) WHERE P.KundenID IS NULL";
    }
    for (const QString &stray : strays)
        EXPECT_EQ(valueOf("SELECT COUNT(*) FROM " + stray), 0) << qPrintable(stray);
}

} // namespace
