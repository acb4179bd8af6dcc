#include "measure/frmVorStatNPK.h"

#include "measure/anweisungsbild.h"
#include "session/session.h"
#include "session/sprache.h"

namespace {

constexpr Beschriftung english[] = {{"", "Preparation For The Static Zero-point Correction"},
                                    {"laKopf", "Attention!"}};

const Text hebelarm{"1.Modus Hebelarmkalibrierung einschalten. \n"
                    "2.Mit Break-Taste Markierung am Sechskant\n"
                    "    senkrecht nach oben positionieren\n"
                    "3.Hebelarm für Linkskalibrierung 30 s an\n"
                    "    Sechskant waagerecht anhängen\n"
                    "4.Hebelarm abkoppeln",
                    "1.Switch on the lever arm calibration mode. \n"
                    "2.Use the break key to position the mark at the hexagon\n"
                    "    vertically upwards\n"
                    "3.Hang the lever arm for left-handed calibration on the hexagon\n"
                    "    horizontally for 30 s\n"
                    "4.Take the lever arm off"};
const Text abkoppeln{"Vor Durchführung der statischen Nullpunktkorrektur "
                     "ist die Kreuzgelenkwelle am Normal abzukoppeln.",
                     "Before carrying out the static zero-point correction, "
                     "the universal joint shaft has to be uncoupled from the normal."};

} // namespace

frmVorStatNPK::frmVorStatNPK() {
    ui.setupUi(this);
    onClick(ui.pbok, [this] {
        gEinlaufStatus = Einlaufstatus::Vorbereitet;
        unload();
    });
}

void frmVorStatNPK::Form_Load() {
    beschriftungenSetzen(ui, *this, english);
    const bool kalibrierung = gFormStatus != Formstatus::Keiner;
    ui.laText->setText(inSprache(kalibrierung ? hebelarm : abkoppeln));
    ui.laText->setWordWrap(!kalibrierung); // its lines are numbered
    anweisungZeigen(*ui.anzBild, kalibrierung ? Anweisung::Hebelarm : Anweisung::Abkoppeln);
}
