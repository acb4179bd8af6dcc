#include "link/motorbedienung.h"

#include <QScopeGuard>

#include "link/controller.h"
#include "session/screens.h"
#include "session/session.h"
#include "session/sprache.h"
#include "windows/msgbox.h"

using namespace platform;

bool Motorbedienung::ein() {
    mEinlauf();
    mFenster.setMoteinEnabled(false);
    mFenster.setDrehREnabled(false);
    mFenster.disableFront();
    const auto wieder = qScopeGuard([this] { mFenster.enableFront(); });
    mFenster.showMotorEin(inSprache({"Motor wird eingeschaltet", "Motor is switched on"}));
    if (fnc_BefehlSenden("E", gDrehrichtung, "60")) {
        mFenster.focusMotaus(); // left alone it would fall on the button that ends the program
        einlaufStarten();
        return true;
    }
    meldung(mTexte.nichtEin, Critical, mTexte.nichtEinTitel);
    mFenster.setMoteinEnabled(true);
    mFenster.focusMotein();
    mFenster.setDrehREnabled(!gMotorEin);
    mFenster.setMotausEnabled(gMotorEin);
    mFenster.showMotorInfo({});
    return false;
}

bool Motorbedienung::aus() {
    mFenster.setMoteinEnabled(false);
    mFenster.setDrehREnabled(false);
    mFenster.setMotausEnabled(false);
    mFenster.disableFront();
    const auto wieder = qScopeGuard([this] {
        mFenster.setMotausEnabled(gMotorEin);
        mFenster.enableFront();
    });
    mFenster.showMotorInfo(inSprache({"Motor wird ausgeschaltet!", "Motor is switched off!"}));
    tiEinlauf.setEnabled(false);
    if (fnc_BefehlSenden("E", gDrehrichtung, "00")) {
        mFenster.setMoteinEnabled(true);
        mFenster.focusMotein();
        mFenster.setDrehREnabled(true);
        mFenster.showMotorInfo(inSprache({"Motor ist ausgeschaltet", "Motor is switched off"}));
        motorzeitMerken();
        gMessStatus = Messstatus::Ruhe;
        return true;
    }
    meldung(mTexte.nichtAus, Exclamation, mTexte.nichtAusTitel);
    mFenster.setMotausEnabled(true);
    mFenster.focusMotaus();
    return false;
}

bool Motorbedienung::messbereit(const Messtexte &texte) {
    gMessenFreigabe = true;
    gMessStatus = Messstatus::Ruhe;
    if (!gEingelaufen && meldung(texte.nichtEingelaufen, YesNo + Exclamation + SecondButtonDefault,
                                 texte.nichtEingelaufenTitel) == No) {
        gMessenFreigabe = false;
        return false;
    }
    if (gDrehrichtung == 0) { // also when it was taken back since the running-in
        meldung(texte.ohneRichtung, Exclamation, texte.ohneRichtungTitel);
        form(frm::MotorDrehR).showModal();
        return false;
    }
    gEinlaufStatus = Einlaufstatus::NichtBegonnen;
    tiEinlauf.setEnabled(false);
    gRestMinuten = gEinlaufzeit;
    gEingelaufen = true;
    return true;
}
