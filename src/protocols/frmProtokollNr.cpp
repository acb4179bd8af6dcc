#include "protocols/frmProtokollNr.h"

#include <QLineEdit>

#include "protocols/protokollliste.h"
#include "records/protokollnummer.h"
#include "session/session.h"
#include "session/sprache.h"

namespace {

constexpr Beschriftung english[] = {
    {"", "Protocol Number"},
    {"fraWahl", "Test protocol for the measurement"},
    {"obNeu", "&New protocol"},
    {"obVorhanden", "&Existing protocol without measured values"},
    {"obLetztes", "Continue the &last protocol"},
    {"pbok", "&OK"},
    {"pbexit", "&Cancel"},
};

// Lines of the frame
constexpr int zeileVorhanden = 1;
constexpr int zeileLetztes = 2;

} // namespace

frmProtokollNr::frmProtokollNr()
    : Protokolldialog({"       Prüfprotokoll: ", "       Test Protocol: "}) {
    ui.setupUi(this);
    ui.cmbVorhanden->setCompleter(nullptr); // 1 is not to become 12 while it is typed
    onClick(ui.obNeu, [this] { obNeu_Click(); });
    onClick(ui.obVorhanden, [this] { obVorhanden_Click(); });
    onClick(ui.obLetztes, [this] { obLetztes_Click(); });
    for (QRadioButton *wahl : {ui.obNeu, ui.obVorhanden, ui.obLetztes})
        onEnter(wahl, [wahl] { wahl->click(); });
    onEnter(ui.txtNeu, [this] { ui.pbok->setFocus(); });
    on(ui.cmbVorhanden, &QComboBox::activated, [this] { cmbVorhanden_Click(); });
    on(ui.cmbVorhanden, &QComboBox::editTextChanged, [this] { cmbVorhanden_Change(); });
    onEnter(ui.cmbVorhanden, [this] { cmbVorhanden_KeyPress(); });
    onClick(ui.pbok, [this] { pbok_Click(); });
    onClick(ui.pbexit, [this] { pbexit_Click(); });
}

void frmProtokollNr::beschriften() {
    beschriftungenSetzen(ui, *this, english);
}

void frmProtokollNr::Form_Load() try {
    gMessenAktiv = false;
    beschriften();
    messfensterVerbergen();
    fnc_LeereProtokolle();
    ui.obLetztes->setEnabled(fnc_LetztesProtokollPrüfen());
    fnc_ProtokollNrNeu();
    ui.obNeu->setFocus();
} catch (const Fehler &fehler) {
    fehlerBox("9705- ", fehler);
}

void frmProtokollNr::fnc_LeereProtokolle() try {
    const QStringList leere = leereProtokolle();
    protokollListeFüllen(*ui.cmbVorhanden, leere);
    ui.obVorhanden->setEnabled(!leere.isEmpty());
} catch (const Fehler &fehler) {
    fehlerBox("9701 - ", fehler);
}

bool frmProtokollNr::fnc_LetztesProtokollPrüfen() try {
    ui.obLetztes->setEnabled(false);
    const LetztesProtokoll letztes = letztesProtokollPrüfen();
    mnLetztesProtokoll = letztes.nummer;
    if (!letztes.fortsetzbar)
        return false;
    mnLetztesProtokollID = mnLetztesProtokoll;
    msLetzterName = letztes.name;
    return true;
} catch (const Fehler &fehler) {
    fehlerBox("97011 - ", fehler);
    return false;
}

void frmProtokollNr::fnc_ProtokollNrNeu() try {
    ui.obNeu->setEnabled(false); // without a number there is no new protocol
    gProtokollID = nächsteProtokollNr();
    ui.lbProtokollID->setText(QString::number(gProtokollID) + " - ");
    ui.obNeu->setEnabled(true);
} catch (const Fehler &fehler) {
    fehlerBox("9702 - ", fehler);
}

/// Puts the list beside the option that it belongs to.
void frmProtokollNr::listeZeigen(int zeile) {
    ui.gridWahl->addWidget(ui.cmbVorhanden, zeile, 1);
    ui.cmbVorhanden->lineEdit()->setReadOnly(zeile == zeileLetztes);
    ui.cmbVorhanden->show();
    ui.txtNeu->hide();
}

void frmProtokollNr::obNeu_Click() {
    ui.cmbVorhanden->hide();
    ui.txtNeu->show();
    ui.txtNeu->setFocus();
    ui.pbok->setEnabled(true);
}

void frmProtokollNr::obVorhanden_Click() {
    ui.cmbVorhanden->clear();
    fnc_LeereProtokolle();
    listeZeigen(zeileVorhanden);
    ui.cmbVorhanden->setFocus();
    ui.pbok->setEnabled(!ui.cmbVorhanden->currentText().isEmpty());
}

void frmProtokollNr::obLetztes_Click() {
    protokollListeFüllen(*ui.cmbVorhanden,
                         {QString::number(mnLetztesProtokollID) + '-' + msLetzterName});
    listeZeigen(zeileLetztes);
    ui.pbok->setEnabled(true);
    ui.pbok->setFocus();
}

void frmProtokollNr::cmbVorhanden_Click() {
    gProtokollWahl = protokollNrAus(ui.cmbVorhanden->currentText());
    ui.pbok->setEnabled(true);
}

void frmProtokollNr::cmbVorhanden_Change() {
    gProtokollWahl = protokollNrAus(ui.cmbVorhanden->currentText());
    if (ui.obVorhanden->isChecked() && ui.cmbVorhanden->currentText().isEmpty())
        ui.pbok->setEnabled(false);
}

void frmProtokollNr::cmbVorhanden_KeyPress() try {
    if (ui.obLetztes->isChecked())
        return; // its one entry is not looked up
    protokollNachschlagen(*ui.cmbVorhanden, *ui.pbok);
} catch (const Fehler &fehler) {
    fehlerBox("9703- ", fehler);
}

// gProtokollID takes another number only once its head is known to be there: the new number stays
// good for another try, and leaving after a failure cannot clear away a foreign head.
void frmProtokollNr::pbok_Click() try {
    if (ui.obVorhanden->isChecked()) {
        const QStringList gewählt = protokolleMitNummer(gProtokollWahl); // typed without Enter
        if (gewählt.isEmpty() || !kopfNachführen(gProtokollWahl)) {
            protokollFehlt(*ui.cmbVorhanden, *ui.pbok);
            return;
        }
        ui.cmbVorhanden->setEditText(gewählt[0]);
        gProtokollID = gProtokollWahl;
    } else if (ui.obNeu->isChecked()) {
        if (ui.txtNeu->text().isEmpty())
            ui.txtNeu->setText(" ");
        kopfAnlegen(gProtokollID, ui.txtNeu->text());
    } else if (ui.obLetztes->isChecked()) {
        gProtokollID = mnLetztesProtokollID;
        gMessenAktiv = true;
    }
    abschließen(angenommen);
} catch (const Fehler &fehler) {
    fehlerBox("9704- ", fehler);
    if (fehler.number() == platform::fehlernummer::DuplicateKey)
        fnc_ProtokollNrNeu(); // another program took the number
}

void frmProtokollNr::pbexit_Click() {
    abschließen(abgebrochen);
}

QString frmProtokollNr::titel() const {
    return ui.obNeu->isChecked() ? QString::number(gProtokollID) + " - " + ui.txtNeu->text()
                                 : ui.cmbVorhanden->currentText();
}
