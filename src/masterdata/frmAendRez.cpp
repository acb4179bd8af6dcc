#include "masterdata/frmAendRez.h"

#include "controls/eintrag.h"
#include "session/session.h"
#include "windows/msgbox.h"

namespace {

std::optional<QString> toleranzZurTaste(const QString &taste) {
    static const Kürzel kürzel[] = {
        {{"M", "M"}, {"medizinische Geräte", "Medical Devices"}},
        {{"S", "S"}, {"stationäre Trainingsgeräte", "Stationary Devices"}},
        {{"O", "W"}, {"ohne Toleranz", "Without Tolerance"}},
    };
    return kürzelwort(kürzel, taste);
}

} // namespace

frmÄndRez::frmÄndRez()
    : Rezeptänderung({.schritte = geändertesRezept,
                      .tabellen = ordentlicheRezepte,
                      .liste = frm::Rezepte,
                      .zurTaste = toleranzZurTaste,
                      .kennung = {.aktivieren = "1122 - ",
                                  .anzeigen = "1121 - ",
                                  .übernehmen = "1123 - ",
                                  .verwerfen = "1124 - ",
                                  .toleranz = "1120 - ",
                                  .neu = "1126 - ",
                                  .speichern = "1127 - ",
                                  .einfügen = "1023E - ",
                                  .löschen = "1023E - ",
                                  .drehzahl = "1135 - ",
                                  .leistung = "1136 - ",
                                  .anzahl = nullptr}}) {}

void frmÄndRez::toleranzenFüllen() {
    fnc_Fill_CmbToleranz(ui.cmbToleranz);
}

void frmÄndRez::toleranzSpeichern(const QString &name) {
    rezeptToleranzÄndern(gRezeptID, name);
}

void frmÄndRez::tasteUnbekannt() {
    platform::beep();
    eintragSetzen(ui.cmbPrArt, {}); // of all boxes
}
