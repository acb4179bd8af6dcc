// What the trail costs: a stored row with it and without, and the check of the large database.
#include <QDir>

#include "figures.h"
#include "largeplace.h"
#include "store/databasecopy.h"
#include "store/trailcheck.h"

namespace {

using bench::LargePlace;
using bench::Wanted;

constexpr const char *bareFile = "bare.mdb";

/// Stores a row, and the first values of a step again, as the measurement screen does.
double stored(Datenbank &store) {
    QElapsedTimer timer;
    timer.start();
    const qlonglong row =
        store.insert("INSERT INTO Messwerte_temp (ProtokollID, Prüfschritt, Soll_n, Soll_P, "
                     "Ist_n_torvena, Ist_D_torvena, Ist_P_torvena, Ist_n_ergom, MU_ohne, MU_mit, "
                     "MU_Proz) VALUES (26001, 'FR', '60,0', '100,0', '60,01', '15,92', '100,17', "
                     "'0', 'ja', 'ja', 0.3)");
    store.execute("UPDATE Messwerte_temp SET Ist_P_torvena = '100,20' WHERE rowid = ?", {row});
    const double took = bench::since(timer);
    store.execute("DELETE FROM Messwerte_temp WHERE rowid = ?", {row});
    return took;
}

void saving(benchmark::State &state) {
    const LargePlace place;
    copyDatabase(datenbankName, bareFile);
    Datenbank with, without;
    with.openFile(datenbankName);
    without.openFile(bareFile);
    Recordset triggers = without.open("SELECT name FROM sqlite_master WHERE type = 'trigger' AND "
                                      "name GLOB 'Nachweis*'");
    for (; !triggers.atEnd(); triggers.moveNext())
        without.execute("DROP TRIGGER \"" + triggers[0].text() + '"');
    std::vector<double> ours, bare;
    for (auto _ : state) {
        ours.push_back(stored(with));
        bare.push_back(stored(without));
    }
    const double median = bench::percentile(ours, 50);
    bench::figure("Storing a value twice, p50", median, "ms");
    bench::figure("The same against no trail, p50", median / bench::percentile(bare, 50), "x",
                  Wanted::Below, 1.2); // a save on the screen is longer by what is no disk
    without.close();
    QFile::remove(bareFile);
}
BENCHMARK(saving)->Name("Trail/Saving")->Iterations(300)->Unit(benchmark::kMillisecond);

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

} // namespace
