#include "masterdata/frmToleranzen.h"

#include <QKeyEvent>
#include <QLineEdit>

#include <utility>

#include "controls/eintrag.h"
#include "records/rezept.h"
#include "records/schluessel.h"
#include "session/session.h"
#include "session/sprache.h"
#include "windows/msgbox.h"

using namespace platform;

namespace {

constexpr Beschriftung english[] = {
    {"", "Spezifikation KE"},
    {"lbBezTol", "Description"},
    {"anzHinweis", "Select a specification or enter one with New"},
    {"lbName", "Name"},
    {"Label1", "MPE"},
    {"frLMess", "Power Measurement"},
    {"lbTolProz", "relative in %:"},
    {"lbWatt", "absolute in W:"},
    {"frDMess", "Speed Measurement"},
    {"laAbw", "absolute in rpm:"},
    {"laGKlasse", "Type Of Device"},
    {"laMessverfahren", "Measuring Method"},
    {"pbNew", "&New"},
    {"pbEdit", "&Edit"},
    {"pbDelete", "&Delete"},
    {"pbSave", "&Save"},
    {"pbok", "&OK"},
    {"pbexit", "&Cancel"},
};

} // namespace

frmToleranzen::frmToleranzen() {
    ui.setupUi(this);
    ui.cmbGKlasse->lineEdit()->setMaxLength(255);
    QSizePolicy policy = ui.details->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    ui.details->setSizePolicy(policy);
    blockZeigen(false);
    ui.pbEdit->setVisible(false);
    aktualisieren();
    verdrahten();
}

void frmToleranzen::verdrahten() {
    on(ui.cmbBezTol, &QComboBox::activated, [this] { cmbBezTol_Click(); });
    const std::initializer_list<QWidget *> felder{ui.txtTolBez, ui.txtTolProz, ui.txtTolWatt,
                                                  ui.txtAbw,    ui.cmbGKlasse, ui.txtMessverfahren};
    enterChain(felder, Qt::TabFocusReason);
    for (QWidget *feld : felder)
        onGotFocus(feld, [this] { altWertMerken(); });
    onEnter(ui.txtMessverfahren, [this] {
        if (speichernFreigeben())
            ui.pbSave->setFocus();
    });
    onLostFocus(ui.txtTolBez, gefangen("Tol05 - ", [this] { txtTolBez_LostFocus(); }));
    onLostFocus(ui.txtTolProz, [this] { txtTolProz_LostFocus(); });
    onLostFocus(ui.txtTolWatt, [this] { txtTolWatt_LostFocus(); });
    onLostFocus(ui.txtAbw, gefangen("Tol05 - ", [this] { txtAbw_LostFocus(); }));
    onLostFocus(ui.txtMessverfahren, [this] { txtMessverfahren_LostFocus(); });
    mKlasse.verbinden(ui.cmbGKlasse, klasseZurTaste, {}, true);
    onKey(ui.cmbGKlasse, [this](QKeyEvent &key) { return mKlasse.taste(key); });
    on(ui.cmbGKlasse->lineEdit(), &QLineEdit::textEdited, [this] { cmbGKlasse_Change(); });
    on(ui.cmbGKlasse, &QComboBox::activated, [this] {
        if (eingabe().vollständig())
            speichernFreigeben();
    });
    onClick(ui.pbNew, [this] { pbNew_Click(); });
    onClick(ui.pbEdit, [this] { pbEdit_Click(); });
    onClick(ui.pbDelete, gefangen("Tol06 - ", [this] { pbDelete_Click(); }));
    onClick(ui.pbSave, [this] { pbSave_Click(); });
    onClick(ui.pbok, [this] { pbok_Click(); });
    onClick(ui.pbexit, [this] { unload(); });
    onEscape([this] { unload(); });
}

void frmToleranzen::beschriften() {
    beschriftungenSetzen(ui, *this, english);
}

void frmToleranzen::Form_Load() {
    beschriften();
    fnc_Fill_CmbBezTol();
    fnc_Fill_CmbGKlasse();
    ui.cmbBezTol->setFocus();
}

void frmToleranzen::Form_Unload() {
    gefangen("1015 - ", sitzungsrezeptEinsetzen)();
}

void frmToleranzen::aktualisieren() {
    ui.pbNew->setEnabled(!mNeuBegonnen);
    ui.pbDelete->setEnabled(mAusgewählt);
    ui.pbEdit->setEnabled(mAusgewählt && ui.details->isHidden());
    ui.pbSave->setEnabled(mSpeicherbar);
}

void frmToleranzen::speicherbar(bool möglich) {
    mSpeicherbar = möglich;
    aktualisieren();
}

void frmToleranzen::blockZeigen(bool sichtbar) {
    ui.details->setVisible(sichtbar);
    ui.anzHinweis->setVisible(!sichtbar); // in its place
}

/// The picker stands on the row of mnToleranzID, or on none.
void frmToleranzen::zeileZeigen() {
    int row = mrsToleranzen.count() - 1;
    while (row >= 0 && mrsToleranzen.at(row, 0).toInt() != mnToleranzID)
        --row;
    ui.cmbBezTol->setCurrentIndex(row);
}

void frmToleranzen::felderLeeren() {
    for (QLineEdit *field :
         {ui.txtTolBez, ui.txtTolProz, ui.txtTolWatt, ui.txtAbw, ui.txtMessverfahren})
        field->clear();
    eintragSetzen(ui.cmbGKlasse, {});
}

/// The row of mnToleranzID; without one the fields stay as they are.
void frmToleranzen::felderZeigen() {
    const std::optional<Toleranz> row = toleranzMitID(mnToleranzID);
    if (!row)
        return;
    ui.txtTolBez->setText(row->bezeichnung);
    ui.txtTolProz->setText(row->prozent);
    ui.txtTolWatt->setText(row->watt);
    ui.txtAbw->setText(row->grenzAbw);
    eintragSetzen(ui.cmbGKlasse, row->gKlasse);
    ui.txtMessverfahren->setText(row->messverfahren);
    ui.txtTolBez->setCursorPosition(0);
    ui.txtMessverfahren->setCursorPosition(0);
    altWertMerken(); // a field that has the keyboard took it before it was filled
}

Toleranz frmToleranzen::eingabe() const {
    return {ui.txtTolBez->text(), ui.txtTolProz->text(),        ui.txtTolWatt->text(),
            ui.txtAbw->text(),    ui.cmbGKlasse->currentText(), ui.txtMessverfahren->text()};
}

void frmToleranzen::fnc_Fill_CmbBezTol() try {
    mrsToleranzen = toleranzListe();
    ui.cmbBezTol->clear();
    for (int row = 0; row < mrsToleranzen.count(); ++row)
        ui.cmbBezTol->addItem(mrsToleranzen.at(row, 1).toString());
    ui.cmbBezTol->setCurrentIndex(-1);
} catch (const Fehler &fehler) {
    fehlerBox("Tol01 - ", fehler);
}

void frmToleranzen::fnc_Fill_CmbGKlasse() {
    ui.cmbGKlasse->clear();
    ui.cmbGKlasse->addItems({inSprache(klasseMedizin), inSprache(klasseStationär)});
    eintragSetzen(ui.cmbGKlasse, {});
}

void frmToleranzen::fnc_Find_ToleranzID() {
    const QString entry = ui.cmbBezTol->currentText();
    if (entry.isEmpty())
        return;
    for (mrsToleranzen.moveFirst(); !mrsToleranzen.atEnd(); mrsToleranzen.moveNext()) {
        if (mrsToleranzen["Toleranz"].text() == entry) {
            mnToleranzID = schlüsselAus(mrsToleranzen["ID"]);
            break;
        }
    }
    mAusgewählt = true;
    mNeuBegonnen = false;
    aktualisieren();
}

void frmToleranzen::cmbBezTol_Click() {
    const Schlüssel before = mnToleranzID;
    const bool changed = mbGeändert;
    try {
        if (mbNeu) {
            auswahlImNeuModus();
        } else if (!mbBearbeiten) {
            fnc_Find_ToleranzID();
            pbEdit_Click();
        } else if (mbGeändert) {
            auswahlNachÄnderung();
        } else {
            fnc_Find_ToleranzID();
            felderZeigen();
        }
    } catch (const Fehler &fehler) {
        mnToleranzID = before; // the fields and the buttons speak about this one still
        mbGeändert = changed;
        zeileZeigen();
        fehlerBox("Tol02 - ", fehler);
    }
}

void frmToleranzen::auswahlImNeuModus() {
    int answer = No;
    if (mSpeicherbar) {
        answer = meldung({"Wollen Sie die Daten speichern?\r"
                          "Klicken Sie auf Abbrechen, um ihre Eingabe zu beenden!",
                          "Shall data be saved?\rPush 'Cancel' to determine your input!"},
                         YesNoCancel | Exclamation, {"Daten speichern?", "Save data?"});
    }
    if (answer == Cancel) {
        ui.cmbBezTol->setCurrentIndex(-1);
        ui.txtTolBez->setFocus();
        return;
    }
    if (answer == Yes) {
        const int picked = ui.cmbBezTol->currentIndex();
        pbNew_Click();
        ui.cmbBezTol->setCurrentIndex(picked);
    }
    fnc_Find_ToleranzID();
    pbEdit_Click();
}

void frmToleranzen::auswahlNachÄnderung() {
    const int answer =
        meldung({"Wollen Sie die Änderungen speichern?", "Do you want to save the changes?"},
                YesNo | Question, {"Änderungen speichern?", "Save changes?"});
    if (answer == Yes) {
        pbEdit_Click();
        fnc_Find_ToleranzID();
        pbEdit_Click();
    } else {
        mbGeändert = false;
        fnc_Find_ToleranzID();
        felderZeigen();
    }
}

void frmToleranzen::pbNew_Click() try {
    mbNeu = true;
    ui.cmbBezTol->setCurrentIndex(-1);
    felderLeeren();
    blockZeigen(true);
    ui.txtTolBez->setFocus(); // before its button is disabled, or the keyboard goes elsewhere
    mNeuBegonnen = true;
    mAusgewählt = false;
    mbBearbeiten = false;
    aktualisieren();
} catch (const Fehler &fehler) {
    fehlerBox("Tol04 - ", fehler);
}

void frmToleranzen::pbEdit_Click() try {
    mbBearbeiten = true;
    mbGeändert = false;
    felderLeeren();
    blockZeigen(true);
    ui.txtTolBez->setFocus();
    aktualisieren();
    mbNeu = false;
    felderZeigen();
    zumErsetzenMarkieren(ui.txtTolBez);
} catch (const Fehler &fehler) {
    fehlerBox("Tol07 - ", fehler);
}

void frmToleranzen::pbDelete_Click() {
    if (mbNeu) {
        mbNeu = false;
        blockZeigen(false);
    }
    const int answer =
        meldung({"Sollen diese Daten jetzt gelöscht werden?", "Shall data be deleted?"},
                YesNo | Question, {"Löschen", "Delete"});
    if (answer == Yes) {
        toleranzLöschen(mnToleranzID);
        fnc_Fill_CmbBezTol();
        ui.cmbBezTol->setFocus();
        mAusgewählt = mSpeicherbar = false;
        if (std::exchange(mbBearbeiten, false))
            blockZeigen(false);
        aktualisieren();
    } else if (mbBearbeiten) {
        ui.txtTolBez->setFocus();
    }
}

void frmToleranzen::pbSave_Click() try {
    if (mbNeu)
        neueSpeichern();
    else if (mbBearbeiten)
        änderungSpeichern();
} catch (const Fehler &fehler) {
    ui.cmbBezTol->setFocus(); // the input cannot be saved any more; the picker leads on
    speichernFreigeben();
    fehlerBox("Tol08 - ", fehler);
}

void frmToleranzen::neueSpeichern() {
    mbNeu = false;
    if (!eingabe().vollständig()) {
        meldung({"Die Daten sind unvollständig.\rBitte vervollständigen Sie ihre Angaben!",
                 "Data are incomplete.\rPlease complete it!"},
                Exclamation, {"Unvollständige Angaben", "Incomlete Data"});
        mbNeu = true;
        return;
    }
    toleranzEinfügen(eingabe());
    meldung({"Eingaben wurden gespeichert!", "Input data have been changed!"}, Information,
            {"Meldung", "Information"});
    blockZeigen(false);
    fnc_Fill_CmbBezTol();
    ui.cmbBezTol->setFocus();
    mNeuBegonnen = false;
    aktualisieren();
}

void frmToleranzen::änderungSpeichern() {
    mbBearbeiten = false;
    mbGeändert = false;
    toleranzÄndern(mnToleranzID, eingabe());
    meldung({"Eingaben wurden gespeichert!", "Data have been saved!"}, Information,
            {"Meldung", "Information"});
    blockZeigen(false);
    fnc_Fill_CmbBezTol();
    zeileZeigen();
    ui.cmbBezTol->setFocus();
    speicherbar(false);
}

void frmToleranzen::pbok_Click() {
    int answer = No;
    if (mbBearbeiten) {
        answer = meldung({"Sollen die Änderungen gespeichert werden?", "Shall changes be saved?"},
                         YesNo | Exclamation, {"Änderungen speichern?", "Save changes?"});
    } else if (mbNeu) {
        answer = meldung({"Sollen die Daten vor Verlassen den Formulars gespeichert werden?",
                          "Shall data be saved before exit?"},
                         YesNo | Exclamation, {"Daten speichern?", "Save data?"});
    }
    if (answer == Yes)
        pbSave_Click();
    unload();
}

bool frmToleranzen::func_Test_Double() try {
    if (bezeichnungVergeben(ui.txtTolBez->text())) {
        meldung({"Diese Bezeichnung für eine Toleranz ist bereits vorhanden.",
                 "That name for a tolerance already exists."},
                Critical, {"Meldung", "Information"});
        return true;
    }
    const auto other = toleranzMitWerten(ui.txtTolProz->text(), ui.txtTolWatt->text());
    if (!other)
        return false;
    meldung({"Diese Kombination von Watt und Prozent ist bereits vorhanden. Sie heißt " + *other,
             "This combination of Watt and percent already exists: " + *other},
            Information, {"Information", "Information"});
    return true;
} catch (const Fehler &fehler) {
    fehlerBox("Tol03 - ", fehler);
    return false;
}

bool frmToleranzen::func_Test_Interval() try {
    if (!beideAußerhalb(ui.txtTolProz->text(), ui.txtTolWatt->text()))
        return false;
    meldung({"Die Angaben befinden sich außerhalb des erlaubten Intervals!!\r"
             "Bitte überprüfen Sie Ihre Eingabe.",
             "Your indications are out of the permissible intervals!!\rPlease check your entry."},
            Critical, {"Eingabefehler", "Input Error"});
    return true;
} catch (const Fehler &fehler) {
    fehlerBox("Tol04 - ", fehler);
    return false;
}
