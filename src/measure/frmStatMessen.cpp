#include "measure/frmStatMessen.h"

#include "link/controller.h"
#include "link/einlauf.h"
#include "measure/frmNachStatNPK.h"
#include "measure/statikempfang.h"
#include "measure/statikwerte.h"
#include "platform/runtime.h"
#include "session/motorfenster.h"
#include "session/session.h"
#include "session/sprache.h"
#include "windows/msgbox.h"
#include "windows/waiting.h"
#include "windows/zeichen.h"

using namespace platform;

namespace {

constexpr Beschriftung english[] = {
    {"", "Static Zero-Point And Amplifier Correction"},
    {"lbReferenz", "Reference"},
    {"lbMesswert", "Measured"},
    {"FrOffset", "Offset Drift"},
    {"FrGain", "Gain Drift"},
    {"lbOffsetDiff", "Deviation:"},
    {"lbGainDiff", "Deviation:"},
    {"laMeldung", "Static zero-point correction is terminated."},
    {"pbWeiter", "&Continue"},
    {"pbAbbrechen", "&Abort"},
};

constexpr long weiterVerzögerung = 1'000'000; // counted rounds

void urteilZeigen(Bild &bild, Drift drift) {
    switch (drift) {
    case Drift::Gut:
        return bild.zeige(Zeichen::Gut, inSprache({"eingehalten", "kept"}));
    case Drift::Warnung:
        return bild.zeige(Zeichen::Offen, inSprache({"Warnung", "warning"}));
    case Drift::Verweigert:
        return bild.zeige(Zeichen::Schlecht, inSprache({"nicht eingehalten", "not kept"}));
    }
}

} // namespace

frmStatMessen::frmStatMessen() {
    ui.setupUi(this);
    ui.laMeldung->hide();
    onClick(ui.pbWeiter, gefangen("4042 - ", [this] { pbWeiter_Click(); }));
    onClick(ui.pbAbbrechen, [this] { pbAbbrechen_Click(); });
}

void frmStatMessen::Form_Load() try {
    // The keyboard rests here: Enter must not fall on the button that aborts.
    setFocusPolicy(Qt::StrongFocus);
    setFocus();
    beschriftungenSetzen(ui, *this, english);
    ui.txtOffset1->setText(Format(0, "0.000"));
    for (Bild *zeichen : {ui.anzOffset, ui.anzGain})
        zeichen->zeige(Zeichen::Kein, inSprache({"noch nicht gemessen", "not measured yet"}));
    ui.anzProben->setAccessibleName(inSprache({"Messwerte", "Measuring values"}));
    const StatikSoll soll = statikSollLesen(gDrehrichtung == 1);
    gOffsetSoll = soll.offset;
    gGainSoll = soll.gain;
    gMomentFaktor = soll.momentFaktor;
    mSollGelesen = true;
} catch (const Fehler &fehler) {
    fehlerBox("4040 - ", fehler);
}

void frmStatMessen::Form_Activate() try {
    if (!mSollGelesen) {
        pbAbbrechen_Click(); // nothing to compare with
        return;
    }
    if (gEinlaufStatus == Einlaufstatus::NichtBegonnen) {
        gEinlaufStatus = Einlaufstatus::MotorWirdGestoppt;
        showInfo(inSprache({"Motor wird ausgeschaltet", "Motor is switched off."}));
        fnc_StatVorbereiten();
    } else if (gEinlaufStatus == Einlaufstatus::Vorbereitet) {
        gEinlaufStatus = Einlaufstatus::Gemessen;
        fnc_StatMessen();
        if (unloaded())
            return;
        if (gMessStatus == Messstatus::Verweigert)
            pbAbbrechen_Click();
        else
            fnc_StatAbschluss();
    }
} catch (const Fehler &fehler) {
    fehlerBox("4041 - ", fehler);
}

bool frmStatMessen::Form_QueryUnload() {
    gMessenFreigabe = false;
    return true;
}

void frmStatMessen::Form_Unload() {
    if (gFormStatus == Formstatus::Keiner && gMessStatus != Messstatus::Verweigert && mKorrigiert) {
        gMessenFreigabe = true;
        gMessStatus = Messstatus::Messen;
    }
    if (gMessStatus == Messstatus::Verweigert)
        messenSperren();
    if (gFormStatus == Formstatus::Korrektur)
        gFormStatus = Formstatus::Abgebrochen; // left without pbWeiter, it does not begin anew
}

void frmStatMessen::fnc_StatVorbereiten() {
    tiEinlauf.setEnabled(false);
    disable(); // left now, it would let the desktop at a line that is in use
    gErgebnis = fnc_MotorAus();
    enable();
    beep();
    if (gMessStatus == Messstatus::Verweigert || unloaded())
        return;
    if (gErgebnis)
        form(frm::VorStatNPK).showModal();
    else
        pbAbbrechen_Click(); // nobody is told to touch a shaft that may be turning
}

void frmStatMessen::fnc_StatMessen() {
    gErgebnis = fnc_Messung(codeOffset) && fnc_Messung(codeGain);
    if (!gErgebnis || unloaded() || statikZulässig(gOffsetDiff, gGainDiff))
        return; // without a result there are only the drifts of an earlier run
    auto &hinweis = form<frmNachStatNPK>();
    hinweis.anzeigen({"Toleranzüberschreitung", "Tolerance Exeeded"},
                     {"Gerät ausschalten, wieder einschalten,\r"
                      "Einlaufzeit einhalten und statische Korrektur wiederholen.\r\r"
                      "Bei erneuter Toleranzüberschreitung Hotline anrufen.",
                      "Switch the unit under test off, then switch it on again!\r"
                      "Await the end of running-in time and repeat the static correction.\r\r"
                      "In case of deviations, please call the service!"},
                     Anweisung::Halt);
    hinweis.showModal();
    gMessStatus = Messstatus::Verweigert;
}

bool frmStatMessen::fnc_Messung(std::uint8_t code) try {
    const bool offset = code == codeOffset;
    showInfo(inSprache(offset ? Text{"Offset messen", "Measure Offset"}
                              : Text{"Gain messen", "Measure Gain"}));
    const Statikstrom strom{code};
    const auto werte = statikEmpfangen(
        strom,
        [&](int proben) {
            ui.anzProben->setValue(proben + (offset ? 0 : strom.verworfen + strom.anzahl));
            if (proben > strom.verworfen)
                showInfo(QString::number(proben - strom.verworfen) +
                         inSprache({" Messwerte", " Measuring Values"}));
        },
        [this] { return unloaded(); });
    if (!werte)
        return false;
    const StatikSoll soll{gOffsetSoll, gGainSoll, gMomentFaktor};
    (offset ? gOffsetRoh : gGainRoh) = mittelwert(*werte);
    const StatikErgebnis ergebnis =
        offset ? offsetErgebnis(gOffsetRoh, soll) : gainErgebnis(gGainRoh, gOffsetRoh, soll);
    if (!offset)
        ui.txtGain1->setText(Format(ergebnis.soll, "0.000"));
    (offset ? ui.txtOffset2 : ui.txtGain2)->setText(Format(ergebnis.ist, "0.000"));
    (offset ? ui.lblOffsetDiff : ui.lblGainDiff)->setText(Format(ergebnis.drift, "0.000"));
    double &drift = offset ? gOffsetDiff : gGainDiff;
    drift = ergebnis.drift * 1000;
    (offset ? ui.AnzWert_O : ui.AnzWert_G)->setBalken(driftBalken(drift));
    urteilZeigen(*(offset ? ui.anzOffset : ui.anzGain), driftUrteil(drift));
    return true;
} catch (const Fehler &fehler) {
    fehlerBox("4002 - ", fehler);
    return false;
}

void frmStatMessen::fnc_StatAbschluss() {
    if (gErgebnis)
        fnc_StatSchreiben();
    beep();
    if (gErgebnis) {
        mKorrigiert = true;
        ui.laMeldung->show();
        showInfo({});
        ui.pbWeiter->setEnabled(true);
        setWaiting(ui.pbWeiter, true);
        ui.pbWeiter->setFocus();
        return;
    }
    meldung({"Statische Nullpunkt-Korrektur abgebrochen",
             "Static zero-point correction has been discontinued!"},
            Exclamation, {"Meldung", "Message"});
    if (frontScreen() == this) {
        ui.pbWeiter->setEnabled(false);
        ui.pbAbbrechen->setFocus();
    }
}

void frmStatMessen::fnc_StatSchreiben() try {
    MSComm1.Output(offsetBefehl(gOffsetRoh));
    MSComm1.Output(momentFaktorBefehl(gMomentFaktor));
} catch (const Fehler &fehler) {
    gErgebnis = false; // nothing goes on with the controller's old values
    fehlerBox("4003 - ", fehler);
}

void frmStatMessen::pbWeiter_Click() {
    fnc_PortÖffnen(); // the line may have been away
    MSComm1.Output("-");
    countedDelay(weiterVerzögerung);
    MSComm1.Output("-");
    if (gFormStatus == Formstatus::Korrektur) {
        gFormStatus = Formstatus::KorrekturFertig;
        unload();
        return;
    }
    beep();
    form(frm::NachStatNPK).showModal();
}

void frmStatMessen::pbAbbrechen_Click() {
    meldung({"Die Nullpunkt-Korrektur wurde abgebrochen!",
             "The zero-point correction has been discontinued!"},
            Critical, {"Fehler", "Error"});
    gMessStatus = Messstatus::Verweigert;
    gFormStatus = Formstatus::Abgebrochen;
    unload();
}
