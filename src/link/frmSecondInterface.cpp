#include "link/frmSecondInterface.h"

#include "link/controller.h"
#include "link/ergometer.h"
#include "platform/runtime.h"
#include "session/sprache.h"
#include "windows/msgbox.h"

using namespace platform;

namespace {

constexpr Beschriftung english[] = {
    {"", "Second Interface Settings"},
    {"FrAnschluss", "Port To The Ergometer"},
    {"Label1", "&COM port:"},
    {"FrParameter", "Transmission"},
    {"lbBaud", "&Baud rate:"},
    {"lbParitaet", "&Parity:"},
    {"lbDatenbits", "&Data bits:"},
    {"lbStoppbits", "&Stop bits:"},
    {"pbSS1", "&First Interface ..."},
    {"pbok", "&OK"},
    {"pbexit", "C&ancel"},
};

} // namespace

frmSecondInterface::frmSecondInterface() : Anschlussmaske(ergometerleitung) {
    ui.pbSS2->setObjectName("pbSS1");
    ui.cmbStoppbits->setItemText(1, CStr(1.5)); // as this machine writes it
    onClick(ui.pbSS2, [this] { pbSS1_Click(); });
}

void frmSecondInterface::beschriften() {
    if (inDeutsch()) {
        ui.retranslateUi(this);
        setCaption("Parameter der zweiten Schnittstelle");
        ui.FrAnschluss->setTitle("Anschluss zum Ergometer");
        ui.pbSS2->setText("&Erste Schnittstelle ...");
    }
    englischBeschriften(*this, english);
    mOhneAnschluss = inSprache({"Ohne diesen Anschluss kann die Endprüfung nicht selbst messen.",
                                "Without this port the final test cannot measure by itself."});
}

void frmSecondInterface::Form_Load() try {
    beschriften();
    mStartwert = MSComm2.CommPort();
    einstellungZeigen(mStartwert);
    zustandZeigen();
    ui.SbCOM->setFocus();
} catch (const Fehler &fehler) {
    fehlerBox("1005 - ", fehler);
}

bool frmSecondInterface::anschlussVergeben(int port) {
    if (port != MSComm1.CommPort())
        return false;
    const QString nummer = QString::number(port);
    meldung({"Die Schnittstelle " + nummer + " ist reserviert!",
             "This interface " + nummer + " is reserved!"},
            Critical, {"Ändern der Schnittstelle", "Change the interface"});
    ui.SbCOM->setValue(mStartwert); // which is tried like any other
    return true;
}

void frmSecondInterface::pbok_Click() try {
    fnc_SS2Speichern(ui.txtCOM->text(), felder());
    fnc_SS2Prüfen();
    if (!gSS2Vorhanden) {
        ui.Label2->setText(inSprache({"Nicht vorhanden!", "Unavailable!"}));
        const int antwort = meldung({"Diese Schnittstelle gibt es nicht!\r"
                                     "Sie können keine automatische Messung vornehmen!\r"
                                     "Wollen Sie die Schnittstellenparameter jetzt ändern?",
                                     "This interface does not exist!\r"
                                     "You can not make an automatic measurement!\r"
                                     "Do you want to change the interface parameters now?"},
                                    YesNo, {"Achtung!", "Attention!"});
        if (antwort == Yes) {
            ui.cmbBaud->setFocus();
            return;
        }
        ui.Label2->setText(inSprache({"Vorhanden!", "Available!"}));
    }
    unload();
} catch (const Fehler &fehler) {
    fehlerBox("1005 - ", fehler);
}

void frmSecondInterface::pbSS1_Click() {
    form(frm::Interface).showModal();
    unload();
}
