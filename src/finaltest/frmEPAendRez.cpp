#include "finaltest/frmEPAendRez.h"

#include <QLineEdit>

#include "finaltest/eprezeptart.h"
#include "records/eprezept.h"
#include "records/toleranzklasse.h"
#include "session/session.h"
#include "session/sprache.h"
#include "windows/msgbox.h"

frmEPÄndRez::frmEPÄndRez()
    : Rezeptänderung({.schritte = geändertesEPRezept,
                      .tabellen = endprüfrezepte,
                      .liste = frm::EPRezepte,
                      .zurTaste = epKlasseZurTaste,
                      .kennung = {.aktivieren = "EÄR_3 - ",
                                  .anzeigen = "EÄR_2 - ",
                                  .übernehmen = "EÄR_4 - ",
                                  .verwerfen = "EÄR_5 - ",
                                  .toleranz = "EÄR_1 - ",
                                  .neu = "EÄR_11 - ",
                                  .speichern = "EÄR_12 - ",
                                  .einfügen = "EÄR_13 - ",
                                  .löschen = "EÄR_14 - ",
                                  .drehzahl = "EÄR_15 - ",
                                  .leistung = "EÄR_16 - ",
                                  .anzahl = "EÄR_17 - "}}) {
    onGotFocus(ui.txtSSCode, gefangen("EÄR_18 - ", [this] { txtSSCode_GotFocus(); }));
    onLostFocus(ui.txtSSCode, gefangen("EÄR_18 - ", [this] { txtSSCode_LostFocus(); }));
}

void frmEPÄndRez::beschriften() {
    Rezeptänderung::beschriften();
    epBeschriften(*this);
}

void frmEPÄndRez::toleranzenFüllen() {
    ui.cmbToleranz->clear();
    ui.cmbToleranz->addItems(toleranzklassen());
}

QString frmEPÄndRez::toleranzInKraft() {
    const std::optional<EPRezept> recipe = epRezept(gEPRezeptID);
    return recipe ? recipe->klasse : QString();
}

void frmEPÄndRez::toleranzSpeichern(const QString &name) {
    epKlasseÄndern(gEPRezeptID, name);
}

void frmEPÄndRez::toleranzGespeichert() {
    ui.txtDrehzahl->setFocus(Qt::TabFocusReason);
}

void frmEPÄndRez::tasteUnbekannt() {
    if (!ui.cmbToleranz->currentText().isEmpty())
        platform::beep();
}

// The steps ---------------------------------------------------------------------------------------

void frmEPÄndRez::angenommen(const QWidget *feld) {
    Rezeptänderung::angenommen(feld);
    if (feld == ui.txtLeistung)
        vorschlagen();
    eintragen();
}

void frmEPÄndRez::vorschlagen() {
    ui.txtSSCode->setText(fnc_SSCodeVorschlag(ui.txtLeistung->text()));
}

/// The fields into the stored step that they show, if it may be so. False after a failure, which is
/// told.
bool frmEPÄndRez::eintragen() {
    const std::optional<bool> stored = mEditor.vorhanden();
    mOffen = stored.value_or(true);
    if (!mOffen || !mEditor.zulässig())
        return stored.has_value();
    if (!mEditor.fnc_SchrittÄndern())
        return false;
    mOffen = false;
    mEditor.lesen(mEditor.gitter().zeile());
    return true;
}

bool frmEPÄndRez::übernehmbar() {
    // A step that was deleted has nothing to go in.
    return !mOffen || !mEditor.vorhanden().value_or(true) ||
           (mEditor.fnc_SchrittPrüfen() && eintragen());
}

/// What was typed there gives way to the proposal, each time.
void frmEPÄndRez::txtSSCode_GotFocus() {
    mEditor.betreten(ui.txtSSCode);
    vorschlagen();
    eintragen();
    // Behind a mouse press, which takes a selection away.
    QMetaObject::invokeMethod(ui.txtSSCode, &QLineEdit::selectAll, Qt::QueuedConnection);
}

void frmEPÄndRez::txtSSCode_LostFocus() {
    if (mEditor.geändert(ui.txtSSCode))
        mbGeändert = true;
    eintragen();
}
