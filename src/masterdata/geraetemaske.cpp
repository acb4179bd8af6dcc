#include "masterdata/geraetemaske.h"

#include "controls/eintrag.h"
#include "controls/umbruch.h"
#include "masterdata/frmGeraet.h"
#include "session/auswahl.h"
#include "session/session.h"
#include "session/sprache.h"
#include "windows/msgbox.h"

using namespace platform;

namespace {

constexpr Beschriftung english[] = {
    {"lbKunde", "Customer:"},
    {"lbTyp", "Unit &type:"},
    {"lbHersteller", "&Manufacturer:"},
    {"lbSerienNr", "Serial &number:"},
    {"lbIdentNr", "&ID number:"},
    {"pbSave", "&Save"},
    {"pbexit", "&Cancel"},
};

} // namespace

Gerätemaske::Gerätemaske(const Art &art) : mArt(art) {
    ui.setupUi(this);
    setCaption(mArt.titel.german);
    ui.pbSave->setEnabled(!mArt.änderung); // nothing is loaded yet
    ui.Label1->hide();
    enterChain({ui.txtTyp, ui.txtHersteller, ui.txtSerienNr, ui.txtIdentNr});
    onEnter(ui.txtIdentNr, [this] { ui.pbSave->click(); });
    onClick(ui.pbSave, gefangen(mArt.speichern, [this] { pbSave_Click(); }));
    onClick(ui.pbexit, [this] { unload(); });
    onEscape([this] { unload(); });
}

void Gerätemaske::Form_Load() {
    gefangen(mArt.laden, [this] {
        beschriftungenSetzen(ui, *this, english);
        setCaption(gSprache == 2 ? mArt.titel.english : mArt.titel.german);
        ui.laKunde->setText(umbrechbar(auswahl().kunde));
        ui.txtTyp->setFocus();
        const auto *list = loaded<frmGerät>();
        if (mArt.änderung && list && list->gezeigt() != 0) {
            eintragen(gerätLesen(list->gezeigt()));
            ui.pbSave->setEnabled(true);
        }
    })();
}

void Gerätemaske::eintragen(const Gerätedaten &gerät) {
    ui.txtTyp->setText(gerät.typ);
    ui.txtHersteller->setText(gerät.hersteller);
    ui.txtSerienNr->setText(gerät.serienNr);
    ui.txtIdentNr->setText(gerät.identNr);
    mGerätID = gerät.gerätID;
    mVorher = eingabe();
    zumErsetzenMarkieren(ui.txtTyp);
}

Gerätedaten Gerätemaske::eingabe() const {
    return {ui.txtTyp->text(), ui.txtHersteller->text(), ui.txtSerienNr->text(),
            ui.txtIdentNr->text(), mGerätID};
}

/// False, and told why, when something is missing or another unit has the ident number; not if it
/// was so before.
bool Gerätemaske::annehmbar() {
    const Gerätedaten gerät = eingabe();
    const Fehlendes fehlendes = fehlendeAngaben(gerät, mVorher);
    if (fehlendes.erste) {
        meldung(fehlendes.text, Exclamation, {"Eingabefehler", "Error"});
        QLineEdit *const felder[] = {ui.txtTyp, ui.txtHersteller, ui.txtSerienNr, ui.txtIdentNr};
        felder[*fehlendes.erste]->setFocus();
        return false;
    }
    const bool gleich =
        mVorher && gerät.identNr.compare(mVorher->identNr, Qt::CaseInsensitive) == 0;
    if (!gleich && identnummerVergeben(gerät.identNr, mGerätID)) {
        meldung({"Diese Identifikationsnummer ist bereits vergeben!",
                 "This identification number has already been allocated!"},
                Exclamation, {"MESSAGE!", "MESSAGE!"});
        ui.txtIdentNr->setFocus();
        ui.txtIdentNr->selectAll();
        return false;
    }
    return true;
}

/// Stores and closes, and lets the list of units show this one.
void Gerätemaske::pbSave_Click() {
    if (!annehmbar())
        return;
    const Gerätedaten gerät = eingabe();
    speichern(gerät);
    meldung(mArt.gespeichert, Information, {"Bestätigung", "MESSAGE"});
    unload();
    if (auto *list = loaded<frmGerät>())
        list->fnc_Wählen(gerät.identNr);
}

void Gerätemaske::bemerken(const QString &text) {
    ui.Label1->setText(text);
    ui.Label1->setVisible(!text.isEmpty());
}
