#include "masterdata/frmKunden.h"

#include <QLineEdit>

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
    {"pbDelete", "&Delete"},
    {"pbexit", "&OK"},
    {"pbAbbrechen", "&Cancel"},
};

const Text suchtitel{"Suchen", "Search"};

} // namespace

frmKunden::frmKunden() {
    ui.setupUi(this);
    const auto choose = gefangen("1074 - ", [this] { pbexit_Click(); });
    verdrahten(
        {.feld = ui.cmbKundenname,
         .liste = ui.lstKunden,
         .filter = ui.cmbOrt,
         .keiner = {"Wählen sie zuerst einen Kunden aus!", "Please select a customer first!"},
         .achtung = {"Achtung!", "Attention"},
         .laden = "1070 - ",
         .lesen = "1077 - ",
         .text = "1071 - ",
         .auswahl = "1072 - "},
        choose);
    enterChain({ui.cmbOrt, ui.lstKunden});
    onClick(ui.pbSearch, gefangen("1073 - ", [this] { pbSearch_Click(); }));
    onClick(ui.pbNeu, [this] { neuen(frm::NeuKunde); });
    onClick(ui.pbchange, gefangen("1075 - ", [this] { mitGezeigtem(frm::ÄndKund); }));
    onClick(ui.pbDelete, gefangen("1076 - ", [this] { mitGezeigtem(frm::LöschKunde); }));
    onClick(ui.pbexit, choose);
    onClick(ui.pbAbbrechen, [this] { unload(); });
}

void frmKunden::beschriften() {
    beschriftungenSetzen(ui, *this, english);
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

void frmKunden::detailsZeigen() {
    zeigen({}); // nothing that could be changed or deleted when the reading fails
    if (const QString name = mSuche.name(); !name.isEmpty()) {
        const Recordset row = kundenMitName(name, ui.cmbOrt->currentText());
        if (!row.empty())
            zeigen(kundeAus(row));
    }
    aktualisieren();
}

void frmKunden::zeigen(const Kundendaten &kunde) {
    mGezeigt = kunde.kundenID;
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

void frmKunden::pbSearch_Click() {
    const QString text = mSuche.text().trimmed();
    ui.cmbKundenname->setFocus();
    if (text.isEmpty()) {
        meldung({"Bitte geben Sie den Suchtext im Feld Kundenname ein!",
                 "To search, enter the text into the field 'Customer'!"},
                Exclamation, suchtitel);
        return;
    }
    const QStringList found = kundenSuchen(text);
    if (found.isEmpty()) {
        nichtsGefunden(suchtitel);
        return;
    }
    if (ui.cmbOrt->currentIndex() != 0) { // the search goes over all towns
        filterSetzen({});
        listenLesen();
    }
    mSuche.zeigen(found);
    if (found.size() == 1)
        mSuche.übernehmen(found.first());
    aktualisieren();
}

void frmKunden::pbexit_Click() {
    if (mSuche.text().trimmed().isEmpty()) {
        meldung({"Bitte wählen sie zuerst einen Kunden aus!", "Please select a customer first!"},
                Exclamation, {"Achtung!", "Attention"});
        ui.cmbKundenname->setFocus();
        return;
    }
    if (!nameFestlegen(suchtitel))
        return;
    const QString name = mSuche.name();
    kundeWählen(name, kundeAus(kundenMitName(name, ui.cmbOrt->currentText())).kundenID);
    mGewählt = true;
    unload();
}
