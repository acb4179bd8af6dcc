#include "frmRezepte.h"

#include <QHeaderView>
#include <QLineEdit>
#include <QShortcut>

#include <utility>

#include "auswahl.h"
#include "database.h"
#include "msgbox.h"
#include "rezept.h"
#include "session.h"
#include "spalte.h"
#include "sprache.h"

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

/// Puts the recipe that the desktop shows back in force. One that is gone is no longer chosen.
void sitzungsrezeptEinsetzen() try {
    if (!auswahl().rezept.isEmpty())
        rezeptEinsetzen(rezeptKopf(auswahl().rezept));
} catch (const Fehler &fehler) {
    if (fehler.number() == fehlernummer::NoCurrentRecord)
        rezeptWählen({});
    else
        fehlerBox("Fehler 1015 - ", "ERROR 1015 - ", fehler);
}

} // namespace

frmRezepte::frmRezepte() : mSchritte(new RecordsetModel) {
    ui.setupUi(this);
    mSuche.verbinden(ui.cmbRezeptname, ui.lstRezepte);
    mSchritte->setParent(ui.DBGridRez);
    ui.DBGridRez->setModel(mSchritte);
    ui.DBGridRez->verticalHeader()->hide();
    on(ui.cmbRezeptname, &QComboBox::editTextChanged, [this] { cmbRezeptname_Change(); });
    onKey(ui.cmbRezeptname, [this](QKeyEvent &key) { return mSuche.taste(key); });
    onEnter(ui.cmbRezeptname, [this] { pbok_Click(); });
    on(ui.lstRezepte->selectionModel(), &QItemSelectionModel::selectionChanged,
       [this] { mSuche.zeileGewählt(); });
    on(ui.lstRezepte, &QListView::clicked, [this] { mSuche.zeileGewählt(); });
    on(ui.lstRezepte, &QListView::doubleClicked, [this] { pbok_Click(); });
    onClick(ui.pbNeuRezept, [this] { pbNeuRezept_Click(); });
    onClick(ui.pbÄndRez, [this] { pbÄndRez_Click(); });
    onClick(ui.pbDelete, [this] { pbDelete_Click(); });
    onClick(ui.pbok, [this] { pbok_Click(); });
    onClick(ui.pbexit, [this] { unload(); });
    onEnter(this, [this] { pbok_Click(); });
    on(new QShortcut(Qt::Key_Escape, this), &QShortcut::activated, [this] { unload(); });
}

void frmRezepte::beschriften() {
    if (gSprache == 1)
        ui.retranslateUi(this);
    englischBeschriften(*this, english);
    ui.cmbRezeptname->lineEdit()->setPlaceholderText(
        inSprache({"Name oder Teil davon", "Name or part of it"}));
    const auto right = Qt::AlignRight | Qt::AlignVCenter;
    mSchritte->setSpalten({
        {"Prüfschritt", inSprache({"Prüfschritt", "Test step"}), right},
        {"Drehzahl", inSprache({"Drehzahl (1/min)", "Speed (1/min)"}), right},
        {"Leistung", inSprache({"Leistung (W)", "Power (W)"}), right},
        {"Messart", inSprache({"Messart", "Type"})},
    });
    QHeaderView *head = ui.DBGridRez->horizontalHeader();
    head->setSectionResizeMode(QHeaderView::ResizeToContents);
    head->setStretchLastSection(true);
}

void frmRezepte::Form_Load() try {
    beschriften();
    aktualisieren();
    ui.cmbRezeptname->setFocus();
} catch (const Fehler &fehler) {
    fehlerBox("Fehler 1014 - ", "ERROR 1014 - ", fehler);
}

void frmRezepte::Form_Activate() try {
    fnc_ListeFüllen();
    if (!gRezeptWahl.isEmpty()) {
        mSuche.leeren();
        mSuche.übernehmen(std::exchange(gRezeptWahl, {}));
    } else if (mSuche.namen().size() == 1) {
        mSuche.leeren();
        mSuche.übernehmen(mSuche.namen().first());
        ui.pbok->setFocus();
    } else { // otherwise the change of the text does it
        aktualisieren();
        cmbRezeptname_Click();
    }
} catch (const Fehler &fehler) {
    fehlerBox("Fehler 1013 - ", "ERROR 1013 - ", fehler);
}

void frmRezepte::Form_Unload() {
    if (!mGewählt)
        sitzungsrezeptEinsetzen();
    if (Screen *desktop = loaded(frm::Desktop))
        desktop->show();
}

void frmRezepte::fnc_ListeFüllen() try {
    mSuche.füllen(spalte(gDatenbank.open("select Rezname from Rezeptnamen"), 0));
    mGezeigt.clear(); // the recipe may have changed
    aktualisieren();
} catch (const Fehler &fehler) {
    fehlerBox("Fehler 1016 - ", "ERROR 1016 - ", fehler);
}

void frmRezepte::aktualisieren() {
    ui.laInfo->setText(inSprache({"Rezeptanzahl: ", "Number Of Recipes: "}) +
                       QString::number(mSuche.namen().size()));
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

void frmRezepte::cmbRezeptname_Change() try {
    mSuche.textGeändert();
    aktualisieren();
    cmbRezeptname_Click();
} catch (const Fehler &fehler) {
    fehlerBox("Fehler 1011 - ", "ERROR 1011 - ", fehler);
}

void frmRezepte::cmbRezeptname_Click() try {
    const QString name = mSuche.name();
    if (!name.isEmpty() && name == mGezeigt)
        return;
    mGezeigt.clear();
    ui.lbRezTol->clear();
    mSchritte->setRecordset({});
    if (name.isEmpty())
        return;
    const RezeptKopf kopf = rezeptKopf(name);
    rezeptEinsetzen(kopf);
    ui.lbRezTol->setText(kopf.toleranz);
    mSchritte->setRecordset(rezeptSchritte(kopf.rezeptID));
    mGezeigt = name;
} catch (const Fehler &fehler) {
    fehlerBox("Fehler 1012 - ", "ERROR 1012 - ", fehler);
}

/// Whether the box names a recipe that is in force. Completes part of a name.
bool frmRezepte::rezeptGezeigt() {
    switch (mSuche.abschließen()) {
    case Suchliste::Eingabe::Leer:
    case Suchliste::Eingabe::Unbekannt:
        meldung({"Es wurden keine Daten gefunden! ", "No data found! "}, Information,
                {"Rezepte", "Recipes"});
        ui.cmbRezeptname->setFocus();
        return false;
    case Suchliste::Eingabe::Ergänzt:
        return false;
    case Suchliste::Eingabe::Vollständig:
        break;
    }
    cmbRezeptname_Click(); // tells why when the recipe cannot be used
    return !mGezeigt.isEmpty();
}

void frmRezepte::pbok_Click() try {
    if (!ui.pbok->isEnabled() || !rezeptGezeigt())
        return;
    if (std::exchange(gRezeptAufruf, false)) {
        mGewählt = true;
        rezeptWählen(mGezeigt);
    }
    unload();
} catch (const Fehler &fehler) {
    fehlerBox("Fehler 1019 - ", "ERROR 1019 - ", fehler);
}

void frmRezepte::pbNeuRezept_Click() {
    gNeuModus = false;
    ::screen(frm::NeuRezept).showModal();
}

void frmRezepte::pbÄndRez_Click() try {
    if (!rezeptGezeigt())
        return;
    gDatenbank.execute("INSERT INTO ÄndRez_temp SELECT * FROM Rezepte WHERE rezeptid = ?",
                       {gRezeptID});
    gRezeptWahl = mGezeigt;
    Screen &editor = ::screen(frm::ÄndRez);
    editor.setCaption(
        inSprache({"Änderung im Rezept '%1'", "Canges In Recipe '%1'"}).arg(mGezeigt));
    hide();
    editor.show();
} catch (const Fehler &fehler) {
    fehlerBox("Fehler 1017 - ", "ERROR 1017 - ", fehler);
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
    fehlerBox("Fehler 1018 - ", "ERROR 1018 - ", fehler);
}
