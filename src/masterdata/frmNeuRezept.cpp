#include "masterdata/frmNeuRezept.h"

#include <utility>

#include "controls/umbruch.h"
#include "masterdata/frmRezepte.h"
#include "records/rezept.h"
#include "session/session.h"
#include "session/sprache.h"
#include "windows/msgbox.h"

using namespace platform;

namespace {

constexpr Beschriftung english[] = {
    {"", "New Recipe"},
    {"lbRezName", "&Recipe name:"},
    {"pbRezSave", "Sa&ve Recipe Name"},
    {"pbSave", "&Save"},
    {"pbAddNew", "&New Step"},
    {"pbKopie", "Cop&y Recipe ..."},
    {"pbPrevious#tip", "Previous test step"},
    {"pbLast#tip", "Last test step"},
};

} // namespace

frmNeuRezept::frmNeuRezept() {
    ui.setupUi(this);
    ui.lbRezSaved->hide();
    ui.lbToleranzSave->hide();
    const auto save = gefangen("1030 - ", [this] { fnc_RezeptnameSpeichern(); });
    on(ui.txtRezName, &QLineEdit::textChanged, [this] { txtRezName_Change(); });
    onEnter(ui.txtRezName, [this, save] {
        if (ui.pbRezSave->isEnabled())
            save();
        else
            ui.cmbToleranz->setFocus();
    });
    on(ui.cmbToleranz, &QComboBox::currentIndexChanged, [this] { txtRezName_Change(); });
    onEnter(ui.cmbToleranz, [this, save] {
        if (ui.pbRezSave->isEnabled())
            save();
    });
    onClick(ui.pbRezSave, save);
    schritteVerdrahten();
    onClick(ui.pbok, [this] { pbok_Click(); });
    onClick(ui.pbexit, [this] { unload(); });
    onEscape([this] { unload(); });
}

void frmNeuRezept::beschriften() {
    beschriftungenSetzen(ui, *this, english);
    englischBeschriften(*this, schrittEnglisch);
    for (QPushButton *symbol : {ui.pbFirst, ui.pbPrevious, ui.pbNext, ui.pbLast})
        symbol->setAccessibleName(symbol->toolTip());
    mEditor.beschriften();
}

void frmNeuRezept::Form_Load() {
    beschriften();
    if (fnc_Fill_CmbToleranz(ui.cmbToleranz) && ui.cmbToleranz->count() == 0)
        ui.cmbToleranz->setPlaceholderText(
            inSprache({"Noch keine; angelegt wird im Menü Verwaltung, Spezifikationen",
                       "None yet; use menu Master Data, Specifications to enter one"}));
    ui.laInfo->setText(
        inSprache({"Bitte geben Sie einen Rezeptnamen ein und wählen Sie eine Spezifikation.",
                   "Please enter a recipe name and choose a specification."}));
    ui.txtRezName->setFocus();
}

void frmNeuRezept::Form_Activate() try {
    if (std::exchange(mbKopiert, false)) {
        fnc_NavigationFreigeben();
        gefangen("1026 - ", [this] { schrittWählen(0); })();
    }
} catch (const Fehler &fehler) {
    fehlerBox("3039 - ", fehler);
}

bool frmNeuRezept::Form_QueryUnload() {
    return mbFertig || (mEditor.verlassen(focusWidget()) && verlassen());
}

void frmNeuRezept::Form_Unload() {
    if (Screen *list = loaded(frm::Rezepte))
        list->show();
    else
        form(frm::Rezepte).showModal();
}

void frmNeuRezept::txtRezName_Change() {
    ui.pbRezSave->setEnabled(!ui.txtRezName->text().trimmed().isEmpty() &&
                             !ui.cmbToleranz->currentText().isEmpty());
}

void frmNeuRezept::fnc_RezeptnameSpeichern() {
    if (fnc_RezeptnameVorhanden())
        return;
    const int answer = meldung(
        {"Wollen sie diesen Rezeptnamen speichern?", "Do you want to save this recipe name?"},
        YesNo | Question, {"Message!", "MESSAGE!"});
    if (answer == No) {
        ui.txtRezName->setFocus();
        ui.txtRezName->clear();
        ui.cmbToleranz->setCurrentIndex(-1);
        return;
    }
    gRezeptID = rezeptAnlegen(ui.txtRezName->text(), ui.cmbToleranz->currentText());
    schritteFreigeben();
}

/// Also true when it cannot be found out.
bool frmNeuRezept::fnc_RezeptnameVorhanden() try {
    if (!rezeptnameVergeben(ui.txtRezName->text()))
        return false;
    meldung({" Diesen Rezeptnamen gibt es bereits!\rWählen Sie einen anderen!",
             "This recipe name is already existent!\rChoose another name!"},
            Critical, {"Message", "MESSAGE"});
    ui.txtRezName->setFocus();
    ui.txtRezName->clear();
    return true;
} catch (const Fehler &fehler) {
    fehlerBox("1041 - ", fehler);
    return true;
}

void frmNeuRezept::fnc_GitterAktualisieren() {
    mbKopiert = true;
    gitterZeigen(0);
}

void frmNeuRezept::schritteFreigeben() {
    ui.lbRezSaved->setText(umbrechbar(ui.txtRezName->text()));
    ui.lbToleranzSave->setText(umbrechbar(ui.cmbToleranz->currentText()));
    mEditor.nummerZeigen(1);
    mStand = Stand::Neu;
    mKopierbar = true;
    aktualisieren();
    hinweisNeuerSchritt();
    ui.txtDrehzahl->setFocus();
    ui.txtRezName->hide();
    ui.cmbToleranz->hide();
    ui.pbRezSave->hide();
    ui.lbRezSaved->show();
    ui.lbToleranzSave->show();
    gitterZeigen(0);
}

void frmNeuRezept::pbok_Click() {
    gRezeptWahl = ui.txtRezName->text();
    mbFertig = true;
    unload();
}

/// Decides about the recipe when the screen is left other than by pbok. False when it stays.
bool frmNeuRezept::verlassen() try {
    if (!ui.txtRezName->isHidden()) // no name saved
        return true;
    const bool input = !mEditor.fnc_EingabeLeer();
    if ((mEditor.gitter().leer() && !input) || fnc_FrageVerwerfen()) {
        rezeptLöschen(gRezeptID);
        return true;
    }
    if (!input)
        return true;
    if (!mEditor.fnc_SchrittPrüfen() || !mEditor.anlegen())
        return false;
    gRezeptWahl = ui.txtRezName->text();
    fnc_RezeptlisteAktualisieren();
    return true;
} catch (const Fehler &fehler) {
    fehlerBox("1023 - ", fehler);
    gitterNachFehler(); // the steps may be gone
    return false;
}

bool frmNeuRezept::fnc_FrageVerwerfen() {
    return meldung({"Rezept wurde nicht gespeichert!\rSollen die Daten verworfen werden? ",
                    "Recipe has not been saved! \rShall data be discarded?"},
                   YesNo | Question, {"Message", "MESSAGE"}) == Yes;
}

/// The name goes into the list when that is activated.
void frmNeuRezept::fnc_RezeptlisteAktualisieren() try {
    if (auto *list = loaded<frmRezepte>())
        list->listeLesen();
} catch (const Fehler &fehler) {
    fehlerBox("1037 - ", fehler);
}
