// The receiving end of the six-round stream: what is shown, what ends it, what a person is told.
#include "measure/empfang.h"

#include "../link/linktest.h"
#include "measure/statik.h"
#include "measure/statikempfang.h"

namespace {

const QByteArray frame = QByteArray::fromHex("ffff17700bb8004650"); // 60.00, 30.00, 180.00

class Reception : public support::ScriptTest {
  protected:
    Reception() { MSComm1.setPortOpen(true); }
    void receive() {
        using Ereignis = SechsRundenDecoder::Ereignis;
        reception.fnc_SechsRundenEmpfang(
            [this](Ereignis what, double value) {
                const QString name = what == Ereignis::Drehzahl     ? "n"
                                     : what == Ereignis::Drehmoment ? "D"
                                                                    : "P";
                shown += name + QString::number(value) + ' ';
                if (name == endsAt)
                    gMessStatus = Messstatus::Speichern;
            },
            [this] { return superseded; });
    }

    SechsRundenEmpfang reception;
    QString shown;
    QString endsAt = "P"; // the value that makes a person save
    bool superseded = false;
};

TEST_F(Reception, ShowsEachValueAsItComes) {
    arrive({frame.left(5)}); // left over from before
    clock.run(50);
    arrive({frame.left(4), frame.mid(4) + frame}, 100);
    receive();
    EXPECT_EQ(shown, "n60 D30 P180 ") << "nothing behind the end";

    gMessStatus = Messstatus::Messen;
    shown.clear();
    endsAt = "n";
    arrive({frame});
    receive();
    EXPECT_EQ(shown, "n60 ") << "a frame half read is abandoned";
    EXPECT_EQ(script.written, "") << "the stream is ended by who began it";
}

TEST_F(Reception, EndsWhenANewerPassOrTheEndOfTheProgramWantsIt) {
    const std::function<void()> ends[] = {
        [] { gDesktopAktiv = false; }, [] { gMessStatus = Messstatus::Ende; },
        [this] { superseded = true, MSComm1.setPortOpen(false); }};
    for (const auto &end : ends) {
        gDesktopAktiv = true;
        gMessStatus = Messstatus::Messen;
        const double start = clock.elapsed();
        clock.after(5000, end);
        receive();
        EXPECT_NEAR(clock.elapsed() - start, 5000, 1);
    }
    clock.run(40'000); // nor is silence reported
}

TEST_F(Reception, AFrameThatDoesNotEndIsReportedAndTheReceptionGoesOn) {
    // Bytes go on coming; the time runs from the first.
    arrive({"\x01", frame.left(3), "\x02"}, 5000);
    expectKnown("noData", platform::OK, [this] {
        EXPECT_NEAR(clock.elapsed(), 23'000, 10);
        arrive({frame.mid(4), frame}, 1000); // ends the spoilt one
    });
    endsAt = "";
    clock.after(40'000, [] { gMessStatus = Messstatus::Ende; });
    receive();
    EXPECT_TRUE(gStopMessung);
    EXPECT_TRUE(shown.endsWith("n60 D30 P180 ")) << shown;
}

TEST_F(Reception, TimeOutsAndALostLineAreTold) {
    gSprache = 2;
    clock.after(1000, [] { gTimeoutTimer1 = true; }); // left running
    expectKnown("noReception");
    receive();
    EXPECT_FALSE(gTimeoutTimer1);
    EXPECT_EQ(gMessStatus, Messstatus::Messen);
    arrive({frame.left(5)}); // the watch over it ends with the reception
    clock.after(1000, [this] { line.unplug(); });
    expectKnown("lineLost");
    receive();
    EXPECT_FALSE(MSComm1.PortOpen());
    clock.run(40'000);
    expectKnown("failed(3001, 8018)");
    fnc_SechsRundenStarten();
}

TEST_F(Reception, OfSamplesDropsWhatSettlesAndCountsTheRest) {
    const auto received = [this](const Statikstrom &stream) {
        QByteArray bytes;
        for (int sample = 1; sample <= 200; ++sample) { // a raw value is its number, or far off
            const int raw = sample <= stream.verworfen ? 9'999'990 : 10 * sample;
            for (const int byte : {255, int(stream.code), raw >> 16, raw >> 8, raw})
                bytes.append(static_cast<char>(byte));
        }
        arrive({bytes}, 10);
        script.written.clear();
        const auto values = statikEmpfangen(
            stream, [this](int count) { shown += QString::number(count) + ' '; },
            [] { return false; });
        return values.value_or(std::vector<double>());
    };
    EXPECT_EQ(received({codeOffset, 0, 3}), (std::vector<double>{1, 2, 3}));
    EXPECT_EQ(shown + script.written, "1 2 3 f-");
    const std::vector<double> values = received({codeGain});
    ASSERT_EQ(values.size(), 25u);
    EXPECT_DOUBLE_EQ(mittelwert(values), 163) << "of 151 to 175";
    EXPECT_EQ(script.written, "t-");
}

} // namespace
