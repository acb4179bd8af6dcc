// Set-points, correction factor and free input of the measurement screen.
#include "measure/frmMessen.h"

#include <QKeyEvent>

#include "platform/runtime.h"
#include "session/session.h"
#include "session/sprache.h"
#include "windows/msgbox.h"

using namespace platform;

void frmMessen::eingabenVerdrahten() {
    onClick(ui.pbAusführen, [this] { pbAusführen_Click(); });
    onClick(ui.pbÜbernehmen, [this] {
        if (!mEingabe.fnc_DrehmomentPrüfen())
            return;
        korrekturErledigt();
        neuMessen();
    });
    onClick(ui.pbFreieEing, [this] { pbFreieEing_Click(); });
    onClick(ui.pbDrehzNull, [this] {
        mZustand.nullErlaubt = false;
        mDrehzNull = true;
        pbFreieEing_Click();
    });
    onClick(ui.pbPlus, [this] { korrigieren(+0.1, false); });
    onClick(ui.pbMinus, [this] { korrigieren(-0.1, false); });

    enterChain({ui.txtSoll_n, ui.txtSoll_P, ui.cmbMessArt, ui.pbAusführen});
    enterChain({ui.txtIST_n_ergom, ui.pbSpeichern});
    for (QLineEdit *box : {ui.txtSoll_n, ui.txtSoll_P}) {
        onGotFocus(box, [this, box] { mEingabe.merken(box); });
        onLostFocus(box, [this, box] {
            if (freieEingabe()) // on a step of the recipe the pass alone sets the limit
                mEingabe.prüfen(box);
        });
        on(box, &QLineEdit::textChanged, [this] { ausführenFreigeben(); });
    }
    onKey(ui.txtSoll_n, [this](QKeyEvent &taste) {
        const bool plus = taste.text() == "+";
        if (!plus && taste.text() != "-")
            return false;
        if (!(taste.modifiers() & Qt::AltModifier)) // that is for the buttons alone
            korrigieren(plus ? +0.1 : -0.1, true);
        return true;
    });

    for (QLineEdit *box : {ui.txtSoll_P, ui.txtIST_n_ergom}) // Alt and a sign is for the buttons
        onKey(box, [](const QKeyEvent &taste) {
            return (taste.modifiers() & Qt::AltModifier) &&
                   (taste.text() == "+" || taste.text() == "-");
        });

    on(ui.cmbMessArt, &QComboBox::editTextChanged, [this] { ausführenFreigeben(); });
    on(ui.cmbMessArt, &QComboBox::activated, [this] {
        mEingabe.artAusListe();
        ergometerFeldZeigen(mEingabe.istDrehzahl());
    });
    onKey(ui.cmbMessArt, [this](QKeyEvent &taste) { return mEingabe.artTaste(taste); });
    onLostFocus(ui.txtIST_n_ergom, [this] { txtIST_n_ergom_LostFocus(); });
    for (const auto &[box, name] : {std::pair{ui.txtIST_n_torvena, Messbox::n_torvena},
                                    {ui.txtIST_D_torvena, Messbox::D_torvena},
                                    {ui.txtIST_P_torvena, Messbox::P_torvena},
                                    {ui.txtIST_n_ergom, Messbox::n_ergom}})
        on(box, &QLineEdit::textChanged, [this, name = name] { speichernFreigeben(name); });
}

void frmMessen::fnc_EingabeSperren() {
    mEingabe.sperren();
    mZustand.ungesendet = false;
    zustandZeigen();
}

void frmMessen::fnc_MesswerteLeeren() {
    for (QLineEdit *box :
         {ui.txtIST_n_torvena, ui.txtIST_D_torvena, ui.txtIST_P_torvena, ui.txtIST_n_ergom})
        box->clear();
    ui.lblMessSchritte->clear();
    mZustand.vollständig = mZustand.gemessen = false;
    zustandZeigen();
}

// A key gives no button to take the speed over with: on a step of the recipe the step is sent anew.
void frmMessen::korrigieren(double schritt, bool taste) {
    const double neu = mEingabe.drehzahl() + schritt;
    if (mBasisDrehzahl != 0 && !freieEingabe()) // the factor is one of the steps of the recipe
        korrFSetzen(neu / mBasisDrehzahl);
    ui.txtSoll_n->setText(CStr(neu));
    mZustand.korrigiert |= !taste;
    mZustand.neuZuSenden |= taste && !freieEingabe();
    werteVerwerfen();
    if (!taste)
        ui.pbÜbernehmen->setFocus();
}

void frmMessen::korrFSetzen(double faktor) {
    mKorrF = faktor;
    ui.laKorrF->setText(Format(mKorrF, "0.0000"));
}

// What was corrected is being sent, or has given way to another step.
void frmMessen::korrekturErledigt() {
    mZustand.korrigiert = mZustand.neuZuSenden = false;
    zustandZeigen();
}

// Everything that changes the set-point comes by here: what was measured is of another one.
void frmMessen::werteVerwerfen() {
    mWerte = Werte::Fremde;
    mZustand.vollständig = mZustand.abgearbeitet = mZustand.gemessen = false;
    zustandZeigen();
}

void frmMessen::pbAusführen_Click() {
    if (!mEingabe.fnc_DrehmomentPrüfen())
        return;
    ergometerFeldZeigen(!mEingabe.istLeistung());
    if (mEingabe.istDrehzahl())
        ui.txtIST_n_ergom->setFocus();
    neuMessen();
}

// The notice closes, and the pass begins.
void frmMessen::neuMessen() {
    gMessStatus = Messstatus::Messen;
    grenzenSetzen();
    fnc_EingabeSperren();
    form(frm::Meldung).show();
}

void frmMessen::pbFreieEing_Click() {
    mZustand.ungesendet = mZustand.freiErlaubt = false;
    mZustand.freiGewählt = true;
    werteVerwerfen();
    korrekturErledigt();
    if (gMessenFreigabe)
        gMessStatus = Messstatus::FreieEingabe;
    else
        fnc_FreieEingabe();
    mZustand.nullErlaubt |= !mDrehzNull;
    zustandZeigen();
}

void frmMessen::fnc_FreieEingabe() {
    ui.laPrSchritt->setText(freierSchritt);
    mEingabe.öffnen(mDrehzNull);
    if (mDrehzNull)
        pbAusführen_Click();
    mDrehzNull = false;
}

// In free input: the button follows from the three fields.
void frmMessen::ausführenFreigeben() {
    if (!freieEingabe())
        return;
    mZustand.ungesendet = mEingabe.vollständig();
    werteVerwerfen();
}

void frmMessen::txtIST_n_ergom_LostFocus() {
    const QString text = ui.txtIST_n_ergom->text();
    if (text.isEmpty() || IsNumeric(text))
        return;
    meldung({"Eingabe muss ein nummerischer Wert sein!", "Input must be a numerical value!"},
            Exclamation, {"Fehler", "Fehler"});
    ui.txtIST_n_ergom->clear();
    ui.txtIST_n_ergom->setFocus();
}

void frmMessen::ergometerFeldZeigen(bool zeigen) {
    ui.lbIST_n_ergom->setVisible(zeigen);
    ui.txtIST_n_ergom->setVisible(zeigen);
    ui.lbEinheitErgom->setVisible(zeigen);
}

void frmMessen::meldungGeschlossen() {
    ergometerFeldZeigen(mEingabe.istDrehzahl());
    if (mEingabe.istDrehzahl())
        ui.txtIST_n_ergom->setFocus();
}

void frmMessen::speichernFreigeben(Messbox geändert) {
    const Speichern regel =
        speichernRegel(geändert, texte(), mAnsicht.bedient, mWerte == Werte::Eigene);
    if (regel == Speichern::Bleibt) {
        streifenZeigen();
        return;
    }
    mZustand.vollständig = regel != Speichern::Aus;
    zustandZeigen();
    if (regel == Speichern::EinMitTastatur)
        ui.pbSpeichern->setFocus();
}
