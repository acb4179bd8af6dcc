// The head of the test: its boxes, the recipe, saving and the next device.
#include "finaltest/frmEndpruef.h"

#include <QLineEdit>
#include <QSignalBlocker>

#include <utility>

#include "controls/eintrag.h"
#include "platform/clock.h"
#include "platform/runtime.h"
#include "records/eprezept.h"
#include "records/rezept.h"
#include "session/session.h"
#include "session/sprache.h"
#include "store/sqltext.h"
#include "windows/msgbox.h"

using namespace platform;

void frmEndprüf::felderVerdrahten() {
    for (const Kopffeld &feld : kopffelder())
        mBoxen.push_back(findChild<QLineEdit *>(feld.feld));
    for (size_t i = 0; i < mBoxen.size(); ++i) {
        const Kopffeld &feld = kopffelder()[i];
        QLineEdit *const eigene = mBoxen[i];
        auto *weiter = feld.weiter ? findChild<QWidget *>(feld.weiter) : mBoxen[i + 1];
        on(eigene, &QLineEdit::textChanged, [this] { fnc_SpeichernFreigeben(); });
        onEnter(eigene, [&feld, eigene, weiter] {
            if (!feld.ist(Kopffeld::EnterMitText) || !eigene->text().isEmpty())
                weiter->setFocus(Qt::TabFocusReason);
        });
        if (feld.ist(Kopffeld::Zahl)) {
            onLostFocus(eigene, [eigene] {
                QString zahl = eigene->text();
                fnc_KommaZuPunkt(zahl);
                eigene->setText(zahl);
            });
        }
    }
    onLostFocus(ui.txtPrüfDat, [this] {
        if (!ui.txtPrüfDat->text().isEmpty())
            fnc_KalDatSetzen();
    });
    onLostFocus(ui.txtSerNr, [this] { laufZeigen(); });
}

void frmEndprüf::rezeptVerdrahten() {
    on(ui.cmbRezName, &QComboBox::editTextChanged, [this] { cmbRezName_Change(); });
    on(ui.cmbRezName, &QComboBox::activated, [this] {
        mRezeptOK = !ui.cmbRezName->currentText().isEmpty();
        fnc_SpeichernFreigeben();
    });
    onEnter(ui.cmbRezName, [this] { cmbRezName_Enter(); });
    onLostFocus(ui.cmbRezName, [this] { cmbRezName_LostFocus(); });
}

QStringList frmEndprüf::texte() const {
    QStringList texte;
    for (const QLineEdit *box : mBoxen)
        texte += box->text();
    return texte;
}

QStringList frmEndprüf::stand() const {
    return texte() + QStringList{ui.cmbRezName->currentText()};
}

bool frmEndprüf::pflichtDa() const {
    for (size_t i = 0; i < mBoxen.size(); ++i) {
        if (kopffelder()[i].ist(Kopffeld::Pflicht) && mBoxen[i]->text().isEmpty())
            return false;
    }
    return true;
}

void frmEndprüf::fnc_SpeichernFreigeben() {
    const bool gespeichert = wieGespeichert();
    ui.pbok->setEnabled(!gespeichert && mRezeptOK && pflichtDa());
    ui.pbMessen->setEnabled(gespeichert);
    wegZeigen();
}

void frmEndprüf::fnc_KalDatSetzen() {
    if (!prüfdatumAus(ui.txtPrüfDat->text()).isValid()) {
        meldung({"Das eingetragene Datum ist falsch!", "Invalid date!"}, Critical,
                {"!! Achtung Fehler !!", " !! Attention !!"});
        ui.txtPrüfDat->setText(datumText(now().date()));
    }
    ui.txtKalDat->setText(kalibriertBis(prüfdatumAus(ui.txtPrüfDat->text())));
}

void frmEndprüf::fnc_GerätetypVorbelegen() try {
    if (const QString typ = letzterEPGerätetyp(); !typ.isEmpty())
        ui.txtGerätetyp->setText(typ);
} catch (const Fehler &fehler) {
    fehlerBox("EP_2 - ", fehler);
}

void frmEndprüf::fnc_RezepteFüllen(const QString &text) try {
    const QSignalBlocker still(ui.cmbRezName);
    mRezeptOK = false;
    ui.cmbRezName->clear();
    ui.cmbRezName->addItems(rezeptnamen(endprüfrezepte));
    eintragSetzen(ui.cmbRezName, text);
    const auto vorwahl = text.isEmpty() ? epRezeptVorgewählt() : std::nullopt;
    if (!vorwahl)
        return;
    eintragSetzen(ui.cmbRezName, vorwahl->name);
    gEPRezeptID = vorwahl->rezeptID;
    mRezeptOK = true;
} catch (const Fehler &fehler) {
    fehlerBox("EP_3 - ", fehler);
}

void frmEndprüf::cmbRezName_Change() try {
    mRezeptOK = epRezept(ui.cmbRezName->currentText()).has_value();
    fnc_SpeichernFreigeben();
} catch (const Fehler &fehler) {
    fehlerBox("EP_11 - ", fehler);
}

void frmEndprüf::cmbRezName_Enter() {
    mRezeptOK = !ui.cmbRezName->currentText().isEmpty();
    if (!mRezeptOK)
        return;
    fnc_SpeichernFreigeben();
    (ui.pbok->isEnabled() ? static_cast<QWidget *>(ui.pbok) : ui.txtPrüfer)->setFocus();
}

void frmEndprüf::cmbRezName_LostFocus() try {
    const QString text = ui.cmbRezName->currentText();
    if (!text.isEmpty() && !epRezept(text)) {
        ui.cmbRezName->clearEditText();
        ui.cmbRezName->setFocus();
        mRezeptOK = false;
    }
    fnc_SpeichernFreigeben();
} catch (const Fehler &fehler) {
    fehlerBox("EP_12 - ", fehler);
}

bool frmEndprüf::fnc_RezeptÜbernehmen() try {
    const auto rezept = epRezept(ui.cmbRezName->currentText());
    if (!rezept)
        return true;
    gRezeptName = rezept->klasse;
    if (rezept->rezeptID != gEPRezeptID) {
        epRezeptBenutzt(rezept->rezeptID, gEPRezeptID);
        gEPRezeptID = rezept->rezeptID;
    }
    return true;
} catch (const Fehler &fehler) {
    fehlerBox("EP_1 - ", fehler);
    return false;
}

/// The recipe that was saved with the device, as it stands now; it may have been changed since.
/// False when it is gone.
bool frmEndprüf::messrezeptEinsetzen() {
    const auto rezept = epRezept(ui.cmbRezName->currentText());
    if (rezept) {
        gRezeptName = rezept->klasse;
        gEPRezeptID = rezept->rezeptID;
    }
    return rezept.has_value();
}

bool frmEndprüf::fnc_EPEinfügen() try {
    gEPProtokollID = epEinfügen(kopfAus(texte(), false));
    return true;
} catch (const Fehler &fehler) {
    fehlerBox("EP_4 - ", fehler);
    return false;
}

bool frmEndprüf::fnc_EPÄndern(Schlüssel vorhandenes) try {
    epÄndern(ui.txtSerNr->text(), kopfAus(texte(), true));
    gEPProtokollID = vorhandenes;
    return true;
} catch (const Fehler &fehler) {
    fehlerBox("EP_5 - ", fehler);
    return false;
}

// What could not be stored stays to be saved.
void frmEndprüf::speichern() {
    if (!fnc_RezeptÜbernehmen())
        return;
    mGespeichert.reset();
    const auto vorhandenes = epMitSeriennummer(ui.txtSerNr->text());
    const bool abgelehnt =
        vorhandenes && meldung({"Zu dieser Seriennummer existiert bereits ein Protokoll.\r"
                                "Die vorhandenen Daten werden überschrieben!",
                                "There already exists a protocol for this serial number.\r"
                                "The existing data will be overwritten!"},
                               OKCancel, {"Endprüfprotokoll", "Final test protocol"}) == Cancel;
    if (!abgelehnt) {
        if (!(vorhandenes ? fnc_EPÄndern(*vorhandenes) : fnc_EPEinfügen()))
            return;
        mGespeichert = stand();
        mGemessen = false;
    }
    fnc_SpeichernFreigeben();
    ui.pbok->setEnabled(false);
    wegZeigen();
    laufZeigen();
    if (abgelehnt)
        ui.txtSerNr->setFocus(Qt::TabFocusReason);
    else if (ui.pbDrehR->isEnabled())
        ui.pbDrehR->setFocus();
    else
        focusMotaus(); // left alone it would fall on the button that empties the boxes
    if (mNeueEingabe)
        pbEingNeu_Click();
}

void frmEndprüf::pbok_Click() try { speichern(); } catch (const Fehler &fehler) {
    fehlerBox("EP_9 - ", fehler);
}

// A saving that was asked for here counts for the next one as well: that ends in a new entry, too.
void frmEndprüf::pbEingNeu_Click() {
    mNeueEingabe = false;
    int antwort = No;
    if (ui.pbok->isEnabled()) {
        antwort = meldung({"Sollen die Daten gespeichert werden?", "Should the data be saved?"},
                          YesNo + Question, {"Endprüfprotokoll", "Final test protocol"});
    }
    if (antwort == Yes) {
        pbok_Click();
        mNeueEingabe = true;
        if (ui.pbok->isEnabled()) // nothing was stored
            return;
    }
    leeren();
}

void frmEndprüf::leeren() {
    mGespeichert.reset();
    for (size_t i = 0; i < mBoxen.size(); ++i) {
        if (kopffelder()[i].ist(Kopffeld::Leeren))
            mBoxen[i]->clear();
    }
    ui.txtPrüfDat->setText(datumText(now().date()));
    fnc_KalDatSetzen();
    fnc_RezepteFüllen();
    fnc_GerätetypVorbelegen();
    fnc_SpeichernFreigeben();
    laufZeigen();
    ui.txtSerNr->setFocus();
}
