#include "masterdata/frmRezepte.h"

#include "session/auswahl.h"
#include "session/sprache.h"

frmRezepte::frmRezepte()
    : Rezeptwahl({.tabellen = ordentlicheRezepte,
                  .rezeptID = gRezeptID,
                  .neu = frm::NeuRezept,
                  .ändern = frm::ÄndRez,
                  .spalten = Schrittgitter::ordentlich,
                  .zähler = {"Rezeptanzahl: ", "Number Of Recipes: "},
                  .änderung = {"Änderung im Rezept '%1'", "Canges In Recipe '%1'"},
                  .nochKeines = {"Noch kein Rezept; angelegt wird im Menü Verwaltung, Rezepte",
                                 "No recipe yet; use menu Master Data, Recipes to enter one"},
                  .kennung = {.ändern = "1011 - ",
                              .klick = "1012 - ",
                              .aktivieren = "1013 - ",
                              .laden = "1014 - ",
                              .entladen = "1015 - ",
                              .liste = "1016 - ",
                              .editor = "1017 - ",
                              .löschen = "1018 - ",
                              .wählen = "1019 - "}}) {}

void frmRezepte::beschriften() {
    Rezeptwahl::beschriften();
    setCaption(inSprache({"Rezepte", "Recipes"}));
}

void frmRezepte::einsetzen(const QString &name) {
    const RezeptKopf kopf = rezeptKopf(name);
    rezeptEinsetzen(kopf);
    zeigen(kopf.toleranz, rezeptSchritte(kopf.rezeptID));
}

void frmRezepte::gewählt(const QString &name) {
    gRezeptAufruf = false;
    rezeptWählen(name);
}

void frmRezepte::verlassen(bool gewählt) {
    if (!gewählt)
        sitzungsrezeptEinsetzen();
}

void frmRezepte::Form_Unload() {
    Rezeptwahl::Form_Unload();
    if (Screen *desktop = loaded(frm::Desktop))
        desktop->show();
}
