#include "masterdata/rezeptart.h"

#include "windows/msgbox.h"

using namespace platform;

namespace {

std::vector<Angabe> angaben(const Schritt &schritt, bool ohneTyp) {
    return {{schritt.drehzahl.isEmpty(), {" die Drehzahl", {}}, {}},
            {schritt.leistung.isEmpty(), {" die Leistung", {}}, {", Leistung", {}}},
            {ohneTyp, {" die Prüfart", {}}, {" und Prüfart", {}}}};
}

std::vector<Angabe> angabenNeu(const Schritt &schritt, const QString &) {
    return angaben(schritt, schritt.prüfart == Prüfart::Keine);
}

/// Only the German words count, whatever the language of the session.
std::vector<Angabe> angabenGeändert(const Schritt &schritt, const QString &typ) {
    return angaben(schritt,
                   typ != Prüfart::leistungText.german && typ != Prüfart::drehzahlText.german);
}

const Text zuVielMoment{
    "Das zulässige Drehmoment ist überschritten!\r\nBitte geben Sie andere Werte ein!",
    "The permissible torque has been exeeded!\r\nPlease enter other values!"};

} // namespace

const Rezeptart neuesRezept{
    .schritte = Schrittliste("Rezepte"),
    .rezeptID = gRezeptID,
    .typ = true,
    .neu = true,
    .grenzen = {120, false, 600, grenzDrehmoment},
    .spalten = Schrittgitter::ordentlich,
    .wertsymbol = Critical,
    .fehltsymbol = Critical,
    .drehzahl = {{"Drehzahl muss ein nummerischer Wert sein!",
                  "Number of revolutions has to be a numeric value!"},
                 {"Drehzahl liegt außerhalb des gültigen Bereiches.",
                  "Number of revolution is outside the valid range."},
                 {"Eingabefehler", "Input Error"}},
    .leistung = {{"Leistung muss ein nummerischer Wert sein!", "Power has to be a numeric value!"},
                 {"Leistung liegt außerhalb des gültigen Bereiches",
                  "Power is outside the valid range!"},
                 {"Eingabefehler", "Input Error"}},
    .unvollständig =
        {"Die Angaben zum aktuellen Prüfschritt sind unvollständig!\rBitte ergänzen Sie%1!",
         "The informations about the actual test step are incomplete!"},
    .angaben = angabenNeu,
    .drehmoment = zuVielMoment,
    .kennung = {.prüfen = "1024 - ",
                .drehmoment = "1042- ",
                .vorhanden = "1034 - ",
                .anlegen = "1036 - ",
                .ändern = "1035 - "},
};

const Rezeptart geändertesRezept{
    .schritte = Schrittliste("ÄndRez_temp"),
    .rezeptID = gRezeptID,
    .typ = true,
    .neu = false,
    .grenzen = {120, true, 600, grenzDrehmoment},
    .spalten = Schrittgitter::ordentlich,
    .wertsymbol = Exclamation,
    .fehltsymbol = Exclamation,
    .drehzahl = {{"Drehzahl muss ein nummerischer Wert sein!",
                  "Number of revolutions must be a numerical value!"},
                 {"Drehzahl liegt außerhalb des gültigen Bereiches!",
                  "Number of revolutions is outside the valid range!"},
                 {"Eingabefehler", "Input Error"}},
    .leistung = {{"Leistung muss ein nummerischer Wert sein!", "Power must be a numerical value!"},
                 {"Leistung liegt außerhalb des gültigen Bereiches!",
                  "Power is outside the valid range!"},
                 {"Eingabefehler!", "Input Error!"}},
    .unvollständig =
        {"Die Angaben zum aktuellen Prüfschritt sind unvollständig!\rBitte ergänzen Sie%1!",
         "The information about the actual step are incomplete!\rPlease complete!"},
    .angaben = angabenGeändert,
    .drehmoment = zuVielMoment,
    .kennung = {.prüfen = "1125 - ",
                .drehmoment = "1125 - ",
                .vorhanden = "1034 - ",
                .anlegen = "1127 - ",
                .ändern = "1035 - "},
};
