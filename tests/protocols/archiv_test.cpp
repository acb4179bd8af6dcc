// The move into the archive, and what a failure leaves where.

#include "archiv.h"
#include "protokollnummer.h"

#include "protokolltest.h"

namespace {

class Archiv : public ProtokollTest {
  protected:
    Archiv() {
        for (const int nummer : {5, 6}) {
            kopf(nummer);
            messwert(nummer, "1");
            messwert(nummer, "FR");
            messwert(nummer, "FR");
            for (const int druck : {0, 50})
                gDatenbank.execute("INSERT INTO Blutdruck_temp (ProtokollID, Normalanzeige, auf) "
                                   "VALUES (?, ?, '51')",
                                   {nummer, druck});
            gDatenbank.execute("INSERT INTO SecControl_temp (ProtokollID, KennNr_STK) "
                               "VALUES (?, 'K')",
                               {nummer});
        }
        gBerichtProtokoll = 5;
    }
    /// Rows of protocol 5, "working/archive" for head, values, safety sheet, blood pressure.
    static QString bestand() {
        QStringList paare;
        for (const QString tabelle : {"Protokoll", "Messwerte", "SecControl", "Blutdruck"}) {
            paare += QString("%1/%2")
                         .arg(anzahl(tabelle + "_temp WHERE ProtokollID = 5"))
                         .arg(anzahl(tabelle + " WHERE ProtokollID = 5"));
        }
        return paare.join(' ');
    }
};

TEST_F(Archiv, MovesAllOfOneProtocol) {
    const QString vorher = zeilen("SELECT * FROM Messwerte_temp WHERE ProtokollID = 5");
    fnc_Archivieren();
    EXPECT_EQ(bestand(), "0/1 0/3 0/1 0/2");
    EXPECT_EQ(zeilen("SELECT * FROM Messwerte"), vorher);
    EXPECT_EQ(zeilen("SELECT KennNr_STK FROM SecControl"), "K");
    EXPECT_EQ(anzahl("Protokoll_temp"), 1);
    EXPECT_EQ(anzahl("Messwerte_temp"), 3) << "the other protocol stays";
    EXPECT_TRUE(mBoxes.empty());
}

TEST_F(Archiv, AFreedNumberMeetsNoForeignRows) {
    gBerichtProtokoll = 6;
    fnc_Archivieren();
    gDatenbank.execute("DELETE FROM Protokoll"); // the head alone
    messwert(6);                                 // left over by a move that failed
    gDatenbank.execute("INSERT INTO SecControl_temp (ProtokollID) VALUES (6)");
    gDatenbank.execute("INSERT INTO Blutdruck_temp (ProtokollID) VALUES (6)");
    ASSERT_EQ(nächsteProtokollNr(), 6);
    kopfAnlegen(6, "ein anderes Gerät");
    messwert(6, "9");
    gDatenbank.execute("INSERT INTO SecControl_temp (ProtokollID, KennNr_STK) VALUES (6, 'neu')");
    EXPECT_THROW(kopfAnlegen(6, "noch einmal"), Fehler);
    fnc_Archivieren();
    EXPECT_TRUE(mBoxes.empty());
    EXPECT_EQ(zeilen("SELECT Prüfschritt, KennNr_STK FROM Messwerte JOIN SecControl"), "9|neu");
    EXPECT_EQ(anzahl("Blutdruck"), 0);
    EXPECT_EQ(bestand(), "1/0 3/0 1/0 2/0") << "the other protocol stays";
}

TEST_F(Archiv, SkipsWhatTheProtocolDoesNotHave) {
    gDatenbank.execute("DELETE FROM Messwerte_temp WHERE ProtokollID = 5");
    gDatenbank.execute("DELETE FROM Blutdruck_temp WHERE ProtokollID = 5");
    for (const QString ohne : {"Messwerte", "Blutdruck"}) // any statement on it would fail
        gDatenbank.execute("DROP TABLE " + ohne);
    fnc_Archivieren();
    EXPECT_TRUE(mBoxes.empty());
    EXPECT_EQ(anzahl("SecControl"), 1);
    EXPECT_EQ(anzahl("SecControl_temp WHERE ProtokollID = 5"), 0);
}

TEST_F(Archiv, FailureLeavesWhatWasDone) {
    struct Fall {
        const char *störung;
        const char *box;
        const char *bestand;
    };
    const Fall fälle[] = {
        {"INSERT INTO Protokoll (ProtokollID) VALUES (5)", "Fehler 1083 -  3022 ",
         "1/1 3/0 1/0 2/0"},
        {"INSERT INTO SecControl (ProtokollID) VALUES (5)", "Fehler 1083 -  3022 ",
         "0/1 0/3 1/1 2/0"},
        {"CREATE TRIGGER t BEFORE DELETE ON Protokoll_temp "
         "BEGIN SELECT RAISE(ABORT, 'refused'); END",
         "Fehler 1083 - ", "1/1 3/0 1/0 2/0"},
    };
    for (const Fall &fall : fälle) {
        gDatenbank.execute("SAVEPOINT Fall");
        gDatenbank.execute(fall.störung);
        mBoxes.clear();
        fnc_Archivieren();
        ASSERT_EQ(mBoxes.size(), 1U) << fall.störung;
        EXPECT_TRUE(mBoxes[0].text.startsWith(fall.box)) << qPrintable(mBoxes[0].text);
        EXPECT_EQ(bestand(), fall.bestand) << fall.störung;
        gDatenbank.execute("ROLLBACK TO Fall");
    }
    gDatenbank.execute("RELEASE Fall");
    EXPECT_EQ(bestand(), "1/0 3/0 1/0 2/0");
}

} // namespace
