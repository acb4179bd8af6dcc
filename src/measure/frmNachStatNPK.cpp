#include "measure/frmNachStatNPK.h"

#include "session/session.h"
#include "session/sprache.h"

namespace {

constexpr Beschriftung english[] = {{"", "End Of The Static Zero-point Correction"},
                                    {"laKopf", "Attention!"}};

const Text ankoppeln{"Vor Beginn der Messung ist die Kreuzgelenkwelle "
                     "am Normal anzukoppeln und auszurichten.",
                     "Before beginning the measurement, the universal joint "
                     "shaft has to be coupled to the normal, and aligned"};

} // namespace

frmNachStatNPK::frmNachStatNPK() {
    ui.setupUi(this);
    onClick(ui.pbok, [this] { pbok_Click(); });
}

void frmNachStatNPK::Form_Load() {
    beschriftungenSetzen(ui, *this, english);
    ui.laText->setText(inSprache(ankoppeln));
    anweisungZeigen(*ui.anzBild, Anweisung::Ankoppeln);
    if (gFormStatus == Formstatus::KorrekturFertig) {
        anzeigen(
            {"Vorbereitung der Hebelarmkalibrierung", "Preparations For The Lever Arm Calibration"},
            {"Montieren Sie den Hebelarm für Linkskalibrierung, wie in der "
             "Bedienungsanleitung beschrieben.\r"
             "Bitte achten Sie auf eine waagerechte Ausrichtung des Hebelarms!",
             "Mount the lever arm for left-handed calibration as described in the Operating "
             "Instructions.\rMake sure the lever arm is in horizontal position!"},
            Anweisung::Hebelarm);
    }
}

void frmNachStatNPK::anzeigen(const Text &titel, const Text &text, Anweisung bild) {
    anweisungZeigen(*ui.anzBild, bild);
    setCaption(inSprache(titel));
    ui.laText->setText(QString(inSprache(text)).replace('\r', '\n'));
}

void frmNachStatNPK::pbok_Click() {
    if (gFormStatus == Formstatus::KorrekturFertig)
        gFormStatus = gMessStatus != Messstatus::Verweigert ? Formstatus::SchwereEingegeben
                                                            : Formstatus::Abgebrochen;
    unload();
}

void frmNachStatNPK::Form_Unload() {
    // Without a finished correction no measurement may follow, whatever closed this screen.
    Screen *korrektur = loaded(frm::StatMessen);
    const bool weiter =
        gFormStatus == Formstatus::Keiner && gMessStatus != Messstatus::Verweigert && korrektur;
    if (korrektur)
        korrektur->unload();
    if (weiter)
        form(frm::Messen).show();
}
