// A controller that does not do as it should, at each exchange of a measurement: what is told,
// that nothing hangs, and that the program goes on as soon as the controller does.
#include "controller.h"
#include "session.h"
#include "workplace.h"

namespace {

using namespace support;
using namespace platform;
using simulator::Faults;

struct LineFault {
    const char *name;
    Faults faults;
    bool mastered; ///< by the retries of an exchange
    bool lasts;    ///< longer than one exchange
};

const LineFault lineFaults[] = {
    {"two frames not heard", {.deafFrames = 2}, true, false},
    {"echo late, but in time", {.echoDelay = 1'500}, true, true},
    {"echo of the try before", {.echoDelay = 2'500}, true, true},
    {"three frames not heard", {.deafFrames = 3}, false, false},
    {"no echo", {.silent = true}, false, true},
    {"a byte before the echo", {.extraBytes = 1}, false, true},
    {"a byte of the echo lost", {.lostBytes = 1}, false, true},
    {"babble", {.babble = true}, false, true},
};

/// Runs in German and in English.
class LineFaults : public Workplace, public testing::WithParamInterface<int> {
  protected:
    LineFaults() { setLanguage(GetParam()); }

    void expectNoController() {
        expectBox({"1 - Keine Kommunikation mit dem Controller möglich!",
                   "Communication with the controller is not possible!"},
                  Critical, {"Fehlermeldung", "Error Message"});
    }
    void expectNoPort() {
        boxes.expect(english() ? "Error 5007- 8002 missing" : "Error 5007- 8002 fehlt", "Error",
                     Critical);
    }
    void expectRefused() {
        expectBox({"Fehler", "Error"}, Critical, {"Motor ein", "Motor On"});
        expectBox({"Fehler im Gerät oder in der Kommunikation",
                   "Error in the unit under test, or communication error"},
                  Critical, {"Fehler", "Error"});
    }
    void expectMotorOff(int flags) {
        expectBox({"Fehler", "Error"}, flags, {"Motor aus", "Motor Off"});
    }
    void expectNoStream() {
        expectBox({"Nach 15 Sek kein Empfang", "No reception after 15 sec!"}, Exclamation,
                  {"Meldung", "Message"});
        expectBox({"Statische Nullpunkt-Korrektur abgebrochen",
                   "Static zero-point correction has been discontinued!"},
                  Exclamation, {"Meldung", "Message"});
    }
    void expectCorrectionAborted() {
        expectBox({"Die Nullpunkt-Korrektur wurde abgebrochen!",
                   "The zero-point correction has been discontinued!"},
                  Critical, {"Fehler", "Error"});
    }
    void expectLineLost() {
        expectBox({"Fehler 3002 -  8020 Die Verbindung ist unterbrochen. Bitte prüfen Sie Kabel "
                   "und Anschluss.",
                   "ERROR 3002 -  8020 The connection is lost. Please check cable and port."},
                  Critical, {"!! Achtung Fehler !!", " !! Attention !!"});
    }
    void heal() { line.stand().setFaults({}); }
    long onWire(const std::string &bytes) {
        long count = 0;
        const std::string &wire = line.stand().wire();
        for (size_t at = wire.find(bytes); at != std::string::npos; at = wire.find(bytes, at + 1))
            ++count;
        return count;
    }
    Journey abortCorrection() {
        expectCorrectionAborted();
        press(frm::StatMessen, "pbAbbrechen");
        co_await arrive(frm::Desktop);
        EXPECT_FALSE(line.stand().offsetWritten() || line.stand().factorWritten());
    }
};

INSTANTIATE_TEST_SUITE_P(Languages, LineFaults, testing::Values(1, 2));

TEST_P(LineFaults, MotorOnAndOff) {
    const auto journey = [this]() -> Journey {
        co_await select();
        co_await chooseDirection();
        for (const LineFault &fault : lineFaults) {
            SCOPED_TRACE(fault.name);
            const double begin = clock.elapsed();
            line.stand().setFaults(fault.faults);
            if (!fault.mastered) {
                expectNoController();
                expectBox({"Motor konnte nicht eingeschaltet werden",
                           "It was not possible to switch the motor on."},
                          Critical, {"Motor ein", "Motor On"});
            }
            press(frm::Desktop, "pbMotein");
            EXPECT_LT(clock.elapsed() - begin, 6'500);
            EXPECT_EQ(gMotorEin, fault.mastered);
            EXPECT_EQ(line.stand().setSpeed() > 0, fault.mastered);
            EXPECT_EQ(canPress(frm::Desktop, "pbMotein"), !fault.mastered);
            EXPECT_EQ(canPress(frm::Desktop, "pbMotaus"), fault.mastered);
            heal();
            if (!fault.mastered)
                press(frm::Desktop, "pbMotein");
            EXPECT_EQ(line.stand().setSpeed(), 60);

            line.stand().setFaults(fault.faults);
            if (!fault.mastered) {
                expectNoController();
                expectMotorOff(Exclamation);
            }
            press(frm::Desktop, "pbMotaus");
            EXPECT_EQ(gMotorEin, !fault.mastered); // as far as anybody knows
            EXPECT_EQ(canPress(frm::Desktop, "pbMotein"), fault.mastered);
            EXPECT_EQ(canPress(frm::Desktop, "pbMotaus"), !fault.mastered);
            heal();
            if (!fault.mastered)
                press(frm::Desktop, "pbMotaus");
            co_await pass(5'000);
            EXPECT_EQ(line.stand().speed(), 0);
            EXPECT_TRUE(boxes.allCame());
        }
    };
    run(journey());
}

TEST_P(LineFaults, StoppingBeforeTheCorrection) {
    const auto journey = [this]() -> Journey {
        co_await select();
        line.stand().setFaults({.silent = true});
        expectNoController();
        co_await startMeasuring();
        expectNoStream();
        press(frm::VorStatNPK, "pbok");
        co_await until("the end", [this] { return boxes.allCame(); }, 17'000);
        co_await pass(100);
        EXPECT_FALSE(canPress(frm::StatMessen, "pbWeiter"));
        co_await abortCorrection();

        // Silence while the standstill is awaited: the drive is switched off all the same.
        heal();
        line.stand().clearWires();
        press(frm::Desktop, "pbRezept");
        co_await arrive(frm::Rezepte);
        type(frm::Rezepte, "cmbRezeptname", demoNames().recipe);
        press(frm::Rezepte, "pbok");
        co_await arrive(frm::Desktop);
        press(frm::Desktop, "pbMessen");
        co_await until("the wait for standstill", [this] { return onWire("g") == 1; });
        line.stand().setFaults({.silent = true});
        co_await until("the drive to be switched off", [this] { return onWire("*A-0000+") == 1; },
                       12'100);
        heal();
        co_await arrive(frm::VorStatNPK);
        EXPECT_FALSE(line.stand().motorOn());
        loaded(frm::VorStatNPK)->close();
        co_await arrive(frm::StatMessen);
        co_await abortCorrection();
        co_await wholeMeasurement("Danach");
    };
    run(journey());
}

TEST_P(LineFaults, StreamsOfTheCorrection) {
    const auto journey = [this]() -> Journey {
        co_await select();
        for (const char stream : {'f', 't'}) {
            co_await startMeasuring();
            line.stand().clearWires();
            press(frm::VorStatNPK, "pbok");
            co_await until("the stream", [this, stream] {
                return !line.stand().wire().empty() && line.stand().wire().back() == stream;
            });
            co_await pass(2'000);
            line.stand().setFaults({.silent = true});
            expectNoStream();
            co_await until("the end", [this] { return boxes.allCame(); }, 15'100);
            co_await pass(100);
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
        co_await until("the end", [] {
            return !loaded(frm::StatMessen) || canPress(frm::StatMessen, "pbWeiter");
        }, 31'000);
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

TEST_P(LineFaults, DriftBeyondTheLimit) {
    struct Case {
        double offset, gain; // raw, 50 are 1 N m
        bool passes;
    };
    constexpr Case cases[] = {{15.1, 0, false}, {-15.1, 0, false}, {0, 15.1, false},
                              {0, -15.1, false}, {14.9, 0, true},  {0, -14.9, true}};
    const auto journey = [this, &cases]() -> Journey {
        co_await select();
        for (const Case &drift : cases) {
            SCOPED_TRACE(testing::Message() << drift.offset << ' ' << drift.gain);
            line.stand().setOffsetDrift(drift.offset);
            line.stand().setGainDrift(drift.gain);
            co_await startMeasuring();
            if (!drift.passes)
                expectCorrectionAborted();
            press(frm::VorStatNPK, "pbok");
            if (drift.passes) {
                co_await until("the correction",
                               [] { return canPress(frm::StatMessen, "pbWeiter"); });
                EXPECT_NEAR(line.stand().offsetWritten().value_or(0), 10'000 + drift.offset, 0.2);
                loaded(frm::StatMessen)->close();
            } else {
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

TEST_P(LineFaults, OpeningTheMeasurement) {
    const auto journey = [this]() -> Journey {
        co_await select();
        co_await startMeasuring();
        press(frm::VorStatNPK, "pbok");
        co_await until("the correction", [] { return canPress(frm::StatMessen, "pbWeiter"); });
        press(frm::StatMessen, "pbWeiter");
        co_await arrive(frm::NachStatNPK);
        line.stand().setFaults({.deafFrames = 3});
        expectNoController();
        press(frm::NachStatNPK, "pbok");
        co_await arrive(frm::ProtokollNr);
        co_await newProtocol("Trotzdem");
        co_await settled("1", 60);
        expectEmptyProtocol();
        co_await leaveMeasuring();
    };
    run(journey());
}

TEST_P(LineFaults, RefusedSpeedLeavesTheScreen) {
    const auto journey = [this]() -> Journey {
        co_await select();
        for (const LineFault &fault : lineFaults) {
            if (fault.mastered)
                continue;
            SCOPED_TRACE(fault.name);
            co_await correctZeroPoint();
            line.stand().setFaults(fault.faults);
            expectNoController();
            expectRefused();
            if (fault.lasts)
                expectNoController(); // when the motor is told to stop
            expectEmptyProtocol();
            press(frm::ProtokollNr, "obNeu");
            press(frm::ProtokollNr, "pbok");
            const double begin = clock.elapsed();
            co_await arrive(frm::Desktop);
            EXPECT_LT(clock.elapsed() - begin, 13'500);
            heal();
            EXPECT_TRUE(boxes.allCame());
            expectIdleDesktop();
        }

        // With a stored step the protocol stays.
        co_await correctZeroPoint();
        co_await newProtocol("Ein Schritt");
        co_await settled("1", 60);
        save();
        line.stand().setFaults({.deafFrames = 3});
        expectNoController();
        expectRefused();
        co_await arrive(frm::Desktop);
        expectIdleDesktop();
        EXPECT_EQ(storedSteps(), QStringList{"1"});
        co_await wholeMeasurement("Danach");
    };
    run(journey());
}

TEST_P(LineFaults, SilentStreamWaitsForTheOperator) {
    const auto journey = [this]() -> Journey {
        co_await measure();
        line.stand().setFaults({.silent = true});
        co_await pass(120'000);
        EXPECT_EQ(text(frm::Messen, "txtIST_n_torvena"), "");
        EXPECT_FALSE(canPress(frm::Messen, "pbSpeichern"));
        heal();
        co_await settled("1", 60);
        line.stand().setFaults({.silent = true});
        expectNoController();
        expectMotorOff(Critical);
        expectNoController();
        expectEmptyProtocol();
        co_await leaveMeasuring();
        EXPECT_TRUE(boxes.allCame());
        heal();
        co_await wholeMeasurement("Danach");
    };
    run(journey());
}

// A frame that was begun must end within 18 s; at 15 1/min one takes 24 s, and each is cut.
TEST_P(LineFaults, CutFramesAreTold) {
    change("UPDATE Rezepte SET Drehzahl = '15' WHERE RezeptID = 1 AND Prüfschritt = '1'");
    const auto journey = [this]() -> Journey {
        co_await select();
        co_await correctZeroPoint();
        line.stand().setFaults({.cutEvery = 1});
        co_await newProtocol("Zerschnitten");
        co_await until("the first frame",
                       [] { return !text(frm::Messen, "txtIST_n_torvena").isEmpty(); });
        const double begin = clock.elapsed();
        double told = 0;
        boxes.expect(english() ? "No data at ca. 3 x 6 rounds!"
                               : "Keine Daten bei ca. 3 x 6 Runden!",
                     OK, [this, &told] { told = clock.elapsed(); });
        co_await until("the box", [this] { return boxes.allCame(); });
        EXPECT_NEAR(told - begin, 18'000, 50);
        EXPECT_EQ(boxes.seen().back().title,
                  english() ? "Communication Error" : "Kommunikationsfehler");
        EXPECT_EQ(boxes.seen().back().flags, Critical);
        heal();
        line.stand().setLoad(20);
        co_await pass(60'000); // one frame may be wrong still
        co_await settled("1", 15);
        EXPECT_TRUE(text(frm::Messen, "txtIST_P_torvena").startsWith("20"))
            << text(frm::Messen, "txtIST_P_torvena").toStdString();
        save();
        EXPECT_EQ(storedSteps(), QStringList{"1"});
        co_await settled("2", 80);
        co_await leaveMeasuring();
    };
    run(journey());
}

TEST_P(LineFaults, LineGoneAndBack) {
    const auto journey = [this]() -> Journey {
        co_await measure();
        for (const bool inTheFirstFrame : {true, false}) {
            if (!inTheFirstFrame)
                co_await settled("1", 60);
            expectLineLost();
            line.unplug();
            co_await until("the box", [this] { return boxes.allCame(); }, 10'000);
            co_await pass(30'000);
            EXPECT_TRUE(inFront(frm::Messen));
            line.plug();
            press(frm::Messen, "pbMessen");
            co_await arrive(frm::Meldung);
        }
        co_await settled("1", 60);
        save();
        co_await settled("2", 80);
        EXPECT_EQ(storedSteps(), QStringList{"1"});
        co_await leaveMeasuring();
        expectIdleDesktop();
    };
    run(journey());
}

TEST_P(LineFaults, LineGoneForGood) {
    const auto journey = [this]() -> Journey {
        co_await select();
        for (const char *way : {"pbAbbrechen", "close box", "pbMessen", "pbSpeichern"}) {
            SCOPED_TRACE(way);
            co_await correctZeroPoint();
            co_await newProtocol(way);
            co_await settled("1", 60);
            expectLineLost();
            line.unplug();
            co_await until("the box", [this] { return boxes.allCame(); }, 10'000);
            const QString button = way;
            if (button == "pbMessen" || button == "pbSpeichern") {
                expectNoPort(); // the set-point; then it leaves by itself
                expectRefused();
            }
            if (button != "pbSpeichern")
                expectEmptyProtocol();
            expectNoPort(); // the stop
            if (button == "close box")
                loaded(frm::Messen)->close();
            else
                press(frm::Messen, way);
            co_await arrive(frm::Desktop);
            EXPECT_TRUE(boxes.allCame());
            EXPECT_GT(line.stand().setSpeed(), 0); // nobody could tell it
            EXPECT_TRUE(gMotorEin);
            line.plug();
        }
        co_await wholeMeasurement("Danach");
        line.unplug();
        expectBox({"Wollen Sie das Programm wirklich beenden?",
                   "Do you really want to terminate the program?"},
                  YesNo + Question, {"Programmende", "End Of Program"}, Yes);
        boxes.expect("Error 5007- 8020 …");
        expectMotorOff(Exclamation);
        press(frm::Desktop, "pbBeenden");
        co_await pass(100);
        EXPECT_FALSE(loaded(frm::Desktop));
    };
    run(journey());
}

} // namespace
