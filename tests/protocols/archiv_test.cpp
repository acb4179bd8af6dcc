// The move into the archive, and what a failure leaves where.
#include "protocols/archivieren.h"

#include <QDir>

#include <functional>

#include "protokolltest.h"
#include "records/blatt.h"
#include "records/loeschung.h"
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

TEST_F(Archiv, AFreedNumberMeetsNoForeignPages) {
    change("UPDATE System SET PDFOrdner = 'Ablage'");
    const auto liegen = [](const QString &wo) {
        return QDir("Ablage/PDF/5/" + wo).entryList(QDir::Files).join(' ');
    };
    const QString alle = "5_EST.pdf 5_Messergebnisse.pdf Brief.pdf";
    QDir().mkpath("Ablage/PDF/5");
    for (const std::function<void()> &weg : std::initializer_list<std::function<void()>>{
             [] { kopfLöschen(Bestand::Arbeit, 5); }, [] { datensatzLöschen(Löschziel::Kunde, 3); },
             [] { datensatzLöschen(Löschziel::Gerät, 4); }, // an empty head, too
             [] { blattLöschen(Inhalt::SecControl, 5); },
             [] {
                 change("DELETE FROM Protokoll_temp");
                 kopfAnlegen(5, "ein anderes");
             }}) {
        change("DELETE FROM Messwerte_temp");
        change("DELETE FROM Blutdruck_temp");
        change("DELETE FROM Protokoll_temp");
        kopf(5);
        for (const QString &datei : alle.split(' '))
            EXPECT_TRUE(QFile("Ablage/PDF/5/" + datei).open(QIODevice::WriteOnly));
        weg();
        EXPECT_EQ(liegen("."), "Brief.pdf");
    }
    static const QRegularExpression abgelegt("^(5_EST(_[\\d-]+){2,3}.pdf ){5}5_Mess");
    EXPECT_TRUE(abgelegt.match(liegen("ersetzt")).hasMatch()) << liegen("ersetzt");

    // A sheet that cannot be deleted keeps its head and its pages.
    change("DELETE FROM Messwerte_temp");
    change("DELETE FROM Blutdruck_temp");
    gDatenbank.execute("INSERT INTO SecControl_temp (ProtokollID) VALUES (5)");
    EXPECT_TRUE(QFile("Ablage/PDF/5/5_STK.pdf").open(QIODevice::WriteOnly));
    {
        Datenbank leser;
        leser.openFile(datenbankName);
        leser.execute("BEGIN");
        leser.open("SELECT * FROM Protokoll_temp");
        EXPECT_THROW(blattLöschen(Inhalt::SecControl, 5), Fehler);
    }
    EXPECT_EQ(bestand(), "1/0 0/0 1/0 0/0");
    EXPECT_EQ(liegen("."), "5_STK.pdf Brief.pdf");

    // One that is archived keeps its pages, and where they cannot be moved they stay.
    gPDFOrdner = "Sitzung";
    QDir().mkpath("Sitzung/PDF/5");
    const QString seite = "Sitzung/PDF/5/5_STK.pdf";
    EXPECT_TRUE(QFile(seite).open(QIODevice::WriteOnly));
    fnc_Archivieren();
    change("INSERT INTO Protokoll_temp SELECT * FROM Protokoll");
    kopfLöschen(Bestand::Arbeit, 5);
    EXPECT_TRUE(QFile::exists(seite));
    QFile imWeg("Sitzung/PDF/5/ersetzt");
    EXPECT_TRUE(imWeg.open(QIODevice::WriteOnly));
    kopfLöschen(Bestand::Archiv, 5);
    EXPECT_TRUE(QFile::exists(seite));
    EXPECT_FALSE(kopfVorhanden(Bestand::Archiv, 5));
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
