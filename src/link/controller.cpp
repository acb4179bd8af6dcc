#include "link/controller.h"

#include <utility>

#include "link/welle.h"
#include "platform/fehler.h"
#include "platform/runtime.h"
#include "session/motorfenster.h"
#include "session/screens.h"
#include "session/session.h"
#include "session/sprache.h"
#include "windows/msgbox.h"

using namespace platform;

namespace {

constexpr int echoMilliseconds = 2'000;
constexpr int standstillMilliseconds = 12'000;
constexpr int modeMilliseconds = 10'000;
constexpr int resetMilliseconds = 20'000;
constexpr int frameTries = 3;
constexpr int requestTries = 2;
constexpr std::uint8_t leverArmMode = 7;
constexpr auto standstillDigits = QLatin1String("0000");

bool exchangeRuns = false;

/// One exchange on the line. A second one inside it is refused rather than mixed in.
class Exchange {
  public:
    Exchange() {
        leitungFreiPrüfen();
        exchangeRuns = true;
    }
    ~Exchange() { exchangeRuns = false; }
    Exchange(const Exchange &) = delete;
    Exchange &operator=(const Exchange &) = delete;

  private:
    HoldActivations mHold;
};

void send(const QString &text) {
    MSComm1.Output(text.toLatin1());
}

void shortDelay() {
    countedDelay(kurzeVerzögerung);
}

void longDelay() {
    countedDelay(langeVerzögerung);
}

void armTimer1(int milliseconds) {
    Timer1.setEnabled(false);
    Timer1.setInterval(milliseconds);
    Timer1.setEnabled(true);
}

/// An exchange that was refused leaves the time-out of the one that runs alone.
void stopTimer1(const Fehler &fehler) {
    if (fehler.number() != fehlernummer::LineBusy)
        Timer1.setEnabled(false);
}

/// While a box stands the exchange does not touch the line: whoever ends the process may.
class ExchangePaused {
  public:
    ExchangePaused() : mRan(std::exchange(exchangeRuns, false)) {}
    ~ExchangePaused() { exchangeRuns = mRan; }
    ExchangePaused(const ExchangePaused &) = delete;
    ExchangePaused &operator=(const ExchangePaused &) = delete;

  private:
    bool mRan;
};

const Text boxTitle{"Error", "Error"};

/// Most boxes of this line exist in one language only.
void errorBox(const QString &tag, const Fehler &fehler) {
    stopTimer1(fehler);
    fehlerMerken(fehler);
    if (gKeineMeldung >= 1)
        return;
    const ExchangePaused paused;
    msgBox(tag + Str(fehler.number()) + ' ' + gFehlerText, Critical, boxTitle.english);
}

void tellStatMessen(const QString &text) {
    if (Screen *screen = loaded(frm::StatMessen))
        screen->showInfo(text);
}

} // namespace

void controllerVorbereiten() {
    Timer1.onTick = [] {
        beep();
        if (gDesktopAktiv)
            gTimeoutTimer1 = true;
        else
            Timer1.setEnabled(false);
    };
    tiDrehzahl.onTick = [] {
        tiDrehzahl.setEnabled(false);
        gTimeoutDrehzahl = true;
    };
}

bool fnc_BefehlSenden(const QString &command, std::int16_t direction, const QString &value) try {
    const Exchange exchange;
    MSComm1.recover();
    if (!MSComm1.PortOpen())
        MSComm1.setPortOpen(true);
    send("-");
    longDelay();
    const QString frame = frameText(command, direction, value);
    if (!fnc_FrameSenden(frame)) {
        if (gKeineMeldung < 1) {
            const ExchangePaused paused;
            meldung({"1 - Keine Kommunikation mit dem Controller möglich!",
                     "Communication with the controller is not possible!"},
                    Critical, {"Fehlermeldung", "Error Message"});
        }
        hauptfenster().setMoteinEnabled(!gMotorEin);
        return false;
    }
    const bool stop = frame.mid(2) == standstillDigits;
    if (!stop)
        welleLäuftAn();
    send(">");
    longDelay();
    send(">");
    longDelay();
    send(">");
    if (stop)
        welleSteht();
    return true;
} catch (const Fehler &fehler) {
    errorBox("Error 5007-", fehler);
    return false;
}

bool fnc_FrameSenden(const QString &frame) try {
    const QString echo = fnc_HexString(frame.toLatin1());
    for (int attempts = 0; attempts < frameTries; ++attempts) {
        send("*" + frame);
        MSComm1.discardInput();
        shortDelay();
        send("+");
        shortDelay();
        if (fnc_EchoWarten(echo)) {
            Timer1.setEnabled(false);
            return true;
        }
        send("-");
        shortDelay();
        send("-");
        shortDelay();
    }
    return false;
} catch (const Fehler &fehler) {
    errorBox("Error 5006-", fehler);
    return false;
}

bool fnc_EchoWarten(const QString &pattern) try {
    QString received;
    gTimeoutTimer1 = false;
    armTimer1(echoMilliseconds);
    while (gDesktopAktiv) {
        pump();
        if (MSComm1.InBufferCount() > 0)
            received += fnc_HexString(MSComm1.Input());
        if (received == pattern)
            return true;
        if (fnc_TimeoutAbfragen())
            return false;
    }
    return false;
} catch (const Fehler &fehler) {
    errorBox("Error 5005-", fehler);
    return false;
}

bool fnc_TimeoutAbfragen() {
    if (!gTimeoutTimer1)
        return false;
    gTimeoutTimer1 = false;
    Timer1.setEnabled(false);
    return true;
}

void fnc_PortÖffnen() try {
    MSComm1.recover();
    if (!MSComm1.PortOpen())
        MSComm1.setPortOpen(true);
} catch (const Fehler &fehler) {
    errorBox("Error 5011-", fehler); // the caller then fails at its first byte
}

bool fnc_FrequenzLesen() try {
    const Exchange exchange;
    tiDrehzahl.setEnabled(false);
    gTimeoutDrehzahl = false;
    send("-");
    shortDelay();
    send("g");
    shortDelay();
    tiDrehzahl.setInterval(standstillMilliseconds);
    tiDrehzahl.setEnabled(true);
    FrequenzDecoder decoder;
    bool done = false;
    while (!done && gDesktopAktiv) {
        pump();
        if (MSComm1.InBufferCount() == 0) {
            if (gTimeoutDrehzahl)
                break;
            continue;
        }
        for (const char byte : MSComm1.Input()) {
            done = decoder.feed(static_cast<std::uint8_t>(byte));
            if (done)
                break;
            if (gTimeoutDrehzahl) {
                tellStatMessen("Timer");
                done = true;
                break;
            }
        }
    }
    tiDrehzahl.setEnabled(false);
    return false;
} catch (const Fehler &fehler) {
    errorBox("Error 5009-", fehler);
    if (fehler.number() != fehlernummer::LineBusy) // else it is that of the exchange that runs
        tiDrehzahl.setEnabled(false);
    return false;
}

bool fnc_MotorAus() {
    const HoldActivations hold;
    bool done = false;
    try {
        fnc_PortÖffnen();
        if (fnc_BefehlSenden("E", gDrehrichtung, "00")) {
            fnc_FrequenzLesen();
            done = fnc_BefehlSenden("A", gDrehrichtung, "00");
        }
        if (done) {
            motorfenster().setMoteinEnabled(true); // also when it has been off all the time
            motorfenster().setMotausEnabled(false);
            send("-");
            countedDelay(10 * kurzeVerzögerung);
        }
    } catch (const Fehler &fehler) {
        errorBox("Error 5010-", fehler);
        done = false;
    }
    motorfenster().enableFront();
    return done;
}

std::int16_t fnc_BetriebsartLesen() try {
    const Exchange exchange;
    gTimeoutTimer1 = false;
    fnc_PortÖffnen();
    MSComm1.discardInput();
    send("#");
    shortDelay();
    armTimer1(modeMilliseconds);
    int tries = 0;
    while (gDesktopAktiv) {
        pump();
        if (MSComm1.InBufferCount() > 0) {
            const QByteArray bytes = MSComm1.Input();
            if (bytes.size() == 1) {
                Timer1.setEnabled(false);
                return static_cast<std::uint8_t>(bytes[0]) == leverArmMode ? 1 : 2;
            }
        }
        if (!fnc_TimeoutAbfragen())
            continue;
        send("-");
        shortDelay();
        if (++tries == requestTries) {
            const ExchangePaused paused;
            meldung({"Keine Daten empfangen!", "No data received!"}, Exclamation,
                    {"Meldung", "Message"});
            return 0;
        }
        MSComm1.discardInput();
        send("#");
        shortDelay();
        armTimer1(modeMilliseconds);
    }
    return 0;
} catch (const Fehler &fehler) {
    stopTimer1(fehler);
    fehlerBox({"Fehler 4000 - ", "ERROR 4000 - "}, fehler, boxTitle);
    return 0;
}

bool fnc_Reset() try {
    const Exchange exchange;
    gTimeoutTimer1 = false;
    fnc_PortÖffnen();
    QByteArray reply;
    MSComm1.discardInput();
    send("r");
    shortDelay();
    armTimer1(resetMilliseconds);
    int tries = 0;
    while (gDesktopAktiv) {
        pump();
        if (MSComm1.InBufferCount() > 0)
            reply += MSComm1.Input();
        if (reply == "Ok1") {
            Timer1.setEnabled(false);
            return true;
        }
        if (!fnc_TimeoutAbfragen())
            continue;
        ++tries;
        send("-");
        shortDelay();
        send("-");
        shortDelay();
        tellStatMessen(QString::number(tries) + " Timeout");
        if (tries == requestTries) {
            const ExchangePaused paused;
            meldung({"Kein Reset möglich!", "'Reset' is not possible!"}, Exclamation,
                    {"Meldung", "Message"});
            return false;
        }
        MSComm1.discardInput();
        reply.clear();
        send("r");
        shortDelay();
        armTimer1(resetMilliseconds);
    }
    return false;
} catch (const Fehler &fehler) {
    stopTimer1(fehler);
    fehlerBox({"Fehler 4001 - ", "ERROR 4001 - "}, fehler, boxTitle);
    return false;
}

void datenstromBeenden() {
    if (!MSComm1.PortOpen())
        return;
    send("-");
    shortDelay();
}

bool leitungFrei() {
    return !exchangeRuns;
}

void leitungFreiPrüfen() {
    if (exchangeRuns) {
        throw Fehler(fehlernummer::LineBusy,
                     {"Die Leitung zum Controller ist noch beschäftigt. Bitte warten Sie.",
                      "The line to the controller is still busy. Please wait."});
    }
}

void motorStillschweigendAus() {
    gKeineMeldung = 1;
    fnc_BefehlSenden("E", gDrehrichtung, "00");
    gKeineMeldung = 0;
}
