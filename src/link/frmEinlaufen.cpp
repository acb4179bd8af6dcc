#include "link/frmEinlaufen.h"

#include "link/einlaufwert.h"
#include "platform/runtime.h"
#include "records/system.h"
#include "session/session.h"
#include "session/sprache.h"
#include "windows/msgbox.h"

using namespace platform;

namespace {
constexpr Beschriftung english[] = {
    {"", "Running-In Parameters"},
    {"lbZeit", "&Time:"},
    {"lbEinheitZeit", "min.s"},
    {"lbHinweisZeit",
     "Minutes and seconds: 10.3 and 10.30 are both 10 min 30 s. Below 60 minutes."},
    {"lbW", "&Power:"},
    {"lbHinweisW", "From 0 to below 800 W."},
    {"pbok", "&OK"},
    {"pbAbbrechen", "&Cancel"},
};
}

frmEinlaufen::frmEinlaufen() {
    ui.setupUi(this);
    onClick(ui.pbok, [this] { pbok_Click(); });
    onClick(ui.pbAbbrechen, [this] { unload(); });
    enterChain({ui.txtZeit, ui.txtW});
    onEscape([this] { unload(); });
}

void frmEinlaufen::Form_Load() {
    beschriftungenSetzen(ui, *this, english);
    ui.txtZeit->setText(CStr(gEinlaufzeit));
    ui.txtW->setText(CStr(gEinlaufLeistung));
    ui.txtZeit->setFocus();
    ui.txtZeit->selectAll();
}

void frmEinlaufen::pbok_Click() try {
    int failed = 0;
    if (const auto time = einlaufWert(ui.txtZeit->text(), einlaufzeitGrenze)) {
        einlaufzeitSpeichern(*time);
        gEinlaufzeit = *time;
    } else {
        ++failed;
        ui.txtZeit->setFocus();
    }
    if (const auto power = einlaufWert(ui.txtW->text(), einlaufLeistungGrenze)) {
        einlaufleistungSpeichern(*power);
        gEinlaufLeistung = *power;
    } else if (++failed == 1) {
        ui.txtW->setFocus();
    }
    if (failed == 0) {
        unload();
        return;
    }
    meldung({"Mindestens ein Parameter konnte nicht gespeichert werden!",
             "At least one parameter could not be saved!"},
            Critical, {"Eingabefehler", "Attention"});
} catch (const Fehler &fehler) {
    fehlerBox("frmEinl01 - ", fehler);
}
