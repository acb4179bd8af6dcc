#include "app/frmMotorDrehR.h"

#include <QMouseEvent>

#include "session/motorfenster.h"
#include "session/session.h"
#include "session/sprache.h"
#include "windows/msgbox.h"
#include "windows/stil.h"
#include "windows/zeichen.h"

using namespace platform;

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
    beschriftungenSetzen(ui, *this, english);
    motorfenster().disableFront();
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
    bildZeigen(*ui.laLinks, *ui.obLinks, *ui.obRechts);
    bildZeigen(*ui.laRechts, *ui.obRechts, *ui.obLinks);
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
    motorfenster().enableFront();
}

// In full colour until the other one is chosen.
void frmMotorDrehR::bildZeigen(Bild &bild, const QRadioButton &eigene, const QRadioButton &andere) {
    bild.zeige(
        [&andere, rechts = &eigene == ui.obRechts](QPainter &painter, const QRectF &rect) {
            drehpfeilMalen(painter, rect, rechts,
                           andere.isChecked() ? farben().gesperrt : farben().text);
        },
        eigene.text().remove('&'));
}

// On a picture it chooses what the picture stands for.
void frmMotorDrehR::mousePressEvent(QMouseEvent *event) {
    const QWidget *bild = childAt(event->position().toPoint());
    if (usable() && bild && (bild == ui.laLinks || bild == ui.laRechts))
        (bild == ui.laLinks ? ui.obLinks : ui.obRechts)->click();
    else
        Screen::mousePressEvent(event);
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
    drehrichtungZeigen(inSprache(gDrehrichtung == Rechtslauf ? Text{"Rechtslauf", "Right"}
                                                             : Text{"Linkslauf", "Left"}));
    if (gFormStatus != Formstatus::Keiner) {
        gFormStatus = Formstatus::Einlaufen;
    } else {
        motorfenster().setDrehREnabled(true);
        motorfenster().setMoteinEnabled(true);
        if (gMessenFreigabe)
            gDesktopFolge = Desktopfolge::Korrektur;
    }
    unload();
}

void frmMotorDrehR::pbAbbrechen_Click() {
    mEntschieden = true;
    gDrehrichtung = Keine;
    drehrichtungZeigen({}); // what the box says holds: the motor cannot be switched on
    motorfenster().setMoteinEnabled(false);
    meldung({"Sie haben keine Drehrichtung gewählt!\r\nDer Motor kann nicht eingeschaltet werden.",
             "Please select a direction of rotation for the motor!\r\n"
             "It is not possible to switch the motor on."},
            Exclamation, {"Meldung", "Message"});
    gMessenFreigabe = false;
    unload();
}
