#include "finaltest/frmEndpruef.h"

#include <utility>

#include "controls/eintrag.h"
#include "finaltest/epablauf.h"
#include "finaltest/epbericht.h"
#include "link/einlauf.h"
#include "link/ergometer.h"
#include "link/motorlampe.h"
#include "platform/clock.h"
#include "platform/runtime.h"
#include "records/epmesswerte.h"
#include "session/auswahl.h"
#include "session/session.h"
#include "session/sprache.h"
#include "store/sqltext.h"
#include "windows/msgbox.h"
#include "windows/preview.h"
#include "windows/waiting.h"
#include "windows/zeichen.h"

using namespace platform;

namespace {

constexpr Beschriftung english[] = {
    {"", "Final Test Protocol For Ergometers"},
    {"FrGerät", "Unit Under Test"},
    {"lbGerätetyp", "Type of unit:"},
    {"lbSerNr", "Serial No.:"},
    {"lbMesskopf", "Measuring head No.:"},
    {"lbKundenName", "Customer:"},
    {"FrPrüfung", "Test"},
    {"lbPrüferText", "Inspector:"},
    {"lbPrüfDat", "Date of test:"},
    {"lbKalDat", "Valid until:"},
    {"lbRezName", "Recipe:"},
    {"pbRezept", "&Recipes ..."},
    {"FrSicherheit", "Electrical Safety"},
    {"lbMOhm", "Insulation resistance:"},
    {"lbOhm", "Protective conductor:"},
    {"lbµA", "Leakage current:"},
    {"FrDruck", "Blood Pressure: Display At A Pressure Of"},
    {"lbAblass", "Deflation rate:"},
    {"FrMotor", "Motor"},
    {"lbDrehrichtungText", "Direction of rotation:"},
    {"lbEinlaufText", "Running-in time left:"},
    {"pbDrehR", "&Direction"},
    {"pbMotein", "Motor &ON"},
    {"pbMotaus", "Motor O&FF"},
    {"FrMessen", "Measuring And Protocols"},
    {"pbok", "&Save"},
    {"pbEingNeu", "&New Entry"},
    {"pbMessen", "Start &Measuring"},
    {"pbProtokoll", "&Protocol"},
    {"pbListe", "&All Tests ..."},
    {"pbBeenden", "E&xit"},
};

/// The running-in counts whole minutes here.
void ganzeMinutenSetzen() {
    gEinlaufMin = static_cast<std::int16_t>(Int(gEinlaufzeit));
    gEinlaufSek = 0;
}

/// The line for a load, W; any length but one to three digits takes the load off.
QString fnc_LastBefehl(const QString &ziffern) {
    const QString zeile = lastzeile(ziffern);
    return zeile.isEmpty() ? "W000[13]" : zeile;
}

QString laufText(const EPLauf &lauf) {
    QStringList teile{
        inSprache({"Letzter Lauf: Prüfschritte %1", "Last run: test steps %1"}).arg(lauf.schritte),
        inSprache({"außer Toleranz %1", "out of tolerance %1"}).arg(lauf.außerToleranz)};
    if (lauf.unbeurteilt > 0)
        teile += inSprache({"nicht beurteilt %1", "not judged %1"}).arg(lauf.unbeurteilt);
    if (lauf.dauer) {
        constexpr int minute = 60;
        teile += inSprache({"Dauer %1:%2 min", "duration %1:%2 min"})
                     .arg(*lauf.dauer / minute)
                     .arg(*lauf.dauer % minute, 2, 10, QChar('0'));
    }
    if (lauf.abgebrochen)
        teile += inSprache({"abgebrochen", "stopped"});
    return teile.join(", ");
}

} // namespace

frmEndprüf::frmEndprüf()
    : mMotor(*this,
             {{"Motor konnte nicht eingeschaltet werden", "Engine could not be switched on"},
              {"Motor ein", "Engine on"},
              {"Fehler", "Error"},
              {"Motor aus", "Engine off"}},
             ganzeMinutenSetzen) {
    ui.setupUi(this);
    ui.pbMotaus->setIcon(haltIcon());
    ohneErgänzung(ui.cmbRezName);
    felderVerdrahten();
    rezeptVerdrahten();
    onClick(ui.pbok, [this] { pbok_Click(); });
    onEnter(ui.pbok, gefangen("EP_10 - ", [this] { speichern(); }));
    onClick(ui.pbEingNeu, [this] { pbEingNeu_Click(); });
    onClick(ui.pbMessen, [this] { pbMessen_Click(); });
    onClick(ui.pbMotein, [this] { pbMotein_Click(); });
    onClick(ui.pbMotaus, [this] { pbMotaus_Click(); });
    onClick(ui.pbProtokoll, [this] { pbProtokoll_Click(); });
    onClick(ui.pbBeenden, [this] { unload(); });
    for (const auto &[knopf, ziel] : {std::pair{ui.pbDrehR, frm::MotorDrehR},
                                      {ui.pbRezept, frm::EPRezepte},
                                      {ui.pbListe, frm::EPListe},
                                      {ui.Command1, frm::Test}}) {
        knopf->setEnabled(exists(ziel));
        onClick(knopf, [name = ziel] { form(name).showModal(); });
    }
}

frmEndprüf::~frmEndprüf() {
    leaveMotorfenster(*this);
    epAblaufWegnehmen();
}

void frmEndprüf::Form_Load() {
    // The desktop is out of use below this window, which is shown modal.
    beschriftungenSetzen(ui, *this, english);
    ui.lbDrehrichtung->setText(hauptfenster().drehrichtung());
    if (tiEinlauf.enabled())
        showEinlauf(gEinlaufRestText);
    gEPModus = true;
    enterMotorfenster(*this);
    epAblaufEinsetzen();
    showWelle();
    ui.txtPrüfer->setText(gPrüfer);
    ui.txtPrüfDat->setText(datumText(now().date()));
    fnc_KalDatSetzen();
    fnc_RezepteFüllen();
    fnc_GerätetypVorbelegen();
    (ui.txtGerätetyp->text().isEmpty() ? ui.txtGerätetyp : ui.txtSerNr)->setFocus();
}

void frmEndprüf::Form_Activate() {
    if (!gMotorEin) {
        setMotausEnabled(false);
        ui.pbMotein->setEnabled(!drehrichtung().isEmpty());
        hauptfenster().setMoteinEnabled(true); // until this window closes and says as it is
        setDrehREnabled(true);
    } else {
        setMotausEnabled(true);
        ui.pbMotein->setEnabled(false);
        ui.pbDrehR->setEnabled(false);
    }
    gFormStatus = Formstatus::Keiner;
    gDesktopFolge = Desktopfolge::Nichts; // the operator begins here, nobody else
    const QString gewählt = std::exchange(gEPRezeptWahl, {});
    fnc_RezepteFüllen(gewählt.isEmpty() ? ui.cmbRezName->currentText() : gewählt);
    mRezeptOK = !ui.cmbRezName->currentText().isEmpty();
    laufZeigen();
    fnc_SpeichernFreigeben();
    const bool bericht = std::exchange(mBericht, false);
    if (bericht && hatEPMesswerte(gEPProtokollID)) // else one of an earlier device may be open
        raisePreview();                            // this window came up over it
}

// However it is left, the motor is to stand.
bool frmEndprüf::Form_QueryUnload() {
    if (gMotorEin)
        pbMotaus_Click(); // a failure is told there; Motor AUS of the desktop stays usable
    return true;
}

void frmEndprüf::Form_Unload() {
    leaveMotorfenster(*this);
    epAblaufWegnehmen();
    lastStillschweigendAb(); // that of the running-in, or what was tried by hand
    gEPModus = false;
    gDesktopFolge = Desktopfolge::Nichts;
    gMessenFreigabe = false;
    rezeptZurückholen(); // the name of a class stood where the desktop has its specification
    Motorfenster &desktop = motorfenster();
    desktop.setMoteinEnabled(ui.pbMotein->isEnabled());
    desktop.setMotausEnabled(ui.pbMotaus->isEnabled());
    desktop.setDrehREnabled(ui.pbDrehR->isEnabled());
}

void frmEndprüf::setMoteinEnabled(bool enabled) {
    ui.pbMotein->setEnabled(enabled && !gMotorEin);
    hauptfenster().setMoteinEnabled(enabled);
    wegZeigen();
}

void frmEndprüf::setMotausEnabled(bool enabled) {
    ui.pbMotaus->setEnabled(enabled);
    hauptfenster().setMotausEnabled(enabled);
}

void frmEndprüf::setDrehREnabled(bool enabled) {
    ui.pbDrehR->setEnabled(enabled);
    hauptfenster().setDrehREnabled(enabled);
    wegZeigen();
}

void frmEndprüf::setMessenEnabled(bool enabled) {
    if (!enabled)
        mGespeichert.reset();
    const bool amMessen = focusWidget() == ui.pbMessen;
    fnc_SpeichernFreigeben();
    if (amMessen)
        ui.pbok->setFocus(); // what the work goes on with
}

// After a measurement: the next device.
void frmEndprüf::focusBeenden() {
    mGemessen = mBericht = true;
    ui.pbEingNeu->setFocus();
}

void frmEndprüf::showDrehrichtung(const QString &wort) {
    ui.lbDrehrichtung->setText(wort);
    showWelle();
}

void frmEndprüf::showEinlauf(const QString &rest) {
    ui.lbEinlauf->setText(rest);
    wegZeigen();
}

void frmEndprüf::showMotorInfo(const QString &text) {
    mMeldetEin = false;
    ui.laInfo->setText(text);
}

void frmEndprüf::showMotorEin(const QString &text) {
    showMotorInfo(text);
    mMeldetEin = true;
}

void frmEndprüf::showWelle() {
    if (!gMotorEin && mMeldetEin)
        showMotorInfo({});
    motorZeigen(*ui.anzMotor);
    richtungZeigen(*ui.anzDrehrichtung);
    wegZeigen();
}

/// The one button that the work goes on with.
void frmEndprüf::wegZeigen() {
    QPushButton *nächster = nullptr;
    if (!wieGespeichert())
        nächster = ui.pbok;
    else if (mGemessen)
        nächster = ui.pbEingNeu;
    else if (gEingelaufen)
        nächster = ui.pbMessen;
    else if (!gMotorEin)
        nächster = drehrichtung().isEmpty() ? ui.pbDrehR : ui.pbMotein;
    for (QPushButton *knopf : {ui.pbok, ui.pbEingNeu, ui.pbMessen, ui.pbDrehR, ui.pbMotein})
        setWaiting(knopf, knopf == nächster && knopf->isEnabled());
}

/// An extra: what keeps it from being read shows elsewhere.
void frmEndprüf::laufZeigen() try {
    const auto kopf = epMitSeriennummer(ui.txtSerNr->text());
    const auto lauf = kopf ? letzterEPLauf(*kopf) : std::nullopt;
    ui.laLetzterLauf->setText(lauf ? laufText(*lauf) : QString());
} catch (const Fehler &fehler) {
    fehlerMerken(fehler);
    ui.laLetzterLauf->clear();
}

void frmEndprüf::fnc_EinlaufLastSenden() {
    ergometerSenden(fnc_Transformation(fnc_LastBefehl(Format(gEinlaufLeistung, "###"))));
}

void frmEndprüf::pbMotein_Click() try {
    if (mMotor.ein())
        fnc_EinlaufLastSenden();
    wegZeigen();
} catch (const Fehler &fehler) {
    fehlerBox("EP_8 - ", fehler);
}

void frmEndprüf::pbMotaus_Click() try { mMotor.aus(); } catch (const Fehler &fehler) {
    fehlerBox("EP_7 - ", fehler);
}

void frmEndprüf::pbMessen_Click() try {
    static const Messtexte fragen{
        {"Das Gerät ist noch nicht eingelaufen!\rWollen sie trotzdem die Messung beginnen?",
         "The device has not warmed up yet!\rDo you still want to start the measurement?"},
        {"Messen starten", "Start The Measurement"},
        {"Bitte wählen Sie zuerst eine Motor-Drehrichtung",
         "Please first select a motor direction of rotation"},
        {"Vorbereiten der Messung", "Preparing the measurement"}};
    if (!pflichtDa() || ui.txtGerätetyp->text().isEmpty() || !messrezeptEinsetzen()) {
        meldung({"Tragen Sie Daten ein oder speichern Sie diese!", "Please enter or save data!"},
                Information, {"Seriennummer", "Serial number"});
        return;
    }
    ui.pbok->setEnabled(false);
    if (!mMotor.messbereit(fragen))
        return;
    gRestMinuten = 10;
    if (hatEPMesswerte(gEPProtokollID))
        epLaufVerwerfen(gEPProtokollID);
    form(frm::StatMessen).showModal();
} catch (const Fehler &fehler) {
    fehlerBox("EP_6 - ", fehler);
}

// Follows the number in its box: any earlier test is reported by typing it.
void frmEndprüf::pbProtokoll_Click() try {
    gBerichtWahl = ui.txtSerNr->text();
    const Schlüssel protokoll = epMitSeriennummer(gBerichtWahl).value_or(0);
    if (hatEPMesswerte(protokoll)) {
        epBerichtZeigen(protokoll);
        return;
    }
    meldung({"Keine Berichtsdaten vorhanden!", "No report data available!"}, Critical,
            {"Bericht drucken", "Print report"});
} catch (const Fehler &fehler) {
    fehlerBox("EP_66 - ", fehler);
}
