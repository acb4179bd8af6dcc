#include "link/frmInterface.h"

#include <QScopeGuard>

#include "link/controller.h"
#include "link/interface.h"
#include "platform/runtime.h"
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

frmInterface::frmInterface() {
    ui.setupUi(this);
    ui.cmbBaud->addItems(Schnittstelle::baudraten());
    ui.cmbDatenbits->addItems(Schnittstelle::datenbitzahlen());
    ui.cmbParitaet->addItems(Schnittstelle::paritäten());
    ui.cmbStoppbits->addItems(Schnittstelle::stoppbitzahlen());
    on(ui.SbCOM, &QScrollBar::valueChanged, [this] { SbCOM_Change(); });
    onClick(ui.pbok, [this] { pbok_Click(); });
    onClick(ui.pbexit, [this] { unload(); });
    onClick(ui.pbSS2, [this] { pbSS2_Click(); });
    onEnter(this, [this] { pbok_Click(); });
    onEscape([this] { unload(); });
}

void frmInterface::beschriften() {
    beschriftungenSetzen(ui, *this, english);
}

void frmInterface::Form_Load() {
    mVorher = MSComm1.CommPort();
    try {
        beschriften();
        ui.pbSS2->setEnabled(exists(frm::SecondInterface));
        fnc_InterfaceAnzeigen();
        ui.SbCOM->setFocus();
    } catch (const Fehler &fehler) {
        fehlerMerken(fehler);
        msgBox(inSprache({"Fehler I_1001 - (", "ERROR I_1001 - ("}) + Str(fehler.number()) + ") " +
                   gFehlerText,
               Critical, inSprache({"!! Achtung Fehler !!", " !! Attention !!"}));
    }
}

void frmInterface::Form_Unload() {
    if (!mGespeichert)
        fnc_Zurücknehmen();
}

void frmInterface::fnc_InterfaceAnzeigen() {
    const InterfaceZeile row = interfaceLesen();
    ui.SbCOM->setValue(row.port);                  // txtCOM is empty, so nothing is tried
    ui.txtCOM->setText(QString::number(row.port)); // also one above those of the bar
    const Schnittstelle fields = Schnittstelle::ausParameter(row.parameter);
    ui.cmbBaud->setCurrentIndex(ui.cmbBaud->findText(fields.baud));
    ui.cmbParitaet->setCurrentIndex(ui.cmbParitaet->findText(fields.parität));
    ui.cmbDatenbits->setCurrentIndex(ui.cmbDatenbits->findText(fields.datenbits));
    ui.cmbStoppbits->setCurrentIndex(ui.cmbStoppbits->findText(fields.stoppbits));
}

/// The trial of ports has changed the live control: back to what the table says.
void frmInterface::fnc_Zurücknehmen() try {
    const int port = interfaceLesen().port;
    if (MSComm1.CommPort() == port)
        return;
    if (MSComm1.PortOpen())
        MSComm1.setPortOpen(false);
    MSComm1.setCommPort(port);
} catch (const Fehler &fehler) {
    MSComm1.setPortOpen(false);
    MSComm1.setCommPort(mVorher); // the table does not tell: as it was before the trial
    fehlerBox("I_1002 - ", fehler);
}

void frmInterface::SbCOM_Change() {
    const int value = ui.SbCOM->value();
    if (value > höchsterAnschluss) {
        ui.SbCOM->setValue(höchsterAnschluss); // comes back here
        return;
    }
    if (mVersuchLäuft)
        return;
    const bool tryIt = !ui.txtCOM->text().isEmpty();
    if (tryIt) {
        // A box takes the release of the mouse away, and a pressed bar would go on by itself.
        ui.SbCOM->setEnabled(false);
        ui.SbCOM->setEnabled(true);
        ui.SbCOM->setFocus();
        mVersuchLäuft = true;
        const auto vorbei = qScopeGuard([this] { mVersuchLäuft = false; });
        if (MSComm1.PortOpen())
            MSComm1.setPortOpen(false);
        MSComm1.setCommPort(value);
        if (fnc_PortPrüfen() == fehlernummer::PortSettings)
            gSS1Vorhanden = true; // there, and its settings are mended here
    }
    ui.txtCOM->setText(QString::number(value));
    if (tryIt)
        zustandZeigen();
}

void frmInterface::zustandZeigen() {
    ui.Label2->setText(inSprache(gSS1Vorhanden ? Text{"Vorhanden.", "Existing"}
                                               : Text{"Nicht vorhanden!", "Not existing!"}));
    QPalette colours = ui.Label2->palette();
    colours.setColor(QPalette::Window, QColor(32, 32, 32)); // the bright colours need a dark ground
    colours.setColor(QPalette::WindowText, gSS1Vorhanden ? QColor(0, 255, 0) : QColor(255, 0, 0));
    ui.Label2->setPalette(colours);
    ui.Label2->setAutoFillBackground(true);
}

void frmInterface::pbok_Click() try {
    const Schnittstelle fields{ui.cmbBaud->currentText(), ui.cmbParitaet->currentText(),
                               ui.cmbDatenbits->currentText(), ui.cmbStoppbits->currentText()};
    leitungFreiPrüfen(); // the line is changed under whoever uses it
    // Tried as it will be stored, so that nothing is stored that the line cannot be set to.
    if (MSComm1.PortOpen())
        MSComm1.setPortOpen(false);
    MSComm1.setCommPort(static_cast<int>(Val(ui.txtCOM->text())));
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
    MSComm1.setSettings(interfaceLesen().parameter);
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
