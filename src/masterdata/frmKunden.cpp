#include "masterdata/frmKunden.h"

#include <QLineEdit>
#include <QSignalBlocker>

#include <algorithm>
#include <utility>

#include "controls/umbruch.h"
#include "records/schluessel.h"
#include "records/spalte.h"
#include "session/auswahl.h"
#include "session/session.h"
#include "session/sprache.h"
#include "store/database.h"
#include "windows/msgbox.h"

using namespace platform;

namespace {

constexpr Beschriftung english[] = {
    {"", "Select Customer"},
    {"lbKundenname", "C&ustomer:"},
    {"lbOrtsfilter", "&Town:"},
    {"pbSearch", "&Search"},
    {"pbSearch#tip", "Searches the database for whole names. * stands for any number of "
                     "characters, ? for one."},
    {"Label", "Number Of Customers In The List: 0"},
    {"FrKunde", "Selected Customer"},
    {"lbStraße", "Street:"},
    {"lbPLZ", "Postal code:"},
    {"lbOrt", "Town:"},
    {"pbNeu", "&New ..."},
    {"pbchange", "&Edit ..."},
    {"pbDelete", "&Delete ..."},
    {"pbexit", "&OK"},
    {"pbAbbrechen", "&Cancel"},
};

Recordset kundeSuchen(const QString &name, const QString &ort) {
    if (ort.isEmpty())
        return gDatenbank.open("select * from Kunden where Name = ?", {name});
    return gDatenbank.open("select * from Kunden where Name = ? and Ort = ?", {name, ort});
}

void nichtsGefunden() {
    meldung({"Es wurden keine Daten gefunden! ", "No data found! "}, Information,
            {"Suchen", "Search"});
}

} // namespace

frmKunden::frmKunden() {
    ui.setupUi(this);
    sucheVerdrahten(
        ui.cmbKundenname, ui.lstKunden, [this] { cmbKundenname_Change(); },
        [this] { pbexit_Click(); });
    on(ui.cmbOrt, &QComboBox::currentIndexChanged, [this] { cmbOrt_Click(); });
    enterChain({ui.cmbOrt, ui.lstKunden});
    onClick(ui.pbSearch, [this] { pbSearch_Click(); });
    onClick(ui.pbNeu, [this] { pbNeu_Click(); });
    onClick(ui.pbchange, [this] { pbchange_Click(); });
    onClick(ui.pbDelete, [this] { pbDelete_Click(); });
    onClick(ui.pbexit, [this] { pbexit_Click(); });
    onClick(ui.pbAbbrechen, [this] { unload(); });
    onEnter(this, [this] { pbexit_Click(); });
    onEscape([this] { unload(); });
}

QString frmKunden::kundenname() const {
    return mKundenID == 0 ? QString() : mSuche.name();
}

void frmKunden::beschriften() {
    beschriftungenSetzen(ui, *this, english);
}

void frmKunden::Form_Load() try {
    beschriften();
    mGeladen = true; // also when the reading fails: it would fail again
    listenLesen();
    ui.cmbKundenname->setFocus();
} catch (const Fehler &fehler) {
    fehlerBox("1070 - ", fehler);
}

void frmKunden::Form_Activate() {
    if (!std::exchange(mGeladen, false))
        fnc_ListeAktualisieren();
}

bool frmKunden::Form_QueryUnload() {
    if (!mGewählt)
        return true;
    const int answer = meldung({"Wollen Sie jetzt ein Gerät zu diesem Kunden auswählen?",
                                "Do you want to select a unit for this customer now?"},
                               YesNo | Question, {"Stammdaten auswählen", "Select Master Data"});
    if (answer == Yes)
        gDesktopFolge = Desktopfolge::Gerät;
    return true;
}

void frmKunden::listenLesen() {
    const QString town = ui.cmbOrt->currentText();
    const Namensliste towns(spalte(gDatenbank.open("Select distinct Ort from Kunden"), 0));
    {
        const QSignalBlocker quiet(ui.cmbOrt);
        ui.cmbOrt->clear();
        ui.cmbOrt->addItem({}); // all towns
        ui.cmbOrt->addItems(towns.namen());
        ui.cmbOrt->setCurrentIndex(std::max(ui.cmbOrt->findText(town), 0));
    }
    const QString chosen = ui.cmbOrt->currentText();
    mSuche.füllen(spalte(chosen.isEmpty()
                             ? gDatenbank.open("select name from kunden")
                             : gDatenbank.open("Select Name from Kunden where Ort= ?", {chosen}),
                         0));
    fnc_KundeZeigen();
}

void frmKunden::fnc_ListeAktualisieren() try { listenLesen(); } catch (const Fehler &fehler) {
    fehlerBox("1077 - ", fehler);
}

void frmKunden::fnc_ListeLeeren() {
    alleOrte();
    mSuche.leeren();
    fnc_ListeAktualisieren();
    ui.cmbKundenname->setFocus();
}

void frmKunden::fnc_KundeWählen(const QString &name) try {
    mGeladen = true; // also when the reading fails: it would fail again
    mSuche.leeren();
    listenLesen();
    if (!mSuche.namen().contains(name)) {
        alleOrte();
        listenLesen();
    }
    mSuche.übernehmen(name);
    ui.cmbKundenname->setFocus(); // Enter chooses it
} catch (const Fehler &fehler) {
    fehlerBox("1077 - ", fehler);
}

void frmKunden::alleOrte() {
    const QSignalBlocker quiet(ui.cmbOrt);
    ui.cmbOrt->setCurrentIndex(0);
}

void frmKunden::fnc_KundeZeigen() {
    zeigen({}); // nothing that could be changed or deleted when the reading fails
    if (const QString name = mSuche.name(); !name.isEmpty())
        zeigen(kundeSuchen(name, ui.cmbOrt->currentText()));
    aktualisieren();
}

void frmKunden::zeigen(const Recordset &row) {
    const bool found = !row.empty();
    mKundenID = 0;
    if (found)
        schlüsselNach(mKundenID, row[0]);
    ui.lbName->setText(found ? umbrechbar(row[1].text()) : QString());
    ui.txtStraße->setText(found ? row[2].text() : QString());
    ui.txtPLZ->setText(found ? row[3].text() : QString());
    ui.txtOrt->setText(found ? row[4].text() : QString());
}

void frmKunden::aktualisieren() {
    ui.cmbKundenname->lineEdit()->setPlaceholderText(
        !mSuche.namen().isEmpty()
            ? inSprache(
                  {"Name oder Teil davon, auch mit * und ?", "Name or part of it, also * and ?"})
            : inSprache({"Noch kein Kunde; mit Neu anlegen", "No customer yet; press New"}));
    ui.Label->setText(inSprache({"Kundenanzahl: ", "Number Of Customers In The List: "}) +
                      QString::number(mSuche.anzahl()));
}

void frmKunden::cmbKundenname_Change() try {
    mSuche.textGeändert();
    fnc_KundeZeigen();
} catch (const Fehler &fehler) {
    fehlerBox("1071 - ", fehler);
}

void frmKunden::cmbOrt_Click() try {
    mSuche.leeren();
    listenLesen();
} catch (const Fehler &fehler) {
    fehlerBox("1072 - ", fehler);
}

void frmKunden::pbSearch_Click() try {
    const QString text = mSuche.text().trimmed();
    ui.cmbKundenname->setFocus();
    if (text.isEmpty()) {
        meldung({"Bitte geben Sie den Suchtext im Feld Kundenname ein!",
                 "To search, enter the text into the field 'Customer'!"},
                Exclamation, {"Suchen", "Search"});
        return;
    }
    const Recordset rows =
        gDatenbank.open("select * from Kunden where Muster(?, trim(Name))", {text});
    if (rows.empty()) {
        nichtsGefunden();
        return;
    }
    if (ui.cmbOrt->currentIndex() != 0) { // the search goes over all towns
        alleOrte();
        listenLesen();
    }
    mSuche.zeigen(spalte(rows, 1));
    if (rows.count() == 1)
        mSuche.übernehmen(rows[1].text());
    aktualisieren();
} catch (const Fehler &fehler) {
    fehlerBox("1073 - ", fehler);
}

void frmKunden::pbexit_Click() try {
    switch (mSuche.abschließen()) {
    case Suchliste::Eingabe::Leer:
        meldung({"Bitte wählen sie zuerst einen Kunden aus!", "Please select a customer first!"},
                Exclamation, {"Achtung!", "Attention"});
        ui.cmbKundenname->setFocus();
        return;
    case Suchliste::Eingabe::Unbekannt:
        nichtsGefunden();
        ui.cmbKundenname->setFocus();
        return;
    case Suchliste::Eingabe::Ergänzt:
        return;
    case Suchliste::Eingabe::Vollständig:
        break;
    }
    const QString name = mSuche.name();
    Schlüssel kundenID = 0;
    schlüsselNach(kundenID, kundeSuchen(name, ui.cmbOrt->currentText())["KundenID"]);
    kundeWählen(name, kundenID);
    mGewählt = true;
    unload();
} catch (const Fehler &fehler) {
    fehlerBox("1074 - ", fehler);
}

bool frmKunden::kundeGezeigt() {
    if (mKundenID != 0)
        return true;
    meldung({"Wählen sie zuerst einen Kunden aus!", "Please select a customer first!"}, Exclamation,
            {"Achtung!", "Attention"});
    ui.cmbKundenname->setFocus();
    return false;
}

void frmKunden::pbNeu_Click() {
    gNeuModus = false;
    form(frm::NeuKunde).showModal();
}

void frmKunden::pbchange_Click() try {
    if (kundeGezeigt())
        form(frm::ÄndKund).showModal();
} catch (const Fehler &fehler) {
    fehlerBox("1075 - ", fehler);
}

void frmKunden::pbDelete_Click() try {
    if (kundeGezeigt())
        form(frm::LöschKunde).showModal();
} catch (const Fehler &fehler) {
    fehlerBox("1076 - ", fehler);
}
