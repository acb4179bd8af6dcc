// Pages of a protocol: which can be chosen, what is staged and printed, where the files lie, and
// the way into the archive and out of it.
#include <QApplication>
#include <QDir>
#include <QFile>

#include "session/session.h"
#include "windows/preview.h"
#include "windows/printers.h"
#include "workplace.h"

namespace {

using namespace support;

class Reports : public Workplace {
  protected:
    Reports() {
        setLanguage(givenLanguage);
        for (const char *table : {"Protokoll", "Messwerte", "SecControl", "Blutdruck"}) {
            change(QString("DELETE FROM %1").arg(table));
            change(QString("DELETE FROM %1_temp").arg(table));
        }
        change("UPDATE Toleranzen SET GKlasse = 'Stationary Devices' WHERE ID = 2");
        const auto head = [](int number, const QString &name, int specification) {
            change("INSERT INTO Protokoll_temp (ProtokollID, Protokollname, KundenID, GerätID, "
                   "PrüfungsArt, NK_ID, ErstellDatum) VALUES (?, ?, 1, 1, ?, 1, '2026-03-04')",
                   {number, name, specification});
        };
        head(7, "nur Blutdruck", 0);
        head(8, "A-B", 2);
        head(12, "Alles", 1);
        for (const char *values : {"12, '2', '60', '100,0', '95,00', '0', 'ja', '?'",
                                   "12, '1', '60', '50,0', '49,50', '0', 'ja', 'ja'",
                                   "8, '1', '60', '50,0', '30,00', '0', 'nein', 'nein'"})
            change("INSERT INTO Messwerte_temp (ProtokollID, Prüfschritt, Soll_n, Soll_P, "
                   "Ist_P_torvena, Ist_n_ergom, MU_ohne, MU_mit, MU_Proz) VALUES (" +
                   QString(values) + ", 0.3)");
        for (const char *sheet :
             {"Blutdruck_temp (ProtokollID, Normalanzeige, auf) VALUES (7, 0, 'x')",
              "Blutdruck_temp (ProtokollID, Normalanzeige, auf) VALUES (12, 0, 'y')",
              "SecControl_temp (ProtokollID, KennNr_STK) VALUES (12, 'K')"})
            change(QString("INSERT INTO ") + sheet);
        for (const char *language : {"", "eng_"}) {
            layout(QString(language) + "deckblatt",
                   "C {{#Bericht1}}{{Spezifikation}}{{/Bericht1}}");
            layout(
                QString(language) + "messergebnisse",
                "R {{#Bericht2}}{{Prüfschritt}}:{{MU_ohne}},{{MU_mit}},{{Konform}} {{/Bericht2}}");
            layout(QString(language) + "Blutdruck", "B {{#Bericht4}}{{auf}}{{/Bericht4}}");
            layout(QString(language) + "SecControl", "S {{#Bericht3}}{{KennNr_STK}}{{/Bericht3}}");
        }
        const auto there = [this](const QStringList &names) { // the first one is the default
            platform::setPrinterStandIn(
                {names, names.value(0), [this](const QString &printer, const auto &report) {
                     mPrinted += printer + ": " +
                                 report.title().section(" - ", 0, 0).section(' ', 1) + ' ' +
                                 report.text().simplified();
                 }});
        };
        there({"Büro"});
        roads["printers"] = [there](const QString &names) -> Journey {
            there(names.split(' ', Qt::SkipEmptyParts));
            co_return;
        };
        views["exported"] = [] {
            return QString::number(QDir("Export").entryList({"Protokoll_12_*"}).size());
        };
        views["pages"] = [] { // that can be chosen, the chosen one in brackets
            QStringList pages;
            const Screen *screen = platform::frontScreen();
            for (const char *name :
                 {"rbDruck1", "rbDruck2_0", "rbDruck2_1", "rbDruck3", "rbDruck4"}) {
                const auto *button = screen->findChild<QAbstractButton *>(name);
                if (button->isEnabled())
                    pages += QString(button->isChecked() ? "(%1)" : "%1").arg(QString(name).mid(7));
            }
            return pages.join(' ');
        };
        views["windows"] = [] { // in which reports are looked at
            QStringList titles;
            for (const QWidget *window : QApplication::topLevelWidgets()) {
                if (window->isVisible() && window->findChild<QAbstractButton *>("pbWidth"))
                    titles += window->windowTitle().section(' ', 1);
            }
            return titles.join(' ');
        };
        roads["previewPrint"] = [](const QString &) -> Journey {
            for (const QWidget *window : QApplication::topLevelWidgets()) {
                if (auto *button = window->findChild<QAbstractButton *>("pbPrint"))
                    button->click();
            }
            co_return;
        };
        views["title"] = [] { return platform::frontScreen()->caption(); };
        views["printed"] = [this] { return std::exchange(mPrinted, {}).join(" + "); };
        views["files"] = [] { // below PDF, former ones too
            QStringList names;
            for (const QString &folder : QDir("PDF").entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
                names += QDir("PDF/" + folder).entryList(QDir::Files);
                names += QString("%1 kept").arg(
                    QDir("PDF/" + folder + "/ersetzt").entryList(QDir::Files).size());
            }
            return names.join(' ');
        };
        roads["archived"] = [this](const QString &numbers) -> Journey {
            for (const QString &number : numbers.split(' '))
                for (const char *table : {"Protokoll", "Messwerte", "SecControl", "Blutdruck"}) {
                    change(QString("INSERT INTO %1 SELECT * FROM %1_temp WHERE ProtokollID = ")
                               .arg(table) +
                           number);
                    change(QString("DELETE FROM %1_temp WHERE ProtokollID = ").arg(table) + number);
                }
            co_return;
        };
    }
    ~Reports() override {
        platform::closePreviews();
        platform::setPrinterStandIn({});
    }

    static void layout(const QString &name, const QString &text) {
        QFile file(name + ".rpt");
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text.toUtf8());
    }

    QStringList mPrinted;
};

JOURNEY_P(Reports, OfferWhatAProtocolHasAndAskForTheArchive) {
    co_await go(R"(
        login ; pbProtokoll ; @Bericht ; cmbBericht == 04.03.2026   12 - Alles 
        OKButton == &Drucken | Pr&int ; title == Protokoll drucken | Print Protocol
        pages == 1 2_0 (2_1) 3 4 ; can OKButton pbSichern ; hidden cmbKunde pbDelete
        cmbBericht > 2 ; pages == 1 2_0 (2_1) ; cmbBericht > 3 ; pages == (4)
        cmbBericht = 04.03.2026   12 - Alle ; ? noSuchReport ; OKButton ; cannot OKButton ; pages ==
        cmbBericht > 1 ; rbDruck1 ; OKButton ; printed == Büro: 12 C medizinische Geräte
        cmbBericht ^    # the cover sheet alone asks nothing
        rbDruck2_1 ; OKButton
        printed == Büro: 12 R 1:ja,ja,mit 2:ja,?,mit | Büro: 12 R 1:yes,yes,with 2:yes,?,with
        ? archive? no ; cmbBericht ^ ; cmbBericht == 04.03.2026   12 - Alles
        rbDruck2_0 ; OKButton
        printed == Büro: 12 R 1:ja,ja,ohne 2:ja,?,ohne | Büro: 12 R 1:yes,yes,without 2:yes,?,without
        ? archive? yes ; cmbBericht ^ ; cmbBericht == 04.03.2026   8 - A-B
        sql SELECT count(*), Kunde FROM Protokoll == 1|Klinikum Ährenfeld
        cmbBericht > 2 ; rbDruck4 ; OKButton ; printed == Büro: 7 B x
        ? archive? yes ; CancelButton ; @Desktop ; sql SELECT count(*) FROM Protokoll == 2
        mnuProtVerw ; @Bericht1 ; cmbKunde == Klinikum Ährenfeld ; cmbBericht ==
        cannot pbDelete pbExport ; cmbBericht > 12 - Alles ; ? exported ; acJson ; exported == 1
        spoil SELECT SecControl ; ? failed(1117, 3078) ; acMappe ; mend ; exported == 1
        pages == 1 2_0 (2_1) 3 4 ; OKButton
        printed == Büro: 12 R 1:ja,ja,mit 2:ja,?,mit | Büro: 12 R 1:ja,ja,with 2:ja,?,with
        rbDruck2_0 ; OKButton
        printed == Büro: 12 R 1:ja,ja,ohne 2:ja,?,ohne | Büro: 12 R 1:ja,ja,out 2:ja,?,out
        cbKomplett ; rbDruck2_1 ; spoil INSERT Bericht2 ; ? failed(1113, 3022) ; OKButton ; mend
        printed ~ 12 C [^+]*\+ Büro: 12 B y \+ Büro: 12 S K$ ; OKButton
        printed ~ 12 C .* \+ Büro: 12 R 1:ja.* \+ Büro: 12 B y \+ Büro: 12 S K$
        ? deleteReport?(12 - Alles) no ; pbDelete ; spoil DELETE Protokoll
        ? deleteReport?(12 - Alles) yes ; ? failed(1116, 3022) ; pbDelete ; mend
        ? deleteReport?(12 - Alles) yes ; pbDelete
        key Escape ; @Desktop ; mnuProtVerw ; @Bericht1 ; can pbDelete OKButton
        cmbBericht == 7 - nur Blutdruck ; pages == (4)
        ? deleteReport?(7 - nur Blutdruck) yes ; pbDelete ; cannot OKButton pbDelete ; pages ==
        sql SELECT (SELECT count(*) FROM Protokoll), count(*) FROM Blutdruck == 0|0
        key Escape ; @Desktop ; ? noProtocols ; mnuProtVerw ; @Desktop
        archived 8 ; ? noProtocols ; pbProtokoll ; @Desktop)");
}

JOURNEY_P(Reports, AreFilesUnderTheirNames) {
    change("UPDATE System SET DruckerPDF = 'torvena PDF', PDFOrdner = '.'");
    QFile foreign("Brief.pdf");
    EXPECT_TRUE(foreign.open(QIODevice::WriteOnly));
    co_await go(R"(
        login ; pbProtokoll ; @Bericht ; cbKomplett ; cbVorschau
        ? page1 ; ? page2 ; ? page3 ; ? page4 ; pbSichern ; printed ==
        files == 12_Blutdruck.pdf 12_Deckblatt.pdf 12_Messergebnisse.pdf 12_STK.pdf 0 kept | 12_BloodPressure.pdf 12_CoverSheet.pdf 12_EST.pdf 12_MeasuringResults.pdf 0 kept
        cbKomplett ; cbVorschau ; OKButton ; windows ~ ^12 - (Messergebnisse|Measuring Results)$
        front == Bericht ; printed == ; previewPrint ; printed ~ ^Büro: 12 R ; ? archive? no ; cmbBericht ^ ; rbDruck3 ; ? page4 ; pbSichern ; files ~ 1 kept
        OKButton ; printed == Büro: 12 S K ; ? archive? no ; CancelButton ; @Desktop
        change UPDATE System SET PDFOrdner = '' ; pbProtokoll ; @Bericht ; ? noFolder ; pbSichern
        change UPDATE System SET PDFOrdner = '/nirgends' ; CancelButton ; @Desktop
        ? failed(frmPDF01, 53) ; mnuPDF ; @PrinterPDF ; lbOrdner == &Ordner: | &Folder: ; pbok ; @Desktop ; sql SELECT PDFOrdner FROM System == /nirgends
        pbProtokoll ; @Bericht
        change UPDATE System SET PDFOrdner = '/dev/null' ; ? failed(1085, 70) ; pbSichern
        CancelButton ; @Desktop ; pbProtokoll ; @Bericht    # nothing to ask for
        change UPDATE System SET DruckerPDF = 'fort' ; ? failed(1085, 482) ; pbSichern
        change UPDATE System SET DruckerPDF = '' ; pbSichern ; printed == Büro: 12 R 1:ja,ja,mit 2:ja,?,mit | Büro: 12 R 1:yes,yes,with 2:yes,?,with
        OKButton ; printed ~ Büro ; ? archive? no ; CancelButton ; @Desktop)");
    EXPECT_TRUE(QFile::exists("Brief.pdf")) << "not of this program";
    EXPECT_EQ(platform::currentPrinter(), "Büro");
}

JOURNEY(Reports, GoToThePrintersThatAreThere) {
    change("UPDATE System SET DruckerPDF = 'Etage', PDFOrdner = '.'");
    co_await go(R"(
        printers ; login ; ? printerGone ; mnuPDF ; @PrinterPDF ; Combo1 rows torvena PDF
        laCurrentPrinter == Kein PDF-Drucker ausgewählt! ; pbexit ; @Desktop
        pbProtokoll ; @Bericht ; ? failed(1085, 482) ; OKButton ; ? failed(1085, 482) ; pbSichern ; printed ==
        # They are switched on while the program runs, and off again.
        printers Büro Etage ; pbSichern ; printed ~ ^Etage: 12 R ; ? archive? no ; cmbBericht ^
        OKButton ; printed ~ ^Büro: 12 R ; ? archive? no ; cmbBericht ^
        printers Büro ; ? failed(1085, 482) ; pbSichern ; OKButton ; printed ~ ^Büro: 12 R
        printers Etage Büro ; ? archive? no ; CancelButton ; @Desktop ; mnuPDF ; @PrinterPDF
        Combo1 rows Etage+Büro+torvena PDF ; Combo1 == Etage ; laCurrentPrinter ~ : +Etage$
        Combo1 > Büro ; laCurrentPrinter ~ : +Büro$ ; pbok ; @Desktop
        pbProtokoll ; @Bericht ; pbSichern ; printed ~ ^Büro: 12 R ; OKButton ; printed ~ ^Etage: 12 R
        ? archive? no ; CancelButton ; @Desktop)");
}

JOURNEY(Reports, KeepTheLayoutOfTheLastClass) {
    co_await go(R"(
        login ; pbProtokoll ; @Bericht ; cmbBericht > 2 ; ? failed(1085, 321) ; OKButton ; printed ==
        cmbBericht > 1 ; rbDruck2_1 ; OKButton ; printed ~ 12 R ; ? archive? no ; cmbBericht ^
        cmbBericht > 2 ; rbDruck2_1 ; OKButton
        printed == Büro: 8 R 1:nein,nein,mit ; ? archive? no ; cmbBericht ^ ; cmbBericht == 04.03.2026   8 - A-B
        close ; @Desktop)");
    gBerichtProtokoll = 8; // as whoever sends the operator here leaves it
    gBerichtWahl = "A-B";
    co_await go(R"(
        pbProtokoll ; @Bericht ; cmbBericht == 8 - A-B ; can OKButton ; close ; @Desktop
        archived 8 12 ; change UPDATE Protokoll SET KundenID = 2 WHERE ProtokollID = 8
        mnuProtVerw ; @Bericht1 ; cmbKunde == ; pages == ; cannot OKButton ; close ; @Desktop)");
    EXPECT_EQ(gBerichtProtokoll, 0);
}

} // namespace
