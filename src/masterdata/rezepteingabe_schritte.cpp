// The steps of the new recipe: entering, storing, renumbering, and moving among them.
#include "masterdata/rezepteingabe.h"

#include <QKeyEvent>

#include "session/session.h"
#include "session/sprache.h"
#include "windows/msgbox.h"

using namespace platform;

void Rezepteingabe::schritteVerdrahten() {
    typOderZeile();
    onLostFocus(ui.txtDrehzahl,
                gefangen(mArt.kennung.drehzahl, [this] { mEditor.verlassen(ui.txtDrehzahl); }));
    onLostFocus(ui.txtLeistung,
                gefangen(mArt.kennung.leistung, [this] { mEditor.verlassen(ui.txtLeistung); }));
    onClick(ui.pbSave, gefangen(mArt.kennung.speichern, [this] { pbSave_Click(); }));
    onClick(ui.pbAddNew, [this] { fnc_NeuerSchritt(); });
    onClick(ui.pbEinfuegen, [this] { pbEinfuegen_Click(); });
    onClick(ui.pbLoeschen, gefangen(mArt.kennung.löschen, [this] { pbLoeschen_Click(); }));
    const auto count = [this] { return mEditor.gitter().schritte().count(); };
    onClick(ui.pbFirst, gefangen(mArt.kennung.erster, [this] { schrittWählen(0); }));
    onClick(ui.pbLast, gefangen(mArt.kennung.letzter, [=, this] { schrittWählen(count() - 1); }));
    onClick(ui.pbNext, gefangen(mArt.kennung.nächster,
                                [this] { schrittWählen(mEditor.gitter().zeile() + 1); }));
    onClick(ui.pbPrevious, gefangen(mArt.kennung.voriger, [=, this] {
                schrittWählen((neuerSchritt() ? count() : mEditor.gitter().zeile()) - 1);
            }));

    on(ui.DBGridRez->selectionModel(), &QItemSelectionModel::currentRowChanged,
       [this] { DBGridRez_RowColChange(); });
    // A click on the row that is current already shows it, too.
    on(ui.DBGridRez, &QTableView::clicked, [this] { DBGridRez_RowColChange(); });
    onEnter(ui.DBGridRez, [this] { ui.txtDrehzahl->setFocus(); });
}

/// The fields behind the power: the type, or the line to the ergometer and the count.
void Rezepteingabe::typOderZeile() {
    const bool typ = mArt.schritte.typ;
    Schritteditor::Felder felder{ui.lbStepCount, ui.txtDrehzahl, ui.txtLeistung, ui.cmbPrArt,
                                 ui.DBGridRez};
    std::vector<QWidget *> fremd{ui.lbSSCode, ui.txtSSCode, ui.lbMessSchritte, ui.txtMessSchritte};
    if (!typ) {
        felder.prüfart = nullptr;
        felder.weitere = {{ui.txtSSCode, &Schritt::ssCode},
                          {ui.txtMessSchritte, &Schritt::messSchritte}};
        fremd = {ui.lbPrArt, ui.cmbPrArt};
    }
    for (QWidget *control : fremd)
        control->hide();
    ui.pbKopie->setVisible(mArt.kopierbar);
    mEditor.verbinden(felder, [this](const QWidget *feld) { angenommen(feld); });
    if (typ) {
        enterChain({ui.txtDrehzahl, ui.txtLeistung, ui.cmbPrArt}, Qt::TabFocusReason);
        onKey(ui.cmbPrArt, [this](QKeyEvent &key) { return mEditor.typ().taste(key); });
        on(ui.cmbPrArt->lineEdit(), &QLineEdit::textEdited, [this] { mEditor.typ().geändert(); });
        // Arrow keys pick, too, and must not lose the keyboard at the first press.
        on(ui.cmbPrArt, &QComboBox::activated, [this] { speichernMöglich(); });
        // Neither must leaving it for another field.
        onLostFocus(ui.cmbPrArt, [this] { speichernMöglich(); });
        onEnter(ui.cmbPrArt, [this] { fnc_SpeichernFreigeben(); });
        return;
    }
    enterChain({ui.txtDrehzahl, ui.txtLeistung, ui.txtSSCode, ui.txtMessSchritte},
               Qt::TabFocusReason);
    onGotFocus(ui.txtMessSchritte, [this] { mEditor.betreten(ui.txtMessSchritte); });
    // A mouse goes on to the button without leaving the field first.
    on(ui.txtMessSchritte, &QLineEdit::textEdited, [this] { speichernMöglich(); });
    onLostFocus(ui.txtMessSchritte,
                gefangen(mArt.kennung.anzahl, [this] { mEditor.verlassen(ui.txtMessSchritte); }));
    onEnter(ui.txtMessSchritte, gefangen(mArt.kennung.anzahl, [this] {
                if (mEditor.verlassen(ui.txtMessSchritte))
                    fnc_SpeichernFreigeben();
            }));
}

void Rezepteingabe::aktualisieren() {
    const bool offen = mStand != Stand::Gesperrt;
    const bool gespeichert = mStand == Stand::Gespeichert;
    const std::pair<QWidget *, bool> bedienbar[] = {
        {ui.txtDrehzahl, offen},
        {ui.txtLeistung, offen},
        {ui.cmbPrArt, offen},
        {ui.txtSSCode, offen},
        {ui.txtMessSchritte, offen},
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
void Rezepteingabe::gitterZeigen(int zeile) {
    mEditor.lesen(zeile);
    gitterGelesen();
}

void Rezepteingabe::gitterGelesen() {
    mFertigbar = !mEditor.gitter().leer(); // no finished recipe without steps
    mKopierbar = mKopierbar && !mFertigbar;
    aktualisieren();
}

/// What a failed statement has left.
void Rezepteingabe::gitterNachFehler() {
    mFertigbar = false;
    aktualisieren();
    if (mEditor.nachFehlerLesen())
        gitterGelesen();
}

void Rezepteingabe::fnc_SchrittAnzeigen() try {
    if (!mEditor.zeigen())
        return;
    mStand = Stand::Gespeichert;
    aktualisieren();
} catch (const Fehler &fehler) {
    fehlerBox(mArt.kennung.anzeigen, fehler);
}

/// Once all fields that a step needs hold text it can be stored.
bool Rezepteingabe::speichernMöglich() try {
    if (!mEditor.vollständig())
        return false;
    if (mEditor.nummer() == 0) // entered after the last step was deleted
        mEditor.nummerZeigen(mEditor.größteNummer() + 1);
    mSpeicherbar = true;
    aktualisieren();
    ui.laInfo->setText(
        inSprache({"Sie können den Prüfschritt speichern!", "You can save the test step!"}));
    return true;
} catch (const Fehler &fehler) {
    fehlerBox(mArt.kennung.freigeben, fehler);
    return false;
}

void Rezepteingabe::fnc_SpeichernFreigeben() {
    if (speichernMöglich())
        ui.pbSave->setFocus();
}

void Rezepteingabe::pbSave_Click() {
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

void Rezepteingabe::hinweisNeuerSchritt() {
    ui.laInfo->setText(inSprache({"Geben Sie bitte die Daten für den neuen Prüfschritt ein!",
                                  "Please enter data for the actual test step!"}));
}

void Rezepteingabe::neuenSchrittFreigeben() {
    mStand = Stand::Nichts;
    aktualisieren();
}

void Rezepteingabe::fnc_NeuerSchritt() try {
    const int number = mEditor.größteNummer() + 1;
    mEditor.leeren();
    mEditor.nummerZeigen(number);
    ui.txtDrehzahl->setFocus();
    mStand = Stand::Neu;
    mSpeicherbar = false;
    aktualisieren();
    hinweisNeuerSchritt();
} catch (const Fehler &fehler) {
    fehlerBox(mArt.kennung.neu, fehler);
}

void Rezepteingabe::pbEinfuegen_Click() try {
    mEditor.einfügen();
    gitterGelesen();
    fnc_SchrittAnzeigen();
} catch (const Fehler &fehler) {
    fehlerBox(mArt.kennung.einfügen, fehler);
    gitterNachFehler(); // some may have moved
}

/// Asks nothing. After the only step its values stay in the fields; only a second call empties
/// them.
void Rezepteingabe::pbLoeschen_Click() {
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

void Rezepteingabe::fnc_NavigationFreigeben() try {
    mBewegbar = true;
    aktualisieren();
} catch (const Fehler &fehler) {
    fehlerBox(mArt.kennung.navigation, fehler);
}

/// Past either end it beeps and stays.
void Rezepteingabe::schrittWählen(int zeile) {
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

void Rezepteingabe::gespeichertenZeigen() {
    fnc_SchrittAnzeigen();
    ui.laInfo->setText(inSprache({"Sie können die Daten für diesen Prüfschritt ändern!",
                                  "It is possible to change data for this test step!"}));
}

/// A step is being entered that is not stored yet: it stands behind the last.
bool Rezepteingabe::neuerSchritt() const {
    Recordset rows = mEditor.gitter().schritte();
    rows.moveLast();
    return !rows.empty() && mEditor.nummer() > rows["Prüfschritt"].whole();
}

void Rezepteingabe::DBGridRez_RowColChange() {
    if (!mEditor.gitter().selbst() && !mEditor.gitter().leer())
        gespeichertenZeigen();
}
