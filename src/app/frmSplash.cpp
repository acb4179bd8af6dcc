#include "app/frmSplash.h"

#include "app/datenbank.h"
#include "app/datenbankpruefung.h"
#include "records/system.h"
#include "session/session.h"
#include "session/sprache.h"
#include "windows/msgbox.h"

frmSplash::frmSplash() {
    ui.setupUi(this);
    setWindowFlag(Qt::FramelessWindowHint);
    tiFormVisible.onTick = handler([this] { tiFormVisible_Timer(); });
    tiPrüfung.onTick = handler([this] { tiPrüfung_Timer(); });
}

void frmSplash::Form_Load() {
    if (fnc_DatenbankÖffnen() == 1) {
        meldung({"Initialisierungsfehler!", "Initializing error!"}, platform::Critical,
                {"Fehler", "Error"});
    }
    systemZeigen();
    tiPrüfung.setEnabled(true);
    tiFormVisible.setEnabled(true);
}

void frmSplash::systemZeigen() {
    SystemTitel titel;
    try {
        systemLesen(&titel);
    } catch (const Fehler &fehler) {
        // Silent: the login comes all the same, and later messages need a language.
        fehlerMerken(fehler);
        if (gSprache == 0)
            gSprache = 1;
    }
    ui.lbFirmenname->setText(titel.firma);
    ui.lblProductName->setText(titel.produkt);
    if (spracheGewählt()) {
        ui.lbMessenMit->setText(
            inSprache({"Messen und Kalibrieren mit", "Measure And Calibrate With"}));
    }
}

void frmSplash::tiPrüfung_Timer() {
    tiPrüfung.setEnabled(false);
    mPrüft = true;
    if (datenbankPrüfen())
        systemZeigen();
    mPrüft = false;
}

// Without the login behind it there would be a process without a window.
bool frmSplash::Form_QueryUnload() {
    return loaded(frm::Login) != nullptr;
}

void frmSplash::tiFormVisible_Timer() {
    if (mPrüft)
        return; // once more when nobody is being told of damage
    tiFormVisible.setEnabled(false);
    try {
        form(frm::Login).show();
    } catch (const Fehler &fehler) {
        if (fehler.number() == platform::fehlernummer::NoSuchScreen)
            form(frm::Login).show();
    }
}
