#include "finaltest/frmEPRezepte.h"

#include "finaltest/eprezeptart.h"
#include "records/eprezept.h"
#include "session/session.h"
#include "session/sprache.h"

frmEPRezepte::frmEPRezepte()
    : Rezeptwahl({.tabellen = endprüfrezepte,
                  .rezeptID = gEPRezeptID,
                  .neu = frm::EPNeuRezept,
                  .ändern = frm::EPÄndRez,
                  .spalten = epSpalten,
                  .zähler = {"Rezeptanzahl: ", "Number of recipes: "},
                  .änderung = {"Änderung im Rezept '%1'", "Change in the recipe '%1'"},
                  .nochKeines = {"Noch kein Rezept; angelegt wird mit \"Neu ...\"",
                                 "No recipe yet; press \"New ...\" to enter one"},
                  .kennung = {.ändern = "ER_2 - ",
                              .klick = "ER_3 - ",
                              .aktivieren = "ER_4 - ",
                              .laden = "ER_5 - ",
                              .entladen = "ER_6 - ",
                              .liste = "ER_7 - ",
                              .editor = "ER_8 - ",
                              .löschen = "ER_9 - ",
                              .wählen = "ER_10 - "}}),
      mVorher(gEPRezeptID) {}

void frmEPRezepte::beschriften() {
    Rezeptwahl::beschriften();
    setCaption(inSprache({"Rezepte der Endprüfung", "Final Test Recipes"}));
    ui.lbSpezifikation->setText(inSprache({"Toleranz:", "Tolerance:"}));
}

void frmEPRezepte::Form_Activate() {
    Rezeptwahl::Form_Activate();
    if (mSuche.namen().isEmpty())
        ui.pbNeuRezept->setFocus();
}

/// The one that was used last only as long as a person has not asked for another.
QString frmEPRezepte::vorgewählt() const {
    if (!mSuche.text().isEmpty())
        return einziges();
    const std::optional<EPRezept> recipe = epRezeptVorgewählt();
    return recipe ? recipe->name : QString();
}

void frmEPRezepte::einsetzen(const QString &name) {
    const Schlüssel key = rezeptSchlüssel(name, endprüfrezepte);
    const std::optional<EPRezept> recipe = epRezept(key);
    gEPRezeptID = key;
    zeigen(recipe ? recipe->klasse : QString(), epRezeptSchritte(key));
}

void frmEPRezepte::gewählt(const QString &name) {
    gEPRezeptWahl = name;
}

/// Its class may have been changed here; one that is gone is no longer in force.
void frmEPRezepte::verlassen(bool) {
    gEPRezeptID = 0;
    gRezeptName.clear();
    if (const std::optional<EPRezept> recipe = epRezept(mVorher)) {
        gEPRezeptID = mVorher;
        gRezeptName = recipe->klasse;
    }
}

void frmEPRezepte::Form_Unload() {
    Rezeptwahl::Form_Unload();
    if (Screen *desktop = loaded(frm::Endprüf))
        desktop->show();
}
