#include "finaltest/frmEPNeuRezept.h"

#include <QKeyEvent>
#include <QLineEdit>

#include "controls/eintrag.h"
#include "finaltest/eprezeptart.h"
#include "records/eprezept.h"
#include "records/toleranzklasse.h"
#include "session/session.h"
#include "session/sprache.h"
#include "windows/msgbox.h"

frmEPNeuRezept::frmEPNeuRezept()
    : Rezepteingabe(
          {.schritte = neuesEPRezept,
           .tabellen = endprüfrezepte,
           .liste = frm::EPRezepte,
           .kopierbar = false,
           .ersterHinweis = {"Bitte geben Sie einen Rezeptnamen ein und wählen Sie eine Toleranz.",
                             "Please enter a recipe name and choose a tolerance."},
           .speichern = {"Wollen sie diesen Rezeptnamen speichern?",
                         "Do you like to save this prescription name?"},
           .vergeben = {" Diesen Rezeptnamen gibt es bereits!\rWählen Sie einen anderen!",
                        "This prescription name already exists!"},
           .verwerfen = {"Rezept wurde nicht gespeichert!\rSollen die Daten verworfen werden? ",
                         "Prescription has not been saved! \rShould dates be deleted?"},
           .verwerfenTitel = {"Message", "Message"},
           .kennung = {.aktivieren = "ENR_1 - ",
                       .name = "ENR_2 - ",
                       .vergeben = "ENR_3 - ",
                       .verlassen = "ENR_4 - ",
                       .liste = "ENR_5 - ",
                       .anzeigen = "ENR_6 - ",
                       .freigeben = "ENR_7 - ",
                       .navigation = "ENR_8 - ",
                       .neu = "ENR_9 - ",
                       .speichern = "ENR_10 - ",
                       .einfügen = "ENR_11 - ",
                       .löschen = "ENR_12 - ",
                       .erster = "ENR_19 - ",
                       .letzter = "ENR_20 - ",
                       .nächster = "ENR_21 - ",
                       .voriger = "ENR_22 - ",
                       .drehzahl = "ENR_13 - ",
                       .leistung = "ENR_13 - ",
                       .anzahl = "ENR_23 - "}}) {
    ui.cmbToleranz->setEditable(true);
    ui.cmbToleranz->setInsertPolicy(QComboBox::NoInsert);
    mKlassenkürzel.verbinden(ui.cmbToleranz, epKlasseZurTaste, [this](bool found) {
        if (found || ui.cmbToleranz->currentText().isEmpty())
            return;
        platform::beep();
        eintragSetzen(ui.cmbToleranz, {});
    });
    onKey(ui.cmbToleranz, [this](QKeyEvent &key) { return mKlassenkürzel.taste(key); });
    on(ui.cmbToleranz->lineEdit(), &QLineEdit::textEdited, [this] { mKlassenkürzel.geändert(); });
    on(ui.cmbToleranz, &QComboBox::editTextChanged, [this] { txtRezName_Change(); });
    onGotFocus(ui.cmbToleranz, [this] { mKlassenkürzel.vergessen(); });
    onEnter(ui.txtLeistung, [this] { txtLeistung_Enter(); });
}

void frmEPNeuRezept::beschriften() {
    Rezepteingabe::beschriften();
    epBeschriften(*this);
    setCaption(inSprache({"Neues Rezept der Endprüfung", "New Final Test Recipe"}));
}

void frmEPNeuRezept::toleranzenFüllen() {
    ui.cmbToleranz->clear();
    ui.cmbToleranz->addItems(toleranzklassen());
    eintragSetzen(ui.cmbToleranz, {});
}

Schlüssel frmEPNeuRezept::anlegen(const QString &name, const QString &toleranz) {
    return epRezeptAnlegen(name, toleranz);
}

void frmEPNeuRezept::verwerfen(bool schritte, bool eingabe) {
    if (!schritte && eingabe)
        epRezeptVerwerfen(gEPRezeptID);
    else
        rezeptLöschen(gEPRezeptID, endprüfrezepte);
}

/// On the way to the line for the ergometer the keyboard stays there, also when the step is
/// complete.
void frmEPNeuRezept::angenommen(const QWidget *feld) {
    if (focusWidget() == ui.txtSSCode)
        speichernMöglich();
    else
        Rezepteingabe::angenommen(feld);
}

void frmEPNeuRezept::txtLeistung_Enter() {
    ui.txtSSCode->setFocus();
    if (focusWidget() != ui.txtSSCode) // the power was refused
        return;
    ui.txtSSCode->setText(fnc_SSCodeVorschlag(ui.txtLeistung->text()));
    ui.txtSSCode->selectAll();
}
