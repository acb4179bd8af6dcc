// The steps of the new recipe: entering, storing, renumbering, and moving among them.
#include "masterdata/frmNeuRezept.h"

#include <QKeyEvent>

#include "session/session.h"
#include "session/sprache.h"
#include "windows/msgbox.h"

using namespace platform;

void frmNeuRezept::schritteVerdrahten() {
    mEditor.verbinden({ui.lbStepCount, ui.txtDrehzahl, ui.txtLeistung, ui.cmbPrArt, ui.DBGridRez},
                      [this] { fnc_SpeichernFreigeben(); });
    onLostFocus(ui.txtDrehzahl, gefangen("1039 - ", [this] { mEditor.verlassen(ui.txtDrehzahl); }));
    onLostFocus(ui.txtLeistung, gefangen("1040 - ", [this] { mEditor.verlassen(ui.txtLeistung); }));
    enterChain({ui.txtDrehzahl, ui.txtLeistung, ui.cmbPrArt}, Qt::TabFocusReason);

    onKey(ui.cmbPrArt, [this](QKeyEvent &key) { return mEditor.typ().taste(key); });
    on(ui.cmbPrArt->lineEdit(), &QLineEdit::textEdited, [this] { mEditor.typ().geändert(); });
    // Arrow keys pick, too, and must not lose the keyboard at the first press.
    on(ui.cmbPrArt, &QComboBox::activated, [this] { speichernMöglich(); });
    // Neither must leaving it for another field.
    onLostFocus(ui.cmbPrArt, [this] { speichernMöglich(); });
    onEnter(ui.cmbPrArt, [this] { fnc_SpeichernFreigeben(); });

    onClick(ui.pbSave, gefangen("1033 - ", [this] { pbSave_Click(); }));
    onClick(ui.pbAddNew, [this] { fnc_NeuerSchritt(); });
    onClick(ui.pbEinfuegen, [this] { pbEinfuegen_Click(); });
    onClick(ui.pbLoeschen, gefangen("1023E - ", [this] { pbLoeschen_Click(); }));
    onClick(ui.pbKopie, gefangen("9016 - ", [] { form(frm::RezeptKopie).showModal(); }));
    const auto count = [this] { return mEditor.gitter().schritte().count(); };
    onClick(ui.pbFirst, gefangen("1026 - ", [this] { schrittWählen(0); }));
    onClick(ui.pbLast, gefangen("1027 - ", [=, this] { schrittWählen(count() - 1); }));
    onClick(ui.pbNext,
            gefangen("1028 - ", [this] { schrittWählen(mEditor.gitter().zeile() + 1); }));
    onClick(ui.pbPrevious, gefangen("1029 - ", [=, this] {
                schrittWählen((neuerSchritt() ? count() : mEditor.gitter().zeile()) - 1);
            }));

    on(ui.DBGridRez->selectionModel(), &QItemSelectionModel::currentRowChanged,
       [this] { DBGridRez_RowColChange(); });
    // A click on the row that is current already shows it, too.
    on(ui.DBGridRez, &QTableView::clicked, [this] { DBGridRez_RowColChange(); });
    onEnter(ui.DBGridRez, [this] { ui.txtDrehzahl->setFocus(); });
}

void frmNeuRezept::aktualisieren() {
    const bool offen = mStand != Stand::Gesperrt;
    const bool gespeichert = mStand == Stand::Gespeichert;
    const std::pair<QWidget *, bool> bedienbar[] = {
        {ui.txtDrehzahl, offen},
        {ui.txtLeistung, offen},
        {ui.cmbPrArt, offen},
        {ui.pbSave, mSpeicherbar},
        {ui.pbEinfuegen, gespeichert},
        {ui.pbLoeschen, gespeichert},
        {ui.pbAddNew, gespeichert || mStand == Stand::Nichts},
        {ui.pbFirst, mBewegbar},
        {ui.pbPrevious, mBewegbar},
        {ui.pbNext, mBewegbar},
        {ui.pbLast, mBewegbar},
        {ui.pbKopie, mKopierbar},
        {ui.pbok, mFertigbar}};
    for (const auto &[control, enabled] : bedienbar)
        control->setEnabled(enabled);
}

/// Reads the steps anew and stands on the row, or on the nearest there is.
void frmNeuRezept::gitterZeigen(int zeile) {
    mEditor.lesen(zeile);
    gitterGelesen();
}

void frmNeuRezept::gitterGelesen() {
    mFertigbar = !mEditor.gitter().leer(); // no finished recipe without steps
    mKopierbar = mKopierbar && !mFertigbar;
    aktualisieren();
}

/// What a failed statement has left.
void frmNeuRezept::gitterNachFehler() {
    mFertigbar = false;
    aktualisieren();
    if (mEditor.nachFehlerLesen())
        gitterGelesen();
}

void frmNeuRezept::fnc_SchrittAnzeigen() try {
    if (!mEditor.zeigen())
        return;
    mStand = Stand::Gespeichert;
    aktualisieren();
} catch (const Fehler &fehler) {
    fehlerBox("1025 - ", fehler);
}

/// Once all three fields hold text the step can be stored.
bool frmNeuRezept::speichernMöglich() try {
    const Schritt step = mEditor.schritt();
    if (step.drehzahl.isEmpty() || step.leistung.isEmpty() || step.prüfart == Prüfart::Keine)
        return false;
    if (step.nummer == 0) // entered after the last step was deleted
        mEditor.nummerZeigen(mEditor.größteNummer() + 1);
    mSpeicherbar = true;
    aktualisieren();
    ui.laInfo->setText(
        inSprache({"Sie können den Prüfschritt speichern!", "You can save the test step!"}));
    return true;
} catch (const Fehler &fehler) {
    fehlerBox("1038 - ", fehler);
    return false;
}

void frmNeuRezept::fnc_SpeichernFreigeben() {
    if (speichernMöglich())
        ui.pbSave->setFocus();
}

void frmNeuRezept::pbSave_Click() {
    if (!mEditor.fnc_SchrittPrüfen())
        return;
    const std::optional<bool> there = mEditor.vorhanden();
    if (!there || !(*there ? mEditor.fnc_SchrittÄndern() : mEditor.anlegen()))
        return;
    if (!*there)
        fnc_NeuerSchritt();
    ui.txtDrehzahl->setFocus();
    gitterZeigen(mEditor.nummer() - 1);
    fnc_NavigationFreigeben();
}

void frmNeuRezept::hinweisNeuerSchritt() {
    ui.laInfo->setText(inSprache({"Geben Sie bitte die Daten für den neuen Prüfschritt ein!",
                                  "Please enter data for the actual test step!"}));
}

void frmNeuRezept::neuenSchrittFreigeben() {
    mStand = Stand::Nichts;
    aktualisieren();
}

void frmNeuRezept::fnc_NeuerSchritt() try {
    const int number = mEditor.größteNummer() + 1;
    mEditor.leeren();
    mEditor.nummerZeigen(number);
    ui.txtDrehzahl->setFocus();
    mStand = Stand::Neu;
    mSpeicherbar = false;
    aktualisieren();
    hinweisNeuerSchritt();
} catch (const Fehler &fehler) {
    fehlerBox("1032 - ", fehler);
}

void frmNeuRezept::pbEinfuegen_Click() try {
    mEditor.einfügen();
    gitterGelesen();
    fnc_SchrittAnzeigen();
} catch (const Fehler &fehler) {
    fehlerBox("1023E - ", fehler);
    gitterNachFehler(); // some may have moved
}

/// Asks nothing. After the only step its values stay in the fields; only a second call empties
/// them.
void frmNeuRezept::pbLoeschen_Click() {
    const bool step = mEditor.löschen();
    gitterGelesen();
    if (step) {
        fnc_SchrittAnzeigen();
        return;
    }
    ui.pbAddNew->setFocus(); // before pbLoeschen is disabled, or the keyboard goes elsewhere
    mStand = Stand::Nichts;
    mSpeicherbar = false;
    aktualisieren();
}

void frmNeuRezept::fnc_NavigationFreigeben() try {
    mBewegbar = true;
    aktualisieren();
} catch (const Fehler &fehler) {
    fehlerBox("1031 - ", fehler);
}

/// Past either end it beeps and stays.
void frmNeuRezept::schrittWählen(int zeile) {
    Schrittgitter &gitter = mEditor.gitter();
    if (gitter.leer())
        return;
    gitter.gehen(zeile);
    if (gitter.zeile() != zeile)
        beep();
    gespeichertenZeigen();
    mEditor.einmalUngeprüft();
    ui.txtDrehzahl->setFocus();
    ui.txtDrehzahl->selectAll();
}

void frmNeuRezept::gespeichertenZeigen() {
    fnc_SchrittAnzeigen();
    ui.laInfo->setText(inSprache({"Sie können die Daten für diesen Prüfschritt ändern!",
                                  "It is possible to change data for this test step!"}));
}

/// A step is being entered that is not stored yet: it stands behind the last.
bool frmNeuRezept::neuerSchritt() const {
    Recordset rows = mEditor.gitter().schritte();
    rows.moveLast();
    return !rows.empty() && mEditor.nummer() > rows["Prüfschritt"].whole();
}

void frmNeuRezept::DBGridRez_RowColChange() {
    if (!mEditor.gitter().selbst() && !mEditor.gitter().leer())
        gespeichertenZeigen();
}
