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
    Schrittliste("Rezepte"),
    gRezeptID,
    true,
    {120, false, 600, grenzDrehmoment},
    Schrittgitter::ordentlich,
    Critical,
    {{"Drehzahl muss ein nummerischer Wert sein!",
      "Number of revolutions has to be a numeric value!"},
     {"Drehzahl liegt außerhalb des gültigen Bereiches.",
      "Number of revolution is outside the valid range."},
     {"Eingabefehler", "Input Error"}},
    {{"Leistung muss ein nummerischer Wert sein!", "Power has to be a numeric value!"},
     {"Leistung liegt außerhalb des gültigen Bereiches", "Power is outside the valid range!"},
     {"Eingabefehler", "Input Error"}},
    {"Die Angaben zum aktuellen Prüfschritt sind unvollständig!\rBitte ergänzen Sie%1!",
     "The informations about the actual test step are incomplete!"},
    angabenNeu,
    zuVielMoment,
    {"1024 - ", "1042- ", "1034 - ", "1036 - ", "1035 - "},
};

const Rezeptart geändertesRezept{
    Schrittliste("ÄndRez_temp"),
    gRezeptID,
    false,
    {120, true, 600, grenzDrehmoment},
    Schrittgitter::ordentlich,
    Exclamation,
    {{"Drehzahl muss ein nummerischer Wert sein!",
      "Number of revolutions must be a numerical value!"},
     {"Drehzahl liegt außerhalb des gültigen Bereiches!",
      "Number of revolutions is outside the valid range!"},
     {"Eingabefehler", "Input Error"}},
    {{"Leistung muss ein nummerischer Wert sein!", "Power must be a numerical value!"},
     {"Leistung liegt außerhalb des gültigen Bereiches!", "Power is outside the valid range!"},
     {"Eingabefehler!", "Input Error!"}},
    {"Die Angaben zum aktuellen Prüfschritt sind unvollständig!\rBitte ergänzen Sie%1!",
     "The information about the actual step are incomplete!\rPlease complete!"},
    angabenGeändert,
    zuVielMoment,
    {"1125 - ", "1125 - ", "1034 - ", "1127 - ", "1035 - "},
};
