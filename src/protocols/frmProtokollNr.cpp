#include "protocols/frmProtokollNr.h"

#include <QLineEdit>

#include "records/protokollnummer.h"
#include "records/unterbrechung.h"
#include "session/session.h"
#include "session/sprache.h"

namespace {

constexpr Beschriftung english[] = {
    {"", "Protocol Number"},
    {"fraWahl", "Test Protocol For The Measurement"},
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
    : Wahldialog({"       Prüfprotokoll: ", "       Test Protocol: "}) {
    ui.setupUi(this);
    wahlVerbinden(ui, leereProtokolle);
    onClick(ui.obLetztes, [this] { obLetztes_Click(); });
    onEnter(ui.obLetztes, [this] { ui.obLetztes->click(); });
    onClick(ui.pbexit, [this] { abschließen(abgebrochen); });
}

void frmProtokollNr::Form_Load() try {
    gMessenAktiv = false;
    beschriftungenSetzen(ui, *this, english);
    messfensterVerbergen();
    fnc_LeereProtokolle();
    ui.obLetztes->setEnabled(fnc_LetztesProtokollPrüfen());
    fnc_ProtokollNrNeu();
    ui.obNeu->setFocus();
    if (gWiederaufnahme != 0)
        vorwählen(gWiederaufnahme);
} catch (const Fehler &fehler) {
    fehlerBox("9705- ", fehler);
}

void frmProtokollNr::fnc_LeereProtokolle() try {
    mWahl.listeZeigen();
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
    mWahl.nummerVergeben();
} catch (const Fehler &fehler) {
    fehlerBox("9702 - ", fehler);
}

/// On the protocol of a session that was cut off, as far as it can be continued.
void frmProtokollNr::vorwählen(Schlüssel nummer) {
    if (ui.obLetztes->isEnabled() && mnLetztesProtokollID == nummer) {
        ui.obLetztes->setChecked(true);
        obLetztes_Click();
        return;
    }
    const QStringList eintrag = mitNummer(leereProtokolle(), nummer);
    if (eintrag.isEmpty())
        return;
    ui.obVorhanden->setChecked(true);
    obVorhanden_Click();
    ui.cmbVorhanden->setCurrentIndex(ui.cmbVorhanden->findText(eintrag[0]));
    mWahl.cmbVorhanden_Click();
    ui.pbok->setFocus();
}

/// Puts the list beside the option that it belongs to.
void frmProtokollNr::listeLegen(int zeile) {
    ui.gridWahl->addWidget(ui.cmbVorhanden, zeile, 1);
    ui.cmbVorhanden->lineEdit()->setReadOnly(zeile == zeileLetztes);
}

void frmProtokollNr::obVorhanden_Click() {
    ui.cmbVorhanden->clear();
    fnc_LeereProtokolle();
    listeLegen(zeileVorhanden);
    mWahl.vorhandenGewählt();
}

void frmProtokollNr::obLetztes_Click() {
    mWahl.einzigenZeigen(QString::number(mnLetztesProtokollID) + '-' + msLetzterName);
    listeLegen(zeileLetztes);
    mWahl.vorhandenGewählt();
    ui.pbok->setFocus();
}

void frmProtokollNr::cmbVorhanden_KeyPress() try {
    if (!ui.obLetztes->isChecked()) // its one entry is not looked up
        mWahl.nachschlagen();
} catch (const Fehler &fehler) {
    fehlerBox("9703- ", fehler);
}

// gProtokollID takes another number only once its head is known to be there: the new number stays
// good for another try, and leaving after a failure cannot clear away a foreign head.
void frmProtokollNr::pbok_Click() try {
    if (!spezifikationVorhanden())
        return;
    if (ui.obVorhanden->isChecked()) {
        if (!mWahl.gewählterEintrag()) // it may have been typed without Enter
            return;
        if (!kopfNachführen(gProtokollWahl)) {
            mWahl.fehltMelden();
            return;
        }
        gProtokollID = gProtokollWahl;
    } else if (ui.obNeu->isChecked()) {
        if (ui.txtNeu->text().isEmpty())
            ui.txtNeu->setText(" ");
        kopfAnlegen(gProtokollID, ui.txtNeu->text());
    } else if (ui.obLetztes->isChecked()) {
        gProtokollID = mnLetztesProtokollID;
        gMessenAktiv = true;
    }
    sitzungMerken();
    abschließen(angenommen);
} catch (const Fehler &fehler) {
    fehlerBox("9704- ", fehler);
    if (fehler.number() == platform::fehlernummer::DuplicateKey)
        fnc_ProtokollNrNeu(); // another program took the number
}

QString frmProtokollNr::titel() const {
    return ui.obNeu->isChecked() ? QString::number(gProtokollID) + " - " + ui.txtNeu->text()
                                 : ui.cmbVorhanden->currentText();
}
