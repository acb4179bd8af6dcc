#include "protocols/frmBericht1.h"

#include <QDir>
#include <QMenu>

#include "platform/fehler.h"
#include "session/session.h"
#include "session/sprache.h"
#include "windows/msgbox.h"

using namespace platform;

frmBericht1::frmBericht1()
    : Berichtsmaske({.bestand = Bestand::Archiv,
                     .titel = {"Protokollverwaltung", "Protocol Administration"},
                     .nummerAb = 0,
                     .seitenNummerAb = 0,
                     .klasseTag = "1114 - ",
                     .druckTag = "1115 - "}) {
    on(ui.cmbKunde, &QComboBox::activated, [this] { kundeGewählt(); });
    onClick(ui.pbDelete, [this] { pbDelete_Click(); });
    onClick(ui.pbDeleteExt, [this] {
        mNeuLesen = true;
        form(frm::DeleteExtended).showModal();
    });
    auto *formate = new QMenu(ui.pbExport);
    for (const auto &[aktion, format] :
         {std::pair{ui.acMappe, HandoutFormat::Workbook}, std::pair{ui.acCsv, HandoutFormat::Csv},
          std::pair{ui.acJson, HandoutFormat::Json}}) {
        formate->addAction(aktion);
        on(aktion, &QAction::triggered,
           gefangen("1117 - ", [this, format = format] { exportieren(format); }));
    }
    ui.pbExport->setMenu(formate);
}

void frmBericht1::Form_Load() {
    ui.pbExport->setEnabled(false);
    ui.pbDelete->setEnabled(false); // until a protocol is chosen, at once where there is one alone
    Berichtsmaske::Form_Load();
    ui.pbDeleteExt->setEnabled(exists(frm::DeleteExtended));
}

/// Behind the extended deletion only what is left is offered; what was chosen and is left stays so.
void frmBericht1::Form_Activate() {
    if (std::exchange(mNeuLesen, false)) {
        const QString kunde = ui.cmbKunde->currentText(), bericht = ui.cmbBericht->currentText();
        gBerichtProtokoll = 0;
        fnc_ProtokollListe();
        if (const int platz = ui.cmbKunde->findText(kunde, Qt::MatchExactly); platz >= 0) {
            ui.cmbKunde->setCurrentIndex(platz);
            kundeGewählt();
        }
        if (const int platz = ui.cmbBericht->findText(bericht, Qt::MatchExactly); platz >= 0)
            ui.cmbBericht->setCurrentIndex(platz);
    }
    Berichtsmaske::Form_Activate();
}

void frmBericht1::fnc_ProtokollListe() try {
    ui.cmbKunde->clear();
    eintragen({}, false);
    seitenSperren();
    const QStringList kunden = archivkunden();
    mbKeineProtokolle = kunden.isEmpty();
    ui.cmbKunde->addItems(kunden);
    ui.cmbKunde->setCurrentIndex(kunden.size() == 1 ? 0 : -1);
    if (kunden.size() == 1)
        kundeGewählt();
} catch (const Fehler &fehler) {
    fehlerBox("1110 - ", fehler);
}

void frmBericht1::kundeGewählt() try {
    const QStringList protokolle = archivprotokolle(kundeMitNamen(ui.cmbKunde->currentText()));
    eintragen(protokolle, protokolle.size() == 1);
} catch (const Fehler &fehler) {
    fehlerBox("1111 - ", fehler);
}

void frmBericht1::auswahlGeändert() {
    ui.pbDelete->setEnabled(ui.OKButton->isEnabled());
    ui.pbExport->setEnabled(ui.OKButton->isEnabled());
}

void frmBericht1::exportieren(HandoutFormat format) {
    const QString pfad = QDir::toNativeSeparators(protokollHerausgeben(nummer(0), format));
    meldung(
        {"Das Protokoll wurde exportiert:\r" + pfad, "The protocol has been exported:\r" + pfad},
        Information, {"Export", "Export"});
}

void frmBericht1::pbDelete_Click() try {
    const QString eintrag = ui.cmbBericht->currentText();
    if (meldung({"Wollen Sie dieses Protokoll wirklich löschen?",
                 "Do you really want to delete the protocol?"},
                YesNo, {"Protokoll " + eintrag + " löschen", "Delete Protocol " + eintrag}) != Yes)
        return;
    const Schlüssel protokoll = nummer(0);
    kopfLöschen(Bestand::Archiv, protokoll);
    for (const Inhalt inhalt : alleInhalte)
        inhaltLöschen(Bestand::Archiv, inhalt, protokoll);
    gBerichtProtokoll = 0;
    kundeGewählt();
    if (ui.cmbBericht->count() == 0)
        seitenSperren();
} catch (const Fehler &fehler) {
    fehlerBox("1116 - ", fehler);
}
