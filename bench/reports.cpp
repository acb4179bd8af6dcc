// Reports on the large database: the list and a page in its window, the way into the archive, and
// pages as PDF files against nothing but document and writer.
#include <QAbstractTextDocumentLayout>
#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QPainter>
#include <QPdfWriter>
#include <QTextDocument>

#include "figures.h"
#include "largeplace.h"
#include "records/archiv.h"
#include "records/bericht.h"
#include "records/berichtsdaten.h"
#include "session/session.h"
#include "windows/preview.h"
#include "windows/print.h"

namespace {

using namespace support;
using bench::LargePlace;
using bench::Wanted;

constexpr int openings = 20;

void layLayouts() {
    const QDir delivered(":/layouts");
    for (const QString &name : delivered.entryList({"*.rpt"}))
        QFile::copy(delivered.filePath(name), name);
}

void openList(benchmark::State &state) {
    LargePlace place;
    layLayouts();
    std::vector<double> list, page;
    const auto journey = [&]() -> Journey {
        co_await place.go("select");
        for (auto _ : state) {
            QElapsedTimer timer;
            timer.start();
            press(frm::Desktop, "pbProtokoll");
            co_await LargePlace::settled();
            list.push_back(bench::since(timer));
            if (!inFront(frm::Bericht))
                throw std::runtime_error("the list is not open");
            press(frm::Bericht, "cbVorschau");
            timer.restart();
            press(frm::Bericht, "OKButton");
            co_await LargePlace::settled();
            page.push_back(bench::since(timer));
            state.SetIterationTime((list.back() + page.back()) / 1000);
            platform::closePreviews();
            place.boxes.allow("…", platform::No);
            press(frm::Bericht, "CancelButton");
            co_await LargePlace::arrive(frm::Desktop);
        }
    };
    place.travel(state, journey());
    bench::figure("Opening the list of protocols, p50", bench::percentile(list, 50), "ms",
                  Wanted::Below, 100);
    bench::figure("Opening a page in its window, p50", bench::percentile(page, 50), "ms",
                  Wanted::Below, 100);
}
BENCHMARK(openList)
    ->Name("Reports/List")
    ->UseManualTime()
    ->Iterations(openings)
    ->Unit(benchmark::kMillisecond);

void archiving(benchmark::State &state) {
    LargePlace place;
    gDatenbank.openFile(datenbankName);
    const Schlüssel number =
        gDatenbank.open("SELECT MAX(ProtokollID) FROM Protokoll_temp")[0].whole();
    std::vector<double> took;
    for (auto _ : state) {
        QElapsedTimer timer;
        timer.start();
        archivieren(number);
        took.push_back(bench::since(timer));
        state.SetIterationTime(took.back() / 1000);
        for (const char *table : {"Messwerte", "Protokoll"}) { // and back
            gDatenbank.execute(
                QString("INSERT INTO %1_temp SELECT * FROM %1 WHERE ProtokollID = ?").arg(table),
                {number});
            gDatenbank.execute(QString("DELETE FROM %1 WHERE ProtokollID = ?").arg(table),
                               {number});
        }
    }
    bench::figure("Moving a protocol into the archive, p50", bench::percentile(took, 50), "ms",
                  Wanted::Below, 20);
}
BENCHMARK(archiving)
    ->Name("Reports/Archive")
    ->UseManualTime()
    ->Iterations(50)
    ->Unit(benchmark::kMillisecond);

/// What any program would need for the same text in the same style, heads and feet as part of it.
QByteArray bare(const QString &html) {
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setPdfVersion(QPagedPaintDevice::PdfVersion_A1b);
    writer.setResolution(platform::reportResolution);
    writer.setPageLayout(platform::reportPage());
    QTextDocument document;
    document.documentLayout()->setPaintDevice(&writer);
    document.setDefaultFont(platform::reportFont());
    document.setDefaultStyleSheet(platform::reportStyleSheet());
    document.setPageSize(writer.pageLayout().paintRectPixels(writer.resolution()).size());
    document.setHtml(html);
    QPainter painter(&writer);
    for (int page = 0; page < document.pageCount(); ++page) {
        if (page > 0)
            writer.newPage();
        painter.save();
        const double height = document.pageSize().height();
        painter.translate(0, -page * height);
        document.drawContents(&painter, {0, page * height, document.pageSize().width(), height});
        painter.restore();
    }
    painter.end();
    return buffer.data();
}

/// Staged, filled and written, and the same text bare, in turn.
void writing(benchmark::State &state, int steps, bool allPages, const char *name) {
    LargePlace place;
    layLayouts();
    gDatenbank.openFile(datenbankName);
    const Schlüssel number = 900'001;
    const auto clear = [&] {
        for (const char *table :
             {"Protokoll_temp", "Messwerte_temp", "SecControl_temp", "Blutdruck_temp"})
            gDatenbank.execute(QString("DELETE FROM %1 WHERE ProtokollID = ?").arg(table),
                               {number});
    };
    clear();
    gDatenbank.execute("INSERT INTO Protokoll_temp (ProtokollID, Protokollname, GerätID, KundenID, "
                       "PrüfungsArt, NK_ID) VALUES (?, 'Messreihe', 1, 1, 1, 1)",
                       {number});
    gDatenbank.together([&] {
        for (int step = 1; step <= steps; ++step)
            gDatenbank.execute("INSERT INTO Messwerte_temp (ProtokollID, Prüfschritt, Soll_n, "
                               "Soll_P, Ist_n_torvena, Ist_D_torvena, Ist_P_torvena, Ist_n_ergom, "
                               "MU_ohne, MU_mit, MU_Proz) VALUES (?, ?, '60,0', '100,0', '60,01', "
                               "'15,92', '100,17', '0', 'ja', 'ja', 0.3)",
                               {number, QString::number(step)});
        gDatenbank.execute("INSERT INTO SecControl_temp (ProtokollID) VALUES (?)", {number});
        for (int p = 0; p <= 300; p += 50)
            gDatenbank.execute(
                "INSERT INTO Blutdruck_temp (ProtokollID, Normalanzeige) VALUES (?, ?)",
                {number, p});
    });
    std::vector<std::pair<Berichtsseite, const char *>> pages{
        {Berichtsseite::Messergebnisse, "messergebnisse.rpt"}};
    if (allPages)
        pages = {{Berichtsseite::Deckblatt, "deckblatt.rpt"},
                 {Berichtsseite::Messergebnisse, "messergebnisse.rpt"},
                 {Berichtsseite::Blutdruck, "Blutdruck.rpt"},
                 {Berichtsseite::SecControl, "SecControl.rpt"}};
    std::vector<double> ratios;
    for (auto _ : state) {
        double ours = 0, theirs = 0;
        for (const auto &[page, layoutName] : pages) {
            QElapsedTimer timer;
            timer.start();
            stufen(page, Bestand::Arbeit, number, true);
            const platform::Layout layout(layoutName);
            const QString html =
                layout.filled(berichtsdaten(gelesen(layout), Bestand::Arbeit, number));
            benchmark::DoNotOptimize(platform::Report(html, "Bericht").pdf());
            ours += bench::since(timer);
            timer.restart();
            benchmark::DoNotOptimize(bare(html));
            theirs += bench::since(timer);
        }
        state.SetIterationTime(ours / 1000);
        ratios.push_back(ours / theirs);
    }
    clear();
    bench::figure(std::string(name) + ", p50", bench::percentile(ratios, 50), "x", Wanted::Below,
                  1.3);
    bench::figure(std::string(name) + ", least", bench::percentile(ratios, 0), "x");
}
BENCHMARK_CAPTURE(writing, four, 12, true, "Four pages against bare writing")
    ->Name("Reports/FourPages")
    ->UseManualTime()
    ->Iterations(20)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(writing, long, 80, false, "A page of 80 steps against bare writing")
    ->Name("Reports/EightySteps")
    ->UseManualTime()
    ->Iterations(20)
    ->Unit(benchmark::kMillisecond);

} // namespace
