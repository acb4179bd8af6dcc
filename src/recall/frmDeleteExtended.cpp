#include "recall/frmDeleteExtended.h"

#include <QCoreApplication>
#include <QScopeGuard>

#include "records/protokollinhalt.h"
#include "session/sprache.h"
#include "store/sqltext.h"
#include "windows/msgbox.h"

using namespace platform;

frmDeleteExtended::frmDeleteExtended()
    : Filtermaske({.filter = Filterart::Löschen,
                   .titel = {"Erweitertes Löschen", "Delete Extended"},
                   .von = {"Kalibriert &von:", "Calibrated &from:"},
                   .listenTag = "B1_07 - ",
                   .köpfe = {{"Protokoll-Nr", "Protocol No."},
                             {"Kalibrierdatum", "Calibration Date"},
                             {"Kunde", "Customer"},
                             {"IdentNr", "Ident No."},
                             {"Gerätetyp", "Type"},
                             {"Hersteller", "Manufacturer"}},
                   .breiten = {260, 130, 0, 130, 160, 160}}) {
    for (QWidget *fremd : std::initializer_list<QWidget *>{
             ui.anzÜberfällig, ui.laÜberfällig, ui.anzFällig, ui.laFällig, ui.pbExcel, ui.pbBriefe})
        fremd->hide();
    onClick(ui.pbDelete, [this] { pbDelete_Click(); });
}

void frmDeleteExtended::Form_Load() {
    Filtermaske::Form_Load();
    ui.pbExcel->setText({});
    ui.pbBriefe->setText({});
}

void frmDeleteExtended::füllen(int position) {
    switch (position) {
    case 1:
        return fnc_FillCmbID();
    case 2:
        return fnc_FillCmbKunden();
    case 3:
        return fnc_fillcmbIdent();
    default:
        return fnc_FillCmbTyp();
    }
}

void frmDeleteExtended::fnc_FillCmbKunden() {
    gefangen("B1_01 - ", [this] { listeFüllen(2); })();
}

void frmDeleteExtended::fnc_FillCmbID() {
    gefangen("B1_03 - ", [this] { listeFüllen(1); })();
}

void frmDeleteExtended::fnc_FillCmbTyp() {
    gefangen("B1_04 - ", [this] { listeFüllen(4); })();
}

void frmDeleteExtended::fnc_fillcmbIdent() {
    gefangen("B1_05 - ", [this] { listeFüllen(3); })();
}

void frmDeleteExtended::fnc_Abfrage() {
    auflisten({}); // what cannot be read is not deleted
    auflisten(archivierte(mKette.fnc_Where(), mKette.fnc_OrderBy()));
}

void frmDeleteExtended::auflisten(std::vector<Schlüssel> protokolle) {
    mProtokolle = std::move(protokolle);
    zeigen(static_cast<int>(mProtokolle.size()), [this](int zeile) -> Trefferliste::Zeile {
        try {
            const Archivtexte texte = texteLesen(mProtokolle[static_cast<size_t>(zeile)]);
            return {.zellen = {texte.protokoll, datumText(texte.kalibriert), texte.kunde,
                               texte.identNr, texte.gerätetyp, texte.hersteller}};
        } catch (const Fehler &) { // the next statement that a person asks for tells of it
            return {};
        }
    });
    const QString anzahl = QString::number(mProtokolle.size());
    ui.laAnzProt->setText(mProtokolle.size() == 1
                              ? inSprache({"1 Protokoll", "1 Protocol"})
                              : inSprache({anzahl + " Protokolle", anzahl + " Protocols"}));
    ui.pbDelete->setEnabled(!mProtokolle.empty());
}

bool frmDeleteExtended::bestätigt() const {
    const QString n = QString::number(mProtokolle.size());
    const Text frage = mProtokolle.size() == 1
                           ? Text{"Soll dieses Protokoll jetzt gelöscht werden?",
                                  "Do you really want to delete this protocol?"}
                           : Text{"Sollen jetzt diese " + n + " Protokolle gelöscht werden?",
                                  "Do you really want to delete these " + n + " protocols?"};
    return meldung(frage, YesNo + Question, {"Protokolle löschen", "Delete Protocols"}) == Yes;
}

void frmDeleteExtended::pbDelete_Click() try {
    ui.DBGrid1->setCurrentIndex(dataSort.index(0, 0));
    if (!bestätigt())
        return;
    löschen();
    meldung({"Protokolle wurden gelöscht!", "Protocols are deleted!"}, Information,
            {"Meldung", "Attention"});
    zurücksetzen();
} catch (const Fehler &fehler) {
    fehlerBox("B1_02 - ", fehler);
    fnc_FillCombos(); // what is left
}

/// May take a while: the window shows how far it is and takes no input.
void frmDeleteExtended::löschen() {
    const HoldActivations hold;
    ui.anzFortschritt->setRange(0, static_cast<int>(mProtokolle.size()));
    ui.anzFortschritt->setValue(0);
    ui.anzFortschritt->show();
    disable();
    const auto wieder = qScopeGuard([this] {
        ui.anzFortschritt->hide();
        enable();
    });
    QCoreApplication::processEvents();
    archivköpfeLöschen(mProtokolle, [this](int gelöscht) {
        ui.anzFortschritt->setValue(gelöscht);
        QCoreApplication::processEvents();
    });
}
