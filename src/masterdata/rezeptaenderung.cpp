#include "masterdata/rezeptaenderung.h"

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

} // namespace

Rezeptänderung::Rezeptänderung(const Art &art)
    : mEditor(art.schritte), mArt(art), mKopie(art.tabellen) {
    ui.setupUi(this);
    felderVerdrahten();
    Schrittgitter &gitter = mEditor.gitter();
    on(ui.DBGridRez->selectionModel(), &QItemSelectionModel::currentRowChanged, [this, &gitter] {
        if (!gitter.selbst())
            fnc_SchrittAnzeigen();
    });
    // After saving or inserting the current row is one that the fields do not show.
    on(ui.DBGridRez, &QTableView::clicked, [this] { fnc_SchrittAnzeigen(); });
    onClick(ui.pbSpeichern, gefangen(mArt.kennung.speichern, [this] { pbSpeichern_Click(); }));
    onClick(ui.pbNeu, gefangen(mArt.kennung.neu, [this] { pbNeu_Click(); }));
    onClick(ui.pbEinfuegen, [this] { pbEinfuegen_Click(); });
    onClick(ui.pbLoeschen, gefangen(mArt.kennung.löschen, [this] { pbLoeschen_Click(); }));
    onClick(ui.pbFirst, [this] { schrittWählen(0); });
    onClick(ui.pbVorheriger, [this, &gitter] { schrittWählen(gitter.zeile() - 1); });
    onClick(ui.pbNext, [this, &gitter] { schrittWählen(gitter.zeile() + 1); });
    onClick(ui.pbLetzter, [this, &gitter] { schrittWählen(gitter.schritte().count() - 1); });
    onClick(ui.pbok, [this] { pbok_Click(); });
    onClick(ui.pbexit, [this] { pbexit_Click(); });
    onEscape([this] { ui.pbexit->click(); });
}

void Rezeptänderung::felderVerdrahten() {
    toleranzVerdrahten();
    Schritteditor::Felder felder{ui.laPrSchritt, ui.txtDrehzahl, ui.txtLeistung, ui.cmbPrArt,
                                 ui.DBGridRez};
    if (!mArt.schritte.typ) {
        felder.prüfart = nullptr;
        felder.weitere = {{ui.txtSSCode, &Schritt::ssCode},
                          {ui.txtMessSchritte, &Schritt::messSchritte}};
    }
    mEditor.verbinden(felder, [this](const QWidget *feld) { angenommen(feld); });
    for (QWidget *one : std::initializer_list<QWidget *>{ui.lbPrArt, ui.cmbPrArt})
        one->setVisible(mArt.schritte.typ);
    for (QWidget *one : std::initializer_list<QWidget *>{ui.lbSSCode, ui.txtSSCode,
                                                         ui.lbMessSchritte, ui.txtMessSchritte})
        one->setVisible(!mArt.schritte.typ);
    for (QWidget *feld : std::initializer_list<QWidget *>{ui.txtDrehzahl, ui.txtLeistung,
                                                          ui.cmbPrArt, ui.txtMessSchritte})
        onGotFocus(feld, [this, feld] { mEditor.betreten(feld); });
    const auto prüfen = [this](QWidget *feld, const char *kennung) {
        onLostFocus(feld, gefangen(kennung, [this, feld] { mEditor.verlassen(feld); }));
    };
    prüfen(ui.txtDrehzahl, mArt.kennung.drehzahl);
    prüfen(ui.txtLeistung, mArt.kennung.leistung);
    if (mArt.schritte.typ) {
        enterChain({ui.cmbToleranz, ui.txtDrehzahl, ui.txtLeistung, ui.cmbPrArt, ui.pbSpeichern},
                   Qt::TabFocusReason);
        onKey(ui.cmbPrArt, [this](QKeyEvent &key) { return mEditor.typ().taste(key); });
        on(ui.cmbPrArt->lineEdit(), &QLineEdit::textEdited, [this] { mEditor.typ().geändert(); });
        onLostFocus(ui.cmbPrArt, [this] {
            if (mEditor.geändert(ui.cmbPrArt))
                mbGeändert = true;
            letztesFeldVerlassen();
        });
    } else {
        enterChain({ui.cmbToleranz, ui.txtDrehzahl, ui.txtLeistung, ui.txtSSCode,
                    ui.txtMessSchritte, ui.pbSpeichern},
                   Qt::TabFocusReason);
        onLostFocus(ui.txtMessSchritte, gefangen(mArt.kennung.anzahl, [this] {
                        if (mEditor.verlassen(ui.txtMessSchritte))
                            letztesFeldVerlassen();
                    }));
    }
}

void Rezeptänderung::toleranzVerdrahten() {
    mToleranzKürzel.verbinden(ui.cmbToleranz, mArt.zurTaste, [this](bool found) {
        if (found)
            cmbToleranz_Click();
        else
            tasteUnbekannt();
    });
    on(ui.cmbToleranz, &QComboBox::activated, [this] { cmbToleranz_Click(); });
    on(ui.cmbToleranz->lineEdit(), &QLineEdit::textEdited, [this] { mToleranzKürzel.geändert(); });
    onKey(ui.cmbToleranz, [this](QKeyEvent &key) { return mToleranzKürzel.taste(key); });
    onGotFocus(ui.cmbToleranz, [this] {
        msAltToleranz = ui.cmbToleranz->currentText();
        mToleranzKürzel.vergessen(); // the key that led away
    });
    onLostFocus(ui.cmbToleranz, [this] { cmbToleranz_LostFocus(); });
}

void Rezeptänderung::beschriften() {
    const QString recipe = caption(); // names it, from whoever opened the screen
    beschriftungenSetzen(ui, *this, english);
    englischBeschriften(*this, schrittEnglisch);
    setCaption(recipe);
}

// What a person has typed since stays, whatever came to the front meanwhile.
void Rezeptänderung::Form_Activate() try {
    beschriften();
    if (!mGezeigt)
        zeigen();
} catch (const Fehler &fehler) {
    fehlerBox(mArt.kennung.aktivieren, fehler);
}

void Rezeptänderung::zeigen() {
    mEditor.beschriften();
    toleranzenFüllen();
    mToleranz = toleranzInKraft();
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

bool Rezeptänderung::Form_QueryUnload() {
    const Abschluss decided = std::exchange(mnAbschluss, Abschluss::Offen);
    const bool commit = decided == Abschluss::Übernehmen;
    // By the close box nothing is decided: the copy stays as it is.
    return (!commit && decided != Abschluss::Verwerfen) || kopieAbschließen(commit);
}

/// False when it failed: the screen stays, so that it can be tried again. The only copy is not
/// discarded.
bool Rezeptänderung::kopieAbschließen(bool übernehmen) {
    übernehmen = übernehmen || mKopie.einzige();
    try {
        if (übernehmen)
            mKopie.fnc_ÄnderungenÜbernehmen(mArt.schritte.rezeptID);
        else
            mKopie.fnc_ÄnderungenVerwerfen();
        return true;
    } catch (const Fehler &fehler) {
        fehlerBox(übernehmen ? mArt.kennung.übernehmen : mArt.kennung.verwerfen, fehler);
        return false;
    }
}

void Rezeptänderung::Form_Unload() {
    Screen *list = loaded(mArt.liste);
    if (!list)
        return;
    hide();            // so that the list comes up over the window that it came from
    list->showModal(); // its activation reads the recipe anew
}

void Rezeptänderung::aktualisieren() {
    ui.pbNeu->setEnabled(!mNeuerSchritt);
    ui.pbSpeichern->setEnabled(mNeuerSchritt || !mOhneSchritt);
    ui.pbEinfuegen->setEnabled(!mOhneSchritt);
    ui.pbLoeschen->setEnabled(!mOhneSchritt);
}

// The tolerance -----------------------------------------------------------------------------------

void Rezeptänderung::cmbToleranz_Click() try {
    const QString name = ui.cmbToleranz->currentText();
    toleranzSpeichern(name);
    mToleranz = name;
    toleranzGespeichert();
} catch (const Fehler &fehler) {
    eintragSetzen(ui.cmbToleranz, mToleranz); // the one that is in force still
    fehlerBox(mArt.kennung.toleranz, fehler);
}

void Rezeptänderung::cmbToleranz_LostFocus() {
    const QString name = ui.cmbToleranz->currentText();
    if (name != msAltToleranz)
        mbGeändert = true;
    if (name != mToleranz)
        eintragSetzen(ui.cmbToleranz, mToleranz); // the one that is in force
}

// The steps ---------------------------------------------------------------------------------------

void Rezeptänderung::fnc_SchrittAnzeigen() try {
    if (mEditor.zeigen()) {
        mOhneSchritt = mNeuerSchritt = false;
        nichtsOffen();
    }
    aktualisieren();
} catch (const Fehler &fehler) {
    fehlerBox(mArt.kennung.anzeigen, fehler);
}

/// Of a new step: it is to be saved next.
void Rezeptänderung::letztesFeldVerlassen() {
    if (mnAbschluss != Abschluss::NeuerSchritt)
        return;
    mnAbschluss = Abschluss::Offen;
    ui.pbSpeichern->setFocus();
}

void Rezeptänderung::pbSpeichern_Click() {
    if (!mEditor.fnc_SchrittPrüfen())
        return;
    const std::optional<bool> stored = mEditor.vorhanden();
    if (!stored)
        return;
    const bool done = *stored ? mEditor.fnc_SchrittÄndern() : mEditor.anlegen();
    if (done)
        nichtsOffen();
    else if (!*stored)
        return;
    mOhneSchritt = mNeuerSchritt = false;
    aktualisieren();
    if (!*stored)
        ui.pbNeu->setFocus();
    mEditor.lesen(mEditor.nummer()); // on to the one behind it, while the fields keep this one
}

void Rezeptänderung::pbNeu_Click() {
    mEditor.leeren();
    nichtsOffen();
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

void Rezeptänderung::pbEinfuegen_Click() try {
    mEditor.einfügen();
    mNeuerSchritt = false;
    aktualisieren();
} catch (const Fehler &fehler) {
    fehlerBox(mArt.kennung.einfügen, fehler);
    mEditor.nachFehlerLesen(); // some may have moved
}

void Rezeptänderung::pbLoeschen_Click() {
    if (mEditor.löschen()) {
        fnc_SchrittAnzeigen();
        return;
    }
    mOhneSchritt = true;
    mNeuerSchritt = false;
    aktualisieren();
}

/// The row, or the nearest there is, and its step into the fields.
void Rezeptänderung::schrittWählen(int zeile) {
    if (mEditor.gitter().leer())
        return;
    mEditor.gitter().gehen(zeile);
    fnc_SchrittAnzeigen();
}

// Leaving -----------------------------------------------------------------------------------------

void Rezeptänderung::pbok_Click() {
    if (mbGeändert && !übernehmbar())
        return;
    mnAbschluss = mbGeändert ? Abschluss::Übernehmen : Abschluss::Verwerfen;
    unload();
}

void Rezeptänderung::pbexit_Click() {
    mnAbschluss = Abschluss::Verwerfen;
    if (mbGeändert) {
        const int answer = meldung({"Änderungen in den Prüfschritten speichern?",
                                    "Do you want to save the changes in the test steps?"},
                                   YesNo | Question, {"Message!", "Message!"});
        if (answer == Yes) {
            if (!übernehmbar()) {
                mnAbschluss = Abschluss::Offen;
                return;
            }
            mnAbschluss = Abschluss::Übernehmen;
        }
    }
    unload();
}
