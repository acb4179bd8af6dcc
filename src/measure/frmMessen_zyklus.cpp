// The pass of the measurement screen: one step from its set-point to the event that ends it.
#include "measure/frmMessen.h"

#include <QScopeGuard>

#include "link/controller.h"
#include "measure/sollwert.h"
#include "platform/fehler.h"
#include "platform/runtime.h"
#include "records/messwerte.h"
#include "session/session.h"
#include "session/sprache.h"
#include "windows/msgbox.h"

using namespace platform;

namespace {
constexpr long sehrKurzeVerzögerung = 10'000; // counted rounds, 0.5 ms
constexpr double höchsterSollwert = 143;      // 1/min: 130 and 10 % for the correction
} // namespace

// A pass that is asked for while another waits for the stream does not run inside it. The older
// one leaves its wait without touching line, boxes or status, and the loop here starts the new one.
void frmMessen::fnc_Messzyklus() {
    if (mDurchgangLäuft) {
        mNeuerDurchgang = true;
        return;
    }
    mDurchgangLäuft = true;
    const auto vorbei = qScopeGuard([this] { mDurchgangLäuft = false; });
    do {
        mNeuerDurchgang = false;
        try {
            durchgang();
        } catch (const Fehler &fehler) {
            gMessenFreigabe = false;
            fehlerBox("3014 - ", fehler);
        }
    } while (mNeuerDurchgang && !unloaded());
}

void frmMessen::durchgang() {
    // Set-points that are still being typed are nothing to measure.
    const bool offen = freieEingabe() && !ui.txtSoll_n->isReadOnly();
    if (gMessStatus == Messstatus::Messen && !offen) {
        gMessenFreigabe = true;
        fnc_MesswerteLeeren(); // what stands there belongs to another set-point
        if (!freieEingabe())
            fnc_PrüfschrittAnzeigen();
        fnc_EingabeSperren();
        korrekturErledigt();
        fokusSetzen();
        mWerte = Werte::Angefragte;
        if (!sollwertZulässig()) {
            sollwertAblehnen();
        } else if (fnc_SollwertSenden()) {
            countedDelay(sehrKurzeVerzögerung);
            fnc_SechsRundenStarten();
            countedDelay(sehrKurzeVerzögerung);
            if (mAnsicht.bedient)
                fnc_NavigationFreigeben();
            if (mWerte == Werte::Angefragte) // nothing was changed meanwhile
                mWerte = Werte::Eigene;
            mEmpfang.fnc_SechsRundenEmpfang(*this);
        }
        if (abgelöst())
            return;
    }
    gMessenFreigabe = false;
    try {
        datenstromBeenden();
    } catch (const Fehler &fehler) {
        fehlerBox("3014 - ", fehler); // what was asked for goes on
    }
    verteilen();
}

void frmMessen::verteilen() {
    switch (gMessStatus) {
    case Messstatus::FreieEingabe:
        gMessStatus = Messstatus::Messen;
        fnc_MesswerteLeeren();
        fnc_FreieEingabe();
        break;
    case Messstatus::Ende:
        gMessenFreigabe = false;
        motorAbschalten();
        break;
    case Messstatus::Verweigert:
        gMessenFreigabe = false;
        meldung({"Fehler im Gerät oder in der Kommunikation",
                 "Error in the unit under test, or communication error"},
                Critical, {"Fehler", "Error"});
        requestActivation(*this); // which leaves the screen
        break;
    case Messstatus::MotorAus:
        gMessStatus = Messstatus::Ruhe;
        motorAbschalten();
        break;
    default:
        break;
    }
}

void frmMessen::motorAbschalten() {
    if (!fnc_BefehlSenden("E", gDrehrichtung, "00"))
        meldung({"Fehler", "Error"}, Critical, {"Motor aus", "Motor Off"});
}

bool frmMessen::sollwertZulässig() const {
    const double drehzahl = ValBeider(ui.txtSoll_n->text());
    return drehzahl >= 0 && drehzahl <= höchsterSollwert;
}

// Nothing goes out and the shaft turns on as it does; another speed or another step leads on.
void frmMessen::sollwertAblehnen() {
    meldung(drehzahlAußerhalb, Critical, {"Eingabefehler", "Input Error"});
    werteVerwerfen();
    gMessStatus = Messstatus::Ruhe;
    fnc_NavigationFreigeben();
    ui.pbFreieEing->setEnabled(true);
    ui.pbAbbrechen->setEnabled(true);
    if (freieEingabe())
        return;
    korrFSetzen(mGesendeteKorrF);
    ui.txtSoll_n->setText(Format(mBasisDrehzahl * mKorrF, "0.0"));
    ui.pbPlus->setEnabled(true);
    ui.pbMinus->setEnabled(true);
    ui.pbMinus->setFocus();
}

bool frmMessen::fnc_SollwertSenden() {
    messablauf().vorSollwert(dataRezept);
    const double korrF = freieEingabe() ? mGesendeteKorrF : mKorrF;
    if (fnc_BefehlSenden("E", gDrehrichtung, ui.txtSoll_n->text())) {
        mGesendeteKorrF = korrF;
        ui.pbAbbrechen->setEnabled(true);
        if (mAnsicht.bedient)
            ui.pbFreieEing->setEnabled(true);
        return true;
    }
    meldung({"Fehler", "Error"}, Critical, {"Motor ein", "Motor On"});
    ui.pbFreieEing->setEnabled(false);
    gMessStatus = Messstatus::Verweigert;
    return false;
}

// The keyboard waits where the step wants something: the reading of the ergometer, or nothing until
// pbSpeichern takes it. Left to the toolkit it would fall on a button that moves to another step.
void frmMessen::fokusSetzen() {
    if (istDrehzahlmessung() && mAnsicht.bedient)
        ui.txtIST_n_ergom->setFocus();
    else
        ui.DBGrid1->setFocus();
}

void frmMessen::fnc_NavigationFreigeben() {
    for (QPushButton *button : {ui.pbFirst, ui.pbPrevious, ui.pbNext, ui.pbLast, ui.pbMessen})
        button->setEnabled(true);
}

void frmMessen::zeigeDrehzahl(double drehzahl) {
    ui.txtIST_n_torvena->setText(Format(drehzahl, "0.00"));
}

void frmMessen::zeigeDrehmoment(double drehmoment) {
    ui.txtIST_D_torvena->setText(Format(drehmoment, "0.00"));
}

void frmMessen::zeigeLeistung(double leistung) {
    ui.txtIST_P_torvena->setText(Format(leistung, "0.00"));
}

void frmMessen::rahmenFertig() {
    if (mWerte == Werte::Eigene)
        messablauf().nachRahmen(*this);
}
