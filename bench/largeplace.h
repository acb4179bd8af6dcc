// A workplace on the large database, on virtual time, for benchmarks that use the real screens.
#pragma once

#include <QElapsedTimer>

#include <benchmark/benchmark.h>

#include "workplace.h"

namespace bench {

/// Directory of the large database; set before the first benchmark runs.
extern QString largeDirectory;

class LargePlace : public support::Workplace {
  public:
    LargePlace() { QDir::setCurrent(largeDirectory); }
    void TestBody() override {}

    /// Runs the journey to its end. What went wrong on it fails the benchmark.
    void travel(benchmark::State &state, support::Journey journey) {
        run(std::move(journey));
        if (testing::UnitTest::GetInstance()->ad_hoc_test_result().Failed())
            state.SkipWithError("the journey did not go as expected");
    }

    /// Until all that is pending has been handled, painting included. No virtual time passes.
    static support::Until settled() {
        return support::until("the screen to settle",
                              [asked = 0]() mutable { return asked++ > 0; });
    }

    using Workplace::arrive;
    using Workplace::go;
    using Workshop::boxes;
    using Workshop::change;
    using Workshop::column;
    using Workshop::line;
};

/// Milliseconds since the timer was started.
inline double since(const QElapsedTimer &timer) {
    return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

} // namespace bench
