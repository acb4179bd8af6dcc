#include "measure/empfang.h"

#include "link/controller.h"
#include "measure/stromlesen.h"
#include "session/session.h"
#include "session/sprache.h"
#include "windows/msgbox.h"

using namespace platform;

namespace {

constexpr int watchdogMilliseconds = 18'000;
constexpr int transmissionMilliseconds = 120;
constexpr int silentMilliseconds = 60'000; // from rest to the first six turns, and to spare

/// A watchdog tells, it does not end the reception: the next data arm it again.
void warn(Timer &timer, const Text &text) {
    timer.setEnabled(false);
    if (!gDesktopAktiv)
        return;
    gStopMessung = true;
    meldung(text, Critical, {"Kommunikationsfehler", "Communication Error"});
}

} // namespace

void fnc_SechsRundenStarten() try {
    MSComm1.Output("6");
    countedDelay(kurzeVerzögerung);
} catch (const Fehler &fehler) {
    fehlerBox("3001 - ", fehler);
}

SechsRundenEmpfang::SechsRundenEmpfang() {
    Timer1_6R.onTick = [this] {
        warn(Timer1_6R, {"Keine Daten bei ca. 3 x 6 Runden!", "No data at ca. 3 x 6 rounds!"});
    };
    Timer2_6R.onTick = [this] {
        warn(Timer2_6R,
             {"Dauer der Übertragung nach C0 zu lang!", "Transmission to C0 takes too long!"});
    };
}

void SechsRundenEmpfang::stop() {
    Timer1_6R.setEnabled(false);
    Timer1_6R.setInterval(0);
    Timer2_6R.setEnabled(false);
    Timer2_6R.setInterval(0);
}

void SechsRundenEmpfang::fnc_SechsRundenEmpfang(const Zeigen &zeigen,
                                                const std::function<bool()> &abgelöst,
                                                bool allein) try {
    Timer1_6R.setEnabled(false);
    Timer2_6R.setInterval(transmissionMilliseconds);
    Timer2_6R.setEnabled(false);
    Timer1_6R.setInterval(watchdogMilliseconds);
    MSComm1.discardInput();
    Timer silence(silentMilliseconds);
    silence.onTick = [] { gStopMessung = true; };
    silence.setEnabled(allein);
    SechsRundenDecoder decoder;
    using Ereignis = SechsRundenDecoder::Ereignis;
    stromLesen(
        [&] {
            return gDesktopAktiv && gMessStatus == Messstatus::Messen && !gTimeoutTimer1 &&
                   !(allein && gStopMessung) && !abgelöst();
        },
        [&](std::uint8_t byte) {
            const Ereignis was = decoder.feed(byte);
            if (was == Ereignis::Sync || was == Ereignis::Leistung)
                Timer1_6R.setEnabled(was == Ereignis::Sync);
            if (was != Ereignis::Sync && was != Ereignis::Nichts)
                zeigen(was, decoder.value());
        },
        [&] {
            Timer1_6R.setEnabled(true);
            silence.setEnabled(false);
            silence.setEnabled(allein);
        });
    if (gTimeoutTimer1 && !abgelöst()) {
        gTimeoutTimer1 = false;
        Timer2_6R.setEnabled(false);
        meldung({"Nach 18 Sek kein Empfang", "No reception after 18 sec"}, Exclamation,
                {"Meldung", "Message"});
    }
    stop();
} catch (const Fehler &fehler) {
    stop();
    fehlerBox("3002 - ", fehler);
}
