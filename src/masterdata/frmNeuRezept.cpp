#include "masterdata/frmNeuRezept.h"

#include "session/session.h"
#include "session/sprache.h"

namespace {

constexpr Beschriftung english[] = {
    {"", "New Recipe"},
    {"pbKopie", "Cop&y Recipe ..."},
};

} // namespace

frmNeuRezept::frmNeuRezept()
    : Rezepteingabe(
          {.schritte = neuesRezept,
           .tabellen = ordentlicheRezepte,
           .liste = frm::Rezepte,
           .kopierbar = true,
           .ersterHinweis = {"Bitte geben Sie einen Rezeptnamen ein und wählen Sie eine "
                             "Spezifikation.",
                             "Please enter a recipe name and choose a specification."},
           .speichern = {"Wollen sie diesen Rezeptnamen speichern?",
                         "Do you want to save this recipe name?"},
           .vergeben = {" Diesen Rezeptnamen gibt es bereits!\rWählen Sie einen anderen!",
                        "This recipe name is already existent!\rChoose another name!"},
           .verwerfen = {"Rezept wurde nicht gespeichert!\rSollen die Daten verworfen werden? ",
                         "Recipe has not been saved! \rShall data be discarded?"},
           .verwerfenTitel = {"Message", "MESSAGE"},
           .kennung = {.aktivieren = "3039 - ",
                       .name = "1030 - ",
                       .vergeben = "1041 - ",
                       .verlassen = "1023 - ",
                       .liste = "1037 - ",
                       .anzeigen = "1025 - ",
                       .freigeben = "1038 - ",
                       .navigation = "1031 - ",
                       .neu = "1032 - ",
                       .speichern = "1033 - ",
                       .einfügen = "1023E - ",
                       .löschen = "1023E - ",
                       .erster = "1026 - ",
                       .letzter = "1027 - ",
                       .nächster = "1028 - ",
                       .voriger = "1029 - ",
                       .drehzahl = "1039 - ",
                       .leistung = "1040 - ",
                       .anzahl = nullptr}}) {
    onClick(ui.pbKopie, gefangen("9016 - ", [] { form(frm::RezeptKopie).showModal(); }));
}

void frmNeuRezept::beschriften() {
    Rezepteingabe::beschriften();
    englischBeschriften(*this, english);
}

void frmNeuRezept::toleranzenFüllen() {
    if (fnc_Fill_CmbToleranz(ui.cmbToleranz) && ui.cmbToleranz->count() == 0)
        ui.cmbToleranz->setPlaceholderText(
            inSprache({"Noch keine; angelegt wird im Menü Verwaltung, Spezifikationen",
                       "None yet; use menu Master Data, Specifications to enter one"}));
}

Schlüssel frmNeuRezept::anlegen(const QString &name, const QString &toleranz) {
    return rezeptAnlegen(name, toleranz);
}

void frmNeuRezept::verwerfen(bool, bool) {
    rezeptLöschen(gRezeptID);
}
