#include "masterdata/frmRezepte.h"

#include <QLineEdit>

#include <utility>

#include "records/arbeitskopie.h"
#include "records/rezept.h"
#include "session/auswahl.h"
#include "session/session.h"
#include "session/sprache.h"
#include "windows/msgbox.h"

using namespace platform;

namespace {

constexpr Beschriftung english[] = {
    {"", "Recipes"},
    {"lbRezeptname", "&Recipe:"},
    {"laInfo", "Number Of Recipes: 0"},
    {"FrRezept", "Selected Recipe"},
    {"lbSpezifikation", "Specification:"},
    {"pbNeuRezept", "&New ..."},
    {"pbÄndRez", "&Edit ..."},
    {"pbDelete", "&Delete"},
    {"pbok", "&OK"},
    {"pbexit", "&Cancel"},
};

} // namespace

frmRezepte::frmRezepte() {
    ui.setupUi(this);
    verdrahten({ui.cmbRezeptname, ui.lstRezepte, ui.laInfo, ui.lbRezTol, ui.DBGridRez},
               gefangen("1011 - ", [this] { cmbRezeptname_Change(); }),
               gefangen("1019 - ", [this] { bestätigen(); }));
    const auto ok = gefangen("1019 - ", [this] { pbok_Click(); });
    onClick(ui.pbNeuRezept, [this] { pbNeuRezept_Click(); });
    onClick(ui.pbÄndRez, gefangen("1017 - ", [this] { pbÄndRez_Click(); }));
    onClick(ui.pbDelete, [this] { pbDelete_Click(); });
    onClick(ui.pbok, ok);
    onClick(ui.pbexit, [this] { unload(); });
    onEnter(this, ok);
}

void frmRezepte::beschriften() {
    beschriftungenSetzen(ui, *this, english);
    mGitter.beschriften();
}

void frmRezepte::Form_Load() try {
    beschriften();
    aktualisieren();
    ui.cmbRezeptname->setFocus();
} catch (const Fehler &fehler) {
    fehlerBox("1014 - ", fehler);
}

void frmRezepte::Form_Activate() try {
    fnc_ListeFüllen();
    QString name = std::exchange(gRezeptWahl, {});
    const bool only = mSuche.namen().size() == 1;
    if (only && name.isEmpty())
        name = mSuche.namen().first();
    if (!name.isEmpty()) { // the change of the text does the rest
        mSuche.leeren();
        mSuche.übernehmen(name);
    } else {
        cmbRezeptname_Click();
    }
    if (only)
        ui.pbok->setFocus();
} catch (const Fehler &fehler) {
    fehlerBox("1013 - ", fehler);
}

void frmRezepte::Form_Unload() {
    if (!mGewählt)
        gefangen("1015 - ", sitzungsrezeptEinsetzen)();
    if (Screen *desktop = loaded(frm::Desktop))
        desktop->show();
}

void frmRezepte::listeLesen() {
    mGezeigt.clear(); // the recipe may have changed
    namenLesen();
    aktualisieren();
}

void frmRezepte::fnc_ListeFüllen() try { listeLesen(); } catch (const Fehler &fehler) {
    fehlerBox("1016 - ", fehler);
}

void frmRezepte::aktualisieren() {
    anzahlZeigen();
    ui.cmbRezeptname->lineEdit()->setPlaceholderText(
        !mSuche.namen().isEmpty()
            ? inSprache({"Name oder Teil davon", "Name or part of it"})
            : inSprache({"Noch kein Rezept; angelegt wird im Menü Verwaltung, Rezepte",
                         "No recipe yet; use menu Master Data, Recipes to enter one"}));
    const bool text = !mSuche.text().trimmed().isEmpty();
    ui.pbok->setEnabled(text);
    ui.pbDelete->setEnabled(text);
    ui.pbÄndRez->setEnabled(text && exists(frm::ÄndRez));
    ui.pbNeuRezept->setEnabled(exists(frm::NeuRezept));
    const bool maintenance = !gRezeptAufruf;
    ui.pbNeuRezept->setVisible(maintenance);
    ui.pbÄndRez->setVisible(maintenance);
    ui.pbDelete->setVisible(maintenance);
}

void frmRezepte::cmbRezeptname_Change() {
    mSuche.textGeändert();
    aktualisieren();
    cmbRezeptname_Click();
}

void frmRezepte::cmbRezeptname_Click() try {
    const QString name = mSuche.name();
    if (!name.isEmpty() && name == mGezeigt)
        return;
    mGezeigt.clear();
    leeren();
    if (name.isEmpty())
        return;
    const RezeptKopf kopf = rezeptKopf(name);
    rezeptEinsetzen(kopf);
    zeigen(kopf.toleranz, rezeptSchritte(kopf.rezeptID));
    mGezeigt = name;
} catch (const Fehler &fehler) {
    fehlerBox("1012 - ", fehler);
}

/// Whether the box names a recipe that is in force. Completes part of a name.
bool frmRezepte::rezeptGezeigt() {
    const QString before = mSuche.text();
    if (!rezeptFestlegen())
        return false;
    if (mSuche.text() == before) // otherwise the change has done it
        cmbRezeptname_Click();   // tells why when the recipe cannot be used
    return !mGezeigt.isEmpty();
}

/// A person has settled on a name in box or list: chosen, or next to be changed.
void frmRezepte::bestätigen() {
    if (!ui.pbok->isEnabled() || !rezeptGezeigt())
        return;
    if (gRezeptAufruf)
        pbok_Click();
    else
        ui.pbÄndRez->setFocus();
}

void frmRezepte::pbok_Click() {
    if (!ui.pbok->isEnabled())
        return;
    if (gRezeptAufruf) {
        if (!rezeptGezeigt())
            return;
        gRezeptAufruf = false;
        mGewählt = true;
        rezeptWählen(mGezeigt);
    }
    unload();
}

void frmRezepte::pbNeuRezept_Click() {
    gNeuModus = false;
    form(frm::NeuRezept).showModal();
}

void frmRezepte::pbÄndRez_Click() {
    if (!rezeptGezeigt())
        return;
    Arbeitskopie(ordentlicheRezepte.schritte).füllen(gRezeptID);
    gRezeptWahl = mGezeigt;
    Screen &editor = form(frm::ÄndRez);
    editor.setCaption(
        inSprache({"Änderung im Rezept '%1'", "Canges In Recipe '%1'"}).arg(mGezeigt));
    hide(); // stays loaded; the editor keeps the screens below out of use
    editor.showModal();
}

void frmRezepte::pbDelete_Click() try {
    if (mSuche.name().isEmpty() && !rezeptGezeigt())
        return;
    const QString name = mSuche.name();
    const int answer = meldung({"Wollen sie die Tabelle " + name + " wirklich löschen?",
                                "Do you really want to delete the table '" + name + "'?"},
                               YesNo | Question, {"Achtung!", "ATTENTION"});
    if (answer == Yes)
        rezeptLöschen(rezeptSchlüssel(name));
    mSuche.leeren();
    fnc_ListeFüllen();
    ui.cmbRezeptname->setFocus();
} catch (const Fehler &fehler) {
    mGezeigt.clear();
    fehlerBox("1018 - ", fehler);
    cmbRezeptname_Click(); // its steps may be gone
}
