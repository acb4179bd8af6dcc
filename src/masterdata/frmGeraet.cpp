#include "masterdata/frmGeraet.h"

#include <QLineEdit>

#include "controls/umbruch.h"
#include "session/auswahl.h"
#include "session/session.h"
#include "session/sprache.h"
#include "windows/msgbox.h"

using namespace platform;

namespace {

constexpr Beschriftung english[] = {
    {"", "Select Unit"},
    {"lbKunde", "Customer:"},
    {"lbTyp", "Unit &type:"},
    {"lbIdent", "&ID number:"},
    {"Label", "Number Of Units In The List: 0"},
    {"FrGerät", "Selected Unit"},
    {"lbGerätetyp", "Unit type:"},
    {"lbHersteller", "Manufacturer:"},
    {"lbSerienNr", "Serial number:"},
    {"lbIdentNr", "ID number:"},
    {"pbNeu", "&New ..."},
    {"pbchange", "&Edit ..."},
    {"pbDelete", "&Delete"},
    {"pbok", "&OK"},
    {"pbexit", "&Cancel"},
};

} // namespace

frmGerät::frmGerät() {
    ui.setupUi(this);
    const auto choose = gefangen("1102 - ", [this] { pbok_Click(); });
    verdrahten({.feld = ui.cmbIdent,
                .liste = ui.lstIdent,
                .filter = ui.cmbTyp,
                .keiner = {"Wählen Sie zuerst ein Gerät aus!", "First, select a unit under test!"},
                .achtung = {"Achtung!", "Attention!"},
                .laden = "1091 - ",
                .lesen = "1092 - ",
                .text = "1094 - ",
                .auswahl = "1093 - "},
               choose);
    enterChain({ui.cmbTyp, ui.cmbIdent});
    onClick(ui.pbNeu, [this] { neuen(frm::NeuGerät); });
    onClick(ui.pbchange, gefangen("1100 - ", [this] { mitGezeigtem(frm::ÄndGerät); }));
    onClick(ui.pbDelete, [this] { pbDelete_Click(); });
    onClick(ui.pbok, choose);
    onClick(ui.pbexit, [this] { unload(); });
}

void frmGerät::beschriften() {
    beschriftungenSetzen(ui, *this, english);
    ui.cmbIdent->lineEdit()->setPlaceholderText(
        inSprache({"Nummer oder Teil davon", "Number or part of it"}));
    ui.laKunde->setText(umbrechbar(auswahl().kunde));
}

void frmGerät::namenLesen(const QString &typ) {
    const QStringList numbers = identnummern(gKundenID, typ);
    mSuche.füllen(numbers);
    mOhneNummer = numbers.size() - mSuche.namen().size();
    if (numbers.size() == 1) {
        mSuche.leeren();
        mSuche.übernehmen(numbers.first());
    }
}

// The types stay as they are, also when the last unit of the one picked has gone meanwhile.
void frmGerät::filterGewählt() {
    namenLesen(ui.cmbTyp->currentText());
    detailsZeigen();
}

void frmGerät::detailsZeigen() {
    zeigen({}); // nothing that could be changed or deleted when the reading fails
    const Recordset row = ident().isEmpty() ? einzigesGerät() : gerätMitIdent(gKundenID, ident());
    if (!row.empty())
        zeigen(gerätAus(row));
    aktualisieren();
}

/// The only unit of the chosen type.
Recordset frmGerät::einzigesGerät() const {
    const QString typ = ui.cmbTyp->currentText();
    if (typ.isEmpty())
        return {};
    const Recordset rows = geräteVomTyp(gKundenID, typ);
    return rows.count() == 1 ? rows : Recordset();
}

void frmGerät::zeigen(const Gerätedaten &gerät) {
    mGezeigt = gerät.gerätID;
    mGerät = gerät;
    ui.txtTyp->setText(gerät.typ);
    ui.txtHersteller->setText(gerät.hersteller);
    ui.txtSerienNr->setText(gerät.serienNr);
    ui.txtIdentNr->setText(gerät.identNr);
    for (QLineEdit *feld : {ui.txtTyp, ui.txtHersteller, ui.txtSerienNr, ui.txtIdentNr})
        feld->setCursorPosition(0); // a long text shows its start
}

void frmGerät::aktualisieren() {
    const bool gefiltert = mSuche.anzahl() < mSuche.namen().size() ||
                           (mSuche.name().isEmpty() && !mSuche.text().trimmed().isEmpty());
    ui.Label->setText(inSprache({"Ergometeranzahl: ", "Number Of Units In The List: "}) +
                      QString::number(mSuche.anzahl() + (gefiltert ? 0 : mOhneNummer)));
}

/// An ident number is meant as it stands: part of one could be another unit.
QString frmGerät::ident() const {
    const QString name = mSuche.name();
    return name.isEmpty() ? mSuche.text().trimmed() : name;
}

/// The unit that the boxes name; empty, and told why, when they name none.
Recordset frmGerät::gewähltesGerät() {
    const QString typ = ui.cmbTyp->currentText();
    if (!ident().isEmpty()) {
        Recordset row = gerätMitIdent(gKundenID, ident());
        if (row.empty()) {
            meldung({"Kunde besitzt kein Gerät mit dieser ID-Nummer!",
                     "The customer does not have a unit with this ID number!"},
                    Exclamation, {"Achtung!", "Attention!"});
            ui.cmbIdent->setFocus();
            ui.cmbIdent->lineEdit()->selectAll();
        }
        return row;
    }
    if (typ.isEmpty()) {
        erstWählen();
        return {};
    }
    Recordset rows = geräteVomTyp(gKundenID, typ);
    if (rows.count() > 1) {
        meldung({"Es gibt mehrere Geräte diesen Typs!\r"
                 "Wählen sie zur genauen Bestimmung eine ID-Nummer aus!",
                 "There are several units of this type!\r"
                 "Select an ID number in order to exactly define the unit!"},
                Exclamation, {"Achtung!", "Attention!"});
        ui.cmbIdent->setFocus();
        return {};
    }
    return rows;
}

void frmGerät::pbok_Click() {
    const Recordset row = gewähltesGerät();
    if (row.empty())
        return;
    const Gerätedaten unit = gerätAus(row);
    gGerätID = unit.gerätID;
    gerätWählen(unit.typ, unit.identNr);
    const int answer =
        meldung({"Wollen Sie jetzt ein Rezept auswählen?", "Do you want to select a recipe now?"},
                YesNo | Question, {"Stammdaten auswählen", "Select Master Data"});
    if (answer == Yes)
        gDesktopFolge = Desktopfolge::Rezept;
    unload();
}

void frmGerät::pbDelete_Click() try {
    mitGezeigtem(frm::LöschGerät);
} catch (const Fehler &fehler) {
    fehlerBox({"Fehler 1101 - ", "ERROR 1101 - "}, fehler, {"Achtung Fehler!", "ATTENTION !!"});
}
