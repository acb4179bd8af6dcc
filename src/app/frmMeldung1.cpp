#include "app/frmMeldung1.h"

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
