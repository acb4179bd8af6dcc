#include "protocols/frmBlutdruckAbfrage.h"

#include "protocols/pruefblatt.h"
#include "records/protokollnummer.h"
#include "session/session.h"
#include "session/sprache.h"

namespace {

constexpr Beschriftung english[] = {
    {"", "Select Protocol"}, {"obNeu", "&New protocol"}, {"obVorhanden", "&Existing protocol"},
    {"pbok", "&OK"},         {"pbexit", "&Cancel"},
};

} // namespace

frmBlutdruckAbfrage::frmBlutdruckAbfrage() {
    ui.setupUi(this);
    wahlVerbinden(ui, offeneProtokolle);
    onClick(ui.pbexit, [this] { unload(); });
    onEscape([this] { unload(); });
}

void frmBlutdruckAbfrage::fragen(frm blatt) {
    ::form(blatt).showModal();
    auto &dialog = ::form<frmBlutdruckAbfrage>();
    dialog.fürBlatt(blatt);
    dialog.showModal();
}

void frmBlutdruckAbfrage::fürBlatt(frm blatt) {
    mBlatt = blatt;
    ui.fraWahl->setTitle(inSprache(
        blatt == frm::Blutdruck
            ? Text{"Protokoll für die Blutdruck-Kontrolle", "Protocol for the blood pressure check"}
            : Text{"Protokoll für die Elektrosicherheitskontrolle (STK)",
                   "Protocol for the electrical safety check (EST)"}));
}

Prüfblatt *frmBlutdruckAbfrage::blatt() const {
    return static_cast<Prüfblatt *>(loaded(mBlatt));
}

void frmBlutdruckAbfrage::Form_Load() {
    beschriftungenSetzen(ui, *this, english);
    fnc_ProtokollNrNeu();
    ui.obNeu->setFocus();
}

void frmBlutdruckAbfrage::fnc_ProtokollNrNeu() try {
    mWahl.nummerVergeben();
} catch (const Fehler &fehler) {
    fehlerBox("9702 - ", fehler);
}

// A single protocol is chosen at once.
void frmBlutdruckAbfrage::Form_Activate() try {
    mWahl.listeZeigen();
    if (ui.cmbVorhanden->currentText().isEmpty())
        return;
    ui.obVorhanden->setChecked(true);
    mWahl.vorhandenGewählt();
    ui.pbok->setFocus();
} catch (const Fehler &fehler) {
    fehlerBox("9701 - ", fehler);
}

void frmBlutdruckAbfrage::obVorhanden_Click() {
    mWahl.vorhandenGewählt();
    ui.pbok->setEnabled(false); // until the list or Enter names one
}

void frmBlutdruckAbfrage::cmbVorhanden_KeyPress() try {
    mWahl.nachschlagen();
} catch (const Fehler &fehler) {
    fehlerBox("9703- ", fehler);
}

void frmBlutdruckAbfrage::fnc_VorschlagLaden() try {
    blatt()->eintragen(vorschlagLesen(blatt()->inhalt(), gProtokollID));
} catch (const Fehler &fehler) {
    fehlerBox("BD 1 - ", fehler);
}

// gProtokollID takes another number only once its head is known to be there: the new number stays
// good for another try.
void frmBlutdruckAbfrage::pbok_Click() try {
    if (ui.obNeu->isChecked()) {
        fnc_VorschlagLaden();
        if (ui.txtNeu->text().isEmpty())
            ui.txtNeu->setText(" ");
        blattkopfAnlegen(gProtokollID, ui.txtNeu->text(), blatt()->inhalt());
        blatt()->beginnen(gProtokollID, ui.txtNeu->text());
    } else if (ui.obVorhanden->isChecked()) {
        const auto eintrag = mWahl.gewählterEintrag(); // it may have been typed without Enter
        if (!eintrag)
            return;
        fnc_VorschlagLaden();
        blatt()->fortsetzen(gProtokollWahl, *eintrag);
        gProtokollID = gProtokollWahl;
    } else {
        return;
    }
    mGewählt = true;
    unload();
} catch (const Fehler &fehler) {
    fehlerBox("9704B- ", fehler);
    if (fehler.number() == platform::fehlernummer::DuplicateKey)
        fnc_ProtokollNrNeu(); // another program took the number
}

void frmBlutdruckAbfrage::Form_Unload() {
    if (!mGewählt && blatt())
        blatt()->unload();
}
