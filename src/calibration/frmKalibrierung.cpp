#include "calibration/frmKalibrierung.h"

#include "calibration/hebelarmwerte.h"
#include "calibration/moment.h"
#include "link/controller.h"
#include "link/einlauf.h"
#include "link/motorlampe.h"
#include "platform/runtime.h"
#include "records/hebelarm.h"
#include "session/session.h"
#include "session/sprache.h"
#include "windows/msgbox.h"
#include "windows/waiting.h"

using namespace platform;

namespace {

constexpr Beschriftung english[] = {
    {"", "Lever Arm Calibration"},
    {"laText", "This program permits you to inspect the measurement system at regular intervals "
               "by means of moment initiation through the lever arm."},
    {"FrAblauf", "Stages"},
    {"lbEinlaufen", "Running-in of the motor"},
    {"lbKorrektur", "Static zero-point correction"},
    {"lbSeite1", "First side"},
    {"lbSeite2", "Second side"},
    {"Label7", "done"},
    {"Label8", "done"},
    {"Label9", "done"},
    {"Label10", "done"},
    {"FrMotor", "Motor"},
    {"lbDrehrichtungText", "Direction of rotation:"},
    {"Label5", "Running-in time left:"},
    {"pbHistory", "&History"},
    {"pbStart", "&Start"},
    {"pbAbbrechen", "&Abort"},
};

/// Raises Fehler unless the standard in use says what a run is judged by.
void normalPrüfen() {
    if (gNormalAnzahl < kleinsteAnzahl || gNormalGrenzwert <= 0) {
        throw Fehler(fehlernummer::InvalidUseOfNull,
                     {"Bei den Kalibrierdaten des Normals fehlen die Anzahl der Messwerte "
                      "(mindestens 2) oder der Grenzwert der Streubreite.",
                      "The calibration data of the standard lack the number of measuring values "
                      "(2 at least) or the limit of the spread."});
    }
}

} // namespace

frmKalibrierung::frmKalibrierung()
    : mMotor(*this,
             {{"Motor konnte nicht eingeschaltet werden",
               "It was not possible to switch the motor on."},
              {"Motor ein", "Motor On"},
              {"Fehler", "Error"},
              {"Motor aus", "Motor Off"}},
             laufzeitSetzen) {
    ui.setupUi(this);
    for (QLabel *stufe : {ui.Label7, ui.Label8, ui.Label9, ui.Label10})
        stufe->hide();
    onClick(ui.pbStart, gefangen("4021 - ", [this] { pbStart_Click(); }));
    onClick(ui.pbAbbrechen, [this] { unload(); });
    onClick(ui.pbHistory, [] { form(frm::History).showModal(); });
    enterMotorfenster(*this);
}

frmKalibrierung::~frmKalibrierung() {
    leaveMotorfenster(*this);
}

void frmKalibrierung::Form_Load() try {
    beschriftungenSetzen(ui, *this, english);
    for (Bild *zeichen : {ui.anzEinlaufen, ui.anzKorrektur, ui.anzSeite1, ui.anzSeite2})
        zeichen->zeige(Zeichen::Kein, inSprache({"offen", "open"}));
    tiEinlauf.setEnabled(false); // of the desktop: only pbStart leads on, behind its checks
    gDrehrichtung = 1;
    hauptfenster().showDrehrichtung(inSprache({"Rechtslauf", "Right"}));
    ui.laDrehrichtung->setText(inSprache({"Rechtslauf", "Right-Handed Rotation"}));
    showWelle();
    gFormStatus = Formstatus::Bereit;
} catch (const Fehler &fehler) {
    fehlerBox("4020 - ", fehler);
}

void frmKalibrierung::showWelle() {
    motorZeigen(*ui.anzMotor);
}

void frmKalibrierung::Form_Activate() try {
    setWaiting(ui.pbStart, gFormStatus == Formstatus::Bereit);
    setWaiting(ui.pbAbbrechen, gFormStatus == Formstatus::Gespeichert);
    switch (gFormStatus) {
    case Formstatus::RichtungFehlt:
        break;
    case Formstatus::Bereit:
        ui.pbStart->setEnabled(true);
        ui.pbStart->setFocus();
        break;
    case Formstatus::Einlaufen:
        if (!gMotorEin) // coming back to a motor that runs in does not begin anew
            pbStart_Click();
        break;
    case Formstatus::Korrektur:
        korrekturBeginnen();
        break;
    case Formstatus::KorrekturFertig:
        schwereErfragen();
        break;
    case Formstatus::SchwereEingegeben:
        betriebsartPrüfen();
        break;
    case Formstatus::ErsteSeiteGemessen:
    case Formstatus::ZweiteSeite:
        ui.pbAbbrechen->setFocus();
        break;
    case Formstatus::Gespeichert:
        ui.pbAbbrechen->setText(inSprache({"&Beenden", "&Terminate"}));
        ui.pbAbbrechen->setFocus();
        break;
    case Formstatus::Keiner: // left where the gravity was asked for
    case Formstatus::Abgebrochen:
        abgebrochenZeigen();
        break;
    }
} catch (const Fehler &fehler) {
    fehlerBox("4022 - ", fehler);
}

void frmKalibrierung::pbStart_Click() {
    normalPrüfen(); // before anybody waits for the running-in
    hebelarmReferenzLesen();
    ui.pbStart->setEnabled(false);
    gMessStatus = Messstatus::Messen;
    gStopMessung = false; // of an earlier measurement
    if (gDrehrichtung == 0) {
        meldung({"Bitte wählen Sie zuerst eine Motor-Drehrichtung",
                 "Please select a direction of rotation for the motor first!"},
                Exclamation, {"Vorbereiten der Messung", "Preparations For The Measurement"});
        gFormStatus = Formstatus::RichtungFehlt;
        form(frm::MotorDrehR).showModal();
        return;
    }
    gFormStatus = Formstatus::Einlaufen;
    if (mMotor.ein()) {
        showMotorInfo(inSprache({"Motor ist eingeschaltet", "Motor is switched on"}));
        return;
    }
    gFormStatus = Formstatus::RichtungFehlt;
    ui.pbStart->setEnabled(true); // to try again
}

void frmKalibrierung::korrekturBeginnen() {
    ui.pbStart->setEnabled(false);
    fertig(ui.Label7);
    showMotorInfo(inSprache({"Statische Nullpunkt-Korrektur", "Static Zero-Point Correction"}));
    gEinlaufStatus = Einlaufstatus::NichtBegonnen;
    form(frm::StatMessen).showModal();
}

// The instruction stands above the entry: first the arm is mounted.
void frmKalibrierung::schwereErfragen() {
    fertig(ui.Label8);
    form(frm::Oberfl).showModal();
    form(frm::NachStatNPK).showModal();
}

void frmKalibrierung::betriebsartPrüfen() {
    ui.Label5->setText(inSprache({"Fallbeschleunigung in m/s²", "Survicial Gravity In m/s²"}));
    ui.lbEinlauf->setText(Format(gErdschwere, "0.0000"));
    showMotorInfo(inSprache({"Test der Betriebsart", "Testing The Mode Of Operation"}));
    disable();
    const bool hebelarm = fnc_BetriebsartLesen() == 1;
    enable();
    if (unloaded())
        return;
    if (!hebelarm) {
        gFormStatus = Formstatus::KorrekturFertig;
        beep();
        meldung({"Falsche Betriebsart", "Wrong mode of operation!"}, Critical, {"Fehler", "Error"});
        form(frm::NachStatNPK).showModal();
        return;
    }
    try {
        const Hebelarmmomente referenz = hebelarmReferenzLesen();
        gRefRechts = referenz.rechts;
        gRefLinks = referenz.links;
    } catch (const Fehler &) {
        gFormStatus = Formstatus::Abgebrochen; // nothing to compare with
        abgebrochenZeigen();
        throw;
    }
    gFormStatus = Formstatus::ErsteSeiteGemessen;
    beep();
    showMotorInfo(inSprache({"Kalibrierung", "Calibration"}));
    form(frm::MomentKal).showModal();
}

void frmKalibrierung::abgebrochenZeigen() {
    showMotorInfo(
        inSprache({"Kalibrierung wurde abgebrochen!", "Calibration has been dicontinued!"}));
    ui.pbAbbrechen->setFocus();
}

void frmKalibrierung::seitenZeigen(int anzahl) {
    if (anzahl > 0)
        fertig(ui.Label9);
    if (anzahl > 1)
        fertig(ui.Label10);
}

void frmKalibrierung::fertig(QLabel *stufe) {
    const std::pair<QLabel *, Bild *> bilder[] = {{ui.Label7, ui.anzEinlaufen},
                                                  {ui.Label8, ui.anzKorrektur},
                                                  {ui.Label9, ui.anzSeite1},
                                                  {ui.Label10, ui.anzSeite2}};
    stufe->show();
    for (const auto &[label, bild] : bilder) {
        if (label == stufe)
            bild->zeige(Zeichen::Gut, stufe->text());
    }
}

// However it is left, the motor is to stand.
bool frmKalibrierung::Form_QueryUnload() try {
    gFormStatus = Formstatus::Keiner;
    if (gMotorEin)
        mMotor.aus(); // a failure is told there; Motor AUS of the desktop stays usable
    return true;
} catch (const Fehler &fehler) {
    fehlerBox("4023 - ", fehler);
    return true;
}

void frmKalibrierung::Form_Unload() {
    leaveMotorfenster(*this);
    motorfenster().setMoteinEnabled(true);
    motorfenster().setMotausEnabled(gMotorEin);
    motorfenster().setDrehREnabled(!gMotorEin);
}
