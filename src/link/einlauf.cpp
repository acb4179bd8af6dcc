#include "link/einlauf.h"

#include "platform/runtime.h"
#include "session/motorfenster.h"
#include "session/screens.h"
#include "session/session.h"
#include "windows/msgbox.h"

namespace {

void tick() {
    if (!gDesktopAktiv) {
        tiEinlauf.setEnabled(false);
        return;
    }
    const bool over = einlaufSekunde();
    gEinlaufRestText = Format(gEinlaufMin, "00") + ':' + Format(gEinlaufSek, "00");
    if (over) {
        tiEinlauf.setEnabled(false);
        gEingelaufen = true;
        if (gFormStatus != Formstatus::Keiner)
            gFormStatus = Formstatus::Korrektur;
        platform::beep();
        form(frm::Meldung1).showNotice();
    }
    einlaufZeigen(gEinlaufRestText);
}

} // namespace

void einlaufVorbereiten() {
    tiEinlauf.onTick = tick;
}

void einlaufzeitSetzen() {
    gEinlaufMin = static_cast<std::int16_t>(Int(gEinlaufzeit));
    gEinlaufSek = static_cast<std::int16_t>(Int(Round(gEinlaufzeit * 100, 6)) - gEinlaufMin * 100);
}

void laufzeitSetzen() {
    gEinlaufMin = gLaufzeitMin;
    gEinlaufSek = 0;
}

void einlaufStarten() {
    gMotorStart = platform::now().time();
    tiEinlauf.setInterval(1000);
    tiEinlauf.setEnabled(true);
}

bool einlaufSekunde() {
    if (gEinlaufSek >= 1) {
        --gEinlaufSek;
        return false;
    }
    gEinlaufSek = 59;
    if (--gEinlaufMin >= 0)
        return false;
    gEinlaufMin = 0;
    gEinlaufSek = 0;
    return true;
}

void motorzeitMerken() {
    const int seconds = (gMotorStart.secsTo(platform::now().time()) + 86'400) % 86'400;
    gRestMinuten = seconds / 60 % 60;
    gRestSekunden = seconds % 60;
}
