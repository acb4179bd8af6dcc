// What can be wrong with the controller, and the boxes that tell of it.
#pragma once

#include "session.h"
#include "workplace.h"

namespace support {

using platform::Critical;
using platform::Exclamation;

struct LineFault {
    const char *name;
    simulator::Faults faults;
    bool mastered; ///< by the retries of an exchange
    bool lasts;    ///< longer than one exchange
};

inline const LineFault lineFaults[] = {
    {"two frames not heard", {.deafFrames = 2}, true, false},
    {"echo late, but in time", {.echoDelay = 1'500}, true, true},
    {"echo of the try before", {.echoDelay = 2'500}, true, true},
    {"three frames not heard", {.deafFrames = 3}, false, false},
    {"no echo", {.silent = true}, false, true},
    {"a byte before the echo", {.extraBytes = 1}, false, true},
    {"a byte of the echo lost", {.lostBytes = 1}, false, true},
    {"babble", {.babble = true}, false, true},
};

class LineFaults : public Workplace {
  protected:
    explicit LineFaults(int language = 1) { setLanguage(language); }

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
    void expectMotorNotOn() {
        expectBox({"Motor konnte nicht eingeschaltet werden",
                   "It was not possible to switch the motor on."},
                  Critical, {"Motor ein", "Motor On"});
    }
    void expectDiscontinued() {
        expectBox({"Statische Nullpunkt-Korrektur abgebrochen",
                   "Static zero-point correction has been discontinued!"},
                  Exclamation, {"Meldung", "Message"});
    }
    void expectNoStream() {
        expectBox({"Nach 15 Sek kein Empfang", "No reception after 15 sec!"}, Exclamation,
                  {"Meldung", "Message"});
        expectDiscontinued();
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
    /// Until all expected boxes came, and a little more.
    Journey told(double within = 180'000) {
        const Until came = until(
            "the boxes", [this] { return boxes.allCame(); }, within);
        co_await came;
        co_await pass(100);
    }
    static Journey corrected() {
        press(frm::VorStatNPK, "pbok");
        co_await until("the correction", [] { return canPress(frm::StatMessen, "pbWeiter"); });
    }
    /// Nothing was written, and a measurement needs the selection anew.
    Journey abortCorrection() {
        expectCorrectionAborted();
        press(frm::StatMessen, "pbAbbrechen");
        co_await arrive(frm::Desktop);
        expectIdleDesktop();
        EXPECT_FALSE(canPress(frm::Desktop, "pbMessen"));
        EXPECT_FALSE(control<QAction>(frm::Desktop, "mnuStartMessen")->isEnabled());
        EXPECT_FALSE(line.stand().offsetWritten() || line.stand().factorWritten());
        EXPECT_FALSE(gMessenFreigabe);
    }
};

} // namespace support
