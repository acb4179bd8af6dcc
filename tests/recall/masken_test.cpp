// The recall list and the extended deletion as a person uses them.
#include <QAbstractItemView>
#include <QComboBox>
#include <QDateEdit>
#include <QDir>
#include <QFile>
#include <QHeaderView>
#include <QPlainTextEdit>
#include <QProcess>
#include <QTableView>
#include <QTest>
#include <QWindow>

#include "platform/clock.h"
#include "session/session.h"
#include "windows/spreadsheet.h"
#include "workplace.h"

namespace {

using namespace support;

class Recall : public Workplace {
  protected:
    Recall() {
        for (const char *table : {"Protokoll", "Messwerte", "SecControl", "Blutdruck"})
            change(QString("DELETE FROM ") + table);
        const QDate today = platform::now().date(), due = today.addYears(-2);
        archived(1, 1, due.addMonths(-2)); // the unit has been calibrated again since
        archived(2, 1, today.addYears(-1));
        archived(3, 2, QDate(due.year(), due.month(), 1));
        archived(4, 11, due.addMonths(-1));
        platform::setFileOpener([this](const QString &path) {
            opened = path;
            return true;
        });
        views["marks"] = [] {
            const auto *rows = control<QTableView>(frm::Sort, "DBGrid1")->model();
            QStringList marks;
            for (int row = 0; row < rows->rowCount(); ++row) {
                const QModelIndex month = rows->index(row, 5);
                if (month.data(Qt::DecorationRole).isValid())
                    marks += month.siblingAtColumn(8).data().toString() + ' ' +
                             month.data(Qt::ToolTipRole).toString();
            }
            return marks.join('+');
        };
        views["count"] = [] { return QString::number(grid()->model()->rowCount()); };
        views["first"] = [] {
            return grid()->model()->index(0, 0).data().toString() + '|' +
                   grid()->model()->index(0, 4).data().toString();
        };
        views["head"] = [] { // what the current column is chosen by
            return control<QComboBox>(frm::Sort, "cmbSortierung")->currentText();
        };
        roads["column"] = [](const QString &column) -> Journey {
            const auto *head = grid()->horizontalHeader();
            const int at = head->sectionViewportPosition(column.toInt()) + 20;
            QTest::mouseClick(head->viewport(), Qt::LeftButton, {}, {at, head->height() / 2});
            co_return;
        };
        views["caption"] = [] { return platform::frontScreen()->caption(); };
        views["files"] = [] { return QDir("Export").entryList(QDir::Files).join(' '); };
        views["details"] = [] {
            return grid("SELECT (SELECT count(*) FROM Protokoll), (SELECT count(*) FROM Messwerte),"
                        " (SELECT count(*) FROM SecControl), (SELECT count(*) FROM Blutdruck)");
        };
    }
    ~Recall() override { platform::setFileOpener({}); }

    using Workplace::grid;
    static QTableView *grid() {
        return platform::frontScreen()->findChild<QTableView *>("DBGrid1");
    }
    static void archived(int number, int unit, const QDate &date) {
        change("INSERT INTO Protokoll (ProtokollID, Protokollname, GerätID, KundenID, ErstellDatum)"
               " SELECT ?, 'P', GerätID, KundenID, ? FROM Ergometer WHERE GerätID = ?",
               {number, date, unit});
        change("INSERT INTO Messwerte (ProtokollID, Prüfschritt) VALUES (?1, '1'), (?1, '2')",
               {number});
        change("INSERT INTO SecControl (ProtokollID) VALUES (?)", {number});
        change("INSERT INTO Blutdruck (ProtokollID, Normalanzeige) VALUES (?, 0)", {number});
    }
    static void pickDate(const char *which, const QDate &date) {
        auto *picker = platform::frontScreen()->findChild<QDateEdit *>(which);
        turnTo(*picker);
        picker->setFocus();
        picker->setDate(date);
    }
    static QString picked(const char *which) {
        return platform::frontScreen()->findChild<QDateEdit *>(which)->date().toString(Qt::ISODate);
    }

    QString opened;
};

JOURNEY_P(Recall, ListNarrowsSortsAndGoesAlong) {
    const QDate today = platform::now().date(), last = today.addYears(1);
    co_await go(R"(
        login ; mnuRoute ; @Sort ; count == 27
        caption == Kundendatenbank | Customer Database
        laListe2 == &Kunden (12) | &Customer (12) ; laListe0 == P&LZ (11) | &ZIP Code (11)
        laListe1 == &Ort (10) | City/To&wn (10) ; laListe4 == &Gerätetyp (8) | &Type (8)
        laListe3 == &Hersteller (4) | &Manufacturer (4) ; hidden pbDelete laAnzProt
        marks == KS-01 überfällig+AEH-002 in diesem Monat fällig | KS-01 overdue+AEH-002 due this month
        # A choice narrows; a list of one entry is none to choose from.
        cmbPLZ > 86914 ; laListe1 == &Ort (1) | City/To&wn (1) ; cmbOrt == Großlohe ; count == 5
        cmbOrt > Großlohe ; cmbPLZ > 36902 ; cmbOrt == Ährenfeld ; cmbPLZ == 36902
        pbBack ; cmbHersteller > Radolin ; cmbPLZ > 36902 ; cmbTyp == KE 200 med ; count == 4
        cmbHersteller > Tretmann ; cmbPLZ == ; cmbTyp rows Kardio L4+Studio 500 ; pbBack
        # The head says by what, the buttons sort.
        column 5 ; head == Nächste Kalibrierung | Next Calibration ; first ~ ^Fitness
        pbAbsteigend ; first ~ ^Klinikum.*\|.*\d$ ; pbAufsteigend ; first ~ \|$)");
    EXPECT_EQ(picked("dtpBis"), last.toString(Qt::ISODate));
    const QString from = picked("dtpVon");
    pickDate("dtpVon", last); // the same day
    EXPECT_EQ(picked("dtpVon"), from);
    co_await go("count == 27");
    pickDate("dtpVon", QDate(today.year(), today.month(), 1));
    co_await go(R"(count == 2 ; cmbKunde == Klinikum Ährenfeld
        pbBriefe ; files ~ ^(Serienbrief|FormLetter)_\S+\.csv$ ; laDatei ~ Gespeichert|Saved
        pbExcel ; laDatei ~ ^Gespeichert: Export/KundenSort_.*xlsx$ | ^Saved: Export/CustomerOrder_.*xlsx$)");
    QFile letters(QDir("Export").entryInfoList({"*.csv"})[0].filePath());
    EXPECT_TRUE(letters.open(QIODevice::ReadOnly));
    EXPECT_EQ(QString::fromUtf8(letters.readAll()).count("AEH-00"), 2) << "all of the period";
    QProcess tar;
    tar.start("cmake", {"-E", "tar", "xf", opened});
    EXPECT_TRUE(tar.waitForFinished());
    QFile sheet("xl/worksheets/sheet1.xml"), book("xl/workbook.xml");
    EXPECT_TRUE(sheet.open(QIODevice::ReadOnly) && book.open(QIODevice::ReadOnly));
    const QString cells = sheet.readAll();
    EXPECT_EQ(cells.count("<row"), 3);
    EXPECT_EQ(cells.count("AEH-001") + cells.count("Klinikum Ährenfeld"), 3);
    EXPECT_TRUE(cells.contains(QString("r=\"F2\"")) && cells.contains("r=\"I3\""));
    EXPECT_FALSE(cells.contains("r=\"J"));
    EXPECT_TRUE(book.readAll().contains(english() ? "name=\"Customers\"" : "name=\"Kunden\""));
    pickDate("dtpBis", QDate(today.year(), today.month(), 2));
    co_await go(R"(count == 1 ; pbBack ; cmbKunde > O'Malley's Gym & Physio ; count == 2
        pbBriefe ; laDatei == Es ist kein Gerät fällig. | No unit is due.
        pbok ; @Desktop ; mnuRoute ; @Sort ; count == 27 ; key Escape ; @Desktop)");
}

JOURNEY_P(Recall, DeletionTakesWhatIsLeftInTheList) {
    change("UPDATE System SET PDFOrdner = '.'");
    gPDFOrdner = ".";
    co_await go(R"(login ; mnuProtVerw ; @Bericht1 ; pbDeleteExt ; @DeleteExtended
        caption == Erweitertes Löschen | Delete Extended ; laAnzProt == 4 Protokolle | 4 Protocols
        laListe1 == &Protokolle (4) | &Protocols (4) ; laListe4 == &Gerätetyp (2) | &Typ (2)
        laListe2 == &Kunden (2) | &Customer (2) ; laListe3 == &Identnummer (26) | &Identnumber (26)
        cmbID rows 1 - P+2 - P+3 - P+4 - P ; hidden cmbListe0 pbExcel pbBriefe
        cmbKunde > Klinikum Ährenfeld ; laAnzProt == 3 Protokolle | 3 Protocols
        ? deleteAll?(3) no ; pbDelete ; details == 4|8|4|4
        cmbID > 2 - P ; laAnzProt == 1 Protokoll | 1 Protocol
        ? deleteLast? yes ; ? allDeleted ; pbDelete ; details == 3|6|3|3
        laAnzProt == 3 Protokolle | 3 Protocols ; hidden anzFortschritt
        spoil DELETE Messwerte ; ? deleteAll?(3) yes ; ? failure(B1_02) ; pbDelete ; mend
        details == 3|6|3|3 ; can pbDelete pbok)");
    QDir().mkpath("PDF/3");
    EXPECT_TRUE(QFile("PDF/3/3_STK.pdf").open(QIODevice::WriteOnly));
    pickDate("dtpBis", platform::now().date().addYears(-2).addDays(1));
    co_await go(R"(? deleteAll?(3) yes ; ? allDeleted ; pbDelete ; details == 0|0|0|0
        cannot pbDelete ; laAnzProt == 0 Protokolle | 0 Protocols
        ? noProtocols ; pbok ; @Desktop)");
    EXPECT_EQ(QDir("PDF/3/ersetzt").entryList(QDir::Files).size(), 1);
}

JOURNEY_P(Recall, TellsWhatFails) {
    co_await go(R"(login ; spoil SELECT Ergometer
        ? failure(B1_05) ; ? failure(B1_04) ; ? failure(B1_07) ; mnuRoute ; @Sort ; mend ; pbExcel
        pbBriefe ; laDatei == Es ist kein Gerät fällig. | No unit is due. ; pbBack ; count == 27
        cmbKunde > 3 ; count == 2 ; spoil SELECT Kunden
        ? failure(B1_06) ; cmbKunde > 2 ; cmbKunde ~ ^Herz ; count == 2 ; mend)");
    auto *list = control<QComboBox>(frm::Sort, "cmbPLZ");
    QTest::keyClick(list, Qt::Key_Down);
    QTest::keyClick(list->view()->window()->windowHandle(), Qt::Key_Escape); // closes it alone
    co_await go(R"(@Sort ; key Escape ; @Desktop ; mnuProtVerw ; @Bericht1
        cmbKunde > Klinikum Ährenfeld ; cmbBericht > 2 - P ; pbDeleteExt ; @DeleteExtended ; spoil SELECT Ergometer
        ? failure(B1_05) ; ? failure(B1_04) ; ? failure(B1_07) ; pbBack
        laAnzProt == 0 Protokolle | 0 Protocols ; cannot pbDelete ; mend
        pbok ; @Bericht1 ; cmbKunde == Klinikum Ährenfeld ; cmbBericht == 2 - P ; can pbDelete)");
}

JOURNEY_P(Recall, TrailIsNarrowedReadOnAndExported) {
    change("INSERT INTO Toleranzen (Prozent) WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT "
           "i + 1 FROM n WHERE i < 1000) SELECT 7 FROM n");
    change("UPDATE Messwerte_temp SET MU_Proz = 0.25, MU_mit = '?' WHERE ProtokollID = 17 AND "
           "Prüfschritt = '1'");
    views["rows"] = [] {
        const auto *rows = control<QTableView>(frm::Nachweis, "DBGrid1")->model();
        return QString("%1 %2").arg(rows->rowCount()).arg(rows->index(0, 3).data().toString());
    };
    views["change"] = [] {
        return control<QPlainTextEdit>(frm::Nachweis, "txtÄnderung")->toPlainText();
    };
    co_await go(R"(
        login ; mnuNachweis ; @Nachweis ; rows == 1000 Messwerte_temp ; can pbÄltere
        laAnzahl ~ ^1000 .* \d+, ; pbÄltere ; rows ~ ^1[1-9] ; cannot pbÄltere
        txtProtokoll = 17 ; txtProtokoll ! ; rows == 1 Messwerte_temp ; change ~ \n.*0.25$
        txtProtokoll = x ; pbSuchen ; rows ~ ^0  ; cannot pbExcel ; pbBack ; rows ~ ^1000
        txtPerson = Niemand ; pbSuchen ; rows ~ ^0  ; pbBack
        chkTag ; pbSuchen ; rows ~ ^1000 ; txtProtokoll = 17 ; pbSuchen
        pbExcel ; laDatei ~ ^Gespeichert: Export/Nachweis_.*xlsx$ | ^Saved: Export/AuditTrail_.*xlsx$
        spoil SELECT Nachweis ; ? failure(B3_01) ; pbSuchen ; mend ; rows ~ ^0  ; key Escape ; @Desktop)");
}

} // namespace
