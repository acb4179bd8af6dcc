#include "protocols/protokolldialog.h"

#include "session/session.h"
#include "session/sprache.h"

void Protokolldialog::messfensterVerbergen() {
    if (Screen *messen = loaded(frm::Messen))
        messen->hide();
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
