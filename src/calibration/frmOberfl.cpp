#include "calibration/frmOberfl.h"

#include "calibration/hebelarmwerte.h"
#include "calibration/moment.h"
#include "session/session.h"
#include "session/sprache.h"
#include "windows/msgbox.h"

using namespace platform;

namespace {
constexpr Beschriftung english[] = {
    {"", "Local Gravity"},
    {"lbOberfl", "&Gravity:"},
    {"lbHinweis", "Where the stand is, from 9.8 to 9.82 m/s²."},
    {"pbWeiter", "&Continue"},
    {"pbAbbrechen", "C&ancel"},
};
} // namespace

frmOberfl::frmOberfl() {
    ui.setupUi(this);
    on(ui.txtOberfl, &QLineEdit::textChanged,
       [this] { ui.pbWeiter->setEnabled(!ui.txtOberfl->text().isEmpty()); });
    onEnter(ui.txtOberfl, [this] { ui.pbWeiter->setFocus(); });
    onClick(ui.pbWeiter, [this] { unload(); });
    onClick(ui.pbAbbrechen, [this] { pbAbbrechen_Click(); });
    onEscape([this] { pbAbbrechen_Click(); });
}

void frmOberfl::Form_Load() {
    beschriftungenSetzen(ui, *this, english);
    ui.txtOberfl->setFocus();
}

void frmOberfl::pbAbbrechen_Click() {
    gFormStatus = Formstatus::Keiner;
    unload();
}

bool frmOberfl::Form_QueryUnload() try {
    if (gFormStatus == Formstatus::Keiner)
        return true;
    const auto wert = erdschwere(ui.txtOberfl->text());
    if (!wert || !erdschwereGültig(*wert)) {
        meldung(!wert
                    ? Text{"Es muss ein nummerischer Wert sein!", "Input must be a numeric value!"}
                    : Text{"Wert liegt außerhalb des gültigen Bereiches",
                           "Value is outside the valid range!"},
                Critical, {"Eingabefehler", "Input Error"});
        ui.txtOberfl->clear();
        ui.txtOberfl->setFocus();
        return false;
    }
    gErdschwere = *wert;
    gSchwereFaktor = bezugsschwere / gErdschwere;
    gFormStatus = Formstatus::SchwereEingegeben;
    return true;
} catch (const Fehler &fehler) {
    fehlerBox("4050 - ", fehler);
    return false;
}
