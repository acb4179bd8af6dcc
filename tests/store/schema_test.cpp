// The delivered SQL: tables, stored queries, rows and demo data.
#include "store/scripts.h"
#include "workshop.h"

namespace {

using namespace support;

class Schema : public Workshop {
  protected:
    Schema() { gDatenbank.openFile(datenbankName); }
    static QString columnsOf(const QString &table) {
        return column("SELECT name FROM pragma_table_info(?)", {table}).join(' ');
    }
    static void dropAll(const QString &type) {
        for (const QString &name : column("SELECT name FROM sqlite_master WHERE type = ?", {type}))
            gDatenbank.execute("DROP " + type + ' ' + name);
    }
    static int failureOf(const QString &sql) {
        return raised([&] { gDatenbank.execute(sql); });
    }
};

TEST_F(Schema, TablesThatRowsMoveBetweenHaveTheSameColumns) {
    for (const QString view : {"Bericht1", "Bericht2", "Bericht3", "Bericht4", "EP_Bericht"}) {
        const bool paired = view != "EP_Bericht";
        const QString staged = columnsOf(paired ? view + "neu" : view);
        EXPECT_EQ(columnsOf(paired ? view : "EP_Bericht5").remove("Konform "), staged);
        EXPECT_TRUE(!paired || staged == columnsOf(view + "alt"));
    }
    const QString normal = columnsOf("Normalkalibrierdaten"); // read by position, and not yet used
    EXPECT_EQ(normal.section(' ', 12, 13), "GrenzwStreubreite AnzahlStreu");
}

TEST_F(Schema, ADeletedCounterDoesNotComeBack) {
    for (const Case &c : cases(R"(
            Kunden -> KundenID | Ergometer -> GerätID | Toleranzen -> ID | Rezeptnamen -> RezeptID
            | Normalkalibrierdaten -> NK_ID | EP -> EP_ID | EP_Rezeptnamen -> RezeptID
            | Hebelarmkalibrierung -> ID)")) {
        const auto added = [&] {
            gDatenbank.execute("INSERT INTO " + c.in + " DEFAULT VALUES");
            return grid("SELECT MAX(" + c.out + ") FROM " + c.in).toInt();
        };
        const int first = added();
        gDatenbank.execute("DELETE FROM " + c.in + " WHERE " + c.out + " = ?", {first});
        EXPECT_EQ(added(), first + 1) << c;
    }
}

TEST_F(Schema, RowsOfOneKeyAreFoundWithoutReadingTheTable) {
    for (const Case &c : cases(R"(
            Messwerte_temp WHERE ProtokollID = 1 AND Prüfschritt = '2' | Protokoll WHERE KundenID = 1
            | Blutdruck WHERE ProtokollID = 1 AND Normalanzeige = 50 | Protokoll WHERE GerätID = 1
            | Blutdruck_temp WHERE ProtokollID = 1 | Protokoll_temp WHERE KundenID = 1 AND GerätID = 1
            | Kunden WHERE Name = 'a' | Ergometer WHERE KundenID = 1 | EP WHERE SerienNr = 'a'
            | Ergometer WHERE IdentNr = 'a' | Rezeptnamen WHERE RezName = 'a'
            | Rezepte WHERE RezeptID = 1 AND Prüfschritt = 2 | EP_Rezepte WHERE RezeptID = 1
            | Bericht1alt WHERE ProtokollID = 1 | EP_Bericht WHERE ProtokollID = 1 | Bericht2alt
              WHERE ProtokollID = 1 ORDER BY Gruppe, Prüfschritt, ErgometerMW, TorvenaMW)")) {
        for (const QString &step : grid("EXPLAIN QUERY PLAN SELECT * FROM " + c.in).split('+'))
            EXPECT_TRUE(!step.contains("|SCAN") || step.contains("|SCAN System")) << c << step;
    }
}

TEST_F(Schema, AnOlderDatabaseGetsWhatIsNewAndKeepsItsRows) {
    const auto made = [] { // with columns in their order, but without the words of tables
        return grid(
            R"(SELECT m.type, m.name, iif(m.type = 'table', '', m.sql), c.* FROM sqlite_master m
            LEFT JOIN pragma_table_info(iif(m.type = 'table', m.name, '')) c ORDER BY m.name, c.cid)");
    };
    const QString whole = made();
    bringeDatenbankAufStand(datenbankName);
    EXPECT_EQ(made(), whole) << "nothing was missing";

    dropAll("view");
    dropAll("trigger");
    for (const Case &older : cases(R"(
            CREATE VIEW Historie AS SELECT 1 | DROP INDEX KundenName
            | DROP TABLE SecondInterface | DROP TABLE Bericht4
            | CREATE TABLE Bericht4 (ProtokollID, MU) | UPDATE System SET Firmenname = 'Wir'
            | ALTER TABLE SecControl DROP COLUMN GeräteableitI_MU
            | ALTER TABLE SecControl_temp DROP COLUMN GeräteableitI_MU
            | ALTER TABLE System DROP COLUMN Endprüfung | ALTER TABLE System DROP COLUMN Straße
            | ALTER TABLE System DROP COLUMN PLZ | ALTER TABLE System DROP COLUMN Ort
            | ALTER TABLE System DROP COLUMN Telefon | ALTER TABLE System DROP COLUMN EMail
            | DROP TABLE EP | DROP INDEX BlutdruckStufe
            | INSERT INTO Blutdruck (ProtokollID, Normalanzeige) VALUES (0, 0), (0, 0))"))
        ASSERT_EQ(failureOf(older.in), 0) << older;
    // The last is in the way of an index: then nothing has happened.
    const QString before = made();
    EXPECT_THROW(bringeDatenbankAufStand(datenbankName), Fehler);
    EXPECT_EQ(made(), before);
    gDatenbank.execute("DELETE FROM Blutdruck WHERE ProtokollID = 0");
    const QString rows =
        "SELECT Firmenname, count(*), group_concat(KennNr_STK) FROM System, SecControl";
    const QString kept = grid(rows);
    bringeDatenbankAufStand(datenbankName);
    EXPECT_EQ(made(), whole);
    EXPECT_EQ(grid("SELECT HebelarmNr FROM Historie WHERE ID = 1"), "HA-1001");
    EXPECT_EQ(grid(rows), kept);
    EXPECT_EQ(grid("SELECT PortNr, Endprüfung FROM SecondInterface, System"), "4|0");

    // Rows could be moved into wrong columns: refused.
    gDatenbank.execute("ALTER TABLE SecControl ADD COLUMN Neu");
    EXPECT_THROW(bringeDatenbankAufStand(datenbankName), Fehler);
}

class Results : public Schema {
  protected:
    Results() {
        gDatenbank.execute("DELETE FROM Messwerte_temp");
        gDatenbank.execute("INSERT INTO Protokoll_temp (ProtokollID, Protokollname, PrüfungsArt) "
                           "VALUES (99, 'P', 1)");
    }
    /// Step, W set, 1/min and W of the standard, 1/min read; "NULL" for none.
    static void measured(const QString &row) {
        const QString values = "'" + QString(row).replace(", ", "', '") + "'";
        gDatenbank.execute("INSERT INTO Messwerte_temp (ProtokollID, Prüfschritt, Soll_P, "
                           "Ist_n_torvena, Ist_P_torvena, Ist_n_ergom) VALUES (99, " +
                           QString(values).replace("'NULL'", "NULL") + ")");
    }
};

TEST_F(Results, AreComputedFromTextsWithCommaOrPoint) {
    // Gives the group, reading, standard, permitted, relative, used, the other value. Permitted are
    // 5 %, but at least 3 W, or 2 1/min; a set-point may be 0 W, a reading missing.
    for (const Case &c : cases(R"(
            1, 180,0, 59,98, 180,25, 0 -> 1|180|180.25|9|-0.14|2.78|59.98
            | 1, 180.0, 59.98, 180.25, 0 -> 1|180|180.25|9|-0.14|2.78|59.98
            | 1, 40,0, 60,00, 37,00, 0 -> 1|40|37|3|7.5|100|60
            | 1, 40,0, 60,00, 43,00,  0 -> 1|40|43|3|-7.5|100|60
            | 1, 200,0, 60,00, 189,98, 0 -> 1|200|189.98|10|5.01|100.2|60
            | 1, 0, 0,00, 1,20, 0 -> 1|0|1.2|3|NULL|40|0
            | "1, 100,0, 60,00, 95,00, " -> 1|100|95|5|5|100|60
            | 1, 100,0, 60,00, 95,00, NULL -> 1|100|95|5|5|100|60
            | 1, 100,0, 58,00, 99,00, 60,5 -> 2|60.5|58|2|4.13|125|99
            | 1, 100,0, 61.50, 99.00, 60 -> 2|60|61.5|2|-2.5|75|99
            | 1, 100,0, 1,50, 99,00, 0,0 -> 2|0|1.5|2|NULL|75|99)")) {
        gDatenbank.execute("DELETE FROM Messwerte_temp");
        measured(c.in);
        EXPECT_EQ(grid("SELECT Gruppe, ErgometerMW, TorvenaMW, ZulAbw, RelAbw, TolAusN, TorvenaMW2 "
                       "FROM Bericht2neu"),
                  c.out)
            << c;
    }
    for (const Case &c : cases("0.5 -> 0 1 | 0.6 -> 1 0 | 1.5 -> 2 0 | 2.5 -> 2 0 | 3.5 -> 4 0")) {
        gDatenbank.execute("UPDATE Toleranzen SET GrenzAbw = ?", {c.in.toDouble()});
        gDatenbank.execute("UPDATE Messwerte_temp SET Ist_n_ergom = Ist_n_ergom");
        EXPECT_EQ(
            grid("SELECT CAST(ZulAbw AS INTEGER) || ' ' || (TolAusN IS NULL) FROM Bericht2neu"),
            c.out)
            << "rounded to the even neighbour: " << c;
    }
}

TEST_F(Results, MeanWhatTheyMeantWhenTheyWereWritten) {
    const auto shown = [](const QString &form) {
        return grid("SELECT ZulAbw FROM Bericht2" + form + " WHERE ProtokollID = 99") + ' ' +
               grid("SELECT Spezifikation, Prozent, Watt, GrenzAbw, GKlasse, Kunde, Ort, IdentNr "
                    "FROM Bericht1" +
                    form + " WHERE ProtokollID = 99");
    };
    const auto today = [](const QString &what, int percent) {
        gDatenbank.execute("UPDATE Toleranzen SET Bezeichnung = ?, Prozent = ?", {what, percent});
        gDatenbank.execute("UPDATE Kunden SET Name = ?, Ort = ?", {what, what});
        gDatenbank.execute("UPDATE Ergometer SET IdentNr = ?", {what});
    };
    today("A", 5);
    gDatenbank.execute("UPDATE Protokoll_temp SET KundenID = 1, GerätID = 1, PrüfungsArt = 2 WHERE "
                       "ProtokollID = 99");
    measured("1, 100, 60, 104, 0");
    today("B", 3);
    EXPECT_EQ(shown("neu"), "5 A|5|5|5|Stationäre Trainingsgeräte|B|B|B");
    gDatenbank.execute("UPDATE Messwerte_temp SET Ist_P_torvena = '105'");
    gDatenbank.execute("UPDATE Protokoll_temp SET PrüfungsArt = 1 WHERE ProtokollID = 99");
    const QString archived = "5 B|3|3|2|Medizinische Geräte|B|B|B";
    EXPECT_EQ(shown("neu"), archived) << "what is written anew follows the rows of today";
    for (const char *table : {"Protokoll", "Messwerte"})
        gDatenbank.execute(
            QString("INSERT INTO %1 SELECT * FROM %1_temp WHERE ProtokollID = 99").arg(table));
    today("C", 9);
    gDatenbank.execute("DELETE FROM Toleranzen");
    EXPECT_EQ(shown("alt"), archived);
}

TEST_F(Results, OfAnOlderBuildAreKeptAsTheyAreAtItsUpdate) {
    measured("1, 100, 60, 104, 0");
    const QString rows = "SELECT Spezifikation, ZulAbw, MDat IS NULL FROM Protokoll_temp NATURAL "
                         "JOIN Messwerte_temp";
    const QString whole = grid(rows);
    const QString archived = grid("SELECT Kunde, IdentNr FROM Protokoll");
    dropAll("view");
    dropAll("trigger");
    for (const auto &[table, last] :
         {std::pair{"Protokoll", "ErstellDatum"}, {"Messwerte", "MDat"}}) {
        for (const QString &name : {QString(table), QString(table) + "_temp"}) {
            const QString old = columnsOf(name).section(' ' + QString(last), 0, 0);
            gDatenbank.execute(QString("CREATE TABLE Old AS SELECT %1, %2 FROM %3")
                                   .arg(QString(old).replace(' ', ','), last, name));
            gDatenbank.execute("DROP TABLE " + name);
            gDatenbank.execute("ALTER TABLE Old RENAME TO " + name);
        }
    }
    gDatenbank.execute("PRAGMA user_version = 0");
    EXPECT_TRUE(datenbankVeraltet(gDatenbank));
    const QString copy = sichereUndBringeAufStand(datenbankName);
    gDatenbank.openFile(datenbankName);
    EXPECT_FALSE(datenbankVeraltet(gDatenbank));
    EXPECT_EQ(grid(rows), whole);
    EXPECT_EQ(grid("SELECT Kunde, IdentNr FROM Protokoll"), archived);
    gDatenbank.openFile(copy);
    EXPECT_TRUE(datenbankVeraltet(gDatenbank)) << "as it was before";
}

TEST_F(Results, AreStagedInTheOrderOfStepsWithFreeStepsLast) {
    for (const char *step : {"FR, 100", "10, 100", "2, 100", "1, 100", "FR, 50"})
        measured(QString(step) + ", 60,00, 100,00, 0");
    measured("3, 100, 60,00, 100,00, 60,1");
    gDatenbank.execute("INSERT INTO Bericht2 (Prüfschritt, ErgometerMW) SELECT Prüfschritt, "
                       "ErgometerMW FROM Bericht2neu "
                       "ORDER BY gruppe, prüfschritt, ergometermw, torvenamw");
    EXPECT_EQ(grid("SELECT Prüfschritt, ErgometerMW FROM Bericht2"),
              "1|100+2|100+10|100+FR|50+FR|100+3|60.1");
    EXPECT_EQ(grid("SELECT 1 FROM Messwerte_temp WHERE MDat NOT LIKE '____-__-__ __:__:__.___'"),
              "");
}

TEST_F(Schema, ReportsOutliveWhatTheyReferTo) {
    for (const Case &row : cases(R"(
            Protokoll (ProtokollID, Protokollname, GerätID, KundenID, PrüfungsArt, NK_ID, ErstellDatum)
              VALUES (99, 'P', 999, 999, 999, 999, '2024-02-29') | SecControl (ProtokollID) VALUES (99)
            | Messwerte (ProtokollID, Prüfschritt, Soll_P, Ist_P_torvena, Ist_n_ergom)
              VALUES (99, '1', '100,0', '95,00', '0')
            | Blutdruck (ProtokollID, Normalanzeige) VALUES (99, 0))"))
        gDatenbank.execute("INSERT INTO " + row.in);
    const auto shown = [](const QString &columns) {
        return grid("SELECT " + columns + "alt WHERE ProtokollID = 99");
    };
    EXPECT_EQ(shown("ProtokollName, NächsteKalibrierung FROM Bericht1"), "P|02/2026");
    EXPECT_EQ(shown("ProtokollName, ZulAbw, TolAusN, RelAbw FROM Bericht2"), "P|NULL|NULL|5");
    EXPECT_EQ(shown("ProtokollName FROM Bericht3"), "P");
    EXPECT_EQ(shown("ProtokollName FROM Bericht4"), "P");
}

} // namespace
