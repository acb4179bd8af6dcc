// From the button that saves a step to the row on disk, on the real measurement screen.
#include "counting.h"
#include "figures.h"
#include "largeplace.h"
#include "link/controller.h"
#include "records/protokollnummer.h"
#include "session/session.h"

namespace {

using namespace support;
using bench::LargePlace;
using bench::Wanted;

constexpr int saves = 300;
constexpr int rowsOfProtocol = 20;

/// Takes the triggers of the trail off and puts them back.
class TrailSwitch {
  public:
    ~TrailSwitch() { turn(true); }

    bool on() const { return mStatements.isEmpty(); }
    void turn(bool on) {
        if (on == this->on())
            return;
        if (on) {
            for (const QString &statement : mStatements)
                gDatenbank.execute(statement);
            mStatements.clear();
            return;
        }
        for (Recordset triggers = gDatenbank.open("SELECT sql, name FROM sqlite_master WHERE type "
                                                  "= 'trigger' AND name GLOB 'Nachweis_*'");
             !triggers.atEnd(); triggers.moveNext()) {
            mStatements += triggers[0].text();
            gDatenbank.execute("DROP TRIGGER \"" + triggers[1].text() + '"');
        }
    }

  private:
    QStringList mStatements;
};

/// Takes down each save of a benchmark.
class Saves {
  public:
    explicit Saves(benchmark::State &state) : mState(state) {}

    void save() {
        const QString power = text(frm::Messen, "txtIST_P_torvena");
        const bench::Syncs before = bench::syncs();
        QElapsedTimer timer;
        timer.start();
        press(frm::Messen, "pbSpeichern");
        const double took = bench::since(timer);
        mState.SetIterationTime(took / 1000);
        mTook.push_back(took);
        mSyncs.push_back(static_cast<double>(bench::syncs().count - before.count));
        mSyncTime.push_back((bench::syncs().seconds - before.seconds) * 1000);
        const Recordset stored = gDatenbank.open("SELECT Ist_P_torvena FROM Messwerte_temp "
                                                 "WHERE ProtokollID = ? ORDER BY rowid DESC",
                                                 {gProtokollID});
        if (stored.empty() || stored[0].text() != power)
            throw std::runtime_error("the step was not stored");
    }

    void tell(const std::string &name) {
        if (mTook.empty())
            return;
        const double p50 = bench::percentile(mTook, 50);
        const double p99 = bench::percentile(mTook, 99);
        const double syncs = bench::percentile(mSyncs, 50);
        mState.counters["p50_ms"] = p50;
        mState.counters["p99_ms"] = p99;
        mState.counters["max_ms"] = bench::percentile(mTook, 100);
        mState.counters["disk_p50_ms"] = bench::percentile(mSyncTime, 50);
        mState.counters["syncs"] = syncs;
        bench::figure(name + ", p50", p50, "ms");
        bench::figure(name + ", p99", p99, "ms", Wanted::Below, 50);
        bench::figure(name + ", of which disk, p50", bench::percentile(mSyncTime, 50), "ms");
        bench::figure(name + ", waits for the disk", syncs, "");
    }
    double p50() const { return bench::percentile(mTook, 50); }

  private:
    benchmark::State &mState;
    std::vector<double> mTook;
    std::vector<double> mSyncTime;
    std::vector<double> mSyncs; ///< a row that stays the same letter by letter needs none
};

Journey toFirstStep(LargePlace &place) {
    co_await place.go("select ; correct ; protocol Messreihe ; stand load 100");
}

Until measured(const char *step) {
    return until("a measured step", [step] {
        return inFront(frm::Messen) && text(frm::Messen, "laPrSchritt") == step &&
               canPress(frm::Messen, "pbSpeichern");
    });
}

Journey leave() {
    press(frm::Messen, "pbAbbrechen");
    co_await LargePlace::arrive(frm::Desktop);
}

/// The recipe's first step again and again: an UPDATE of its row.
void savingAgain(benchmark::State &state) {
    LargePlace place;
    Saves series(state);
    const auto journey = [&]() -> Journey {
        co_await toFirstStep(place);
        co_await measured("1");
        press(frm::Messen, "pbSpeichern");
        for (auto _ : state) {
            co_await until("the notice to go", [] { return inFront(frm::Messen); });
            co_await pass(50);
            press(frm::Messen, "pbFirst");
            press(frm::Messen, "pbAusführen");
            co_await measured("1");
            series.save();
        }
        co_await until("the notice to go", [] { return inFront(frm::Messen); });
        co_await leave();
    };
    place.travel(state, journey());
    series.tell("Saving a step again");
}
BENCHMARK(savingAgain)
    ->Name("Saving/StepAgain")
    ->UseManualTime()
    ->Iterations(saves)
    ->Unit(benchmark::kMillisecond);

/// A free step is measured anew until another is set: an INSERT each time. With the trail and
/// without, as many in turn as a protocol has rows.
void savingFree(benchmark::State &state) {
    LargePlace place;
    Saves series(state), bare(state);
    const auto journey = [&]() -> Journey {
        co_await toFirstStep(place);
        co_await until("free input", [] { return canPress(frm::Messen, "pbFreieEing"); });
        press(frm::Messen, "pbFreieEing");
        co_await until("the free step", [] { return text(frm::Messen, "laPrSchritt") == "FR"; });
        type(frm::Messen, "txtSoll_n", "60");
        enter(frm::Messen, "txtSoll_n");
        type(frm::Messen, "txtSoll_P", "100");
        enter(frm::Messen, "txtSoll_P");
        sendKeys(*control(frm::Messen, "cmbMessArt"), "L");
        press(frm::Messen, "pbAusführen");
        TrailSwitch trail;
        for (auto _ : state) {
            co_await measured("FR");
            (trail.on() ? series : bare).save();
            const int rows = gDatenbank
                                 .open("SELECT COUNT(*) FROM Messwerte_temp "
                                       "WHERE ProtokollID = ?",
                                       {gProtokollID})[0]
                                 .whole();
            if (rows == rowsOfProtocol) { // a protocol of ordinary length starts over
                gDatenbank.execute("DELETE FROM Messwerte_temp WHERE ProtokollID = ?",
                                   {gProtokollID});
                trail.turn(!trail.on());
            }
        }
        co_await measured("FR");
        series.save();
        co_await until("the notice to go", [] { return inFront(frm::Messen); });
        co_await leave();
    };
    place.travel(state, journey());
    series.tell("Saving a free step");
    bench::figure("Saving a free step against no trail, p50", series.p50() / bare.p50(), "x",
                  Wanted::Below, 1.15);
}
BENCHMARK(savingFree)
    ->Name("Saving/FreeStep")
    ->UseManualTime()
    ->Iterations(2 * saves)
    ->Unit(benchmark::kMillisecond);

/// What the protocol dialog asks of the database when it opens.
void protocolDialogQueries(benchmark::State &state) {
    LargePlace place;
    gDatenbank.openFile(datenbankName);
    std::vector<double> took;
    for (auto _ : state) {
        QElapsedTimer timer;
        timer.start();
        benchmark::DoNotOptimize(leereProtokolle());
        benchmark::DoNotOptimize(letztesProtokollPrüfen());
        benchmark::DoNotOptimize(nächsteProtokollNr());
        took.push_back(bench::since(timer));
    }
    bench::figure("Queries of the protocol dialog, p50", bench::percentile(took, 50), "ms",
                  Wanted::Below, 100);
}
BENCHMARK(protocolDialogQueries)->Name("ProtocolDialog/Queries")->Unit(benchmark::kMillisecond);

} // namespace
