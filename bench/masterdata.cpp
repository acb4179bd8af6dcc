// Opening the master data screens and typing into their search boxes, with everything painted.
#include <QComboBox>
#include <QLineEdit>
#include <QTest>

#include <algorithm>
#include <memory>

#include "figures.h"
#include "largeplace.h"
#include "session/session.h"
#include "windows/help.h"

namespace {

using namespace support;
using bench::LargePlace;
using bench::Wanted;

constexpr int openings = 30;
constexpr double openingTarget = 100; // ms
constexpr double helpTarget = 200;    // ms
constexpr double keyTarget = 50;      // ms

void tell(benchmark::State &state, const std::string &name, const std::vector<double> &took,
          double target) {
    if (took.empty())
        return;
    state.counters["p50_ms"] = bench::percentile(took, 50);
    state.counters["max_ms"] = bench::percentile(took, 100);
    bench::figure(name + ", p50", bench::percentile(took, 50), "ms", Wanted::Below, target);
    bench::figure(name + ", max", bench::percentile(took, 100), "ms");
}

/// While one lives, the demo customer owns all the units there are.
class Fleet {
  public:
    Fleet() { LargePlace::change("UPDATE Ergometer SET KundenID = 1 WHERE GerätID > 1000"); }
    ~Fleet() {
        LargePlace::change("UPDATE Ergometer SET KundenID = 1001 + (GerätID - 1000) % 20000 "
                           "WHERE GerätID > 1000");
    }
};

/// From the desktop's button until the screen has its activation and is painted.
void opening(benchmark::State &state, const char *name, const char *button, frm opened,
             bool fleet = false) {
    LargePlace place;
    const auto owner = fleet ? std::make_unique<Fleet>() : nullptr;
    std::vector<double> took;
    const auto journey = [&]() -> Journey {
        co_await place.go("select");
        for (auto _ : state) {
            QElapsedTimer timer;
            timer.start();
            press(frm::Desktop, button);
            co_await LargePlace::settled();
            took.push_back(bench::since(timer));
            state.SetIterationTime(took.back() / 1000);
            if (!inFront(opened))
                throw std::runtime_error("the screen is not open");
            co_await pass(1000);
            loaded(opened)->close();
            co_await LargePlace::arrive(frm::Desktop);
        }
    };
    place.travel(state, journey());
    tell(state, name, took, openingTarget);
}

#define OPENING(name, ...)                                                                         \
    BENCHMARK_CAPTURE(opening, name, __VA_ARGS__)                                                  \
        ->Name("Opening/" #name)                                                                   \
        ->UseManualTime()                                                                          \
        ->Iterations(openings)                                                                     \
        ->Unit(benchmark::kMillisecond)
OPENING(frmKunden, "Opening frmKunden, 20 000 customers", "pbKunde", frm::Kunden);
OPENING(frmGeraet, "Opening frmGerät, 60 000 units", "pbGerät", frm::Gerät);
OPENING(frmGeraetFleet, "Opening frmGerät, 60 000 units of one customer", "pbGerät", frm::Gerät,
        true);
OPENING(frmRezepte, "Opening frmRezepte, 2 000 recipes", "pbRezept", frm::Rezepte);

/// F1 on the desktop until the page is painted, each time in a new window.
void help(benchmark::State &state) {
    LargePlace place;
    std::vector<double> took;
    const auto journey = [&]() -> Journey {
        co_await place.go("select");
        for (auto _ : state) {
            QElapsedTimer timer;
            timer.start();
            QTest::keyClick(loaded(frm::Desktop), Qt::Key_F1);
            co_await LargePlace::settled();
            took.push_back(bench::since(timer));
            state.SetIterationTime(took.back() / 1000);
            platform::closeHelp();
            co_await pass(1000);
        }
    };
    place.travel(state, journey());
    tell(state, "Opening the help", took, helpTarget);
}
BENCHMARK(help)
    ->Name("Opening/help")
    ->UseManualTime()
    ->Iterations(openings)
    ->Unit(benchmark::kMillisecond);

/// Types each word into the search box, and takes it back, key by key.
void filtering(benchmark::State &state, const char *name, const char *button, frm opened,
               const char *box, const QStringList &words, bool fleet = false) {
    LargePlace place;
    const auto owner = fleet ? std::make_unique<Fleet>() : nullptr;
    std::vector<double> took;
    const auto journey = [&]() -> Journey {
        co_await place.go("select");
        press(frm::Desktop, button);
        co_await LargePlace::arrive(opened);
        auto *edit = control<QComboBox>(opened, box);
        for (auto _ : state) {
            double whole = 0;
            for (const QString &word : words) {
                edit->lineEdit()->selectAll();
                QTest::keyClick(edit, Qt::Key_Delete);
                co_await LargePlace::settled();
                for (qsizetype key = 0; key < 2 * word.size(); ++key) {
                    QElapsedTimer timer;
                    timer.start();
                    if (key < word.size())
                        sendKeys(*edit, word.mid(key, 1));
                    else
                        QTest::keyClick(edit, Qt::Key_Backspace);
                    co_await LargePlace::settled();
                    took.push_back(bench::since(timer));
                    whole += took.back() / 1000;
                }
            }
            state.SetIterationTime(whole);
        }
        loaded(opened)->close();
        co_await LargePlace::arrive(frm::Desktop);
    };
    place.travel(state, journey());
    tell(state, name, took, keyTarget);
}

#define FILTERING(name, ...)                                                                       \
    BENCHMARK_CAPTURE(filtering, name, __VA_ARGS__)                                                \
        ->Name("Filtering/" #name)                                                                 \
        ->UseManualTime()                                                                          \
        ->Iterations(5)                                                                            \
        ->Unit(benchmark::kMillisecond)
FILTERING(frmKunden, "A key in the search of frmKunden", "pbKunde", frm::Kunden, "cmbKundenname",
          {"Klinikum Ähren", "übung 77", "*a?e*7", "zzz"});
FILTERING(frmGeraet, "A key in the search of frmGerät, 60 000 units of one customer", "pbGerät",
          frm::Gerät, "cmbIdent", {"ID-0471", "*1?3*9", "zzz"}, true);
FILTERING(frmRezepte, "A key in the search of frmRezepte", "pbRezept", frm::Rezepte,
          "cmbRezeptname", {"Rezept 0815", "bis 400", "zzz"});

} // namespace
