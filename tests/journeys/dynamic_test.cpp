// The charts above the measurement: what they show, how they are left, what becomes of the step.
#include <QDir>
#include <QImage>
#include <QTest>

#include "measure/band.h"
#include "measuring.h"
#include "painted.h"
#include "windows/plot.h"

namespace {

using namespace support;

class Dynamic : public Measuring {
  protected:
    Dynamic() {
        views["axes"] = [] {
            QStringList axes;
            for (const char *chart : {"glDrehzahl", "glLeistung"}) {
                const auto y = plot(chart)->range(platform::Plot::Y);
                axes += QString("%1..%2").arg(y.from).arg(y.to);
            }
            return axes.join(' ');
        };
        views["lines"] = [] {
            const Band &n = grafikband(Diagramm::Drehzahl), &p = grafikband(Diagramm::Leistung);
            return QString("%1..%2 %3..%4").arg(n.min).arg(n.max).arg(p.min).arg(p.max);
        };
        views["drawn"] = [] { // in the last picture: white, blue, green
            const auto pictures = QDir("Export").entryInfoList({"*.png"}, QDir::Files, QDir::Name);
            return stripes(QImage(pictures.last().filePath()),
                           {{Qt::white, 'w', 0.25}, {Qt::blue, 'b', 0.05}, {Qt::green, 'g', 0.05}});
        };
        roads["double"] = [this](const QString &chart) {
            platform::Plot *clicked = plot(qUtf8Printable(chart));
            QTest::mouseDClick(clicked->childAt(clicked->rect().center()), Qt::LeftButton);
            return go("@SetScale");
        };
        views["files"] = [] {
            QStringList kinds;
            for (const QFileInfo &file : QDir("Export").entryInfoList(QDir::Files))
                kinds += file.suffix() == "png" && QImage(file.filePath()).height() < 600
                             ? "broken"
                             : file.suffix();
            kinds.sort();
            return kinds.join(' ');
        };
        views["charts"] = [] {
            return loaded(frm::GraphLite) || loaded(frm::SetScale) ? "there" : "gone";
        };
        roads["dynamic"] = [this](const QString &step) {
            return go("step " + (step.isEmpty() ? "1 60" : step) +
                      " ; can pbDynMess pbSpeichern ; pbDynMess ; @GraphLite");
        };
    }
    static platform::Plot *plot(const char *name) {
        return control<platform::Plot>(frm::GraphLite, name);
    }
    static QStringList lines() {
        for (const QFileInfo &file : QDir("Export").entryInfoList({"*.csv"})) {
            QFile table(file.filePath());
            if (table.open(QIODevice::ReadOnly))
                return QString::fromUtf8(table.readAll()).split("\r\n");
        }
        return {};
    }
};

JOURNEY_P(Dynamic, ShowsTheStepAndMeasuresItAnew) {
    co_await go(R"(
        measure ; stand load 100 ; cannot pbDynMess ; until can pbDynMess ; live ~ \d[|].*\d[|].*\d$
        step 1 60 ; wire ~ . ; pbDynMess ; @GraphLite ; wire == --c ; title == Messdaten | Measuring Data
        cannot Messen.pbAbbrechen pbBild pbZahlen ; released == no ; axes == 0..62 -1..105
        pass 1200 ; can pbBild pbZahlen ; pass 1000 ; axes == 0..62 -1..105 ; laInfo ==
        # Data go on while the scale is asked for.
        double glDrehzahl ; title == Eingabe Skalierung | Scaling Input ; cannot GraphLite.pbBeenden ; txtBegin == 0 ; txtEnde == 62
        txtBegin = -1 ; txtEnde = 131 ; ? scaleEnd ; pbok ; focus txtEnde ; txtEnde = 130 ; pbok ; @GraphLite
        axes == -1..130 -1..105 ; double glLeistung ; txtEnde == 105 ; txtBegin = x
        ? scaleNumber ; pbok ; txtBegin = 50,5 | 50.5 ; txtEnde = 90 ; txtEnde ! ; pbok ; @GraphLite
        pass 2000 ; axes == -1..130 50..90 ; lines == -1..130 50.5..90
        pbSkalaP ; @SetScale ; txtEnde = 600 ; key Escape ; @GraphLite ; axes == -1..130 50..90
        stand fault silent on ; pass 4500 ; laInfo == Keine Daten vom Regler | No data from the controller
        # What was saved takes its place for as long.
        pbZahlen ; laInfo ~ ^(Gespeichert|Saved) ; pass 2000 ; laInfo ~ csv$ ; pass 2000 ; laInfo ~ ^(Keine|No)
        stand fault none ; pass 200 ; laInfo == ; stand fault silent on ; pass 4500 ; pbZahlen ; stand fault none ; pass 1200 ; laInfo ~ csv$
        pbZahlen ; pbBild ; pbZahlen ; files == csv csv csv csv png ; laInfo ~ ^(Gespeichert|Saved): /.*_2\.csv$
        wire == ; pbBeenden ; @Messen ; live == || ; cannot pbSpeichern pbDynMess ; lines == 0..62 -1..105
        dynamic ; wire == --*E-2100+>>>6--c
        stand load 200 ; pass 3000 ; axes ~ ^0..62 -1..2[01]\d$ ; pbBild ; drawn == .w.b.w.g.w.w. ; stand load 100 ; close ; @Messen ; step 1 60 ; pbSpeichern
        step 2 80 ; lines == 0..82 -1..3 ; can pbDynMess ; pbPlus ; cannot pbDynMess ; pbFreieEing
        until laPrSchritt == FR ; cannot pbDynMess
        txtSoll_n = 70 ; txtSoll_P = 150 ; cmbMessArt > 1 ; pbAusführen ; lines ~ ^0..72 -1..15\d
        dynamic FR 70
        pbBeenden ; @Messen ; cannot pbDynMess ; step FR 70 ; leave ; idle == yes)");
    const QStringList table = lines();
    EXPECT_GT(table.size(), 60);
    EXPECT_EQ(table.value(0), english()
                                  ? "No.,Speed (rpm),Speed Min. tolerance (rpm),Speed Max. "
                                    "tolerance (rpm),Power (W),Power Min. tolerance (W),Power Max. "
                                    "tolerance (W)"
                                  : "Nr.;Drehzahl (1/min);Drehzahl Min. Toleranz (1/min);Drehzahl "
                                    "Max. Toleranz (1/min);Leistung (W);Leistung Min. Toleranz "
                                    "(W);Leistung Max. Toleranz (W)");
    const QRegularExpression row(english()
                                     ? R"(^1,(60|59)\.\d0,-1\.00,130\.00,\d+\.\d\d,50\.50,90\.00$)"
                                     : R"(^1;(60|59),\d0;-1,00;130,00;\d+,\d\d;50,50;90,00$)");
    EXPECT_TRUE(row.match(table.value(1)).hasMatch()) << table.value(1);
}

JOURNEY(Dynamic, ALostLineClosesTheCharts) {
    co_await go(R"(
        measure ; stand load 100 ; dynamic ; ? failed(2001, 8020) ; line out ; @Messen
        charts == gone ; live == || ; cannot pbDynMess pbSpeichern ; pass 30000 ; front == Messen
        line in ; pbMessen ; dynamic ; pbSkalaP ; @SetScale ; ? failed(2001, 8020) ; line out ; @Messen
        charts == gone ; line in ; pbMessen ; step 1 60
        # Gone before the stream was asked for
        line out ; ? failed(3014, 8020) ; ? lineFailed(5011, 8002) ; pbDynMess ; pass 1000
        charts == gone ; line in ; pbMessen ; step 1 60 ; pbSpeichern ; step 2 80 ; leave ; idle == yes)");
}

JOURNEY_ROWS(Dynamic, EndsWithTheSession, "terminated == now",
             "pbSkalaN ; @SetScale ; terminated == now") {
    co_await go("measure ; stand load 100 ; dynamic");
    co_await go(givenRow);
    co_await go("pass 1000 ; charts == gone ; status == 6 ; shaft ~ ^set=0.00");
    EXPECT_FALSE(gDesktopAktiv || gDatenbank.isOpen());
}

JOURNEY(Dynamic, WhatCannotBeWrittenIsTold) {
    co_await go("measure ; stand load 100 ; dynamic ; pass 1500");
    QFile inTheWay("Export");
    EXPECT_TRUE(inTheWay.open(QIODevice::WriteOnly));
    // Nothing is read behind a box, and nothing is missing.
    expectKnown("failed(2003, 70)", platform::OK, [this] { clock.run(4500); });
    co_await go("pbZahlen ; laInfo == ; pass 1500 ; ? failed(2002, 70) ; pbBild ; laInfo ==");
    EXPECT_TRUE(inTheWay.remove());
    QDir().mkdir("Export"); // on a full disk
    QFile::link("/dev/full",
                clock.now().toString("'Export/Messdaten_'yyyy-MM-dd_HH-mm-ss'.csv.part'"));
    co_await go("? failed(2003, 70) ; pbZahlen ; laInfo ==");
    EXPECT_TRUE(QDir("Export").isEmpty());
    co_await go(
        "pbBild ; files == png ; pbBeenden ; @Messen ; step 1 60 ; ? emptyProtocol ; leave");
}

} // namespace
