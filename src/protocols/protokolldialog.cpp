#include "protocols/protokolldialog.h"

#include "records/toleranz.h"
#include "session/session.h"
#include "session/sprache.h"
#include "windows/msgbox.h"

void Protokolldialog::messfensterVerbergen() {
    if (Screen *messen = loaded(frm::Messen))
        messen->hide();
}

// Judged by limits of 0, every value would be out of them.
bool Protokolldialog::spezifikationVorhanden() {
    if (spezifikationMitID(gToleranzID))
        return true;
    meldung({"Die Spezifikation dieses Rezepts wurde gelöscht, ohne sie kann nicht gemessen "
             "werden.\rBitte brechen Sie ab und wählen Sie ein anderes Rezept, oder legen Sie "
             "dieses mit einer Spezifikation neu an.",
             "The specification of this recipe has been deleted; without it nothing can be "
             "measured.\rPlease cancel and choose another recipe, or enter this one anew with "
             "a specification."},
            platform::Exclamation, {"Meldung", "Message"});
    return false;
}

void Protokolldialog::abschließen(Messstatus messStatus) {
    gMessStatus = messStatus;
    mAbgeschlossen = true;
    unload();
}

void Protokolldialog::Form_Unload() {
    // The close box is no decision: nothing may be measured under a number without a head.
    if (!mAbgeschlossen)
        gMessStatus = abgebrochen;
    gMessungLäuft = false;
    Screen *messen = loaded(frm::Messen);
    if (gMessStatus == angenommen) {
        gProtokollTitel = titel();
        if (messen)
            messen->setCaption(messen->caption() + inSprache(mVorsatz) + gProtokollTitel);
    }
    if (messen)
        messen->show();
}
