// Set-points, correction factor and free input of the measurement screen.
#include "measure/frmMessen.h"

#include <QKeyEvent>

#include "measure/sollwert.h"
#include "platform/runtime.h"
#include "records/messwerte.h"
#include "session/drehmoment.h"
#include "session/session.h"
#include "session/sprache.h"
#include "windows/msgbox.h"
#include "windows/waiting.h"

using namespace platform;

namespace {

constexpr double höchsteDrehzahl = 130; // 1/min, of a set-point typed in
constexpr double höchsteLeistung = 800; // W

const Text leistungsmessung{"Leistungsmessung", "Power Measurement"};
const Text drehzahlmessung{"Drehzahlmessung", "Speed Measurement"};

bool isEither(const QString &text, const Text &words) {
    return text == words.german || text == words.english;
}

} // namespace

void frmMessen::eingabenVerdrahten() {
    onClick(ui.pbAusführen, [this] { pbAusführen_Click(); });
    onClick(ui.pbÜbernehmen, [this] { pbÜbernehmen_Click(); });
    onClick(ui.pbFreieEing, [this] { pbFreieEing_Click(); });
    onClick(ui.pbDrehzNull, [this] { pbDrehzNull_Click(); });
    onClick(ui.pbPlus, [this] { korrekturknopf(&frmMessen::fnc_DrehzahlPlus); });
    onClick(ui.pbMinus, [this] { korrekturknopf(&frmMessen::fnc_DrehzahlMinus); });

    onGotFocus(ui.txtSoll_n, [this] { mAltSoll_n = ui.txtSoll_n->text(); });
    onGotFocus(ui.txtSoll_P, [this] { mAltSoll_P = ui.txtSoll_P->text(); });
    enterChain({ui.txtSoll_n, ui.txtSoll_P, ui.cmbMessArt});
    onLostFocus(ui.txtSoll_n, [this] {
        sollwertPrüfen(ui.txtSoll_n, mAltSoll_n, höchsteDrehzahl,
                       {"Drehzahl muss ein nummerischer Wert sein!",
                        "Number of revolutions must be a numeric value!"},
                       drehzahlAußerhalb);
    });
    onLostFocus(ui.txtSoll_P, [this] {
        sollwertPrüfen(
            ui.txtSoll_P, mAltSoll_P, höchsteLeistung,
            {"Leistung muss ein nummerischer Wert sein!", "Power must be a numeric value!"},
            {"Leistung liegt außerhalb des gültigen Bereiches",
             "Permissible power has been exeeded!"});
    });
    onKey(ui.txtSoll_n, [this](QKeyEvent &taste) {
        if (taste.text() == "+")
            korrekturtaste(&frmMessen::fnc_DrehzahlPlus);
        else if (taste.text() == "-")
            korrekturtaste(&frmMessen::fnc_DrehzahlMinus);
        else
            return false;
        return true;
    });

    for (QLineEdit *box : {ui.txtSoll_n, ui.txtSoll_P}) {
        on(box, &QLineEdit::textChanged, [this] {
            if (freieEingabe())
                ausführenFreigeben();
        });
    }

    on(ui.cmbMessArt, &QComboBox::editTextChanged, [this] {
        if (freieEingabe())
            ausführenFreigeben();
    });
    on(ui.cmbMessArt, &QComboBox::activated, [this] { cmbMessArt_Click(); });
    onKey(ui.cmbMessArt, [this](QKeyEvent &taste) { return cmbMessArt_KeyPress(taste); });
    onEnter(ui.cmbMessArt, [this] {
        if (ui.pbAusführen->isEnabled())
            ui.pbAusführen->setFocus();
    });

    onEnter(ui.txtIST_n_ergom, [this] {
        if (ui.pbSpeichern->isEnabled())
            ui.pbSpeichern->setFocus();
    });
    onLostFocus(ui.txtIST_n_ergom, [this] { txtIST_n_ergom_LostFocus(); });
    for (QLineEdit *box :
         {ui.txtIST_n_torvena, ui.txtIST_D_torvena, ui.txtIST_P_torvena, ui.txtIST_n_ergom})
        on(box, &QLineEdit::textChanged, [this, box] { speichernFreigeben(box); });
}

void frmMessen::fnc_EingabeSperren() {
    setFreeInput(ui.txtSoll_n, false);
    setFreeInput(ui.txtSoll_P, false);
    ui.cmbMessArt->hide();
    ui.txtMessArt->show();
    ui.pbAusführen->setEnabled(false);
    setWaiting(ui.pbAusführen, false);
}

void frmMessen::fnc_MesswerteLeeren() {
    ui.txtIST_n_torvena->clear();
    ui.txtIST_D_torvena->clear();
    ui.txtIST_P_torvena->clear();
    ui.txtIST_n_ergom->clear();
    ui.lblMessSchritte->clear();
    ui.pbSpeichern->setEnabled(false);
    setWaiting(ui.pbSpeichern, false);
}

bool frmMessen::fnc_DrehmomentPrüfen() {
    if (drehmoment(ValBeider(ui.txtSoll_n->text()), ValBeider(ui.txtSoll_P->text())) <=
        grenzDrehmoment)
        return true;
    meldung({"Das zulässige Drehmoment ist überschritten!\r\nBitte geben Sie andere Werte ein!",
             "The permissible torque has been exeeded!\r\nPlease enter other values!"},
            Critical, {"Drehmoment<=60Nm", "Torque<=60Nm"});
    ui.txtSoll_n->setFocus();
    return false;
}

void frmMessen::korrigieren(double schritt) {
    const double neu = ValBeider(ui.txtSoll_n->text()) + schritt;
    if (mBasisDrehzahl != 0 && !freieEingabe()) // the factor is one of the steps of the recipe
        korrFSetzen(neu / mBasisDrehzahl);
    ui.txtSoll_n->setText(CStr(neu));
    werteVerwerfen();
}

void frmMessen::korrFSetzen(double faktor) {
    mKorrF = faktor;
    ui.laKorrF->setText(Format(mKorrF, "0.0000"));
}

void frmMessen::korrekturknopf(void (frmMessen::*richtung)()) {
    (this->*richtung)();
    ui.pbÜbernehmen->setEnabled(true);
    setWaiting(ui.pbÜbernehmen, true);
    ui.pbÜbernehmen->setFocus();
}

// A key gives no button to take the speed over with: on a step of the recipe the step is sent anew.
void frmMessen::korrekturtaste(void (frmMessen::*richtung)()) {
    (this->*richtung)();
    if (freieEingabe())
        return;
    ui.pbMessen->setEnabled(true);
    setWaiting(ui.pbMessen, true);
}

// What was corrected is being sent, or has given way to another step.
void frmMessen::korrekturErledigt() {
    ui.pbÜbernehmen->setEnabled(false);
    setWaiting(ui.pbÜbernehmen, false);
    setWaiting(ui.pbMessen, false);
}

// Everything that changes the set-point comes by here: what was measured is of another one.
void frmMessen::werteVerwerfen() {
    mWerte = Werte::Fremde;
    ui.pbSpeichern->setEnabled(false);
    setWaiting(ui.pbSpeichern, false);
}

void frmMessen::pbAusführen_Click() {
    if (!fnc_DrehmomentPrüfen())
        return;
    gMessStatus = Messstatus::Messen;
    fnc_EingabeSperren();
    ergometerFeldZeigen(!istLeistungsmessung());
    if (istDrehzahlmessung() && mAnsicht.bedient)
        ui.txtIST_n_ergom->setFocus();
    form(frm::Meldung).show();
}

void frmMessen::pbÜbernehmen_Click() {
    if (!fnc_DrehmomentPrüfen())
        return;
    gMessStatus = Messstatus::Messen;
    fnc_EingabeSperren();
    korrekturErledigt();
    form(frm::Meldung).show();
}

void frmMessen::pbFreieEing_Click() {
    werteVerwerfen();
    korrekturErledigt();
    setWaiting(ui.pbAusführen, false);
    for (QPushButton *button : {ui.pbAusführen, ui.pbFreieEing, ui.pbPlus, ui.pbMinus})
        button->setEnabled(false);
    if (gMessenFreigabe)
        gMessStatus = Messstatus::FreieEingabe;
    else
        fnc_FreieEingabe();
    if (!mDrehzNull && !ui.pbDrehzNull->isEnabled())
        ui.pbDrehzNull->setEnabled(true);
}

void frmMessen::pbDrehzNull_Click() {
    ui.pbDrehzNull->setEnabled(false);
    mDrehzNull = true;
    pbFreieEing_Click();
}

void frmMessen::fnc_FreieEingabe() {
    ui.laPrSchritt->setText(freierSchritt);
    setFreeInput(ui.txtSoll_n, true);
    setFreeInput(ui.txtSoll_P, true);
    ui.txtMessArt->hide();
    ui.cmbMessArt->show();
    if (!mDrehzNull) {
        ui.txtSoll_n->clear();
        ui.txtSoll_P->clear();
        mAltSoll_n = mAltSoll_P = QString();
        ui.cmbMessArt->setEditText({});
        ui.txtSoll_n->setFocus();
        return;
    }
    ui.txtSoll_n->setText("0");
    ui.txtSoll_P->setText("0");
    mAltSoll_n = mAltSoll_P = "0";
    ui.cmbMessArt->setEditText(leistungsmessung.german); // in both languages
    ui.txtMessArt->setText(leistungsmessung.german);
    pbAusführen_Click();
    mDrehzNull = false;
}

void frmMessen::cmbMessArt_Click() {
    ui.txtMessArt->setText(ui.cmbMessArt->currentText());
    ergometerFeldZeigen(istDrehzahlmessung());
}

bool frmMessen::cmbMessArt_KeyPress(QKeyEvent &taste) {
    const bool enter = taste.key() == Qt::Key_Return || taste.key() == Qt::Key_Enter;
    const bool löschen = taste.key() == Qt::Key_Backspace || taste.key() == Qt::Key_Delete;
    const bool zeichen = !taste.text().isEmpty() && taste.text().at(0).isPrint();
    const bool befehl =
        taste.modifiers() & (Qt::AltModifier | Qt::ControlModifier | Qt::MetaModifier);
    if (enter || befehl || (!zeichen && !löschen))
        return false;
    mTaste = zeichen ? taste.text().toUpper() : QString();
    mTasteNeu = true;
    cmbMessArt_Change();
    return true;
}

void frmMessen::cmbMessArt_Change() {
    if (mTasteNeu) {
        const bool deutsch = gSprache == 1;
        if (mTaste == (deutsch ? "D" : "S") || mTaste == "2") {
            messArtSetzen(2);
        } else if (mTaste == (deutsch ? "L" : "P") || mTaste == "1") {
            messArtSetzen(1);
        } else {
            if (!mTaste.isEmpty())
                beep();
            ui.cmbMessArt->setEditText({});
        }
        mTaste.clear();
        mTasteNeu = false;
    }
}

void frmMessen::messArtZeigen(int art) {
    ui.txtMessArt->setText(inSprache(art == 1 ? leistungsmessung : drehzahlmessung));
}

void frmMessen::messArtSetzen(int art) {
    messArtZeigen(art);
    ui.cmbMessArt->setEditText(ui.txtMessArt->text());
}

// In free input: the button follows from the three fields.
void frmMessen::ausführenFreigeben() {
    const bool voll = !ui.txtSoll_n->text().isEmpty() && !ui.txtSoll_P->text().isEmpty() &&
                      !ui.cmbMessArt->currentText().isEmpty();
    if (voll) {
        aufAusführenWarten();
        return;
    }
    ui.pbAusführen->setEnabled(false);
    setWaiting(ui.pbAusführen, false);
    werteVerwerfen();
}

// The set-points shown have not been sent.
void frmMessen::aufAusführenWarten() {
    ui.pbAusführen->setEnabled(true);
    setWaiting(ui.pbAusführen, true);
    werteVerwerfen();
}

bool frmMessen::freieEingabe() const {
    return ui.laPrSchritt->text() == freierSchritt;
}

void frmMessen::sollwertPrüfen(QLineEdit *box, QString &alterWert, double grenze,
                               const Text &keineZahl, const Text &außerhalb) {
    if (box->text().isEmpty() || !freieEingabe())
        return; // on a step of the recipe the pass alone sets the limit
    const Text *mangel = nullptr;
    if (!IsNumeric(box->text()))
        mangel = &keineZahl;
    else if (CDbl(box->text()) < 0 || CDbl(box->text()) > grenze)
        mangel = &außerhalb;
    if (!mangel)
        return;
    const QString gut = alterWert;
    meldung(*mangel, Critical, {"Eingabefehler", "Input Error"});
    box->setText(gut);
    box->setFocus();
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

bool frmMessen::istLeistungsmessung() const {
    return isEither(ui.txtMessArt->text(), leistungsmessung);
}

bool frmMessen::istDrehzahlmessung() const {
    return isEither(ui.txtMessArt->text(), drehzahlmessung);
}

void frmMessen::ergometerFeldZeigen(bool zeigen) {
    ui.lbIST_n_ergom->setVisible(zeigen);
    ui.txtIST_n_ergom->setVisible(zeigen);
    ui.lbEinheitErgom->setVisible(zeigen);
}

void frmMessen::meldungGeschlossen() {
    ergometerFeldZeigen(istDrehzahlmessung());
    if (istDrehzahlmessung())
        ui.txtIST_n_ergom->setFocus();
}

// When pbSpeichern may be pressed: as soon as every box that the step needs holds a value that was
// measured under the set-points shown.
void frmMessen::speichernFreigeben(const QLineEdit *geändert) {
    const bool leistung = istLeistungsmessung();
    if (!leistung && !istDrehzahlmessung())
        return;
    const bool bedient = mAnsicht.bedient;
    const bool ergometer = geändert == ui.txtIST_n_ergom;
    bool voll = !ui.txtIST_n_torvena->text().isEmpty() && !ui.txtIST_D_torvena->text().isEmpty() &&
                !ui.txtIST_P_torvena->text().isEmpty();
    if (!leistung)
        voll = voll && !ui.txtIST_n_ergom->text().isEmpty();
    if (!voll) {
        if (leistung && ergometer && !bedient)
            return;
        ui.pbSpeichern->setEnabled(false);
        setWaiting(ui.pbSpeichern, false);
        return;
    }
    if (mWerte != Werte::Eigene) {
        ui.pbSpeichern->setEnabled(false);
        setWaiting(ui.pbSpeichern, false);
        return;
    }
    const bool drehmomentBox = geändert == ui.txtIST_D_torvena;
    if (bedient || (!leistung && !drehmomentBox)) {
        ui.pbSpeichern->setEnabled(true);
        setWaiting(ui.pbSpeichern, true);
    }
    if (leistung && !drehmomentBox && ui.pbSpeichern->isEnabled())
        ui.pbSpeichern->setFocus();
}
