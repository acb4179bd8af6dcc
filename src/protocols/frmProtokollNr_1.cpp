#include "protocols/frmProtokollNr_1.h"

#include "records/protokollnummer.h"
#include "session/session.h"
#include "session/sprache.h"

namespace {

constexpr Beschriftung english[] = {
    {"", "Protocol Number"},
    {"laProtoName", "Protocol &name"},
    {"pbok", "&OK"},
    {"pbexit", "&Cancel"},
};

} // namespace

frmProtokollNr_1::frmProtokollNr_1()
    : Protokolldialog({"         Prüfprotokoll: ", "         Test Protocol: "}) {
    ui.setupUi(this);
    onEnter(ui.txtProtoName, [this] { ui.pbok->setFocus(); });
    onClick(ui.pbok, [this] { pbok_Click(); });
    onClick(ui.pbexit, [this] { pbexit_Click(); });
}

void frmProtokollNr_1::beschriften() {
    beschriftungenSetzen(ui, *this, english);
}

void frmProtokollNr_1::Form_Load() try {
    beschriften();
    messfensterVerbergen();
    ui.txtProtoName->setFocus();
    fnc_ProtokollNrNeu();
} catch (const Fehler &fehler) {
    fehlerBox("1020 - ", fehler);
}

void frmProtokollNr_1::fnc_ProtokollNrNeu() {
    ui.pbok->setEnabled(false); // until there is a number
    gProtokollID = nächsteProtokollNr();
    ui.lbProtokollID->setText(QString::number(gProtokollID) + " - ");
    ui.pbok->setEnabled(true);
}

void frmProtokollNr_1::pbok_Click() try {
    if (!spezifikationVorhanden())
        return;
    if (ui.txtProtoName->text().isEmpty())
        ui.txtProtoName->setText(" ");
    kopfAnlegen(gProtokollID, ui.txtProtoName->text());
    abschließen(angenommen);
} catch (const Fehler &fehler) {
    fehlerBox("1021 - ", fehler);
}

void frmProtokollNr_1::pbexit_Click() {
    abschließen(abgebrochen);
}

QString frmProtokollNr_1::titel() const {
    return QString::number(gProtokollID) + " - " + ui.txtProtoName->text();
}
