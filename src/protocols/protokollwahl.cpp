#include "protocols/protokollwahl.h"

#include "records/protokollnummer.h"
#include "session/session.h"
#include "session/sprache.h"
#include "windows/msgbox.h"

namespace {

/// The box stays empty unless there is exactly one entry.
void füllen(QComboBox &liste, const QStringList &einträge) {
    liste.clear();
    liste.addItems(einträge);
    liste.setCurrentIndex(einträge.size() == 1 ? 0 : -1);
}

} // namespace

void Protokollwahl::verbinden(const Felder &felder, QStringList (*einträge)()) {
    mFelder = felder;
    mEinträge = einträge;
    mFelder.liste->setCompleter(nullptr); // 1 is not to become 12 while it is typed
}

void Protokollwahl::listeZeigen() const {
    const QStringList einträge = mEinträge();
    füllen(*mFelder.liste, einträge);
    mFelder.vorhanden->setEnabled(!einträge.isEmpty());
}

void Protokollwahl::nummerVergeben() const {
    mFelder.neu->setEnabled(false);
    gProtokollID = nächsteProtokollNr();
    mFelder.nummer->setText(QString::number(gProtokollID) + " - ");
    mFelder.neu->setEnabled(true);
}

void Protokollwahl::neuGewählt() const {
    mFelder.liste->hide();
    mFelder.name->show();
    mFelder.name->setFocus();
    mFelder.ok->setEnabled(true);
}

void Protokollwahl::vorhandenGewählt() const {
    mFelder.name->hide();
    mFelder.liste->show();
    mFelder.liste->setFocus();
    mFelder.ok->setEnabled(!mFelder.liste->currentText().isEmpty());
}

void Protokollwahl::cmbVorhanden_Click() const {
    gProtokollWahl = protokollNrAus(mFelder.liste->currentText());
    mFelder.ok->setEnabled(true);
}

void Protokollwahl::cmbVorhanden_Change() const {
    gProtokollWahl = protokollNrAus(mFelder.liste->currentText());
    if (mFelder.vorhanden->isChecked() && mFelder.liste->currentText().isEmpty())
        mFelder.ok->setEnabled(false);
}

void Protokollwahl::nachschlagen() const {
    if (mFelder.liste->currentText().isEmpty() || !gewählterEintrag())
        return;
    mFelder.ok->setEnabled(true);
    mFelder.ok->setFocus();
}

std::optional<QString> Protokollwahl::gewählterEintrag() const {
    const QStringList gefunden = mitNummer(mEinträge(), gProtokollWahl);
    if (gefunden.isEmpty()) {
        fehltMelden();
        return {};
    }
    if (gefunden.size() > 1) {
        mFelder.liste->clearEditText();
        mFelder.ok->setEnabled(false);
        meldung({"Es ist ein Fehler aufgetreten. Bitte suchen Sie das Protokoll in der Liste.",
                 "An error has occured. Please search the list for the protocol!"},
                platform::Exclamation, {"Fehler!", "Error!"});
        return {};
    }
    mFelder.liste->setEditText(gefunden[0]);
    return gefunden[0];
}

void Protokollwahl::fehltMelden() const {
    meldung({"Dieses Protokoll gibt es nicht!", "This protocol does not exist!"},
            platform::Exclamation, {"Meldung", "Message"});
    mFelder.liste->setFocus();
    mFelder.ok->setEnabled(false);
}

void Protokollwahl::einzigenZeigen(const QString &eintrag) const {
    füllen(*mFelder.liste, {eintrag});
}
