#include "protocols/berichtsseiten.h"

#include "session/sprache.h"
#include "ui_berichtsmaske.h"

namespace {

const Seitenausgabe seiten[] = {
    {Berichtsseite::Deckblatt,
     {"Deckblatt", "Cover Sheet"},
     {{{"deckblatt.rpt", "eng_deckblatt.rpt"}, {"deckblatt1.rpt", "eng_deckblatt1.rpt"}}},
     {"Berichtsseite Deckblatt wird erstellt!", "'Cover Sheet' created!"},
     {"1081 - ", "1112 - "},
     {&Ui::Berichtsmaske::rbDruck1},
     false},
    {Berichtsseite::Messergebnisse,
     {"Messergebnisse", "Measuring Results"},
     {{{"messergebnisse.rpt", "eng_messergebnisse.rpt"},
       {"messergebnisse1.rpt", "eng_messergebnisse1.rpt"}}},
     {"Berichtsseite Messergebnisse wird erstellt!", "'Measuring Results' created!"},
     {"1082 - ", "1113 - "},
     {&Ui::Berichtsmaske::rbDruck2_0, &Ui::Berichtsmaske::rbDruck2_1},
     true},
    {Berichtsseite::Blutdruck,
     {"Blutdruck", "Blood Pressure"},
     {{{"Blutdruck.rpt", "eng_Blutdruck.rpt"}, {"Blutdruck.rpt", "eng_Blutdruck.rpt"}}},
     {"Berichtsseite Blutdruck wird erstellt!", "'Blood Pressure' created!"},
     {"1087 - ", "1087 - "},
     {&Ui::Berichtsmaske::rbDruck4},
     true},
    {Berichtsseite::SecControl,
     {"STK", "EST"},
     {{{"SecControl.rpt", "eng_SecControl.rpt"}, {"SecControl.rpt", "eng_SecControl.rpt"}}},
     {"Berichtsseite STK wird erstellt!", "'EST' created!"},
     {"1086 - ", "1086 - "},
     {&Ui::Berichtsmaske::rbDruck3},
     true},
};

} // namespace

std::span<const Seitenausgabe> seitenausgaben() {
    return seiten;
}

QString layoutname(const Seitenausgabe &seite, std::int16_t klasse) {
    const QString medizinisch = inSprache(seite.layout[0]), stationär = inSprache(seite.layout[1]);
    if (klasse == 0 && medizinisch != stationär)
        return {};
    return klasse == 2 ? stationär : medizinisch;
}
