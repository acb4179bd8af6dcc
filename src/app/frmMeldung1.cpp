#include "app/frmMeldung1.h"

#include "session/session.h"
#include "session/sprache.h"
#include "windows/zeichen.h"

using namespace platform;

frmMeldung1::frmMeldung1() {
    ui.setupUi(this);
    mTimer1.onTick = handler([this] {
        mTimer1.setEnabled(false);
        unload();
    });
}

void frmMeldung1::Form_Load() {
    setCaption(inSprache({"Meldung", "Message"}));
    ui.laMeldung1->setText(inSprache({"Die Einlaufzeit", "Running-in time"}));
    ui.laMeldung2->setText(inSprache({"ist beendet.", "is over."}));
    ui.anzZeichen->zeige(Zeichen::Gut, ui.laMeldung2->text());
    mTimer1.setEnabled(true);
}

// The calibration of the lever arm goes on when the notice has gone; from below another screen it
// does when that has gone.
void frmMeldung1::Form_Unload() {
    Screen *kalibrierung = loaded(frm::Kalibrierung);
    if (kalibrierung && gFormStatus == Formstatus::Korrektur && frontScreen() == kalibrierung)
        requestActivation(*kalibrierung);
}
