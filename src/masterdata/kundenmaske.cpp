#include "masterdata/kundenmaske.h"

#include <QLineEdit>

#include "controls/eintrag.h"
#include "controls/namensliste.h"
#include "masterdata/frmKunden.h"
#include "session/session.h"
#include "session/sprache.h"
#include "windows/msgbox.h"

using namespace platform;

namespace {

constexpr Beschriftung english[] = {
    {"lbName", "&Name:"}, {"lbStraße", "St&reet:"}, {"lbPLZ", "&Postal code:"},
    {"lbOrt", "&Town:"},  {"pbSave", "&Save"},      {"pbexit", "&Cancel"},
};

const Text eingabefehler{"Eingabefehler", "Error"};

} // namespace

Kundenmaske::Kundenmaske(const Art &art) : mArt(art) {
    ui.setupUi(this);
    setCaption(mArt.titel.german);
    ui.pbSave->setEnabled(!mArt.änderung); // nothing is loaded yet
    ohneErgänzung(ui.cmbOrt);
    ui.cmbOrt->lineEdit()->setMaxLength(ui.txtName->maxLength());
    enterChain({ui.txtName, ui.txtStraße, ui.txtPLZ, ui.cmbOrt});
    onEnter(ui.cmbOrt, [this] { ui.pbSave->click(); });
    onClick(ui.pbSave, gefangen(mArt.speichern, [this] { pbSave_Click(); }));
    onClick(ui.pbexit, [this] { unload(); });
    onEscape([this] { unload(); });
}

void Kundenmaske::Form_Load() {
    gefangen(mArt.laden, [this] {
        beschriftungenSetzen(ui, *this, english);
        setCaption(gSprache == 2 ? mArt.titel.english : mArt.titel.german);
        ui.txtName->setFocus();
        ui.cmbOrt->addItems(Namensliste(kundenorte()).namen());
        ui.cmbOrt->setCurrentIndex(-1);
        ui.cmbOrt->clearEditText();
        const auto *list = loaded<frmKunden>();
        if (mArt.änderung && list && list->gezeigt() != 0) {
            eintragen(kundeLesen(list->gezeigt()));
            ui.pbSave->setEnabled(true);
        }
    })();
}

void Kundenmaske::eintragen(const Kundendaten &kunde) {
    ui.txtName->setText(kunde.name);
    ui.txtStraße->setText(kunde.straße);
    ui.txtPLZ->setText(kunde.plz);
    ui.cmbOrt->setEditText(kunde.ort);
    mVorher.kundenID = kunde.kundenID;
    mVorher = eingabe();
    zumErsetzenMarkieren(ui.txtName);
}

Kundendaten Kundenmaske::eingabe() const {
    return {ui.txtName->text(), ui.txtStraße->text(), ui.txtPLZ->text(), ui.cmbOrt->currentText(),
            mVorher.kundenID};
}

/// False, and told why, when there is no name or another customer bears it; not if it was so
/// before.
bool Kundenmaske::annehmbar() {
    const QString name = ui.txtName->text();
    if (mVorher.kundenID != 0 && name.compare(mVorher.name, Qt::CaseInsensitive) == 0)
        return true;
    if (name.trimmed().isEmpty())
        meldung({" Keine Daten zum Speichern vorhanden! ", " No data to be saved! "}, Exclamation,
                eingabefehler);
    else if (kundennameVergeben(name, mVorher.kundenID))
        meldung({" Dieser Kunde existiert schon!", " This customer is already existent!"},
                Exclamation, eingabefehler);
    else
        return true;
    ui.txtName->setFocus();
    return false;
}

/// Stores and closes, and lets the list of customers show this one.
void Kundenmaske::pbSave_Click() {
    if (!annehmbar())
        return;
    const Kundendaten kunde = eingabe();
    speichern(kunde);
    meldung(mArt.gespeichert, Information, {"Bestätigung", "MESSAGE"});
    unload();
    if (auto *list = loaded<frmKunden>())
        list->fnc_Wählen(kunde.name);
}
