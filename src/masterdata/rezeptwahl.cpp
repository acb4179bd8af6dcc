#include "masterdata/rezeptwahl.h"

#include <QLineEdit>

#include <utility>

#include "records/arbeitskopie.h"
#include "records/rezept.h"
#include "session/session.h"
#include "session/sprache.h"
#include "windows/msgbox.h"

using namespace platform;

namespace {

constexpr Beschriftung english[] = {
    {"lbRezeptname", "&Recipe:"},
    {"FrRezept", "Selected Recipe"},
    {"lbSpezifikation", "Specification:"},
    {"pbNeuRezept", "&New ..."},
    {"pbÄndRez", "&Edit ..."},
    {"pbDelete", "&Delete"},
    {"pbok", "&OK"},
    {"pbexit", "&Cancel"},
};

} // namespace

Rezeptwahl::Rezeptwahl(const Art &art) : mArt(art) {
    ui.setupUi(this);
    verdrahten({.feld = ui.cmbRezeptname,
                .liste = ui.lstRezepte,
                .anzahl = ui.laInfo,
                .toleranz = ui.lbRezTol,
                .schritte = ui.DBGridRez,
                .spalten = mArt.spalten,
                .tabellen = mArt.tabellen,
                .zähler = mArt.zähler},
               gefangen(mArt.kennung.ändern, [this] { cmbRezeptname_Change(); }),
               gefangen(mArt.kennung.wählen, [this] { bestätigen(); }));
    const auto ok = gefangen(mArt.kennung.wählen, [this] { pbok_Click(); });
    onClick(ui.pbNeuRezept, [this] { pbNeuRezept_Click(); });
    onClick(ui.pbÄndRez, gefangen(mArt.kennung.editor, [this] { pbÄndRez_Click(); }));
    onClick(ui.pbDelete, [this] { pbDelete_Click(); });
    onClick(ui.pbok, ok);
    onClick(ui.pbexit, [this] { unload(); });
    onEnter(this, ok);
}

void Rezeptwahl::beschriften() {
    beschriftungenSetzen(ui, *this, english);
    mGitter.beschriften();
}

void Rezeptwahl::Form_Load() try {
    beschriften();
    aktualisieren();
    ui.cmbRezeptname->setFocus();
} catch (const Fehler &fehler) {
    fehlerBox(mArt.kennung.laden, fehler);
}

void Rezeptwahl::Form_Activate() try {
    fnc_ListeFüllen();
    QString name = std::exchange(gRezeptWahl, {});
    if (name.isEmpty())
        name = vorgewählt();
    if (!name.isEmpty()) { // the change of the text does the rest
        mSuche.leeren();
        mSuche.übernehmen(name);
    } else {
        cmbRezeptname_Click();
    }
    if (!einziges().isEmpty())
        ui.pbok->setFocus();
} catch (const Fehler &fehler) {
    fehlerBox(mArt.kennung.aktivieren, fehler);
}

void Rezeptwahl::Form_Unload() {
    gefangen(mArt.kennung.entladen, [this] { verlassen(mGewählt); })();
}

QString Rezeptwahl::einziges() const {
    return mSuche.namen().size() == 1 ? mSuche.namen().first() : QString();
}

void Rezeptwahl::listeLesen() {
    mGezeigt.clear(); // the recipe may have changed
    namenLesen();
    aktualisieren();
}

void Rezeptwahl::fnc_ListeFüllen() try { listeLesen(); } catch (const Fehler &fehler) {
    fehlerBox(mArt.kennung.liste, fehler);
}

void Rezeptwahl::aktualisieren() {
    anzahlZeigen();
    ui.cmbRezeptname->lineEdit()->setPlaceholderText(
        !mSuche.namen().isEmpty() ? inSprache({"Name oder Teil davon", "Name or part of it"})
                                  : inSprache(mArt.nochKeines));
    const bool text = !mSuche.text().trimmed().isEmpty();
    ui.pbok->setEnabled(text);
    ui.pbDelete->setEnabled(text);
    ui.pbÄndRez->setEnabled(text && exists(mArt.ändern));
    ui.pbNeuRezept->setEnabled(exists(mArt.neu));
    const bool maintenance = pflegt();
    ui.pbNeuRezept->setVisible(maintenance);
    ui.pbÄndRez->setVisible(maintenance);
    ui.pbDelete->setVisible(maintenance);
}

void Rezeptwahl::cmbRezeptname_Change() {
    mSuche.textGeändert();
    aktualisieren();
    cmbRezeptname_Click();
}

void Rezeptwahl::cmbRezeptname_Click() try {
    const QString name = mSuche.name();
    if (!name.isEmpty() && name == mGezeigt)
        return;
    mGezeigt.clear();
    leeren();
    if (name.isEmpty())
        return;
    einsetzen(name);
    mGezeigt = name;
} catch (const Fehler &fehler) {
    fehlerBox(mArt.kennung.klick, fehler);
}

/// Whether the box names a recipe that is in force. Completes part of a name.
bool Rezeptwahl::rezeptGezeigt() {
    const QString before = mSuche.text();
    if (!rezeptFestlegen())
        return false;
    if (mSuche.text() == before) // otherwise the change has done it
        cmbRezeptname_Click();   // tells why when the recipe cannot be used
    return !mGezeigt.isEmpty();
}

/// A person has settled on a name in box or list: chosen, or next to be changed.
void Rezeptwahl::bestätigen() {
    if (!ui.pbok->isEnabled() || !rezeptGezeigt())
        return;
    if (!wählt())
        ui.pbÄndRez->setFocus();
    else if (pflegt())
        ui.pbok->setFocus();
    else
        pbok_Click();
}

void Rezeptwahl::pbok_Click() {
    if (!ui.pbok->isEnabled())
        return;
    if (wählt()) {
        if (!rezeptGezeigt())
            return;
        mGewählt = true;
        gewählt(mGezeigt);
    }
    unload();
}

void Rezeptwahl::pbNeuRezept_Click() {
    gNeuModus = false;
    form(mArt.neu).showModal();
}

void Rezeptwahl::pbÄndRez_Click() {
    if (!rezeptGezeigt())
        return;
    Arbeitskopie(mArt.tabellen).füllen(mArt.rezeptID);
    gRezeptWahl = mGezeigt;
    Screen &editor = form(mArt.ändern);
    editor.setCaption(inSprache(mArt.änderung).arg(mGezeigt));
    hide(); // stays loaded; the editor keeps the screens below out of use
    editor.showModal();
}

void Rezeptwahl::pbDelete_Click() try {
    if (mSuche.name().isEmpty() && !rezeptGezeigt())
        return;
    const QString name = mSuche.name();
    const int answer = meldung({"Wollen sie die Tabelle " + name + " wirklich löschen?",
                                "Do you really want to delete the table '" + name + "'?"},
                               YesNo | Question, {"Achtung!", "ATTENTION"});
    if (answer == Yes)
        rezeptLöschen(rezeptSchlüssel(name, mArt.tabellen), mArt.tabellen);
    mSuche.leeren();
    fnc_ListeFüllen();
    ui.cmbRezeptname->setFocus();
} catch (const Fehler &fehler) {
    mGezeigt.clear();
    fehlerBox(mArt.kennung.löschen, fehler);
    cmbRezeptname_Click(); // its steps may be gone
}
