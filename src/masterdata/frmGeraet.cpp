#include "masterdata/frmGeraet.h"

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
    {"pbDelete", "&Delete ..."},
    {"pbok", "&OK"},
    {"pbexit", "&Cancel"},
};

void erstGerätWählen() {
    meldung({"Wählen Sie zuerst ein Gerät aus!", "First, select a unit under test!"}, Exclamation,
            {"Achtung!", "Attention!"});
}

} // namespace

frmGerät::frmGerät() {
    ui.setupUi(this);
    sucheVerdrahten(
        ui.cmbIdent, ui.lstIdent, [this] { cmbIdent_Change(); }, [this] { pbok_Click(); });
    on(ui.cmbTyp, &QComboBox::currentIndexChanged, [this] { cmbTyp_Click(); });
    enterChain({ui.cmbTyp, ui.cmbIdent});
    onClick(ui.pbNeu, [this] { pbNeu_Click(); });
    onClick(ui.pbchange, [this] { pbchange_Click(); });
    onClick(ui.pbDelete, [this] { pbDelete_Click(); });
    onClick(ui.pbok, [this] { pbok_Click(); });
    onClick(ui.pbexit, [this] { unload(); });
    onEnter(this, [this] { pbok_Click(); });
    onEscape([this] { unload(); });
}

QString frmGerät::gerätename() const {
    return mGerätID == 0 ? QString() : ui.txtTyp->text();
}

QString frmGerät::identnummer() const {
    return ui.txtIdentNr->text();
}

void frmGerät::beschriften() {
    beschriftungenSetzen(ui, *this, english);
    ui.cmbIdent->lineEdit()->setPlaceholderText(
        inSprache({"Nummer oder Teil davon", "Number or part of it"}));
}

void frmGerät::Form_Load() try {
    beschriften();
    mGeladen = true; // also when the reading fails: it would fail again
    ui.laKunde->setText(umbrechbar(auswahl().kunde));
    listenLesen();
    ui.cmbIdent->setFocus();
} catch (const Fehler &fehler) {
    fehlerBox("1091 - ", fehler);
}

void frmGerät::Form_Activate() {
    if (!std::exchange(mGeladen, false))
        fnc_ListeAktualisieren();
}

void frmGerät::listenLesen() {
    const QString typ = ui.cmbTyp->currentText();
    const Namensliste types(gerätetypen(gKundenID));
    {
        const QSignalBlocker quiet(ui.cmbTyp);
        ui.cmbTyp->clear();
        ui.cmbTyp->addItem({}); // all types
        ui.cmbTyp->addItems(types.namen());
    }
    typSetzen(typ);
    identnummernLesen();
}

void frmGerät::typSetzen(const QString &typ) {
    const QSignalBlocker quiet(ui.cmbTyp);
    ui.cmbTyp->setCurrentIndex(std::max(ui.cmbTyp->findText(typ), 0));
}

void frmGerät::identnummernLesen() {
    const QStringList numbers = identnummern(gKundenID, ui.cmbTyp->currentText());
    mSuche.füllen(numbers);
    mOhneNummer = numbers.size() - mSuche.namen().size();
    if (numbers.size() == 1) {
        mSuche.leeren();
        mSuche.übernehmen(numbers.first());
    }
    fnc_GerätZeigen();
}

void frmGerät::fnc_ListeAktualisieren() try { listenLesen(); } catch (const Fehler &fehler) {
    fehlerBox("1092 - ", fehler);
}

void frmGerät::fnc_ListeLeeren() {
    typSetzen({});
    mSuche.leeren();
    fnc_ListeAktualisieren();
    ui.cmbIdent->setFocus();
}

void frmGerät::fnc_GerätWählen(const QString &identNr) try {
    mGeladen = true; // also when the reading fails: it would fail again
    mSuche.leeren();
    listenLesen();
    if (!mSuche.namen().contains(identNr)) {
        typSetzen({});
        listenLesen();
    }
    mSuche.leeren(); // the only one of its type went in by itself
    mSuche.übernehmen(identNr);
    ui.cmbIdent->setFocus(); // Enter chooses it
} catch (const Fehler &fehler) {
    fehlerBox("1092 - ", fehler);
}

void frmGerät::fnc_GerätZeigen() {
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
    mGerätID = gerät.gerätID;
    ui.txtTyp->setText(gerät.typ);
    ui.txtHersteller->setText(gerät.hersteller);
    ui.txtSerienNr->setText(gerät.serienNr);
    ui.txtIdentNr->setText(gerät.identNr);
}

void frmGerät::aktualisieren() {
    const bool gefiltert = mSuche.anzahl() < mSuche.namen().size() ||
                           (mSuche.name().isEmpty() && !mSuche.text().trimmed().isEmpty());
    ui.Label->setText(inSprache({"Ergometeranzahl: ", "Number Of Units In The List: "}) +
                      QString::number(mSuche.anzahl() + (gefiltert ? 0 : mOhneNummer)));
}

void frmGerät::cmbTyp_Click() try {
    mSuche.leeren();
    identnummernLesen();
} catch (const Fehler &fehler) {
    fehlerBox("1093 - ", fehler);
}

void frmGerät::cmbIdent_Change() try {
    mSuche.textGeändert();
    fnc_GerätZeigen();
} catch (const Fehler &fehler) {
    fehlerBox("1094 - ", fehler);
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
        const Recordset row = gerätMitIdent(gKundenID, ident());
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
        erstGerätWählen();
        ui.cmbIdent->setFocus();
        return {};
    }
    const Recordset rows = geräteVomTyp(gKundenID, typ);
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

void frmGerät::pbok_Click() try {
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
} catch (const Fehler &fehler) {
    fehlerBox("1102 - ", fehler);
}

bool frmGerät::gerätGezeigt() {
    if (mGerätID == 0) {
        erstGerätWählen();
        ui.cmbIdent->setFocus();
    }
    return mGerätID != 0;
}

void frmGerät::pbNeu_Click() {
    gNeuModus = false;
    form(frm::NeuGerät).showModal();
}

void frmGerät::pbchange_Click() try {
    if (gerätGezeigt())
        form(frm::ÄndGerät).showModal();
} catch (const Fehler &fehler) {
    fehlerBox("1100 - ", fehler);
}

void frmGerät::pbDelete_Click() try {
    if (gerätGezeigt())
        form(frm::LöschGerät).showModal();
} catch (const Fehler &fehler) {
    fehlerBox({"Fehler 1101 - ", "ERROR 1101 - "}, fehler, {"Achtung Fehler!", "ATTENTION !!"});
}
