// Motor on and off, and the preconditions of a measurement.
#include "app/frmDesktop.h"

#include "link/controller.h"
#include "link/einlauf.h"
#include "link/interface.h"
#include "platform/fehler.h"
#include "session/session.h"
#include "session/sprache.h"
#include "windows/msgbox.h"

using namespace platform;

void frmDesktop::pbMotein_Click() try {
    fnc_PortPrüfen();
    if (!gSS1Vorhanden) {
        meldung({"Die Schnittstellenparameter gibt es nicht. \rBitte korrigieren Sie die "
                 "Einstellungen!",
                 "The interface settings do not exist . \rPlease correct it!"},
                Exclamation, {"Achtung!", "Attention!"});
        form(frm::Interface).showModal();
        return;
    }
    einlaufzeitSetzen();
    ui.pbMotein->setEnabled(false);
    ui.pbDrehR->setEnabled(false);
    disable();
    const QString wirdEin = inSprache({"Motor wird eingeschaltet", "Motor is switched on"});
    showMotorInfo(wirdEin);
    if (fnc_BefehlSenden("E", gDrehrichtung, "60")) {
        ui.pbMotaus->setFocus(); // left alone it would fall on the button that ends the program
        einlaufStarten();
        showMotorInfo(wirdEin);
    } else {
        meldung({"Motor konnte nicht eingeschaltet werden",
                 "It was not possible to switch the motor on."},
                Critical, {"Motor ein", "Motor On"});
        setMoteinEnabled(true);
        ui.pbMotein->setFocus();
        ui.pbDrehR->setEnabled(!gMotorEin);
        setMotausEnabled(gMotorEin);
        showMotorInfo({});
    }
    enable();
} catch (const Fehler &fehler) {
    enable();
    fehlerBox({"Fehler 6003- ", "ERROR 6003 - "}, fehler);
}

void frmDesktop::pbMotaus_Click() try {
    ui.pbMotein->setEnabled(false);
    ui.pbDrehR->setEnabled(false);
    ui.pbMotaus->setEnabled(false);
    disable();
    showMotorInfo(inSprache({"Motor wird ausgeschaltet!", "Motor is switched off!"}));
    tiEinlauf.setEnabled(false);
    if (fnc_BefehlSenden("E", gDrehrichtung, "00")) {
        setMoteinEnabled(true);
        ui.pbMotein->setFocus();
        ui.pbDrehR->setEnabled(true);
        ui.pbMotaus->setEnabled(false);
        showMotorInfo(inSprache({"Motor ist ausgeschaltet", "Motor is switched off"}));
        tiEinlauf.setEnabled(false);
        motorzeitMerken();
        gMessStatus = Messstatus::Ruhe;
    } else {
        meldung({"Fehler", "Error"}, Exclamation, {"Motor aus", "Motor Off"});
        ui.pbMotein->setEnabled(false);
        ui.pbMotaus->setEnabled(true);
        ui.pbMotaus->setFocus();
    }
    enable();
} catch (const Fehler &fehler) {
    setMotausEnabled(gMotorEin);
    enable();
    fehlerBox({"Fehler 6004- ", "ERROR 6004 - "}, fehler);
}

void frmDesktop::pbMessen_Click() {
    gMessenFreigabe = true;
    gMessStatus = Messstatus::Ruhe;
    if (!gEingelaufen) {
        const int antwort = meldung(
            {"Das Gerät ist noch nicht eingelaufen!\rWollen sie trotzdem die Messung "
             "beginnen ?",
             "The unit under test has not completed the run-up yet!\rDo you still want to "
             "start the measurement?"},
            YesNo + Exclamation + SecondButtonDefault, {"Messen starten", "Start The Measurement"});
        if (antwort == No) {
            gMessenFreigabe = false;
            return;
        }
    }
    if (gDrehrichtung == 0) { // also when it was taken back since the running-in
        meldung({"Bitte wählen Sie zuerst eine Motor-Drehrichtung",
                 "Please select a direction of rotation for the motor first!"},
                Exclamation, {"Vorbereiten der Messung", "Preparation For The Measurement"});
        gMessenFreigabe = true;
        form(frm::MotorDrehR).showModal();
        return;
    }
    gEinlaufStatus = Einlaufstatus::NichtBegonnen;
    tiEinlauf.setEnabled(false);
    gRestMinuten = gEinlaufzeit;
    gEingelaufen = true;
    form(frm::StatMessen).showModal();
}
