#include "measure/frmMessen.h"

#include <QHeaderView>
#include <QScopeGuard>

#include "link/controller.h"
#include "platform/fehler.h"
#include "platform/runtime.h"
#include "records/messwerte.h"
#include "session/auswahl.h"
#include "session/motorfenster.h"
#include "session/session.h"
#include "session/sprache.h"
#include "windows/msgbox.h"
#include "windows/waiting.h"

using namespace platform;

namespace {

constexpr Beschriftung english[] = {
    {"", "Six Rounds - Measuring"},
    {"lbRezept", "Recipe:"},
    {"lbToleranz", "Specification:"},
    {"lbDrehR", "Direction of rotation:"},
    {"lbKorrF", "Correction factor:"},
    {"lbPrSchritt", "Test step"},
    {"Frame2", "Setpoints"},
    {"lbSoll_n", "Sp&eed:"},
    {"lbEinheitSoll_n", "rpm"},
    {"lbSoll_P", "P&ower:"},
    {"lbPrArt", "Type of &measurement:"},
    {"pbÜbernehmen", "&Apply"},
    {"pbAusführen", "E&xecute"},
    {"Frame1", "Working standard"},
    {"lbIST_n", "Speed:"},
    {"lbEinheitIST_n", "rpm"},
    {"lbIST_D", "Torque:"},
    {"lbIST_P", "Power:"},
    {"Frame3", "Ergometer"},
    {"lbIST_n_ergom", "Speed &reading:"},
    {"lbEinheitErgom", "rpm"},
    {"pbSpeichern", "&Save"},
    {"pbFirst", "&First"},
    {"pbPrevious", "&Previous"},
    {"pbNext", "&Next"},
    {"pbLast", "&Last"},
    {"pbMessen", "&Current Step"},
    {"pbFreieEing", "Free &Input"},
    {"pbDrehzNull", "Speed &Zero"},
    {"pbDynMess", "&Dynamic Measuring"},
    {"laEinhaltung", "Compliance with MPE"},
    {"pbAbbrechen", "&Terminate"},
};

} // namespace

frmMessen::frmMessen() {
    ui.setupUi(this);
    ui.DBGrid1->setModel(&mRaster);
    ui.DBGrid1->verticalHeader()->hide();
    ui.DBGrid1->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    onClick(ui.pbFirst, [this] { navigieren(&frmMessen::zumErsten); });
    onClick(ui.pbLast, [this] { navigieren(&frmMessen::zumLetzten); });
    onClick(ui.pbNext, [this] { navigieren(&frmMessen::zumNächsten); });
    onClick(ui.pbPrevious, [this] { navigieren(&frmMessen::zumVorherigen); });
    onClick(ui.pbMessen, [this] { pbMessen_Click(); });
    onClick(ui.pbSpeichern, [this] { pbSpeichern_Click(); });
    onClick(ui.pbDynMess, [this] { pbDynMess_Click(); });
    onClick(ui.pbAbbrechen, [this] { pbAbbrechen_Click(); });
    eingabenVerdrahten();
}

void frmMessen::Form_Load() try {
    motorfenster().disableFront();
    fnc_BefehlSenden("E", gDrehrichtung, "00");
    beschriftungenSetzen(ui, *this, english);
    const bool deutsch = gSprache != 2;
    ui.cmbMessArt->addItems(deutsch ? QStringList{"Leistungsmessung", "Drehzahlmessung"}
                                    : QStringList{"Power Measurement", "Speed Measurement"});
    ui.cmbMessArt->setEditText({});
    constexpr auto rechts = Qt::AlignRight | Qt::AlignVCenter;
    constexpr auto mitte = Qt::AlignCenter;
    const auto kopf = [deutsch](const char *de, const char *en) {
        return QString(deutsch ? de : en);
    };
    mRaster.setSpalten({
        {"Prüfschritt", kopf("Prüfschritt", "Test step"), mitte},
        {"Soll_n", kopf("Soll n\n1/min", "Setpoint n\nrpm"), rechts},
        {"Soll_P", kopf("Soll P\nW", "Setpoint P\nW"), rechts},
        {"Ist_n_torvena", kopf("Normal n\n1/min", "Standard n\nrpm"), rechts},
        {"Ist_D_torvena", kopf("Normal M\nN m", "Standard M\nN m"), rechts},
        {"Ist_P_torvena", kopf("Normal P\nW", "Standard P\nW"), rechts},
        {"Ist_n_ergom", kopf("Ergometer n\n1/min", "Ergometer n\nrpm"), rechts},
        {"MU_ohne", kopf("ohne Berück. MU", "without\nregard to MU"), mitte},
        {"MU_mit", kopf("mit Berück. MU", "with\nregard to MU"), mitte},
    });
    setFreeInput(ui.txtSoll_n, false);
    setFreeInput(ui.txtSoll_P, false);
    messablauf().beimÖffnen(*this);

    mKorrF = 1;
    ui.laKorrF->setText(Format(mKorrF, "0.0000"));
    gMessungLäuft = true;
    mDrehzNull = false;
    mRezeptEnde = false;
    if (gMessStatus == Messstatus::Ende || gMessStatus == Messstatus::Verweigert ||
        gMessStatus == Messstatus::Neu) {
        gMessStatus = Messstatus::Neu;
    } else {
        gMessStatus = Messstatus::Ruhe;
        gMessenFreigabe = true;
    }
} catch (const Fehler &fehler) {
    fehlerBox("3010 - ", fehler);
}

void frmMessen::Form_Activate() try {
    if (gMessStatus == Messstatus::Ende || gMessStatus == Messstatus::Verweigert) {
        unload();
        return;
    }
    if (gMessungLäuft)
        ersteAktivierung();
    if (!gMessungLäuft)
        fnc_Messzyklus();
} catch (const Fehler &fehler) {
    fehlerBox("3013 - ", fehler);
}

void frmMessen::ersteAktivierung() {
    ui.laRezName->setText(auswahl().rezept);
    ui.laDrehR->setText(motorfenster().drehrichtung());
    if (messablauf().protokollErfragen()) {
        ToleranzZeile zeile;
        if (toleranzLesen(gToleranzID, zeile)) {
            ui.txtToleranz->setText(zeile.bezeichnung);
            mSpezifikation = zeile.spezifikation;
        }
    } else {
        ui.txtToleranz->setText(gRezeptName);
    }
    dataRezept = messablauf().schritte();
    if (messablauf().protokollErfragen()) {
        form(frm::ProtokollNr).showModal();
    } else {
        gMessungLäuft = false;
        gMessStatus = Messstatus::Messen;
    }
}

bool frmMessen::Form_QueryUnload() try {
    if (fnc_BefehlSenden("E", gDrehrichtung, "00"))
        motorfenster().setDrehREnabled(true);
    gMessStatus = Messstatus::Ende;
    gMessenFreigabe = false;
    messablauf().beimVerlassen(Weggang::Ordentlich);
    return true;
} catch (const Fehler &fehler) {
    fehlerBox("3021 - ", fehler);
    return true;
}

void frmMessen::Form_Unload() {
    motorfenster().enableFront();
    motorfenster().focusBeenden();
}

void frmMessen::fnc_PrüfschrittAnzeigen() try {
    ui.laPrSchritt->setText(dataRezept["Prüfschritt"].text());
    mBasisDrehzahl = dataRezept["Drehzahl"].number();
    ui.txtSoll_n->setText(Format(mBasisDrehzahl * mKorrF, "0.0"));
    ui.txtSoll_P->setText(Format(dataRezept["Leistung"].number(), "0.0"));
    if (gMessenAktiv)
        fnc_MesswerteAnzeigen();
    ui.txtIST_n_ergom->clear();
    const int art = dataRezept["Prüfart"].whole();
    if (art == 1 || art == 2)
        messArtZeigen(art);
    ergometerFeldZeigen(art != 1);
    fnc_GraphGrenzenSetzen();
} catch (const Fehler &fehler) {
    fehlerBox("3017 - ", fehler);
}

void frmMessen::fnc_MesswerteAnzeigen() {
    gMessenAktiv = false;
    dataMesswerte = protokollMesswerte(gProtokollID);
    mRaster.setRecordset(dataMesswerte);
}

// False when nothing may be stored. A step of 0 W has no relative uncertainty; its row is stored
// all the same, with the verdicts of the step before.
bool frmMessen::fnc_Bewerten() try {
    SchrittTexte texte{ui.txtSoll_n->text(), ui.txtSoll_P->text(), ui.txtIST_n_torvena->text(),
                       ui.txtIST_P_torvena->text(), ui.txtIST_n_ergom->text()};
    if (istLeistungsmessung()) {
        const Unsicherheiten mu = unsicherheitLeistung();
        const auto zeigen = qScopeGuard([&] { ui.txtIST_n_ergom->setText(texte.ist_n_ergom); });
        leistungBewerten(mUrteil, texte, mSpezifikation, mu);
    } else {
        drehzahlBewerten(mUrteil, texte, mSpezifikation, unsicherheitDrehzahl());
    }
    return true;
} catch (const Fehler &fehler) {
    fehlerBox("3018 - ", fehler);
    return fehler.number() == fehlernummer::DivisionByZero;
}

void frmMessen::pbSpeichern_Click() {
    if (mWerte != Werte::Eigene)
        return; // a second press, before the button went out
    gMessStatus = Messstatus::Speichern;
    fnc_MesswertSpeichern();
    // A row that could not be written leaves the measurement running and the step current.
    if (gMessStatus == Messstatus::Speichern)
        gMessStatus = Messstatus::Messen;
}

void frmMessen::fnc_MesswertSpeichern() try {
    if (!fnc_Bewerten())
        return;
    const QString schritt = ui.laPrSchritt->text();
    messwertSpeichern({gProtokollID,
                       schritt,
                       {ui.txtSoll_n->text(), ui.txtSoll_P->text(), ui.txtIST_n_torvena->text(),
                        ui.txtIST_P_torvena->text(), ui.txtIST_n_ergom->text()},
                       ui.txtIST_D_torvena->text(),
                       mUrteil,
                       mBasisDrehzahl});
    dataMesswerte = protokollMesswerte(gProtokollID);
    mRaster.setRecordset(dataMesswerte);
    if (schritt == freierSchritt ? dataMesswerte.findLast("Prüfschritt", schritt)
                                 : dataMesswerte.findFirst("Prüfschritt", schritt)) {
        ui.DBGrid1->selectRow(dataMesswerte.position());
        ui.DBGrid1->scrollTo(mRaster.index(dataMesswerte.position(), 0));
    }
    ui.DBGrid1->setFocus(); // before the button that has it is disabled
    ui.pbAusführen->setEnabled(false);
    ui.pbSpeichern->setEnabled(false);
    setWaiting(ui.pbSpeichern, false);
    if (schritt != freierSchritt && !mRezeptEnde)
        dataRezept.moveNext();
    fnc_EingabeSperren();
    fnc_MesswerteLeeren();
    if (dataRezept.atEnd() && !mRezeptEnde) {
        rezeptAbgearbeitet();
        return;
    }
    gStopMessung = false;
    gMessStatus = Messstatus::Messen;
    if (mRezeptEnde)
        return; // the stream of the same set-point goes on
    werteVerwerfen();
    form(frm::Meldung).show();
} catch (const Fehler &fehler) {
    fehlerBox("3016 - ", fehler);
}

void frmMessen::rezeptAbgearbeitet() {
    meldung({"Das Rezept ist abgearbeitet!\r"
             "Beenden Sie das Messen oder fahren Sie mit freier Eingabe fort!",
             "The recipe has been run!\r"
             "Terminate the measuring, or continue with Free Input!"},
            Information, {"Meldung!", "Message!"});
    dataRezept.movePrevious();
    mRezeptEnde = true;
    messablauf().rezeptEnde(*this); // the status first: a line that has gone does not hold it up
    datenstromBeenden();
}

void frmMessen::pbMessen_Click() {
    gMessStatus = Messstatus::Messen;
    werteVerwerfen();
    fnc_MesswerteLeeren();
    fnc_PrüfschrittAnzeigen();
    ui.pbPlus->setEnabled(true);
    ui.pbMinus->setEnabled(true);
    form(frm::Meldung).show();
    if (messablauf().bedient())
        ui.pbDrehzNull->setEnabled(true);
}

void frmMessen::pbDynMess_Click() {
    gMessStatus = Messstatus::Dynamisch;
}

void frmMessen::pbAbbrechen_Click() {
    for (QPushButton *button : findChildren<QPushButton *>())
        button->setEnabled(false);
    gMessenFreigabe = false;
    gMessStatus = Messstatus::Ende;
    form(frm::Meldung).show();
    if (mRezeptEnde && leitungFrei())
        unload(); // otherwise the closing of the notice does it, when the exchange has ended
}

void frmMessen::navigieren(void (frmMessen::*schritt)()) {
    if (dataRezept.empty())
        return;
    (this->*schritt)();
    fnc_PrüfschrittAnzeigen();
    fnc_EingabeSperren();
    korrekturErledigt();
    ui.pbPlus->setEnabled(true);
    ui.pbMinus->setEnabled(true);
    aufAusführenWarten();
    ui.pbAusführen->setFocus();
}

void frmMessen::zumErsten() {
    dataRezept.moveFirst();
}

void frmMessen::zumLetzten() {
    dataRezept.moveLast();
}

void frmMessen::zumNächsten() {
    dataRezept.moveNext();
    if (dataRezept.atEnd()) {
        dataRezept.moveLast();
        beep();
    }
}

void frmMessen::zumVorherigen() {
    dataRezept.movePrevious();
    if (dataRezept.atStart()) {
        dataRezept.moveFirst();
        beep();
    }
}
