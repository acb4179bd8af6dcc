#include "link/frmInterface.h"

#include <QScopeGuard>

#include "link/controller.h"
#include "platform/runtime.h"
#include "records/leitung.h"
#include "session/session.h"
#include "session/sprache.h"
#include "windows/msgbox.h"

using namespace platform;

namespace {

constexpr Beschriftung english[] = {
    {"", "Interface Settings"},
    {"FrAnschluss", "Port To The Controller"},
    {"Label1", "&COM port:"},
    {"FrParameter", "Transmission"},
    {"lbBaud", "&Baud rate:"},
    {"lbParitaet", "&Parity:"},
    {"lbDatenbits", "&Data bits:"},
    {"lbStoppbits", "&Stop bits:"},
    {"pbSS2", "Seco&nd Interface ..."},
    {"pbok", "&OK"},
    {"pbexit", "C&ancel"},
};

} // namespace

frmInterface::frmInterface() : Anschlussmaske(steuerleitung) {
    onClick(ui.pbSS2, [this] { pbSS2_Click(); });
}

void frmInterface::Form_Load() try {
    mVorher = MSComm1.CommPort();
    beschriftungenSetzen(ui, *this, english);
    einstellungZeigen();
    ui.SbCOM->setFocus();
} catch (const Fehler &fehler) {
    fehlerMerken(fehler);
    msgBox(inSprache({"Fehler I_1001 - (", "ERROR I_1001 - ("}) + Str(fehler.number()) + ") " +
               gFehlerText,
           Critical, inSprache({"!! Achtung Fehler !!", " !! Attention !!"}));
}

void frmInterface::Form_Unload() {
    if (!mGespeichert)
        fnc_Zurücknehmen();
}

/// The trial of ports has changed the live control: back to what the table says.
void frmInterface::fnc_Zurücknehmen() const try {
    const int port = leitungLesen(steuerleitung.tabelle).port;
    if (MSComm1.CommPort() != port)
        portWechseln(MSComm1, port);
} catch (const Fehler &fehler) {
    portWechseln(MSComm1, mVorher); // the table does not tell: as it was before the trial
    fehlerBox("I_1002 - ", fehler);
}

void frmInterface::pbok_Click() try {
    const Schnittstelle fields = felder();
    leitungFreiPrüfen(); // the line is changed under whoever uses it
    // Tried as it will be stored, so that nothing is stored that the line cannot be set to.
    portWechseln(MSComm1, static_cast<int>(Val(ui.txtCOM->text())));
    auto zurück = qScopeGuard([vorher = MSComm1.Settings()] { MSComm1.setSettings(vorher); });
    MSComm1.setSettings(fields.parameter());
    if (fnc_PortPrüfen() == fehlernummer::PortSettings)
        return; // told
    if (!gSS1Vorhanden) {
        meldung({"Diese Schnittstelle gibt es nicht!\rBitte ändern Sie die Einstellungen",
                 "This interface does not exist!\rChange the settings, please!"},
                Exclamation, {"Achtung!", "!Attention!"});
        return;
    }
    fnc_InterfaceSpeichern(ui.txtCOM->text(), fields.baud, fields.datenbits, fields.parität,
                           fields.stoppbits);
    zurück.dismiss();
    mGespeichert = true;
    unload();
} catch (const Fehler &fehler) {
    fehlerBox("I_1003 - ", fehler);
}

void frmInterface::pbSS2_Click() {
    form(frm::SecondInterface).showModal();
    unload();
}
