// The zero-point correction with a controller that falls silent, babbles or has drifted.
#include "linefaults.h"

namespace {

using namespace support;
using namespace platform;

/// Runs in German and in English.
class CorrectionFaults : public LineFaults, public testing::WithParamInterface<int> {
  protected:
    CorrectionFaults() : LineFaults(GetParam()) {}
};

INSTANTIATE_TEST_SUITE_P(Languages, CorrectionFaults, testing::Values(1, 2));

TEST_P(CorrectionFaults, StoppingBeforeTheCorrection) {
    const auto journey = [this]() -> Journey {
        co_await select();
        line.stand().setFaults({.silent = true});
        expectNoController();
        expectCorrectionAborted();
        co_await chooseDirection();
        gEingelaufen = true;
        press(frm::Desktop, "pbMessen");
        co_await arrive(frm::StatMessen);
        co_await arrive(frm::Desktop);
        heal();
        co_await wholeMeasurement("Danach");
    };
    run(journey());
}

TEST_P(CorrectionFaults, StreamsOfTheCorrection) {
    const auto journey = [this]() -> Journey {
        co_await select();
        for (const char stream : {'f', 't'}) {
            co_await startMeasuring();
            press(frm::VorStatNPK, "pbok");
            co_await until("the stream",
                           [this, stream] { return line.stand().wire().back() == stream; });
            co_await pass(2'000);
            line.stand().setFaults({.silent = true});
            expectNoStream();
            co_await told(15'100);
            heal();
            EXPECT_FALSE(canPress(frm::StatMessen, "pbWeiter"));
            co_await abortCorrection();
        }

        // Babble may spoil the mean or not, but it ends.
        co_await startMeasuring();
        line.stand().setFaults({.babble = true});
        boxes.allow(english() ? "The zero-point correction has been discontinued!"
                              : "Die Nullpunkt-Korrektur wurde abgebrochen!");
        press(frm::VorStatNPK, "pbok");
        co_await until(
            "the end",
            [] { return !loaded(frm::StatMessen) || canPress(frm::StatMessen, "pbWeiter"); },
            31'000);
        heal();
        if (loaded(frm::NachStatNPK))
            press(frm::NachStatNPK, "pbok");
        else
            press(frm::StatMessen, "pbAbbrechen");
        co_await arrive(frm::Desktop);
        co_await wholeMeasurement("Danach");
    };
    run(journey());
}

TEST_P(CorrectionFaults, DriftBeyondTheLimit) {
    struct Case {
        double offset, gain; // raw, 50 are 1 N m
        bool passes;
    };
    constexpr Case cases[] = {
        {15.1, 0, false}, {0, -15.1, false}, {14.9, 0, true}, {0, -14.9, true}};
    const auto journey = [this, &cases]() -> Journey {
        co_await select();
        for (const Case &drift : cases) {
            SCOPED_TRACE(testing::Message() << drift.offset << ' ' << drift.gain);
            line.stand().setOffsetDrift(drift.offset);
            line.stand().setGainDrift(drift.gain);
            co_await startMeasuring();
            if (drift.passes) {
                co_await corrected();
                EXPECT_NEAR(line.stand().offsetWritten().value_or(0), 10'000 + drift.offset, 0.2);
                loaded(frm::StatMessen)->close();
            } else {
                expectCorrectionAborted();
                press(frm::VorStatNPK, "pbok");
                co_await arrive(frm::NachStatNPK);
                EXPECT_FALSE(loaded(frm::StatMessen));
                EXPECT_FALSE(line.stand().offsetWritten() || line.stand().factorWritten());
                EXPECT_EQ(loaded(frm::NachStatNPK)->caption(),
                          english() ? "Tolerance Exeeded" : "Toleranzüberschreitung");
                EXPECT_EQ(text(frm::NachStatNPK, "laText"),
                          english() ? "Switch the unit under test off, then switch it on again!\n"
                                      "Await the end of running-in time and repeat the static "
                                      "correction.\n\n"
                                      "In case of deviations, please call the service!"
                                    : "Gerät ausschalten, wieder einschalten,\n"
                                      "Einlaufzeit einhalten und statische Korrektur "
                                      "wiederholen.\n\n"
                                      "Bei erneuter Toleranzüberschreitung Hotline anrufen.");
                press(frm::NachStatNPK, "pbok");
            }
            co_await arrive(frm::Desktop);
            EXPECT_EQ(canPress(frm::Desktop, "pbMessen"), drift.passes);
        }
        line.stand().setGainDrift(0);
        co_await wholeMeasurement("Danach");
    };
    run(journey());
}

} // namespace
