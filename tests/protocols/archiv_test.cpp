// The move into the archive, and what a failure leaves where.
#include "protocols/archivieren.h"
#include "protokolltest.h"
#include "records/protokollnummer.h"

namespace {

class Archiv : public ProtokollTest {
  protected:
    Archiv() {
        for (const int nummer : {5, 6}) {
            kopf(nummer);
            for (const char *schritt : {"1", "FR", "FR"})
                messwert(nummer, schritt);
            for (const QString row :
                 {"Blutdruck_temp (ProtokollID, Normalanzeige) VALUES (?1, 0), (?1, 50)",
                  "SecControl_temp (ProtokollID, KennNr_STK) VALUES (?, 'K')"})
                gDatenbank.execute("INSERT INTO " + row, {nummer});
        }
        gBerichtProtokoll = 5;
    }
    /// Rows of protocol 5, "working/archive" for head, values, safety sheet, blood pressure.
    static QString bestand() {
        QStringList paare;
        for (const QString tabelle : {"Protokoll", "Messwerte", "SecControl", "Blutdruck"})
            paare += grid("SELECT (SELECT count(*) FROM " + tabelle +
                          "_temp WHERE ProtokollID = 5) || '/' || count(*) FROM " + tabelle +
                          " WHERE ProtokollID = 5");
        return paare.join(' ');
    }
};

TEST_F(Archiv, MovesAllOfOneProtocol) {
    const QString vorher = grid("SELECT * FROM Messwerte_temp WHERE ProtokollID = 5");
    fnc_Archivieren();
    EXPECT_EQ(bestand(), "0/1 0/3 0/1 0/2");
    EXPECT_EQ(grid("SELECT * FROM Messwerte"), vorher);
    EXPECT_EQ(grid("SELECT KennNr_STK FROM SecControl"), "K");
    EXPECT_EQ(grid("SELECT DISTINCT ProtokollID, count(*) FROM Messwerte_temp JOIN Protokoll_temp "
                   "USING (ProtokollID)"),
              "6|3")
        << "the other protocol stays";
}

TEST_F(Archiv, AFreedNumberMeetsNoForeignRows) {
    gBerichtProtokoll = 6;
    fnc_Archivieren();
    gDatenbank.execute("DELETE FROM Protokoll"); // the head alone
    messwert(6);                                 // left over by a move that failed
    gDatenbank.execute("INSERT INTO Messwerte (ProtokollID, Prüfschritt) VALUES (6, 'alt')");
    for (const QString tabelle : {"SecControl_temp", "Blutdruck_temp"})
        gDatenbank.execute("INSERT INTO " + tabelle + " (ProtokollID) VALUES (6)");
    ASSERT_EQ(nächsteProtokollNr(), 6);
    kopfAnlegen(6, "ein anderes Gerät");
    messwert(6, "9");
    gDatenbank.execute("INSERT INTO SecControl_temp (ProtokollID, KennNr_STK) VALUES (6, 'neu')");
    EXPECT_THROW(kopfAnlegen(6, "noch einmal"), Fehler);
    fnc_Archivieren();
    EXPECT_EQ(grid("SELECT Prüfschritt, KennNr_STK FROM Messwerte JOIN SecControl"), "9|neu");
    EXPECT_EQ(grid("SELECT * FROM Blutdruck"), "");
    EXPECT_EQ(bestand(), "1/0 3/0 1/0 2/0") << "the other protocol stays";
}

TEST_F(Archiv, SkipsWhatTheProtocolDoesNotHave) {
    for (const QString ohne : {"Messwerte", "Blutdruck"}) { // any statement on it would fail
        gDatenbank.execute("DELETE FROM " + ohne + "_temp WHERE ProtokollID = 5");
        gDatenbank.execute("DROP TABLE " + ohne);
    }
    fnc_Archivieren();
    EXPECT_EQ(grid("SELECT KennNr_STK FROM SecControl"), "K");
    EXPECT_EQ(grid("SELECT * FROM SecControl_temp WHERE ProtokollID = 5"), "");
}

TEST_F(Archiv, FailureLeavesWhatWasDone) {
    for (const auto &fall : support::cases(R"(
            INSERT INTO Protokoll (ProtokollID) VALUES (5) -> 1/1 3/0 1/0 2/0
            | INSERT INTO SecControl (ProtokollID) VALUES (5) -> 0/1 0/3 1/1 2/0
            | CREATE TRIGGER t BEFORE DELETE ON Protokoll_temp BEGIN SELECT RAISE(ABORT, 'refused'); END
              -> 1/1 3/0 1/0 2/0)")) {
        gDatenbank.execute("SAVEPOINT Fall");
        gDatenbank.execute(fall.in);
        expectKnown("failed(1083, 3022)");
        fnc_Archivieren();
        EXPECT_EQ(bestand(), fall.out) << fall;
        gDatenbank.execute("ROLLBACK TO Fall");
    }
}

} // namespace
