// The delivered SQL: tables, stored queries, rows and demo data.

#include <gtest/gtest.h>

#include <QDate>
#include <QFile>
#include <QHash>
#include <QRegularExpression>
#include <QSet>
#include <QTemporaryDir>

#include <algorithm>
#include <cmath>
#include <numbers>
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
    const struct {
        const char *table;
        QHash<int, QString> at;
    } cases[] = {
        {"Kunden", {{0, "KundenID"}, {1, "Name"}, {2, "Straße"}, {3, "PLZ"}, {4, "Ort"}}},
        {"Normalkalibrierdaten",
         {{0, "NK_ID"},
          {1, "SerienNr"},
          {2, "Normal"},
          {4, "kalibriertBis"},
          {6, "Offset"},
          {7, "Gain_R"},
          {8, "Gain_L"},
          {9, "VK1_R"},
          {10, "VK1_L"},
          {12, "GrenzwStreubreite"},
          {13, "AnzahlStreu"}}},
        {"Hebelarmkalibrierung", {{0, "ID"}, {2, "Prüfdatum"}, {4, "Rechts"}, {5, "Links"}}},
        {"Historie", {{0, "ID"}}},
        {"System",
         {{0, "Firmenname"},
          {1, "Produktname"},
          {2, "Einlzeit"},
          {3, "Einlzeit2"},
          {6, "Sprache"},
          {8, "EinlW"}}},
        {"Interface", {{0, "PortNr"}, {1, "Parameter"}}},
        {"MU_Leistung", {{1, "bis"}, {2, "MU"}}},
        {"MU_Drehzahl", {{1, "bis"}, {2, "MU"}}},
    };
    for (const auto &[table, expected] : cases) {
        const QStringList columns = columnsOf(table);
        for (auto it = expected.begin(); it != expected.end(); ++it)
            EXPECT_EQ(columns.value(it.key()), it.value()) << table << ' ' << it.key();
    }
}

TEST_F(Schema, DeliveredRowsCarryTheStart) {
    EXPECT_EQ(valueOf("SELECT COUNT(*) FROM System"), 1);
    EXPECT_EQ(valueOf("SELECT COUNT(*) FROM Interface"), 1);
    EXPECT_EQ(valueOf("SELECT COUNT(*) FROM SecondInterface"), 1);
    EXPECT_EQ(listOf("SELECT Bezeichnung FROM Toleranzen WHERE ID = 1"), "medizinische Geräte");
    EXPECT_EQ(listOf("SELECT Bezeichnung FROM Toleranzen WHERE ID = 2"),
              "stationäre Trainingsgeräte");

    Recordset reference = gDatenbank.open("SELECT * FROM Historie");
    EXPECT_EQ(reference["ID"].whole(), 1);
    EXPECT_EQ(reference["Prdatum"].text().left(10), QDate::currentDate().toString(Qt::ISODate));
    EXPECT_EQ(reference["HebelarmNr"].text(), "HA-1001");

    const QString today = QDate::currentDate().toString(Qt::ISODate);
    Recordset standard = gDatenbank.open("SELECT * FROM Normalkalibrierdaten");
    EXPECT_LT(standard["kalibriertVon"].text(), today);
    EXPECT_GT(standard["kalibriertBis"].text(), today);

    // An update file is told by this table.
    try {
        gDatenbank.open("SELECT ToDo.Funktion FROM ToDo WHERE ja = true");
        ADD_FAILURE() << "ToDo must not be there";
    } catch (const Fehler &fehler) {
        EXPECT_EQ(fehler.number(), platform::fehlernummer::MissingTable);
    }
}

TEST_F(Schema, AnExistingDatabaseIsNeverReplaced) {
    const QString path = mDirectory.filePath("torvena470.mdb");
    gDatenbank.execute("UPDATE System SET Firmenname = 'ours'");
    EXPECT_THROW(legeDatenbankAn(path, true), Fehler);
    gDatenbank.openFile(path);
    EXPECT_EQ(listOf("SELECT Firmenname FROM System"), "ours");
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

    gDatenbank.execute("INSERT INTO Protokoll SELECT * FROM Protokoll_temp");
    try {
        gDatenbank.execute("INSERT INTO Protokoll SELECT * FROM Protokoll_temp");
        ADD_FAILURE() << "a second head was taken";
    } catch (const Fehler &fehler) {
        EXPECT_EQ(fehler.number(), platform::fehlernummer::DuplicateKey);
    }
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

TEST_F(Schema, AStepIsWrittenAsTextAndFoundAsNumber) {
    for (const QString step : {"1", "2", "3", "10"})
        gDatenbank.execute("INSERT INTO Rezepte (RezeptID, Prüfschritt, Leistung) "
                           "VALUES (4, ?, '100')",
                           {step});
    EXPECT_EQ(
        listOf("SELECT Prüfschritt FROM Rezepte WHERE RezeptID = 4 ORDER BY Val(Prüfschritt)"),
        "1 2 3 10");
    EXPECT_EQ(gDatenbank.execute("UPDATE Rezepte SET Prüfschritt = '11' "
                                 "WHERE Prüfschritt = 10 AND RezeptID = 4"),
              1);
    EXPECT_EQ(gDatenbank.execute("DELETE FROM Rezepte WHERE Prüfschritt = ? AND RezeptID = 4", {3}),
              1);
    gDatenbank.execute("INSERT INTO ÄndRez_temp SELECT * FROM Rezepte WHERE RezeptID = 4");
    gDatenbank.execute("INSERT INTO EP_Rezepte SELECT * FROM ÄndRez_temp");
    EXPECT_EQ(listOf("SELECT Leistung FROM EP_Rezepte"), "100 100 100");
}

TEST_F(Schema, RowsOfOneKeyAreFoundWithoutReadingTheTable) {
    const QString statements[] = {
        "SELECT * FROM Messwerte WHERE ProtokollID = 1",
        "SELECT * FROM Messwerte_temp WHERE ProtokollID = 1 AND Prüfschritt = '2'",
        "SELECT * FROM Blutdruck WHERE ProtokollID = 1 AND Normalanzeige = 50",
        "SELECT * FROM Blutdruck_temp WHERE ProtokollID = 1",
        "SELECT * FROM SecControl WHERE ProtokollID = 1",
        "SELECT MAX(ProtokollID) FROM Protokoll",
        "SELECT * FROM Protokoll WHERE KundenID = 1",
        "SELECT * FROM Protokoll WHERE GerätID = 1",
        "SELECT * FROM Protokoll_temp WHERE KundenID = 1 AND GerätID = 1",
        "SELECT * FROM Kunden WHERE Name = 'a'",
        "SELECT * FROM Ergometer WHERE KundenID = 1",
        "SELECT * FROM Ergometer WHERE IdentNr = 'a'",
        "SELECT * FROM Rezeptnamen WHERE RezName = 'a'",
        "SELECT * FROM Rezepte WHERE RezeptID = 1 AND Prüfschritt = 2",
        "SELECT * FROM EP_Rezepte WHERE RezeptID = 1",
        "SELECT * FROM EP WHERE SerienNr = 'a'",
        "SELECT * FROM EP_Messwerte WHERE ProtokollID = 1",
        "SELECT * FROM Bericht1alt WHERE ProtokollID = 1",
        "SELECT * FROM Bericht2alt WHERE ProtokollID = 1 "
        "ORDER BY Gruppe, Prüfschritt, ErgometerMW, TorvenaMW",
        "SELECT * FROM Bericht3alt WHERE ProtokollID = 1",
        "SELECT * FROM Bericht4alt WHERE ProtokollID = 1",
        "SELECT * FROM EP_Bericht WHERE ProtokollID = 1",
    };
    for (const QString &statement : statements) {
        Recordset plan = gDatenbank.open("EXPLAIN QUERY PLAN " + statement);
        for (; !plan.atEnd(); plan.moveNext()) {
            const QString step = plan["detail"].text();
            EXPECT_TRUE(!step.startsWith("SCAN") || step == "SCAN System")
                << qPrintable(statement + ": " + step);
        }
    }
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
        {"60,0", "60,00", "57,00", "0", 1, 60, 57, 3, 5, 100, 60},
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
        const std::string what = row.setPower.toString().toStdString() + " W, " +
                                 row.power.toString().toStdString() + " W, reading " +
                                 row.reading.toString().toStdString();
        gDatenbank.execute("DELETE FROM Messwerte_temp");
        measured("1", row.setPower, row.speed, row.power, row.reading);
        Recordset result = gDatenbank.open("SELECT * FROM Bericht2neu WHERE ProtokollID = 1");
        ASSERT_EQ(result.count(), 1) << what;
        EXPECT_EQ(result["Gruppe"].whole(), row.group) << what;
        EXPECT_DOUBLE_EQ(result["ErgometerMW"].number(), row.ergometer) << what;
        EXPECT_DOUBLE_EQ(result["TorvenaMW"].number(), row.standard) << what;
        EXPECT_DOUBLE_EQ(result["TorvenaMW2"].number(), row.other) << what;
        const std::pair<const char *, std::optional<double>> nullable[] = {
            {"ZulAbw", row.permitted}, {"RelAbw", row.relative}, {"TolAusN", row.used}};
        for (const auto &[column, expected] : nullable) {
            EXPECT_EQ(result[column].isNull(), !expected) << what << ' ' << column;
            EXPECT_DOUBLE_EQ(result[column].number(), expected.value_or(0))
                << what << ' ' << column;
        }
    }
}

TEST_F(Results, RoundTheSpeedLimitToTheEvenNeighbour) {
    measured("1", "100,0", "59,00", "100,00", "60");
    const std::pair<double, double> limits[] = {{0, 0},   {0.5, 0},    {0.6, 1}, {1, 1},
                                                {1.5, 2}, {2.4, 2},    {2.5, 2}, {2.6, 3},
                                                {3.5, 4}, {1000, 1000}};
    for (const auto &[stored, used] : limits) {
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
    EXPECT_EQ(listOf("SELECT Prüfschritt FROM Bericht2 ORDER BY Gruppe, Prüfschritt"),
              "1 2 10 FR FR 3");
    EXPECT_EQ(listOf("SELECT ErgometerMW FROM Bericht2 WHERE Prüfschritt = 'FR'"), "50 100");
}

TEST_F(Results, FinalTestReportFollowsTheSteps) {
    gDatenbank.execute("INSERT INTO EP (EP_ID, SerienNr) VALUES (3, 'S'), (4, 'T')");
    for (const QString step : {"10", "2", "1"}) {
        gDatenbank.execute("INSERT INTO EP_Messwerte (ProtokollID, Prüfschritt, Toleranz) "
                           "VALUES (3, ?, 'OK'), (4, ?, 'OK')",
                           {step, step});
    }
    gDatenbank.execute("INSERT INTO EP_Bericht5 SELECT * FROM EP_Bericht WHERE ProtokollID = 3");
    EXPECT_EQ(listOf("SELECT SerienNr || Prüfschritt FROM EP_Bericht5"), "S1 S2 S10");
}

TEST_F(Schema, ReportsOutliveWhatTheyReferTo) {
    gDatenbank.execute("INSERT INTO Protokoll (ProtokollID, Protokollname, GerätID, KundenID, "
                       "PrüfungsArt, NK_ID) VALUES (1, 'P', 99, 99, 99, 99)");
    gDatenbank.execute("INSERT INTO Messwerte (ProtokollID, Prüfschritt, Soll_P, Ist_P_torvena, "
                       "Ist_n_ergom) VALUES (1, '1', '100,0', '95,00', '0')");
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

TEST_F(Schema, TheNextCalibrationIsDueInTheSameMonthTwoYearsOn) {
    const std::pair<QString, QString> dates[] = {
        {"2019-03-15", "03/2021"}, {"2020-12-31", "12/2022"}, {"2024-02-29", "02/2026"}};
    gDatenbank.execute("INSERT INTO Protokoll (ProtokollID) VALUES (1)");
    for (const auto &[made, due] : dates) {
        gDatenbank.execute("UPDATE Protokoll SET ErstellDatum = ?", {made});
        EXPECT_EQ(listOf("SELECT NächsteKalibrierung FROM Bericht1alt"), due);
    }
}

// Demo data --------------------------------------------------------------------------------------

TEST_F(DemoData, HangsTogether) {
    EXPECT_EQ(valueOf("SELECT COUNT(*) FROM Protokoll JOIN Protokoll_temp USING (ProtokollID)"), 0);
    for (const QString state : {"", "_temp"}) {
        const QString head = "Protokoll" + state;
        EXPECT_EQ(valueOf("SELECT COUNT(*) FROM " + head +
                          " P "
                          "LEFT JOIN Ergometer E ON E.GerätID = P.GerätID "
                          "LEFT JOIN Kunden K ON K.KundenID = P.KundenID "
                          "LEFT JOIN Normalkalibrierdaten N ON N.NK_ID = P.NK_ID "
                          "WHERE K.KundenID IS NULL OR E.KundenID IS NOT P.KundenID "
                          "OR P.ErstellDatum NOT BETWEEN N.kalibriertVon AND N.kalibriertBis"),
                  0)
            << qPrintable(head);
        for (const QString detail : {"Messwerte", "Blutdruck", "SecControl"}) {
            EXPECT_EQ(valueOf("SELECT COUNT(*) FROM " + detail + state +
                              " WHERE ProtokollID NOT IN (SELECT ProtokollID FROM " + head + ")"),
                      0)
                << qPrintable(detail + state);
        }
        EXPECT_EQ(
            listOf("SELECT DISTINCT COUNT(*) FROM Blutdruck" + state + " GROUP BY ProtokollID"),
            "7");
        EXPECT_EQ(valueOf("SELECT COUNT(*) FROM Messwerte" + state + " M JOIN " + head +
                          " P USING (ProtokollID) WHERE date(M.MDat) IS NOT P.ErstellDatum "
                          "OR P.PrüfungsArt IS NULL"),
                  0);
    }
    EXPECT_EQ(valueOf("SELECT COUNT(*) FROM (SELECT IdentNr FROM Ergometer GROUP BY IdentNr "
                      "HAVING COUNT(*) > 1)"),
              0);
    EXPECT_EQ(valueOf("SELECT COUNT(*) FROM Rezeptnamen WHERE ToleranzID NOT IN "
                      "(SELECT ID FROM Toleranzen)"),
              0);
    EXPECT_EQ(valueOf("SELECT COUNT(*) FROM Protokoll_temp WHERE ProtokollID NOT IN "
                      "(SELECT ProtokollID FROM Messwerte_temp UNION "
                      "SELECT ProtokollID FROM Blutdruck_temp)"),
              1)
        << "one empty protocol";
}

TEST_F(DemoData, RecipesStayWithinTheStand) {
    QHash<int, int> steps;
    Recordset rows = gDatenbank.open("SELECT * FROM Rezepte ORDER BY RezeptID, Val(Prüfschritt)");
    for (; !rows.atEnd(); rows.moveNext()) {
        const double speed = rows["Drehzahl"].number();
        const double power = rows["Leistung"].number();
        EXPECT_EQ(rows["Prüfschritt"].whole(), ++steps[rows["RezeptID"].whole()]);
        EXPECT_TRUE(speed > 0 && speed <= 120) << speed;
        EXPECT_TRUE(power >= 0 && power <= 600) << power;
        EXPECT_LE(power / speed * 60 / 2 / 3.14, 60) << speed << ' ' << power; // N m
    }
    EXPECT_EQ(steps.size(), valueOf("SELECT COUNT(*) FROM Rezeptnamen"));
}

TEST_F(DemoData, VerdictsAndTorquesAgreeWithTheValues) {
    const auto number = [](const Feld &field) { return field.text().replace(',', '.').toDouble(); };
    QSet<QString> seen;
    for (const QString state : {"", "_temp"}) {
        Recordset rows =
            gDatenbank.open("SELECT * FROM Messwerte" + state + " JOIN Protokoll" + state +
                            " USING (ProtokollID) "
                            "JOIN Toleranzen ON ID = PrüfungsArt");
        for (; !rows.atEnd(); rows.moveNext()) {
            const QString what = rows["ProtokollID"].text() + '/' + rows["Prüfschritt"].text();
            const double n = number(rows["Ist_n_torvena"]);
            const double power = number(rows["Ist_P_torvena"]);
            EXPECT_NEAR(number(rows["Ist_D_torvena"]) * 2 * std::numbers::pi * n / 60, power, 0.08)
                << qPrintable(what);

            double deviation, uncertainty, percent, limit;
            if (rows["Ist_n_ergom"].text() == "0") {
                const double setpoint = number(rows["Soll_P"]);
                deviation = std::abs(setpoint - power);
                uncertainty = setpoint <= 100 ? 0.3 : setpoint * 0.003;
                percent = uncertainty / setpoint * 100;
                limit = std::max(setpoint * rows["Prozent"].number() / 100, rows["Watt"].number());
            } else {
                const double reading = number(rows["Ist_n_ergom"]);
                deviation = std::abs(n - reading);
                uncertainty = reading * 0.002;
                percent = 0.2;
                limit = rows["GrenzAbw"].number();
            }
            constexpr double noise = 1e-9;
            const bool kept = deviation <= limit + noise;
            const bool surely = deviation + uncertainty <= limit + noise;
            const bool surelyNot = deviation - uncertainty > limit + noise;

            const QString with = rows["MU_mit"].text();
            const QString without = rows["MU_ohne"].text();
            const bool english = QStringList{"yes", "no"}.contains(without);
            const QString yes = english ? "yes" : "ja";
            const QString no = english ? "no" : "nein";
            EXPECT_EQ(without, kept ? yes : no) << qPrintable(what);
            EXPECT_EQ(with, surely ? yes : surelyNot ? no : "?") << qPrintable(what);
            EXPECT_NEAR(rows["MU_Proz"].number(), percent, 1e-6) << qPrintable(what);
            seen += without + ' ' + with;
        }
    }
    for (const QString verdicts : {"ja ja", "ja ?", "nein ?", "nein nein", "yes yes", "no ?"})
        EXPECT_TRUE(seen.contains(verdicts)) << qPrintable(verdicts);
}

} // namespace
