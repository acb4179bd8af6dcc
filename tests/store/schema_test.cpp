// The delivered SQL: tables, stored queries, rows and demo data.
#include <QRegularExpression>

#include "scripts.h"
#include "workshop.h"

namespace {

using namespace support;

class Schema : public Workshop {
  protected:
    explicit Schema(bool demo = false) {
        if (!demo) {
            QFile::remove(datenbankName);
            legeDatenbankAn(datenbankName, false);
        }
        gDatenbank.openFile(datenbankName);
    }
    static QStringList columnsOf(const QString &table) {
        return gDatenbank.open("SELECT * FROM " + table + " LIMIT 0").columns();
    }
    /// Names, types, defaults and keys in their order.
    static QString definitionOf(const QString &table) {
        return grid("SELECT name, type, dflt_value, pk FROM pragma_table_info(?)", {table});
    }
    static int failureOf(const QString &sql) {
        return raised([&] { gDatenbank.execute(sql); });
    }
};

class DemoData : public Schema {
  protected:
    DemoData() : Schema(true) {}
};

TEST_F(Schema, TablesThatRowsMoveBetweenHaveTheSameColumns) {
    for (const Case &c : cases("Protokoll_temp -> Protokoll | Messwerte_temp -> Messwerte | "
                               "Blutdruck_temp -> Blutdruck | SecControl_temp -> SecControl | "
                               "ÄndRez_temp -> Rezepte | ÄndRez_temp -> EP_Rezepte")) {
        EXPECT_NE(definitionOf(c.in), "") << c;
        EXPECT_EQ(definitionOf(c.in), definitionOf(c.out)) << c;
    }
}

TEST_F(Schema, StagingTablesFitTheirViews) {
    for (const QString page : {"1", "2", "3", "4"}) {
        QStringList staging = columnsOf("Bericht" + page);
        if (page == "2")
            staging.removeOne("Konform");
        EXPECT_EQ(columnsOf("Bericht" + page + "neu"), staging) << page;
        EXPECT_EQ(columnsOf("Bericht" + page + "alt"), staging) << page;
    }
    EXPECT_EQ(columnsOf("Bericht2").last(), "Konform");
    EXPECT_EQ(columnsOf("EP_Bericht"), columnsOf("EP_Bericht5"));
}

TEST_F(Schema, WorkingAndArchiveViewsAreTheSameButForTheTables) {
    const auto definition = [](const QString &view) {
        QString sql = grid("SELECT sql FROM sqlite_master WHERE name = ?", {view});
        sql.remove(QRegularExpression("--[^\n]*"));
        return sql.replace(QRegularExpression("\\s+"), " ");
    };
    for (const QString view : {"BerichtKopf", "Bericht1", "Bericht2", "Bericht3", "Bericht4"}) {
        QString working = definition(view + "neu");
        EXPECT_TRUE(working.contains("_temp")) << view;
        working.remove("_temp").replace(QRegularExpression("(Bericht\\w+)neu"), "\\1alt");
        EXPECT_EQ(working, definition(view + "alt")) << view;
    }
}

TEST_F(Schema, ColumnsReadByPositionStandWhereTheyAreRead) {
    for (const Case &c : cases(
             "Kunden -> KundenID Name Straße PLZ Ort | MU_Leistung -> \\S+ bis MU | "
             "Normalkalibrierdaten -> NK_ID SerienNr Normal \\S+ kalibriertBis \\S+ Offset Gain_R "
             "Gain_L VK1_R VK1_L \\S+ GrenzwStreubreite AnzahlStreu | MU_Drehzahl -> \\S+ bis MU | "
             "Hebelarmkalibrierung -> ID \\S+ Prüfdatum \\S+ Rechts Links | Historie -> ID | "
             "System -> Firmenname Produktname Einlzeit Einlzeit2 \\S+ \\S+ Sprache \\S+ EinlW | "
             "Interface -> PortNr Parameter"))
        EXPECT_TRUE(
            QRegularExpression('^' + c.out + "( |$)").match(columnsOf(c.in).join(' ')).hasMatch())
            << c << ": " << columnsOf(c.in).join(' ');
}

TEST_F(Schema, TheStoreFillsDatesAndRefusesASecondHead) {
    const QString today = "SELECT date('now', 'localtime')";
    const QString before = grid(today);
    gDatenbank.execute("INSERT INTO Protokoll_temp (ProtokollID) VALUES ('7')");
    const QString made = grid("SELECT ErstellDatum FROM Protokoll_temp WHERE ProtokollID = 7");
    EXPECT_TRUE(made == before || made == grid(today)) << made;
    gDatenbank.execute("INSERT INTO Messwerte_temp (ProtokollID, Prüfschritt) VALUES (7, 'FR')");
    gDatenbank.execute("INSERT INTO Messwerte_temp (ProtokollID, Prüfschritt) VALUES (7, 'FR')");
    EXPECT_EQ(grid("SELECT count(*) FROM Messwerte_temp WHERE MDat LIKE "
                   "'____-__-__ __:__:__.___'"),
              "2");
    const QString head = "INSERT INTO Protokoll SELECT * FROM Protokoll_temp";
    EXPECT_EQ(failureOf(head), 0);
    EXPECT_EQ(failureOf(head), platform::fehlernummer::DuplicateKey) << "a second head";
    // An update file is told by this table.
    EXPECT_EQ(failureOf("SELECT ToDo.Funktion FROM ToDo"), platform::fehlernummer::MissingTable);
}

TEST_F(Schema, ADeletedCounterDoesNotComeBack) {
    for (const Case &c : cases("Kunden -> KundenID | Ergometer -> GerätID | Toleranzen -> ID | "
                               "Rezeptnamen -> RezeptID | Normalkalibrierdaten -> NK_ID | "
                               "EP -> EP_ID | EP_Rezeptnamen -> RezeptID | "
                               "Hebelarmkalibrierung -> ID")) {
        const QString insert = "INSERT INTO " + c.in + " DEFAULT VALUES";
        const QString highest = "SELECT MAX(" + c.out + ") FROM " + c.in;
        gDatenbank.execute(insert);
        const int first = grid(highest).toInt();
        gDatenbank.execute("DELETE FROM " + c.in + " WHERE " + c.out + " = ?", {first});
        gDatenbank.execute(insert);
        EXPECT_EQ(grid(highest).toInt(), first + 1) << c;
    }
}

TEST_F(Schema, RowsOfOneKeyAreFoundWithoutReadingTheTable) {
    for (const Case &c :
         cases("Messwerte_temp WHERE ProtokollID = 1 AND Prüfschritt = '2' | "
               "Blutdruck WHERE ProtokollID = 1 AND Normalanzeige = 50 | "
               "Blutdruck_temp WHERE ProtokollID = 1 | Protokoll WHERE KundenID = 1 | "
               "Protokoll WHERE GerätID = 1 | Protokoll_temp WHERE KundenID = 1 AND GerätID = 1 | "
               "Kunden WHERE Name = 'a' | Ergometer WHERE KundenID = 1 | EP WHERE SerienNr = 'a' | "
               "Ergometer WHERE IdentNr = 'a' | Rezeptnamen WHERE RezName = 'a' | "
               "Rezepte WHERE RezeptID = 1 AND Prüfschritt = 2 | EP_Rezepte WHERE RezeptID = 1 | "
               "Bericht1alt WHERE ProtokollID = 1 | EP_Bericht WHERE ProtokollID = 1 | "
               "Bericht2alt WHERE ProtokollID = 1 ORDER BY Gruppe, Prüfschritt, ErgometerMW, "
               "TorvenaMW")) {
        for (Recordset plan = gDatenbank.open("EXPLAIN QUERY PLAN SELECT * FROM " + c.in);
             !plan.atEnd(); plan.moveNext()) {
            const QString step = plan["detail"].text();
            EXPECT_TRUE(!step.startsWith("SCAN") || step == "SCAN System") << c << ": " << step;
        }
    }
}

// A directory of an older build ------------------------------------------------------------------

TEST_F(DemoData, AnOlderDatabaseGetsWhatIsNewAndKeepsItsRows) {
    const auto made = [] {
        return grid("SELECT type, name, sql FROM sqlite_master WHERE name NOT LIKE 'sqlite%' "
                    "ORDER BY name");
    };
    const auto shape = [] {
        QString all = grid("SELECT name FROM sqlite_master ORDER BY name");
        for (const char *table : {"SecControl", "SecControl_temp", "System", "EP", "Bericht4"})
            all += definitionOf(table);
        return all;
    };
    const QString fresh = made(), whole = shape();
    bringeDatenbankAufStand(datenbankName);
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
        ASSERT_EQ(failureOf(older), 0) << older;
    const QString before = made();
    EXPECT_THROW(bringeDatenbankAufStand(datenbankName), Fehler);
    EXPECT_EQ(made(), before);
    gDatenbank.execute("DELETE FROM Blutdruck WHERE ProtokollID = 0");
    const QString rows = "SELECT Firmenname, count(*), group_concat(KennNr_STK) "
                         "FROM System, SecControl";
    const QString kept = grid(rows);
    bringeDatenbankAufStand(datenbankName);
    EXPECT_EQ(shape(), whole);
    EXPECT_EQ(grid("SELECT HebelarmNr FROM Historie WHERE ID = 1"), "HA-1001");
    EXPECT_EQ(grid(rows), kept);
    EXPECT_EQ(grid("SELECT PortNr FROM SecondInterface"), "4") << "with its delivered row";
    EXPECT_EQ(grid("SELECT Endprüfung FROM System"), "0");

    // Rows could be moved into wrong columns: refused.
    gDatenbank.execute("ALTER TABLE SecControl ADD COLUMN Neu");
    EXPECT_THROW(bringeDatenbankAufStand(datenbankName), Fehler);
}

// Measuring results ------------------------------------------------------------------------------

class Results : public Schema {
  protected:
    Results() {
        gDatenbank.execute("INSERT INTO Protokoll_temp (ProtokollID, Protokollname, PrüfungsArt) "
                           "VALUES (1, 'P', 1)");
    }
    /// Step, W set, 1/min and W of the standard, 1/min read; "NULL" for none.
    static void measured(const QString &row) {
        Datenbank::Params values;
        for (const QString &cell : row.split(", "))
            values.push_back(cell == "NULL" ? QVariant() : cell);
        gDatenbank.execute(
            "INSERT INTO Messwerte_temp (ProtokollID, Prüfschritt, Soll_n, Soll_P, Ist_n_torvena, "
            "Ist_P_torvena, Ist_n_ergom, MU_ohne, MU_mit, MU_Proz) "
            "VALUES (1, ?, '60,0', ?, ?, ?, ?, 'ja', '?', 0.3)",
            values);
    }
};

TEST_F(Results, AreComputedFromTextsWithCommaOrPoint) {
    for (const Case &c : cases(
             // Gives the group, reading, standard, permitted, relative, used, the other value.
             // 5 %, but at least 3 W
             "1, 180,0, 59,98, 180,25, 0 -> 1|180|180.25|9|-0.14|2.78|59.98 | "
             "1, 180.0, 59.98, 180.25, 0 -> 1|180|180.25|9|-0.14|2.78|59.98 | "
             "1, 40,0, 60,00, 37,00, 0 -> 1|40|37|3|7.5|100|60 | "
             "1, 40,0, 60,00, 43,00,  0 -> 1|40|43|3|-7.5|100|60 | "
             "1, 200,0, 60,00, 189,98, 0 -> 1|200|189.98|10|5.01|100.2|60 | "
             // Set-point 0 W, and rows without a reading
             "1, 0, 0,00, 1,20, 0 -> 1|0|1.2|3|NULL|40|0 | "
             "\"1, 100,0, 60,00, 95,00, \" -> 1|100|95|5|5|100|60 | "
             "1, 100,0, 60,00, 95,00, NULL -> 1|100|95|5|5|100|60 | "
             // 2 1/min
             "1, 100,0, 58,00, 99,00, 60,5 -> 2|60.5|58|2|4.13|125|99 | "
             "1, 100,0, 61.50, 99.00, 60 -> 2|60|61.5|2|-2.5|75|99 | "
             "1, 100,0, 1,50, 99,00, 0,0 -> 2|0|1.5|2|NULL|75|99")) {
        gDatenbank.execute("DELETE FROM Messwerte_temp");
        measured(c.in);
        EXPECT_EQ(grid("SELECT Gruppe, ErgometerMW, TorvenaMW, ZulAbw, RelAbw, TolAusN, TorvenaMW2 "
                       "FROM Bericht2neu WHERE ProtokollID = 1"),
                  c.out)
            << c;
    }
}

TEST_F(Results, RoundTheSpeedLimitToTheEvenNeighbour) {
    measured("1, 100,0, 59,00, 100,00, 60");
    for (const Case &c : cases("0.5 -> 0 1 | 0.6 -> 1 0 | 1.5 -> 2 0 | 2.5 -> 2 0 | 3.5 -> 4 0")) {
        gDatenbank.execute("UPDATE Toleranzen SET GrenzAbw = ?", {c.in.toDouble()});
        EXPECT_EQ(grid("SELECT CAST(ZulAbw AS INTEGER) || ' ' || (TolAusN IS NULL) "
                       "FROM Bericht2neu"),
                  c.out)
            << c;
    }
}

TEST_F(Results, AreStagedInTheOrderOfStepsWithFreeStepsLast) {
    for (const char *step : {"FR", "10", "2", "1"})
        measured(QString(step) + ", 100,0, 60,00, 100,00, 0");
    measured("FR, 50,0, 60,00, 50,00, 0");
    measured("3, 100,0, 60,00, 100,00, 60,1");
    gDatenbank.execute(
        "INSERT INTO Bericht2 SELECT ProtokollID, ProtokollName, Drehrichtung, "
        "Gruppe, Prüfschritt, ErgometerMW, TorvenaMW, ZulAbw, RelAbw, TolAusN, "
        "TorvenaMW2, MU_ohne, MU_mit, MU_Proz, 'mit' AS Konform FROM Bericht2neu "
        "WHERE ProtokollID = 1 ORDER BY gruppe, prüfschritt, ergometermw, torvenamw");
    EXPECT_EQ(grid("SELECT Prüfschritt FROM Bericht2"), "1+2+10+FR+FR+3");
    EXPECT_EQ(grid("SELECT ErgometerMW FROM Bericht2 WHERE Prüfschritt = 'FR'"), "50+100");
}

TEST_F(Schema, ReportsOutliveWhatTheyReferTo) {
    for (const char *row :
         {"Protokoll (ProtokollID, Protokollname, GerätID, KundenID, PrüfungsArt, NK_ID, "
          "ErstellDatum) VALUES (1, 'P', 99, 99, 99, 99, '2024-02-29')",
          "Messwerte (ProtokollID, Prüfschritt, Soll_P, Ist_P_torvena, Ist_n_ergom) "
          "VALUES (1, '1', '100,0', '95,00', '0')",
          "SecControl (ProtokollID) VALUES (1)",
          "Blutdruck (ProtokollID, Normalanzeige) VALUES (1, 0)"})
        gDatenbank.execute(QString("INSERT INTO ") + row);
    EXPECT_EQ(grid("SELECT NächsteKalibrierung FROM Bericht1alt"), "02/2026");
    for (const QString page : {"1", "2", "3", "4"})
        EXPECT_EQ(grid("SELECT ProtokollName FROM Bericht" + page + "alt WHERE ProtokollID = 1"),
                  "P")
            << page;
    EXPECT_EQ(grid("SELECT ZulAbw, TolAusN, RelAbw FROM Bericht2alt"), "NULL|NULL|5");
}

// Demo data --------------------------------------------------------------------------------------

TEST_F(DemoData, HangsTogether) {
    QStringList strays{
        "Protokoll JOIN Protokoll_temp USING (ProtokollID)",
        "(SELECT IdentNr FROM Ergometer GROUP BY IdentNr HAVING COUNT(*) > 1)",
        "Rezeptnamen WHERE ToleranzID NOT IN (SELECT ID FROM Toleranzen)",
        "Rezeptnamen WHERE RezeptID NOT IN (SELECT RezeptID FROM Rezepte)",
        "Rezepte WHERE Val(Leistung) / Val(Drehzahl) * 60 / 2 / 3.14 NOT BETWEEN 0 AND 60"};
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
        EXPECT_EQ(grid("SELECT COUNT(*) FROM " + stray), "0") << stray;
}

} // namespace
