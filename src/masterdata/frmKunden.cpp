#include "masterdata/frmKunden.h"

#include <QLineEdit>
#include <QSignalBlocker>

#include <algorithm>
#include <utility>

#include "controls/umbruch.h"
#include "session/auswahl.h"
#include "session/session.h"
#include "session/sprache.h"
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
    const Namensliste towns(kundenorte());
    {
        const QSignalBlocker quiet(ui.cmbOrt);
        ui.cmbOrt->clear();
        ui.cmbOrt->addItem({}); // all towns
        ui.cmbOrt->addItems(towns.namen());
        ui.cmbOrt->setCurrentIndex(std::max(ui.cmbOrt->findText(town), 0));
    }
    mSuche.füllen(kundennamen(ui.cmbOrt->currentText()));
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
    if (const QString name = mSuche.name(); !name.isEmpty()) {
        const Recordset row = kundenMitName(name, ui.cmbOrt->currentText());
        if (!row.empty())
            zeigen(kundeAus(row));
    }
    aktualisieren();
}

void frmKunden::zeigen(const Kundendaten &kunde) {
    mKundenID = kunde.kundenID;
    ui.lbName->setText(umbrechbar(kunde.name));
    ui.txtStraße->setText(kunde.straße);
    ui.txtPLZ->setText(kunde.plz);
    ui.txtOrt->setText(kunde.ort);
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
    const QStringList found = kundenSuchen(text);
    if (found.isEmpty()) {
        nichtsGefunden();
        return;
    }
    if (ui.cmbOrt->currentIndex() != 0) { // the search goes over all towns
        alleOrte();
        listenLesen();
    }
    mSuche.zeigen(found);
    if (found.size() == 1)
        mSuche.übernehmen(found.first());
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
    kundeWählen(name, kundeAus(kundenMitName(name, ui.cmbOrt->currentText())).kundenID);
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
