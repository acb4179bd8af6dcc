#include "app/frmDesktop.h"

#include <QCoreApplication>
#include <QKeyEvent>

#include "app/datenbank.h"
#include "app/datenbankpruefung.h"
#include "app/datenbanktausch.h"
#include "link/anschluss.h"
#include "link/controller.h"
#include "link/einlauf.h"
#include "link/ergometer.h"
#include "platform/fehler.h"
#include "platform/runtime.h"
#include "protocols/frmBlutdruckAbfrage.h"
#include "records/geraetedaten.h"
#include "records/hebelarm.h"
#include "records/leitung.h"
#include "records/normal.h"
#include "records/rezept.h"
#include "records/system.h"
#include "session/auswahl.h"
#include "session/session.h"
#include "session/sprache.h"
#include "store/database.h"
#include "store/sqltext.h"
#include "windows/help.h"
#include "windows/msgbox.h"
#include "windows/waiting.h"
#include "windows/zeichen.h"

using namespace platform;

frmDesktop::frmDesktop()
    : mMotor(*this, {{"Motor konnte nicht eingeschaltet werden",
                      "It was not possible to switch the motor on."},
                     {"Motor ein", "Motor On"},
                     {"Fehler", "Error"},
                     {"Motor aus", "Motor Off"}}),
      mSeriennummer([this](const QString &text) { showMotorInfo(text); },
                    [this] {
                        datumZeigen(datumText(now().date()));
                        normalUndHebelarmZeigen();
                    }) {
    ui.setupUi(this);
    ui.pbMotaus->setIcon(haltIcon());
    mWeg = {{Station::Kunde, ui.pbKunde},     {Station::Gerät, ui.pbGerät},
            {Station::Rezept, ui.pbRezept},   {Station::Drehrichtung, ui.pbDrehR},
            {Station::MotorEin, ui.pbMotein}, {Station::Messen, ui.pbMessen}};
    verdrahten();
    enterMotorfenster(*this);
    setAuswahlListener([this] { auswahlZeigen(); },
                       [this] {
                           unterbrechungBeiWahl();
                           DesktopButton_Freigeben();
                       });
}

frmDesktop::~frmDesktop() {
    setAuswahlListener({}, {});
    leaveMotorfenster(*this);
}

// A button and a menu entry for the same; both stay disabled while the screen they lead to does not
// exist yet.
void frmDesktop::öffnet(QPushButton *button, QAction *action, frm ziel, void (frmDesktop::*weg)()) {
    const auto öffnen = [this, ziel, weg] {
        if (weg)
            (this->*weg)();
        else
            form(ziel).showModal();
    };
    if (button) {
        onClick(button, öffnen);
        button->setEnabled(button->isEnabled() && exists(ziel));
    }
    if (action) {
        on(action, &QAction::triggered, öffnen);
        action->setEnabled(action->isEnabled() && exists(ziel));
    }
}

void frmDesktop::verdrahten() {
    öffnet(ui.pbKunde, ui.mnuKunden, frm::Kunden, nullptr);
    öffnet(ui.pbGerät, ui.mnuGerät, frm::Gerät, &frmDesktop::mnuGerät_Click);
    öffnet(ui.pbRezept, ui.mnuRezept, frm::Rezepte, &frmDesktop::mnuRezept_Click);
    öffnet(nullptr, ui.mnuRezepte, frm::NeuRezept, &frmDesktop::mnuRezepte_Click);
    öffnet(ui.pbMessen, ui.mnuStartMessen, frm::StatMessen, &frmDesktop::pbMessen_Click);
    öffnet(ui.pbProtokoll, ui.mnuProtokoll, frm::Bericht, nullptr);
    öffnet(nullptr, ui.mnuProtVerw, frm::Bericht1, nullptr);
    öffnet(nullptr, ui.mnuNachweis, frm::Nachweis, nullptr);
    öffnet(nullptr, ui.mnuToleranzen, frm::Toleranzen, nullptr);
    öffnet(nullptr, ui.mnuRoute, frm::Sort, nullptr);
    öffnet(nullptr, ui.mnuUpdate, frm::Refresh, nullptr);
    öffnet(nullptr, ui.mnuPDF, frm::PrinterPDF, nullptr);
    öffnet(nullptr, ui.mnuÜber, frm::Über, nullptr);
    öffnet(nullptr, ui.mnuSSParameter, frm::Interface, nullptr);
    öffnet(nullptr, ui.mnuEinlaufen, frm::Einlaufen, nullptr);
    öffnet(nullptr, ui.mnuKalibrierung, frm::Kalibrierung, &frmDesktop::mnuKalibrierung_Click);
    öffnet(ui.pbDrehR, nullptr, frm::MotorDrehR, nullptr);
    öffnet(ui.pbBlutdruck, nullptr, frm::Blutdruck, &frmDesktop::pbBlutdruck_Click);
    öffnet(ui.pbSecControl, nullptr, frm::SecControl, &frmDesktop::pbSecControl_Click);
    öffnet(ui.pbEndprüf, nullptr, frm::Endprüf, &frmDesktop::pbEndprüf_Click);
    onClick(ui.pbFortsetzen, gefangen("6009 - ", [this] { pbFortsetzen_Click(); }));
    onClick(ui.pbMotein, [this] { pbMotein_Click(); });
    onClick(ui.pbMotaus, [this] { pbMotaus_Click(); });
    onClick(ui.pbReset, [this] { pbReset_Click(); });
    onClick(ui.pbBeenden, [this] { unload(); });
    on(ui.mnuBeenden, &QAction::triggered, [this] { unload(); });
    on(ui.mnuDeutsch, &QAction::triggered, [this] { spracheSetzen(1); });
    on(ui.mnuEnglisch, &QAction::triggered, [this] { spracheSetzen(2); });
    on(ui.mnuHelp, &QAction::triggered, [this] { mnuHelp_Click(); });
    ui.layout_20->insertWidget(1, &mErsterTag);
    mErsterTag.setZiele({{Anfang::Normal, ui.mnuUpdate},
                         {Anfang::Kunde, ui.mnuKunden},
                         {Anfang::Gerät, ui.mnuGerät},
                         {Anfang::Spezifikation, ui.mnuToleranzen},
                         {Anfang::Rezept, ui.mnuRezepte}});
    onClick(mErsterTag.öffnen(), [this] { mErsterTag.ziel()->trigger(); });
    onClick(mErsterTag.ausblenden(), [this] { mErsterTag.fürImmerAusblenden(); });
}

void frmDesktop::Form_Load() try {
    // What kept the database from opening at the first screen may have been mended since.
    if (!gDatenbank.isOpen()) {
        if (fnc_DatenbankÖffnen(true) == 1) {
            meldung({"Initialisierungsfehler!", "Initializing Error!"}, Critical,
                    {"Fehler", "Error"});
        }
        if (gDatenbank.isOpen())
            systemNachlesen();
    }
    if (gDatenbank.isOpen() && gDatenbankzustand == Datenbankzustand::Ungeprüft &&
        datenbankPrüfen())
        systemNachlesen();
    prüfstandFreigeben();
    const bool endprüfung = endprüfungFreigegeben(); // whatever the reads behind it may find
    ui.pbReset->setVisible(endprüfung);
    ui.pbEndprüf->setVisible(endprüfung);
    ohneFehlendeSpalte([] {
        const Leitungseinstellung leitung = leitungLesen(steuerleitung.tabelle);
        MSComm1.setCommPort(leitung.port);
        MSComm1.setSettings(leitung.parameter);
    });
    setCaption(gProduktTitel);
    ui.Label12->setText(gProduktTitel);
    gDesktopAktiv = true;
    gMotorEin = false;
    gFormStatus = Formstatus::Keiner;
    gEingelaufen = false;
    ui.txtPrüfer->setText(gPrüfer);
    gEPModus = false;
    gUpdateBeimBeenden = false;
    mUnterbrechung = unterbrochen();
    letztesNormalLesen();
    ui.txtKalDat->setText(datumText(gKalibrierdatum));
    ohneFehlendeSpalte([] {
        if (!fnc_HebelarmDatumLesen()) {
            throw Fehler(fehlernummer::NoCurrentRecord, {"Es gibt noch keine Hebelarmkalibrierung.",
                                                         "There is no lever arm calibration yet."});
        }
    });
    normalUndHebelarmZeigen();
} catch (const Fehler &fehler) {
    gDesktopAktiv = true; // the window stays up with what it got, and its waits must end by time
    beschriften();
    if (fehler.number() == fehlernummer::DatabaseNotOpen)
        fehlerMerken(fehler); // why it is not was told when it did not open
    else
        fehlerBox("D_6002 - ", fehler);
}

// As silent as the first reading.
void frmDesktop::systemNachlesen() try { systemLesen(); } catch (const Fehler &fehler) {
    fehlerMerken(fehler);
}

void frmDesktop::DesktopButton_Freigeben() {
    const DesktopRegeln regeln = desktopRegeln(auswahl());
    ui.mnuGerät->setEnabled(regeln.gerät);
    ui.pbGerät->setEnabled(regeln.gerät);
    ui.pbBlutdruck->setEnabled(regeln.gerät && exists(frm::Blutdruck));
    ui.pbSecControl->setEnabled(regeln.secControl && exists(frm::SecControl));
    if (!regeln.ohneKunde) {
        messenFreigeben(regeln.messen);
        mKorrekturFehlt = false;
        infoZeigen();
    }
    wegZeigen();
}

void frmDesktop::setMoteinEnabled(bool enabled) {
    ui.pbMotein->setEnabled(enabled && !gMotorEin);
    wegZeigen();
}

void frmDesktop::setDrehREnabled(bool enabled) {
    ui.pbDrehR->setEnabled(enabled);
    wegZeigen();
}

void frmDesktop::setMessenEnabled(bool enabled) {
    messenFreigeben(enabled);
    mKorrekturFehlt = !enabled;
    infoZeigen();
    wegZeigen();
}

void frmDesktop::messenFreigeben(bool frei) {
    ui.pbMessen->setEnabled(frei);
    ui.mnuStartMessen->setEnabled(frei);
}

void frmDesktop::prüfstandFreigeben() {
    const bool frei = desktopRegeln(auswahl()).prüfstand;
    ui.mnuKalibrierung->setEnabled(frei && exists(frm::Kalibrierung));
    ui.pbEndprüf->setEnabled(frei && exists(frm::Endprüf));
    infoZeigen();
}

void frmDesktop::spracheSetzen(std::int16_t sprache) {
    gSprache = sprache;
    beschriften();
    infoZeigen();
}

Wegstand frmDesktop::wegstand() const {
    const Auswahl &wahl = auswahl();
    return {.kunde = !wahl.kunde.isEmpty(),
            .gerät = !wahl.gerätID.isEmpty(),
            .rezept = !wahl.rezept.isEmpty(),
            .drehrichtung = gDrehrichtung != 0,
            .dreht = gMotorEin,
            .eingelaufen = gEingelaufen};
}

// The one button that the work goes on with waits for the operator.
void frmDesktop::wegZeigen() {
    std::set<Station> bedienbar;
    for (const auto &[station, knopf] : mWeg) {
        if (knopf->isEnabled())
            bedienbar.insert(station);
    }
    const auto nächste = nächsterSchritt(wegstand(), bedienbar);
    for (const auto &[station, knopf] : mWeg)
        setWaiting(knopf, station == nächste);
}

// Left where nothing is to be done any more, the keyboard goes on with the work.
void frmDesktop::tastaturFühren() {
    QPushButton *wartet = nullptr;
    bool weiter = false;
    for (const auto &[station, knopf] : mWeg) {
        weiter = weiter || (knopf == focusWidget() && erledigt(station, wegstand()));
        if (isWaiting(knopf))
            wartet = knopf;
    }
    if (wartet && weiter)
        wartet->setFocus();
}

void frmDesktop::Form_Activate() {
    datumZeigen(datumText(now().date()));
    hebelarmZeigen();
    if (gMessStatus == Messstatus::Ende || gMessStatus == Messstatus::Verweigert)
        ui.pbDrehR->setEnabled(false);
    wegZeigen();
    tastaturFühren();
    unterbrechungLesen();
    mErsterTag.zeigen(mUnterbrechung.has_value());
    switch (std::exchange(gDesktopFolge, Desktopfolge::Nichts)) {
    case Desktopfolge::Gerät:
        mnuGerät_Click();
        break;
    case Desktopfolge::Rezept:
        mnuRezept_Click();
        break;
    case Desktopfolge::Korrektur:
        gEinlaufStatus = Einlaufstatus::NichtBegonnen;
        form(frm::StatMessen).showModal();
        break;
    case Desktopfolge::Messen:
        pbMessen_Click();
        break;
    case Desktopfolge::Bericht:
        if (exists(frm::Bericht))
            form(frm::Bericht).showModal();
        break;
    default:
        break;
    }
    gFormStatus = Formstatus::Keiner;
    gDesktopFolge = Desktopfolge::Nichts;
    if (gUpdateBeimBeenden)
        ui.pbBeenden->click();
}

bool frmDesktop::Form_QueryUnload() {
    if (gSprache >= 0 && gSprache <= 2) {
        mAntwort = meldung({"Wollen Sie das Programm wirklich beenden?",
                            "Do you really want to terminate the program?"},
                           YesNo + Question, {"Programmende", "End Of Program"});
    }
    if (mAntwort == No)
        return false;
    if (!gMotorEin)
        return true;
    pbMotaus_Click();
    if (!gMotorEin)
        return true;
    return meldung({"Der Motor konnte nicht ausgeschaltet werden und dreht sich vielleicht noch.\r"
                    "Soll das Programm trotzdem beendet werden?",
                    "The motor could not be switched off and may still be turning.\r"
                    "Shall the program be terminated all the same?"},
                   YesNo + Exclamation + SecondButtonDefault,
                   {"Programmende", "End Of Program"}) == Yes;
}

void frmDesktop::Form_Unload() {
    gDesktopAktiv = false;
    tiEinlauf.setEnabled(false);
    Timer1.setEnabled(false);
    MSComm1.setPortOpen(false);
    if (!gMotorEin)
        sicherungskopieAnlegen();
    datenbankSchließenUndTauschen();
    QCoreApplication::exit(0); // other screens go with the process
}

void frmDesktop::pbMotein_Click() try {
    fnc_PortPrüfen();
    if (gSS1Vorhanden) {
        mMotor.ein();
        return;
    }
    meldung({"Die Schnittstellenparameter gibt es nicht. \rBitte korrigieren Sie die "
             "Einstellungen!",
             "The interface settings do not exist . \rPlease correct it!"},
            Exclamation, {"Achtung!", "Attention!"});
    form(frm::Interface).showModal();
} catch (const Fehler &fehler) {
    fehlerBox({"Fehler 6003- ", "ERROR 6003 - "}, fehler);
}

void frmDesktop::pbMotaus_Click() try { mMotor.aus(); } catch (const Fehler &fehler) {
    fehlerBox({"Fehler 6004- ", "ERROR 6004 - "}, fehler);
}

void frmDesktop::pbMessen_Click() {
    static const Messtexte texte{
        {"Das Gerät ist noch nicht eingelaufen!\rWollen sie trotzdem die Messung beginnen ?",
         "The unit under test has not completed the run-up yet!\r"
         "Do you still want to start the measurement?"},
        {"Messen starten", "Start The Measurement"},
        {"Bitte wählen Sie zuerst eine Motor-Drehrichtung",
         "Please select a direction of rotation for the motor first!"},
        {"Vorbereiten der Messung", "Preparation For The Measurement"}};
    if (mMotor.messbereit(texte))
        form(frm::StatMessen).showModal();
}

void frmDesktop::pbEndprüf_Click() {
    fnc_SS2Prüfen();
    if (gSS2Vorhanden) {
        form(frm::Endprüf).showModal();
        return;
    }
    meldung({"Die eingestellte Schnittstelle gibt es nicht!\r"
             "Wenn Sie eine automatische Messung durchführen wollen, \r"
             "ändern Sie die Schnittstellenparameter!",
             "The set interface does not exist!\r"
             "If you want to do an automatic measurement, \r"
             "change the interface parameters!"},
            Critical, {"Achtung!", "Attention!"});
}

void frmDesktop::pbBlutdruck_Click() {
    frmBlutdruckAbfrage::fragen(frm::Blutdruck);
}

void frmDesktop::pbSecControl_Click() {
    frmBlutdruckAbfrage::fragen(frm::SecControl);
}

void frmDesktop::mnuGerät_Click() try {
    if (hatGeräte(gKundenID)) {
        form(frm::Gerät).showModal();
    } else {
        gNeuModus = true;
        Screen &neu = form(frm::NeuGerät);
        neu.showInfo(inSprache({"Noch kein Gerät vorhanden!", "No Units existent yet!"}));
        neu.showModal();
    }
} catch (const Fehler &fehler) {
    fehlerBox("6000 - ", fehler);
}

void frmDesktop::mnuRezept_Click() {
    gRezeptAufruf = true;
    form(frm::Rezepte).showModal();
}

void frmDesktop::mnuRezepte_Click() try {
    gRezeptAufruf = false;
    const bool vorhanden = rezepteVorhanden();
    gNeuModus = gNeuModus || !vorhanden;
    form(vorhanden ? frm::Rezepte : frm::NeuRezept).showModal();
} catch (const Fehler &fehler) {
    fehlerBox("6001 - ", fehler);
}

void frmDesktop::mnuKalibrierung_Click() {
    if (gDrehrichtung > 0)
        gFormStatus = Formstatus::RichtungFehlt;
    form(frm::Kalibrierung).showModal();
}

void frmDesktop::pbReset_Click() {
    disable();
    fnc_Reset();
    enable();
}

void frmDesktop::mnuHelp_Click() {
    QKeyEvent f1(QEvent::KeyPress, Qt::Key_F1, Qt::NoModifier);
    keyPressEvent(&f1);
}

void frmDesktop::keyPressEvent(QKeyEvent *event) {
    if (event->key() == Qt::Key_F1)
        hilfeÖffnen();
    else
        Screen::keyPressEvent(event);
}

void frmDesktop::hilfeÖffnen() try { showHelp(screenName()); } catch (const Fehler &fehler) {
    fehlerMerken(fehler);
    msgBox(QString::number(fehler.number()) + " - " + gFehlerText, Exclamation, gProduktTitel);
}
