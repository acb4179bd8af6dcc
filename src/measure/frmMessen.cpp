#include "measure/frmMessen.h"

#include <QHeaderView>

#include <algorithm>

#include "link/controller.h"
#include "measure/band.h"
#include "platform/runtime.h"
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
    {"pbPlus#tip", "Setpoint + 0.1 rpm (Alt++)"},
    {"pbMinus#tip", "Setpoint − 0.1 rpm (Alt+-)"},
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
    {"Label18", "Set-points"},
    {"Label19", "Working standard"},
    {"Label22", "Tolerance"},
    {"pbSave", "Ans&wer"},
    {"pbAbbrechen", "&Terminate"},
};

} // namespace

frmMessen::frmMessen() {
    ui.setupUi(this);
    for (QTableView *raster : {ui.DBGrid1, ui.DBGrid2}) {
        raster->setModel(&mRaster);
        raster->verticalHeader()->hide();
        raster->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
        raster->horizontalHeader()->setHighlightSections(false);
    }
    onClick(ui.pbFirst, [this] { navigieren(0); });
    onClick(ui.pbLast, [this] { navigieren(dataRezept.count() - 1); });
    onClick(ui.pbNext, [this] { navigieren(dataRezept.position() + 1); });
    onClick(ui.pbPrevious, [this] { navigieren(dataRezept.position() - 1); });
    onClick(ui.pbMessen, [this] { pbMessen_Click(); });
    onClick(ui.pbDynMess, [this] { pbDynMess_Click(); });
    onClick(ui.pbSpeichern, [this] { schrittAbschließen(); });
    onClick(ui.pbAbbrechen, [this] { pbAbbrechen_Click(); });
    on(&mDienst, &QShortcut::activated, [this] { ui.pbSave->show(); });
    onClick(ui.pbSave, [this] {
        messablauf().diagnose([this](const QString &wort) {
            ui.Label21->setText(wort);
            ui.Label21->show();
        });
    });
    eingabenVerdrahten();
}

void frmMessen::Form_Load() try {
    motorfenster().disableFront();
    fnc_BefehlSenden("E", gDrehrichtung, "00");
    beschriftungenSetzen(ui, *this, english);
    mEingabe.listeFüllen();
    ansichtZeigen();
    fnc_EingabeSperren();
    korrFSetzen(1);
    gMessungLäuft = true;
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
    if (läuftAllein() && loaded(frm::Meldung))
        return; // the next step begins when the notice has gone
    if (gMessungLäuft)
        ersteAktivierung();
    if (!gMessungLäuft)
        fnc_Messzyklus();
} catch (const Fehler &fehler) {
    if (!mAnsicht.bedient) {
        gMessStatus = Messstatus::Ende;
        requestActivation(*this); // which leaves the screen
    }
    fehlerBox("3013 - ", fehler);
}

// Without a person who steers, only what the steps show is to be seen, and the way out.
void frmMessen::ansichtZeigen() {
    mAnsicht = messablauf().ansicht();
    mRaster.setSpalten(mAnsicht.spalten);
    if (!mAnsicht.titel.isEmpty())
        setCaption(mAnsicht.titel);
    for (QWidget *control : std::initializer_list<QWidget *>{
             ui.Frame2, ui.pbSpeichern, ui.pbFirst, ui.pbPrevious, ui.pbNext, ui.pbLast,
             ui.pbMessen, ui.pbFreieEing, ui.pbDrehzNull, ui.pbDynMess, ui.laEinhaltung,
             ui.DBGrid1})
        control->setVisible(mAnsicht.bedient);
    for (QWidget *control : std::initializer_list<QWidget *>{ui.DBGrid2, ui.Label18, ui.Label19,
                                                             ui.Label20, ui.laSollwerte})
        control->setVisible(!mAnsicht.bedient);
    for (QWidget *control : std::initializer_list<QWidget *>{ui.Label21, ui.Label22, ui.pbSave})
        control->hide();
    ui.txtIST_n_ergom->setReadOnly(!mAnsicht.bedient); // what is judged is what was read
    mDienst.setEnabled(!mAnsicht.bedient);
    anzeigenEinrichten();
}

void frmMessen::ersteAktivierung() {
    drehrichtungZeigen();
    ui.laRezName->setText(mAnsicht.rezept);
    ui.txtToleranz->setText(messablauf().spezifikation());
    for (QLabel *name : {ui.laRezName, ui.txtToleranz})
        name->setToolTip(name->text()); // a long one is cut
    dataRezept = messablauf().schritte();
    if (mAnsicht.bedient) {
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
    if (Screen *bild = loaded(frm::GraphLite))
        bild->unload();
    motorfenster().enableFront();
    motorfenster().focusBeenden();
}

// Whatever changes what can be pressed comes by here.
void frmMessen::zustandZeigen() {
    const Zustand &ist = mZustand;
    const auto zeigen = [&](QPushButton *knopf, bool frei, bool wartet = false) {
        knopf->setEnabled(frei && !ist.beendet);
        setWaiting(knopf, wartet);
    };
    zeigen(ui.pbSpeichern, ist.vollständig, ist.vollständig);
    zeigen(ui.pbAusführen, ist.ungesendet, ist.ungesendet);
    zeigen(ui.pbÜbernehmen, ist.korrigiert, ist.korrigiert);
    zeigen(ui.pbMessen, ist.schritteFrei || ist.neuZuSenden, ist.neuZuSenden);
    for (QPushButton *knopf : {ui.pbFirst, ui.pbPrevious, ui.pbNext, ui.pbLast})
        zeigen(knopf, ist.schritteFrei);
    for (QPushButton *knopf : {ui.pbPlus, ui.pbMinus})
        zeigen(knopf, !ist.freiGewählt);
    zeigen(ui.pbFreieEing, ist.freiErlaubt);
    zeigen(ui.pbDynMess, ist.gemessen);
    zeigen(ui.pbDrehzNull, ist.nullErlaubt);
    zeigen(ui.pbAbbrechen, true, ist.abgearbeitet && !ist.beendet);
    streifenZeigen();
}

void frmMessen::fnc_PrüfschrittAnzeigen() try {
    ui.laPrSchritt->setText(dataRezept["Prüfschritt"].text());
    mBasisDrehzahl = dataRezept["Drehzahl"].number();
    ui.txtSoll_n->setText(Format(mBasisDrehzahl * mKorrF, "0.0"));
    ui.txtSoll_P->setText(Format(dataRezept["Leistung"].number(), "0.0"));
    ui.laSollwerte->setText(inSprache({"%1 1/min\n%2 W", "%1 rpm\n%2 W"})
                                .arg(ui.txtSoll_n->text(), ui.txtSoll_P->text()));
    if (gMessenAktiv)
        fnc_MesswerteAnzeigen();
    ui.txtIST_n_ergom->clear();
    const int art = dataRezept["Prüfart"].whole();
    mEingabe.artZeigen(art);
    ergometerFeldZeigen(art != Prüfart::Leistung);
    grenzenSetzen();
} catch (const Fehler &fehler) {
    fehlerBox("3017 - ", fehler);
}

void frmMessen::grenzenSetzen() {
    const QString soll_P = ui.txtSoll_P->text();
    fnc_GraphGrenzenSetzen(ui.txtSoll_n->text(), soll_P, messablauf().leistungsToleranz(soll_P));
}

void frmMessen::fnc_MesswerteAnzeigen() {
    gMessenAktiv = false;
    dataMesswerte = messablauf().messwerte();
    mRaster.setRecordset(dataMesswerte);
}

SchrittTexte frmMessen::texte() const {
    return {ui.txtSoll_n->text(),        ui.txtSoll_P->text(),      ui.txtIST_n_torvena->text(),
            ui.txtIST_P_torvena->text(), ui.txtIST_n_ergom->text(), ui.txtIST_D_torvena->text(),
            ui.laPrSchritt->text(),      mEingabe.prüfart(),        mBasisDrehzahl};
}

bool frmMessen::schrittAbschließen() {
    // A second press, before the button went out; a stop that came before the count was full.
    if (mWerte != Werte::Eigene || gMessStatus != Messstatus::Messen)
        return false;
    gMessStatus = Messstatus::Speichern;
    fnc_MesswertSpeichern();
    if (gMessStatus != Messstatus::Speichern)
        return true;
    // A row that could not be written leaves the measurement running and the step current; where
    // nobody could press again, it ends.
    gMessStatus = mAnsicht.bedient ? Messstatus::Messen : Messstatus::Verweigert;
    return false;
}

void frmMessen::fnc_MesswertSpeichern() try {
    SchrittTexte schritt = texte();
    const bool gespeichert = messablauf().speichern(schritt);
    zeigeErgometer(schritt.ist_n_ergom);
    if (!gespeichert)
        return;
    fnc_MesswerteAnzeigen();
    const bool frei = schritt.prüfschritt == freierSchritt;
    if (frei ? dataMesswerte.findLast("Prüfschritt", schritt.prüfschritt)
             : dataMesswerte.findFirst("Prüfschritt", schritt.prüfschritt)) {
        raster()->selectRow(dataMesswerte.position());
        raster()->scrollTo(mRaster.index(dataMesswerte.position(), 0));
    }
    if (gMessStatus == Messstatus::Ende)
        return;           // a failure of the judgement has ended it
    raster()->setFocus(); // before the button that has it goes out
    if (!frei && !mRezeptEnde)
        dataRezept.moveNext();
    fnc_EingabeSperren();
    fnc_MesswerteLeeren();
    if (dataRezept.atEnd() && !mRezeptEnde) {
        dataRezept.movePrevious();
        mRezeptEnde = true;
        mZustand.abgearbeitet = mAnsicht.bedient;
        zustandZeigen();
        messablauf().rezeptEnde();
        return;
    }
    gMessStatus = Messstatus::Messen;
    if (mRezeptEnde)
        return; // the stream of the same set-point goes on
    werteVerwerfen();
    form(frm::Meldung).show();
} catch (const Fehler &fehler) {
    fehlerBox("3016 - ", fehler);
}

void frmMessen::pbMessen_Click() {
    gMessStatus = Messstatus::Messen;
    mZustand.freiGewählt = false;
    mZustand.nullErlaubt = true;
    werteVerwerfen();
    fnc_MesswerteLeeren();
    fnc_PrüfschrittAnzeigen();
    form(frm::Meldung).show();
}

// Ends the stream of this step; the pass shows the charts.
void frmMessen::pbDynMess_Click() {
    if (gMessStatus == Messstatus::Messen && mWerte == Werte::Eigene)
        gMessStatus = Messstatus::Dynamisch;
}

void frmMessen::pbAbbrechen_Click() {
    mZustand.beendet = true;
    zustandZeigen();
    gMessenFreigabe = false;
    gMessStatus = Messstatus::Ende;
    if (Screen *nächster = loaded(frm::Meldung))
        nächster->unload(); // of a step that does not come any more
    form(frm::Meldung).show();
    messablauf().abbruch();
    if (mRezeptEnde && leitungFrei())
        unload(); // otherwise the closing of the notice does it, when the exchange has ended
}

void frmMessen::navigieren(int zeile) {
    if (dataRezept.empty())
        return;
    dataRezept.moveTo(std::clamp(zeile, 0, dataRezept.count() - 1));
    if (dataRezept.position() != zeile)
        beep();
    fnc_PrüfschrittAnzeigen();
    fnc_EingabeSperren();
    korrekturErledigt();
    mZustand.freiGewählt = false;
    mZustand.ungesendet = true;
    werteVerwerfen();
    ui.pbAusführen->setFocus();
}
