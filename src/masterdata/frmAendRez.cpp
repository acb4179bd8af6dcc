#include "masterdata/frmAendRez.h"

#include <QKeyEvent>
#include <QLineEdit>

#include <algorithm>
#include <utility>

#include "controls/eintrag.h"
#include "controls/umbruch.h"
#include "session/session.h"
#include "session/sprache.h"
#include "windows/msgbox.h"

using namespace platform;

namespace {

constexpr Beschriftung english[] = {
    {"lbRezName", "Recipe:"},
    {"pbSpeichern", "&Save"},
    {"pbNeu", "&New Step"},
    {"pbVorheriger#tip", "Previous test step"},
    {"pbLetzter#tip", "Last test step"},
};

std::optional<QString> toleranzZurTaste(const QString &taste) {
    static const Kürzel kürzel[] = {
        {{"M", "M"}, {"medizinische Geräte", "Medical Devices"}},
        {{"S", "S"}, {"stationäre Trainingsgeräte", "Stationary Devices"}},
        {{"O", "W"}, {"ohne Toleranz", "Without Tolerance"}},
    };
    return kürzelwort(kürzel, taste);
}

} // namespace

frmÄndRez::frmÄndRez() {
    ui.setupUi(this);
    felderVerdrahten();
    Schrittgitter &gitter = mEditor.gitter();
    on(ui.DBGridRez->selectionModel(), &QItemSelectionModel::currentRowChanged, [this, &gitter] {
        if (!gitter.selbst())
            fnc_SchrittAnzeigen();
    });
    // After saving or inserting the current row is one that the fields do not show.
    on(ui.DBGridRez, &QTableView::clicked, [this] { fnc_SchrittAnzeigen(); });
    onClick(ui.pbSpeichern, gefangen("1127 - ", [this] { pbSpeichern_Click(); }));
    onClick(ui.pbNeu, gefangen("1126 - ", [this] { pbNeu_Click(); }));
    onClick(ui.pbEinfuegen, [this] { pbEinfuegen_Click(); });
    onClick(ui.pbLoeschen, gefangen("1023E - ", [this] { pbLoeschen_Click(); }));
    onClick(ui.pbFirst, [this] { schrittWählen(0); });
    onClick(ui.pbVorheriger, [this, &gitter] { schrittWählen(gitter.zeile() - 1); });
    onClick(ui.pbNext, [this, &gitter] { schrittWählen(gitter.zeile() + 1); });
    onClick(ui.pbLetzter, [this, &gitter] { schrittWählen(gitter.schritte().count() - 1); });
    onClick(ui.pbok, [this] { pbok_Click(); });
    onClick(ui.pbexit, [this] { pbexit_Click(); });
    onEscape([this] { ui.pbexit->click(); });
}

void frmÄndRez::felderVerdrahten() {
    mToleranzKürzel.verbinden(ui.cmbToleranz, toleranzZurTaste, [this](bool found) {
        if (found) {
            cmbToleranz_Click();
        } else {
            beep();
            eintragSetzen(ui.cmbPrArt, {});
        }
    });
    on(ui.cmbToleranz, &QComboBox::activated, [this] { cmbToleranz_Click(); });
    on(ui.cmbToleranz->lineEdit(), &QLineEdit::textEdited, [this] { mToleranzKürzel.geändert(); });
    onKey(ui.cmbToleranz, [this](QKeyEvent &key) { return mToleranzKürzel.taste(key); });
    onGotFocus(ui.cmbToleranz, [this] {
        msAltToleranz = ui.cmbToleranz->currentText();
        mToleranzKürzel.vergessen(); // the key that led away
    });
    onLostFocus(ui.cmbToleranz, [this] { cmbToleranz_LostFocus(); });
    enterChain({ui.cmbToleranz, ui.txtDrehzahl, ui.txtLeistung, ui.cmbPrArt, ui.pbSpeichern},
               Qt::TabFocusReason);

    mEditor.verbinden({ui.laPrSchritt, ui.txtDrehzahl, ui.txtLeistung, ui.cmbPrArt, ui.DBGridRez},
                      [this] { mbGeändert = true; });
    for (QWidget *feld :
         std::initializer_list<QWidget *>{ui.txtDrehzahl, ui.txtLeistung, ui.cmbPrArt})
        onGotFocus(feld, [this, feld] { mEditor.betreten(feld); });
    onLostFocus(ui.txtDrehzahl, gefangen("1135 - ", [this] { mEditor.verlassen(ui.txtDrehzahl); }));
    onLostFocus(ui.txtLeistung, gefangen("1136 - ", [this] { mEditor.verlassen(ui.txtLeistung); }));
    onKey(ui.cmbPrArt, [this](QKeyEvent &key) { return mEditor.typ().taste(key); });
    on(ui.cmbPrArt->lineEdit(), &QLineEdit::textEdited, [this] { mEditor.typ().geändert(); });
    onLostFocus(ui.cmbPrArt, [this] { cmbPrArt_LostFocus(); });
}

void frmÄndRez::beschriften() {
    const QString recipe = caption(); // names it, from whoever opened the screen
    beschriftungenSetzen(ui, *this, english);
    englischBeschriften(*this, schrittEnglisch);
    setCaption(recipe);
}

// What a person has typed since stays, whatever came to the front meanwhile.
void frmÄndRez::Form_Activate() try {
    beschriften();
    if (!mGezeigt)
        zeigen();
} catch (const Fehler &fehler) {
    fehlerBox("1122 - ", fehler);
}

void frmÄndRez::zeigen() {
    mEditor.beschriften();
    fnc_Fill_CmbToleranz(ui.cmbToleranz);
    mToleranz = gRezeptName;
    eintragSetzen(ui.cmbToleranz, mToleranz);
    ui.laRezName->setText(umbrechbar(gRezeptWahl));
    mEditor.lesen(0);
    mEditor.leeren();
    mOhneSchritt = true;
    mNeuerSchritt = false;
    fnc_SchrittAnzeigen();
    ui.cmbToleranz->setFocus();
    zumErsetzenMarkieren(ui.cmbToleranz->lineEdit());
    msAltToleranz = ui.cmbToleranz->currentText();
    mGezeigt = true;
}

bool frmÄndRez::Form_QueryUnload() {
    const Abschluss decided = std::exchange(mnAbschluss, Abschluss::Offen);
    const bool commit = decided == Abschluss::Übernehmen;
    // By the close box nothing is decided: the copy stays as it is.
    return (!commit && decided != Abschluss::Verwerfen) || kopieAbschließen(commit);
}

/// False when it failed: the screen stays, so that it can be tried again. The only copy is not
/// discarded.
bool frmÄndRez::kopieAbschließen(bool übernehmen) {
    übernehmen = übernehmen || mKopie.einzige();
    try {
        if (übernehmen)
            mKopie.fnc_ÄnderungenÜbernehmen(gRezeptID);
        else
            mKopie.fnc_ÄnderungenVerwerfen();
        return true;
    } catch (const Fehler &fehler) {
        fehlerBox(übernehmen ? "1123 - " : "1124 - ", fehler);
        return false;
    }
}

void frmÄndRez::Form_Unload() {
    Screen *list = loaded(frm::Rezepte);
    if (!list)
        return;
    hide();            // so that the list comes up over the window that it came from
    list->showModal(); // its activation reads the recipe anew
}

void frmÄndRez::aktualisieren() {
    ui.pbNeu->setEnabled(!mNeuerSchritt);
    ui.pbSpeichern->setEnabled(mNeuerSchritt || !mOhneSchritt);
    ui.pbEinfuegen->setEnabled(!mOhneSchritt);
    ui.pbLoeschen->setEnabled(!mOhneSchritt);
}

// The specification -------------------------------------------------------------------------------

void frmÄndRez::cmbToleranz_Click() try {
    const QString name = ui.cmbToleranz->currentText();
    rezeptToleranzÄndern(gRezeptID, name);
    mToleranz = name;
} catch (const Fehler &fehler) {
    eintragSetzen(ui.cmbToleranz, mToleranz); // the one that is in force still
    fehlerBox("1120 - ", fehler);
}

void frmÄndRez::cmbToleranz_LostFocus() {
    const QString name = ui.cmbToleranz->currentText();
    if (name != msAltToleranz)
        mbGeändert = true;
    if (name != mToleranz)
        eintragSetzen(ui.cmbToleranz, mToleranz); // the one that is in force
}

// The steps ---------------------------------------------------------------------------------------

void frmÄndRez::fnc_SchrittAnzeigen() try {
    if (mEditor.zeigen())
        mOhneSchritt = mNeuerSchritt = false;
    aktualisieren();
} catch (const Fehler &fehler) {
    fehlerBox("1121 - ", fehler);
}

void frmÄndRez::cmbPrArt_LostFocus() {
    if (mEditor.geändert(ui.cmbPrArt))
        mbGeändert = true;
    if (mnAbschluss == Abschluss::NeuerSchritt) {
        mnAbschluss = Abschluss::Offen;
        ui.pbSpeichern->setFocus();
    }
}

void frmÄndRez::pbSpeichern_Click() {
    if (!mEditor.fnc_SchrittPrüfen())
        return;
    const std::optional<bool> stored = mEditor.vorhanden();
    if (!stored)
        return;
    if (*stored)
        mEditor.fnc_SchrittÄndern();
    else if (!mEditor.anlegen())
        return;
    mOhneSchritt = mNeuerSchritt = false;
    aktualisieren();
    if (!*stored)
        ui.pbNeu->setFocus();
    mEditor.lesen(mEditor.nummer()); // on to the one behind it, while the fields keep this one
}

void frmÄndRez::pbNeu_Click() {
    mEditor.leeren();
    mNeuerSchritt = true;
    aktualisieren();
    Schrittgitter &gitter = mEditor.gitter();
    gitter.zumLetzten();
    // An inserted step is the last row and has a number from the middle: the one behind it is
    // taken.
    const int last = gitter.leer() ? 0 : gitter.aktuell()["Prüfschritt"].whole();
    mEditor.nummerZeigen(std::max(last, mEditor.größteNummer()) + 1);
    mnAbschluss = Abschluss::NeuerSchritt;
    ui.txtDrehzahl->setFocus();
}

void frmÄndRez::pbEinfuegen_Click() try {
    mEditor.einfügen();
    mNeuerSchritt = false;
    aktualisieren();
} catch (const Fehler &fehler) {
    fehlerBox("1023E - ", fehler);
    mEditor.nachFehlerLesen(); // some may have moved
}

void frmÄndRez::pbLoeschen_Click() {
    if (mEditor.löschen()) {
        fnc_SchrittAnzeigen();
        return;
    }
    mOhneSchritt = true;
    mNeuerSchritt = false;
    aktualisieren();
}

/// The row, or the nearest there is, and its step into the fields.
void frmÄndRez::schrittWählen(int zeile) {
    if (mEditor.gitter().leer())
        return;
    mEditor.gitter().gehen(zeile);
    fnc_SchrittAnzeigen();
}

// Leaving -----------------------------------------------------------------------------------------

void frmÄndRez::pbok_Click() {
    mnAbschluss = mbGeändert ? Abschluss::Übernehmen : Abschluss::Verwerfen;
    unload();
}

void frmÄndRez::pbexit_Click() {
    mnAbschluss = Abschluss::Verwerfen;
    if (mbGeändert) {
        const int answer = meldung({"Änderungen in den Prüfschritten speichern?",
                                    "Do you want to save the changes in the test steps?"},
                                   YesNo | Question, {"Message!", "Message!"});
        if (answer == Yes)
            mnAbschluss = Abschluss::Übernehmen;
    }
    unload();
}
