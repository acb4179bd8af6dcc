#include "app/seriennummer.h"

#include "link/anschluss.h"
#include "link/controller.h"
#include "platform/fehler.h"
#include "platform/guard.h"
#include "records/hebelarm.h"
#include "records/normal.h"
#include "session/session.h"
#include "session/sprache.h"
#include "windows/msgbox.h"

using namespace platform;

namespace {

bool fnc_NormalDatenLesen() {
    if (normalDatenLesen())
        return true;
    meldung({"Es existieren keine Kalibrierdaten zu diesem Gerät in der verwendeten Datenbank!",
             "There are no calibration data for this device in the database!"},
            Critical, {"!! Achtung Fehler !!", " !! Attention !!"});
    return false;
}

} // namespace

Seriennummer::Seriennummer(std::function<void(const QString &)> info,
                           std::function<void()> gefunden)
    : mInfo(std::move(info)), mGefunden(std::move(gefunden)) {
    mTimer2.onTick = [this] { guarded([this] { Timer2_Timer(); }); };
}

void Seriennummer::Seriennummer_ermitteln() try {
    ++mSeriennrVersuche;
    fnc_PortPrüfen();
    if (!gSS1Vorhanden) {
        if (mSeriennrVersuche > 1) {
            meldung({"Der Motor ist noch nicht eingeschaltet oder \r"
                     "die Schnittstellenparameter gibt es nicht!\r"
                     "Bitte korrigieren Sie die Einstellungen!\r"
                     "Bitte entfernen Sie ggf. kurzzeitig das Kabel an der USB-Schnittstelle!",
                     "The engine is not yet switched on or \r"
                     "the interface parameters do not exist!\r"
                     "Please correct the settings!\r"
                     "Please remove the cable at the USB interface for a short time!"},
                    Exclamation, {"Achtung!", "Achtung!"});
        }
        return;
    }
    mInfo(inSprache({"Die Seriennummer wird ermittelt!", "Motor is switched on"}));
    fnc_PortÖffnen();
    MSComm1.Output("N");
    mTimer2.setEnabled(true);
} catch (const Fehler &fehler) {
    fehlerBox("6002neu - ", fehler);
}

void Seriennummer::Timer2_Timer() try {
    mTimer2.setEnabled(false);
    if (MSComm1.InBufferCount() > 0)
        gSeriennummer = QString::fromLatin1(MSComm1.Input());
    if (!gSeriennummer.isEmpty()) {
        if (fnc_NormalDatenLesen()) {
            fnc_HebelarmDatumLesen();
            mGefunden();
        }
    } else if (mSeriennrVersuche > 1) {
        meldung({"Der Motor ist noch nicht eingeschaltet, \r"
                 "die Seriennummer konnte nicht ermittelt werden!\r"
                 "Bitte korrigieren Sie die Einstellungen!",
                 "The engine is not yet switched on, \r"
                 "the serial number could not be determined!\r"
                 "Please correct the settings!"},
                Exclamation, {"Achtung!", "Achtung!"});
    }
} catch (const Fehler &fehler) {
    fehlerBox("6008 - ", fehler);
}
