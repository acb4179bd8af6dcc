// The pass of the measurement screen: one step from its set-point to the event that ends it.
#include "measure/frmMessen.h"

#include <QScopeGuard>

#include "link/controller.h"
#include "measure/dynamikmessung.h"
#include "platform/runtime.h"
#include "session/session.h"
#include "session/sprache.h"
#include "windows/msgbox.h"

using namespace platform;

namespace {
constexpr long sehrKurzeVerzögerung = 10'000; // counted rounds, 0.5 ms
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
        durchgang();
    } while (mNeuerDurchgang && !unloaded());
}

void frmMessen::durchgang() try {
    gStopMessung = false;
    // Set-points that are still being typed are nothing to measure.
    const bool offen = freieEingabe() && mEingabe.offen();
    if (gMessStatus == Messstatus::Messen && !offen) {
        gMessenFreigabe = true;
        fnc_MesswerteLeeren(); // what stands there belongs to another set-point
        if (!freieEingabe())
            fnc_PrüfschrittAnzeigen();
        fnc_EingabeSperren();
        korrekturErledigt();
        // The keyboard waits where the step wants something: the reading of the ergometer, or
        // nothing until pbSpeichern takes it, but not on a button that moves to another step.
        if (mEingabe.istDrehzahl() && mAnsicht.bedient)
            ui.txtIST_n_ergom->setFocus();
        else
            raster()->setFocus();
        mWerte = Werte::Angefragte;
        if (mEingabe.drehzahl() < 0 || mEingabe.drehzahl() > höchsterSollwert) {
            sollwertAblehnen();
        } else if (fnc_SollwertSenden()) {
            countedDelay(sehrKurzeVerzögerung);
            fnc_SechsRundenStarten();
            countedDelay(sehrKurzeVerzögerung);
            mZustand.schritteFrei = true;
            zustandZeigen();
            if (mWerte == Werte::Angefragte) // nothing was changed meanwhile
                mWerte = Werte::Eigene;
            mTakt.beginnen(mEingabe.drehzahl());
            mEmpfang.fnc_SechsRundenEmpfang([this](auto was, double wert) { zeige(was, wert); },
                                            [this] { return abgelöst(); }, !mAnsicht.bedient);
            // A stream that ended though nobody asked for that is overdue, and looks so.
            if (abgelöst() || gMessStatus != Messstatus::Messen)
                mTakt.enden();
        }
        if (abgelöst())
            return;
        mZustand.gemessen = false;
        zustandZeigen();
    }
    gMessenFreigabe = false;
    gefangen("3014 - ", datenstromBeenden)(); // what was asked for goes on
    // Without a person nobody is there to go on with a shaft that turns.
    const bool steht = gMessStatus == Messstatus::Messen || gMessStatus == Messstatus::Ruhe;
    if (steht && !mAnsicht.bedient && gDesktopAktiv)
        gMessStatus = Messstatus::Verweigert;
    verteilen();
} catch (const Fehler &fehler) {
    gMessenFreigabe = false;
    fehlerBox("3014 - ", fehler);
    if (!mAnsicht.bedient) {
        gMessStatus = Messstatus::Ende;
        requestActivation(*this); // which leaves the screen
    }
}

void frmMessen::verteilen() {
    switch (gMessStatus) {
    case Messstatus::FreieEingabe:
        gMessStatus = Messstatus::Messen;
        fnc_MesswerteLeeren();
        fnc_FreieEingabe();
        break;
    case Messstatus::Dynamisch:
        dynamischMessen();
        break;
    case Messstatus::Verweigert:
        meldung({"Fehler im Gerät oder in der Kommunikation",
                 "Error in the unit under test, or communication error"},
                Critical, {"Fehler", "Error"});
        requestActivation(*this); // which leaves the screen
        break;
    case Messstatus::MotorAus:
        gMessStatus = Messstatus::Ruhe;
        [[fallthrough]];
    case Messstatus::Ende:
        if (!fnc_BefehlSenden("E", gDrehrichtung, "00"))
            meldung({"Fehler", "Error"}, Critical, {"Motor aus", "Motor Off"});
        break;
    default:
        break;
    }
}

// What stands in the boxes was measured before; behind the charts the step begins anew.
void frmMessen::dynamischMessen() {
    werteVerwerfen();
    fnc_DynamikMessen([this] { return abgelöst(); });
    if (!unloaded())
        fnc_MesswerteLeeren();
}

// Nothing goes out and the shaft turns on as it does; another speed or another step leads on.
void frmMessen::sollwertAblehnen() {
    meldung(drehzahlAußerhalb, Critical, {"Eingabefehler", "Input Error"});
    mZustand.schritteFrei = mZustand.freiErlaubt = true;
    mZustand.freiGewählt = freieEingabe();
    werteVerwerfen();
    gMessStatus = Messstatus::Ruhe;
    if (freieEingabe())
        return;
    korrFSetzen(mGesendeteKorrF);
    ui.txtSoll_n->setText(Format(mBasisDrehzahl * mKorrF, "0.0"));
    ui.pbMinus->setFocus();
}

bool frmMessen::fnc_SollwertSenden() {
    messablauf().vorSollwert(dataRezept);
    if (gMessStatus != Messstatus::Messen)
        return false;
    const double korrF = freieEingabe() ? mGesendeteKorrF : mKorrF;
    const bool gesendet = fnc_BefehlSenden("E", gDrehrichtung, ui.txtSoll_n->text());
    if (gesendet)
        mGesendeteKorrF = korrF;
    else
        meldung({"Fehler", "Error"}, Critical, {"Motor ein", "Motor On"});
    mZustand.freiErlaubt = gesendet;
    zustandZeigen();
    if (!gesendet)
        gMessStatus = Messstatus::Verweigert;
    return gesendet;
}

void frmMessen::zeige(SechsRundenDecoder::Ereignis was, double wert) {
    using Ereignis = SechsRundenDecoder::Ereignis;
    QLineEdit *box = was == Ereignis::Drehzahl     ? ui.txtIST_n_torvena
                     : was == Ereignis::Drehmoment ? ui.txtIST_D_torvena
                                                   : ui.txtIST_P_torvena;
    box->setText(Format(wert, "0.00"));
    if (was != Ereignis::Leistung)
        return;
    mTakt.rahmen();
    if (mWerte != Werte::Eigene)
        return;
    if (!mZustand.gemessen) {
        mZustand.gemessen = true;
        zustandZeigen();
    }
    messablauf().nachRahmen(*this);
}
