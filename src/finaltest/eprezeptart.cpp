#include "finaltest/eprezeptart.h"

#include <QLabel>

#include "controls/kuerzelfeld.h"
#include "records/eprezept.h"
#include "windows/msgbox.h"

using namespace platform;

namespace {

constexpr Schrittgrenzen grenzen{130, true, 800, 70};

const Wertmeldungen drehzahl{
    {"Die Drehzahl muss ein nummerischer Wert sein!", "Speed must be a numerical value!"},
    {"Die Drehzahl liegt außerhalb des gültigen Bereiches", "Speed is outside the valid range"},
    {"Eingabefehler", "Error"}};
const Wertmeldungen leistung{
    {"Die Leistung muss ein nummerischer Wert sein!", "Power must be a numeric value!"},
    {"Leistung liegt außerhalb des gültigen Bereiches", "Power is outside the valid range"},
    {"Eingabefehler", "Error"}};
const Wertmeldungen anzahl{{"Bitte geben Sie eine Zahl ein!", "Please enter a numerical value!"},
                           {"Es muss mindestens einmal sechs Runden gemessen werden!",
                            "It must be measured at least once six rounds!"},
                           {"Eingabefehler", "Error"}};

const Text unvollständig{
    "Die Angaben zum aktuellen Prüfschritt sind unvollständig!\rBitte ergänzen Sie%1!",
    "The information on the current test step is incomplete!\rPlease complete%1!"};
const Text zuVielMoment{
    "Das zulässige Drehmoment ist überschritten!\r\nBitte geben Sie andere Werte ein!",
    "The permissible torque is exceeded!\r\nPlease enter other values!"};

std::vector<Angabe> angaben(const Schritt &schritt, const QString &) {
    return {
        {schritt.drehzahl.isEmpty(), {" die Drehzahl", " the speed"}, {}},
        {schritt.leistung.isEmpty(), {" die Leistung", " the power"}, {", Leistung", ", power"}},
        {schritt.messSchritte.isEmpty(),
         {" Anzahl der Messschritte", " number of measuring steps"},
         {", Anzahl der Messschritte", ", number of measuring steps"}}};
}

} // namespace

const std::vector<Schrittgitter::Spalte> epSpalten{
    {"Prüfschritt", {"Prüfschritt", "Test Step"}, Qt::AlignCenter},
    {"Drehzahl", {"Drehzahl\n1/min", "Speed\nrpm"}, Qt::AlignRight | Qt::AlignVCenter},
    {"Leistung", {"Leistung\nW", "Power\nW"}, Qt::AlignRight | Qt::AlignVCenter},
    {"SSCode", {"Ergometer-\nbefehl", "Ergometer\nCommand"}, Qt::AlignLeft | Qt::AlignVCenter},
    // The last column takes the rest of the width.
    {"MessSchritte", {"Messschritte", "Measuring\nSteps"}, Qt::AlignCenter},
};

const Rezeptart neuesEPRezept{
    .schritte = Schrittliste(endprüfrezepte.schritte, epSchrittspalten),
    .rezeptID = gEPRezeptID,
    .typ = false,
    .neu = true,
    .grenzen = grenzen,
    .spalten = epSpalten,
    .wertsymbol = Critical,
    .fehltsymbol = Critical,
    .drehzahl = drehzahl,
    .leistung = leistung,
    .unvollständig = unvollständig,
    .angaben = angaben,
    .drehmoment = zuVielMoment,
    .kennung = {.prüfen = "ENR_14 - ",
                .drehmoment = "ENR_15 - ",
                .vorhanden = "ENR_16 - ",
                .anlegen = "ENR_17 - ",
                .ändern = "ENR_18 - "},
    .anzahl = anzahl,
};

const Rezeptart geändertesEPRezept{
    .schritte = Schrittliste("ÄndRez_temp", epSchrittspalten, endprüfrezepte.vorzeichen),
    .rezeptID = gEPRezeptID,
    .typ = false,
    .neu = false,
    .grenzen = grenzen,
    .spalten = epSpalten,
    .wertsymbol = Critical,
    .fehltsymbol = Exclamation,
    .drehzahl = drehzahl,
    .leistung = leistung,
    .unvollständig = unvollständig,
    .angaben = angaben,
    .drehmoment = zuVielMoment,
    .kennung = {.prüfen = "EÄR_6 - ",
                .drehmoment = "EÄR_7 - ",
                .vorhanden = "EÄR_8 - ",
                .anlegen = "EÄR_9 - ",
                .ändern = "EÄR_10 - "},
    .anzahl = anzahl,
};

std::optional<QString> epKlasseZurTaste(const QString &taste) {
    static const Kürzel kürzel[] = {
        {{"M", "M"}, {"medizinische Geräte", "medizinische Geräte"}},
        {{"S", "S"}, {"stationäre Trainingsgeräte", "stationäre Trainingsgeräte"}},
        {{"O", "O"}, {"ohne Toleranz", "ohne Toleranz"}},
        {{"T", "T"}, {"Toleranz 3%", "Toleranz 3%"}},
    };
    return kürzelwort(kürzel, taste);
}

void epBeschriften(QWidget &screen) {
    static constexpr Beschriftung english[] = {
        {"lbToleranz", "Toler&ance:"},
        {"lbSSCode", "&Ergometer command:"},
        {"lbMessSchritte", "&Measuring steps:"},
    };
    if (inDeutsch())
        screen.findChild<QLabel *>("lbToleranz")->setText("&Toleranz:");
    englischBeschriften(screen, english);
}
