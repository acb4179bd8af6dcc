#include "frmMotorDrehR.h"

#include "front.h"
#include "msgbox.h"
#include "session.h"
#include "sprache.h"

namespace {

constexpr Beschriftung english[] = {
    {"", "Direction Of Rotation"},
    {"laText", "Please select the direction of rotation of the motor."},
    {"obLinks", "&Left"},
    {"obRechts", "&Right"},
    {"pbok", "&OK"},
    {"pbAbbrechen", "&Cancel"},
};

enum : std::int16_t { Keine = 0, Rechtslauf = 1, Linkslauf = 2 };

} // namespace

frmMotorDrehR::frmMotorDrehR() {
    ui.setupUi(this);
    on(ui.obRechts, &QRadioButton::clicked, [this] { wählen(Rechtslauf); });
    on(ui.obLinks, &QRadioButton::clicked, [this] { wählen(Linkslauf); });
    onClick(ui.pbok, [this] { pbok_Click(); });
    onClick(ui.pbAbbrechen, [this] { pbAbbrechen_Click(); });
}

void frmMotorDrehR::Form_Load() {
    if (gSprache == 1)
        ui.retranslateUi(this);
    englischBeschriften(*this, english);
    front().disableFront();
    mVorher = gDrehrichtung;
    // Two options of which none is chosen yet.
    ui.obRechts->setAutoExclusive(false);
    ui.obLinks->setAutoExclusive(false);
    ui.obRechts->setChecked(false);
    ui.obLinks->setChecked(false);
    ui.obRechts->setAutoExclusive(true);
    ui.obLinks->setAutoExclusive(true);
    ui.laLinks->setEnabled(false);
    ui.laRechts->setEnabled(false);
    ui.obLinks->setFocus();
}

void frmMotorDrehR::Form_Activate() {
    if (gDrehrichtung == Rechtslauf || gDrehrichtung == Linkslauf)
        wählen(gDrehrichtung);
}

void frmMotorDrehR::Form_Unload() {
    if (!mEntschieden) { // by the close box: no measurement, and the direction as it was
        gMessenFreigabe = false;
        gDrehrichtung = mVorher;
    }
    front().enableFront();
}

void frmMotorDrehR::wählen(std::int16_t richtung) {
    gDrehrichtung = richtung;
    (richtung == Rechtslauf ? ui.obRechts : ui.obLinks)->setChecked(true);
    ui.laRechts->setEnabled(richtung == Rechtslauf);
    ui.laLinks->setEnabled(richtung == Linkslauf);
    ui.pbok->setEnabled(true);
    ui.pbok->setFocus();
}

void frmMotorDrehR::pbok_Click() {
    mEntschieden = true;
    const QString wort = inSprache(gDrehrichtung == Rechtslauf ? Text{"Rechtslauf", "Right"}
                                                               : Text{"Linkslauf", "Left"});
    front().showDrehrichtung(wort);
    if (gFormStatus != formstatus::Keiner) {
        gFormStatus = formstatus::Einlaufen;
        if (Screen *kalibrierung = loaded(frm::Kalibrierung))
            kalibrierung->showInfo(wort);
    } else {
        front().setDrehREnabled(true);
        front().setMoteinEnabled(true);
        if (gMessenFreigabe)
            gDesktopFolge = desktopfolge::Korrektur;
    }
    unload();
}

void frmMotorDrehR::pbAbbrechen_Click() {
    mEntschieden = true;
    gDrehrichtung = Keine;
    front().showDrehrichtung({}); // what the box says holds: the motor cannot be switched on
    front().setMoteinEnabled(false);
    meldung({"Sie haben keine Drehrichtung gewählt!\r\nDer Motor kann nicht eingeschaltet werden.",
             "Please select a direction of rotation for the motor!\r\n"
             "It is not possible to switch the motor on."},
            platform::Exclamation, {"Meldung", "Message"});
    gMessenFreigabe = false;
    unload();
}
