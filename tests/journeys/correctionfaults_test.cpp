// The zero-point correction with a controller that falls silent, babbles or has drifted.
#include "measuring.h"

namespace {

using namespace support;

using CorrectionFaults = Measuring;

/// The stand behind a line that breaks when the first of the two values is written.
class BreaksAtTheOffset final : public FarEnd {
  public:
    explicit BreaksAtTheOffset(SimulatedLine &line) : mLine(line) {}
    void receive(std::string_view bytes, double now) override {
        mLine.stand().receive(bytes, now);
        if (bytes.starts_with('p'))
            mLine.unplug();
    }
    std::string take(double now) override { return mLine.stand().take(now); }
    std::optional<double> nextEvent() const override { return mLine.stand().nextEvent(); }

  private:
    SimulatedLine &mLine;
};

JOURNEY_P(CorrectionFaults, Streams) {
    co_await go(R"(
        select ; begin ; pbok ; until wireNow ~ f$ ; pass 2000 ; stand fault silent on ; pass 12900
        ? noStream ; ? correctionOff ; pass 200 ; focus pbAbbrechen
        stand fault none ; cannot pbWeiter ; abort ; begin ; pbok
        until wireNow ~ t$ ; pass 2000 ; stand fault silent on ; pass 12900
        ? noStream ; ? correctionOff ; pass 200
        stand fault none ; cannot pbWeiter ; abort
        # Babble does not disturb the mean.
        begin ; stand fault babble on ; pbok ; pass 31000 ; can pbWeiter ; stand fault none
        shaft ~ offset=10000\.[0-3]\d+.factor=1\.0000 ; close ; @Desktop ; idle == yes ; whole Danach)");
}

JOURNEY_P(CorrectionFaults, DriftBeyondTheLimit) {
    co_await go("select");
    for (const Case &drift :
         cases("15.1, 0 -> | 0, -15.1 -> | 14.9, 0 -> offset=1001(4.[789]|5.[01]) "
               "| 0, -14.9 -> offset=(9999.[89]|10000.[012])")) {
        SCOPED_TRACE(drift.in);
        const QString given = "stand offsetdrift " + drift.in_(0) + " ; stand gaindrift " +
                              drift.in_(1) + " ; begin"; // raw, 50 are 1 N m
        co_await go(given);
        co_await go(drift.out.isEmpty() ? R"(
            ? correctionAborted ; pbok ; @NachStatNPK ; title == Toleranzüberschreitung | Tolerance Exeeded
            laText ~ ^Gerät ausschalten, wieder einschalten,\sEinlaufzeit einhalten und statische Korrektur wiederholen.\s\sBei erneuter Toleranzüberschreitung Hotline anrufen.$ | ^Switch the unit under test off, then switch it on again!\sAwait the end of running-in time and repeat the static correction.\s\sIn case of deviations, please call the service!$
            picture == Nicht zulässig | Not permissible
            shaft ~ offset=none factor=none ; pbok ; @Desktop ; cannot pbMessen)"
                                        : R"(
            pbok ; until can StatMessen.pbWeiter ; close ; @Desktop ; can pbMessen)");
        act("shaft ~ " + drift.out);
    }
}

// Nothing is measured with the controller's old values.
JOURNEY_P(CorrectionFaults, ValuesThatCannotBeWritten) {
    BreaksAtTheOffset far(line);
    line.connect(far);
    co_await go(R"(
        select ; begin ; ? failed(4003, 8020) ; ? correctionOff ; pbok ; until told == yes
        pass 100 ; cannot pbWeiter ; line in
        ? correctionAborted ; pbAbbrechen ; @Desktop ; cannot pbMessen ; shaft ~ factor=none)");
}

JOURNEY(CorrectionFaults, ClosedWithinACalibration) {
    co_await go("select ; direction");
    gFormStatus = Formstatus::Korrektur;
    form(frm::StatMessen).show();
    co_await go("@VorStatNPK ; close ; @StatMessen");
    form(frm::StatMessen).unload();
    EXPECT_EQ(gFormStatus, Formstatus::Abgebrochen);
}

} // namespace
