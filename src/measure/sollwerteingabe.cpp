#include "measure/sollwerteingabe.h"

#include <QKeyEvent>

#include "platform/runtime.h"
#include "session/drehmoment.h"
#include "session/sprache.h"
#include "windows/msgbox.h"
#include "windows/stil.h"
#include "windows/waiting.h"

using namespace platform;

const Text drehzahlAußerhalb{"Drehzahl liegt außerhalb des gültigen Bereiches",
                             "The permissible number of revolutions has been exeeded!"};

namespace {
constexpr double höchsteDrehzahl = 130; // 1/min, of a set-point typed in
constexpr double höchsteLeistung = 800; // W
} // namespace

void Sollwerteingabe::listeFüllen() {
    ui.cmbMessArt->addItems({inSprache(Prüfart::leistungText), inSprache(Prüfart::drehzahlText)});
    ui.cmbMessArt->setEditText({});
}

void Sollwerteingabe::sperren() {
    setFreeInput(ui.txtSoll_n, false);
    setFreeInput(ui.txtSoll_P, false);
    setFreiGetönt(ui.cmbMessArt, false);
    ui.cmbMessArt->hide();
    ui.txtMessArt->show();
}

void Sollwerteingabe::öffnen(bool null) {
    ui.txtMessArt->hide();
    setFreiGetönt(ui.cmbMessArt, true);
    ui.cmbMessArt->show();
    for (QLineEdit *box : {ui.txtSoll_n, ui.txtSoll_P}) {
        setFreeInput(box, true);
        box->setText(null ? "0" : "");
        merken(box);
    }
    if (null)
        artZeigen(Prüfart::Leistung, Prüfart::leistungText.german); // in both languages
    ui.cmbMessArt->setEditText(null ? ui.txtMessArt->text() : QString());
    if (!null)
        ui.txtSoll_n->setFocus();
}

bool Sollwerteingabe::vollständig() const {
    return !ui.txtSoll_n->text().isEmpty() && !ui.txtSoll_P->text().isEmpty() &&
           !ui.cmbMessArt->currentText().isEmpty();
}

double Sollwerteingabe::drehzahl() const {
    return ValBeider(ui.txtSoll_n->text());
}

double Sollwerteingabe::leistung() const {
    return ValBeider(ui.txtSoll_P->text());
}

bool Sollwerteingabe::fnc_DrehmomentPrüfen() const {
    if (drehmoment(drehzahl(), leistung()) <= grenzDrehmoment)
        return true;
    meldung({"Das zulässige Drehmoment ist überschritten!\r\nBitte geben Sie andere Werte ein!",
             "The permissible torque has been exeeded!\r\nPlease enter other values!"},
            Critical, {"Drehmoment<=60Nm", "Torque<=60Nm"});
    ui.txtSoll_n->setFocus();
    return false;
}

void Sollwerteingabe::prüfen(QLineEdit *box) {
    const QString text = box->text();
    const bool zahl = IsNumeric(text);
    const bool drehzahl = box == ui.txtSoll_n;
    const double höchstens = drehzahl ? höchsteDrehzahl : höchsteLeistung;
    if (text.isEmpty() || (zahl && CDbl(text) >= 0 && CDbl(text) <= höchstens))
        return;
    const Text keineZahl = drehzahl ? Text{"Drehzahl muss ein nummerischer Wert sein!",
                                           "Number of revolutions must be a numeric value!"}
                                    : Text{"Leistung muss ein nummerischer Wert sein!",
                                           "Power must be a numeric value!"};
    const Text außerhalb = drehzahl ? drehzahlAußerhalb
                                    : Text{"Leistung liegt außerhalb des gültigen Bereiches",
                                           "Permissible power has been exeeded!"};
    const QString gut = alt(box);
    meldung(zahl ? außerhalb : keineZahl, Critical, {"Eingabefehler", "Input Error"});
    box->setText(gut);
    box->setFocus();
}

void Sollwerteingabe::artZeigen(int prüfart) {
    if (prüfart == Prüfart::Leistung)
        artZeigen(prüfart, inSprache(Prüfart::leistungText));
    else if (prüfart == Prüfart::Drehzahl)
        artZeigen(prüfart, inSprache(Prüfart::drehzahlText));
}

void Sollwerteingabe::artZeigen(int prüfart, const QString &wort) {
    mPrüfart = prüfart;
    ui.txtMessArt->setText(wort);
}

void Sollwerteingabe::artAusListe() {
    artZeigen(ui.cmbMessArt->currentIndex() + 1, ui.cmbMessArt->currentText());
}

bool Sollwerteingabe::artTaste(const QKeyEvent &taste) {
    const bool enter = taste.key() == Qt::Key_Return || taste.key() == Qt::Key_Enter;
    const bool löschen = taste.key() == Qt::Key_Backspace || taste.key() == Qt::Key_Delete;
    const bool zeichen = !taste.text().isEmpty() && taste.text().at(0).isPrint();
    const bool befehl =
        taste.modifiers() & (Qt::AltModifier | Qt::ControlModifier | Qt::MetaModifier);
    if (enter || befehl || (!zeichen && !löschen))
        return false;
    const auto wort = zeichen ? Prüfart::ausTaste(taste.text()) : std::nullopt;
    if (wort)
        artZeigen(Prüfart::ausText(*wort), *wort);
    else if (zeichen)
        beep();
    ui.cmbMessArt->setEditText(wort.value_or(QString()));
    return true;
}
