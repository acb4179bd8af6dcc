#include "masterdata/rezepteingabe.h"

#include <utility>

#include "controls/umbruch.h"
#include "records/rezept.h"
#include "session/session.h"
#include "session/sprache.h"
#include "windows/msgbox.h"

using namespace platform;

namespace {

constexpr Beschriftung english[] = {
    {"lbRezName", "&Recipe name:"},
    {"pbRezSave", "Sa&ve Recipe Name"},
    {"pbSave", "&Save"},
    {"pbAddNew", "&New Step"},
    {"pbPrevious#tip", "Previous test step"},
    {"pbLast#tip", "Last test step"},
};

} // namespace

Rezepteingabe::Rezepteingabe(const Art &art) : mEditor(art.schritte), mArt(art) {
    ui.setupUi(this);
    ui.lbRezSaved->hide();
    ui.lbToleranzSave->hide();
    const auto save = gefangen(mArt.kennung.name, [this] { fnc_RezeptnameSpeichern(); });
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

void Rezepteingabe::beschriften() {
    beschriftungenSetzen(ui, *this, english);
    englischBeschriften(*this, schrittEnglisch);
    for (QPushButton *symbol : {ui.pbFirst, ui.pbPrevious, ui.pbNext, ui.pbLast})
        symbol->setAccessibleName(symbol->toolTip());
    mEditor.beschriften();
}

void Rezepteingabe::Form_Load() {
    beschriften();
    toleranzenFüllen();
    ui.laInfo->setText(inSprache(mArt.ersterHinweis));
    ui.txtRezName->setFocus();
}

void Rezepteingabe::Form_Activate() try {
    if (std::exchange(mbKopiert, false)) {
        fnc_NavigationFreigeben();
        gefangen(mArt.kennung.erster, [this] { schrittWählen(0); })();
    }
} catch (const Fehler &fehler) {
    fehlerBox(mArt.kennung.aktivieren, fehler);
}

bool Rezepteingabe::Form_QueryUnload() {
    return mbFertig || (mEditor.verlassen(focusWidget()) && verlassen());
}

void Rezepteingabe::Form_Unload() {
    if (Screen *list = loaded(mArt.liste))
        list->show();
    else
        form(mArt.liste).showModal();
}

void Rezepteingabe::txtRezName_Change() {
    ui.pbRezSave->setEnabled(!ui.txtRezName->text().trimmed().isEmpty() &&
                             !ui.cmbToleranz->currentText().isEmpty());
}

void Rezepteingabe::fnc_RezeptnameSpeichern() {
    if (fnc_RezeptnameVorhanden())
        return;
    const int answer = meldung(mArt.speichern, YesNo | Question, {"Message!", "MESSAGE!"});
    if (answer == No) {
        ui.txtRezName->setFocus();
        ui.txtRezName->clear();
        ui.cmbToleranz->setCurrentIndex(-1);
        return;
    }
    mArt.schritte.rezeptID = anlegen(ui.txtRezName->text(), ui.cmbToleranz->currentText());
    schritteFreigeben();
}

/// Also true when it cannot be found out.
bool Rezepteingabe::fnc_RezeptnameVorhanden() try {
    if (!rezeptnameVergeben(ui.txtRezName->text(), mArt.tabellen))
        return false;
    meldung(mArt.vergeben, Critical, {"Message", "MESSAGE"});
    ui.txtRezName->setFocus();
    ui.txtRezName->clear();
    return true;
} catch (const Fehler &fehler) {
    fehlerBox(mArt.kennung.vergeben, fehler);
    return true;
}

void Rezepteingabe::gitterAktualisieren() {
    mbKopiert = true;
    gitterZeigen(0);
}

void Rezepteingabe::schritteFreigeben() {
    ui.lbRezSaved->setText(umbrechbar(ui.txtRezName->text()));
    ui.lbToleranzSave->setText(umbrechbar(ui.cmbToleranz->currentText()));
    mEditor.nummerZeigen(1);
    mStand = Stand::Neu;
    mKopierbar = mArt.kopierbar;
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

void Rezepteingabe::pbok_Click() {
    gRezeptWahl = ui.txtRezName->text();
    mbFertig = true;
    unload();
}

/// Decides about the recipe when the screen is left other than by pbok. False when it stays.
bool Rezepteingabe::verlassen() try {
    if (!ui.txtRezName->isHidden()) // no name saved
        return true;
    const bool input = !mEditor.fnc_EingabeLeer();
    const bool steps = !mEditor.gitter().leer();
    if ((!steps && !input) || fnc_FrageVerwerfen()) {
        verwerfen(steps, input);
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
    fehlerBox(mArt.kennung.verlassen, fehler);
    gitterNachFehler(); // the steps may be gone
    return false;
}

bool Rezepteingabe::fnc_FrageVerwerfen() {
    return meldung(mArt.verwerfen, YesNo | Question, mArt.verwerfenTitel) == Yes;
}

/// The name goes into the list when that is activated.
void Rezepteingabe::fnc_RezeptlisteAktualisieren() try {
    if (auto *list = static_cast<Rezeptwahl *>(loaded(mArt.liste)))
        list->listeLesen();
} catch (const Fehler &fehler) {
    fehlerBox(mArt.kennung.liste, fehler);
}
