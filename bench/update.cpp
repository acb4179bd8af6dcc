// The update of a database with a million measured values: rows moved against bare statements,
// safety copy, check and swap.
#include <QDir>

#include "figures.h"
#include "largeplace.h"
#include "store/databasecopy.h"
#include "store/rowcopy.h"
#include "store/scripts.h"
#include "store/swap.h"

namespace {

using bench::LargePlace;
using bench::Wanted;

constexpr const char *bareFile = "bare.mdb";

template <class Body>
double timed(Body body) {
    QElapsedTimer timer;
    timer.start();
    body();
    return bench::since(timer);
}

/// ATTACH and one statement a table, with nothing on the tables that would slow it down.
double bare(const QStringList &tables) {
    copyDatabase(gelieferteDatenbank, bareFile);
    Datenbank store;
    store.openFile(bareFile);
    Recordset triggers = store.open("SELECT name FROM sqlite_master WHERE type = 'trigger'");
    for (; !triggers.atEnd(); triggers.moveNext())
        store.execute("DROP TRIGGER " + triggers[0].text());
    for (const QString &table : tables)
        store.execute("DELETE FROM main.\"" + table + '"');
    return timed([&] {
        store.execute("ATTACH ? AS Alt", {datenbankName});
        store.together([&] {
            for (const QString &table : tables)
                store.execute("INSERT INTO main.\"" + table + "\" SELECT * FROM Alt.\"" + table +
                              '"');
        });
        store.close();
    });
}

void updating(benchmark::State &state) {
    const LargePlace place;
    const QDir large = QDir::current();
    QDir here(large.filePath("update"));
    here.removeRecursively();
    large.mkdir("update");
    QDir::setCurrent(here.path());
    copyDatabase(large.filePath(datenbankName), datenbankName);
    legeUpdateAn(gelieferteDatenbank, "470");
    std::vector<double> ratios, ours, safety, checks, swaps;
    for (auto _ : state) {
        CopyRecord record;
        QStringList tables;
        copyDatabase(gelieferteDatenbank, gefüllteDatenbank);
        ours.push_back(timed([&] {
            RowCopy copy(datenbankName, gefüllteDatenbank, [](const CopyState &) { return true; });
            tables = copy.tables();
            copy.announce(tables);
            for (const QString &table : tables)
                copy.replace(table);
            record = copy.finish();
        }));
        ratios.push_back(ours.back() / bare(tables));
        QString copied;
        safety.push_back(timed([&] { copied = safetyCopy(datenbankName); }));
        QFile::remove(copied);
        bool good = false;
        checks.push_back(
            timed([&] { good = checkFilled(datenbankName, gefüllteDatenbank, record).empty(); }));
        if (!good)
            throw std::runtime_error("the filled database does not match");
        swaps.push_back(timed([] { swapDatabase(false); }));
        state.SetIterationTime(ours.back() / 1000);
    }
    QDir::setCurrent(large.path());
    here.removeRecursively();
    bench::figure("Moving a million values against bare, p50", bench::percentile(ratios, 50), "x",
                  Wanted::Below, 1.3);
    bench::figure("Moving a million values, p50", bench::percentile(ours, 50), "ms");
    bench::figure("Their safety copy, p50", bench::percentile(safety, 50), "ms");
    bench::figure("Their check, p50", bench::percentile(checks, 50), "ms");
    bench::figure("Their swap, p50", bench::percentile(swaps, 50), "ms");
}
BENCHMARK(updating)
    ->Name("Update/MillionValues")
    ->UseManualTime()
    ->Iterations(5)
    ->Unit(benchmark::kMillisecond);

} // namespace
