// The check of the trail, and what a start and an end with the large database wait for. What the
// trail costs a save is measured with the saves.
#include <QDate>
#include <QDir>

#include "figures.h"
#include "largeplace.h"
#include "store/safety.h"
#include "store/trailcheck.h"

namespace {

using bench::LargePlace;
using bench::Wanted;

void checking(benchmark::State &state) {
    const LargePlace place;
    Datenbank store;
    store.openFile(datenbankName);
    std::vector<double> took;
    for (auto _ : state) {
        QElapsedTimer timer;
        timer.start();
        if (!checkTrail(store).found.empty())
            throw std::runtime_error("the trail does not hold");
        took.push_back(bench::since(timer) / 1000);
    }
    bench::figure("Checking the trail of a million values", bench::percentile(took, 50), "s");
}
BENCHMARK(checking)->Name("Trail/Checking")->Iterations(3)->Unit(benchmark::kMillisecond);

void safety(benchmark::State &state) {
    const LargePlace place;
    std::vector<double> checks, copies;
    for (auto _ : state) {
        QElapsedTimer timer;
        timer.start();
        if (!Datenbank::damageIn(datenbankName).isEmpty())
            throw std::runtime_error("the database is damaged");
        checks.push_back(bench::since(timer));
        timer.restart();
        makeSafetyCopy(".", QDate::currentDate());
        copies.push_back(bench::since(timer));
    }
    QDir(sicherungsordner).removeRecursively();
    bench::figure("Quick check of the large database", bench::percentile(checks, 50), "ms",
                  Wanted::Below, 1000);
    bench::figure("Its safety copy, checked", bench::percentile(copies, 50), "ms", Wanted::Below,
                  1000);
}
BENCHMARK(safety)->Name("Safety/CheckAndCopy")->Iterations(5)->Unit(benchmark::kMillisecond);

} // namespace
