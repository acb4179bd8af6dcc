#include "frmSplash.h"

#include "database.h"
#include "msgbox.h"
#include "session.h"
#include "sprache.h"

frmSplash::frmSplash() {
    ui.setupUi(this);
    setWindowFlag(Qt::FramelessWindowHint);
    tiFormVisible.onTick = handler([this] { tiFormVisible_Timer(); });
}

void frmSplash::Form_Load() {
    if (fnc_DatenbankÖffnen() == 1) {
        meldung({"Initialisierungsfehler!", "Initializing error!"}, platform::Critical,
                {"Fehler", "Error"});
    }
    try {
        systemLesen();
    } catch (const Fehler &fehler) {
        // Silent: the login comes all the same, and later messages need a language.
        fehlerMerken(fehler);
        if (gSprache == 0)
            gSprache = 1;
    }
    tiFormVisible.setEnabled(true);
}

void frmSplash::systemLesen() {
    const Recordset system = gDatenbank.open("SELECT * FROM System");
    if (system.count() != 1)
        return;
    ui.lbFirmenname->setText(system[0].text());
    ui.lblProductName->setText(system[1].text());
    gProduktTitel = system[1].text();
    gLaufzeitMin = gEinlaufMin = static_cast<std::int16_t>(system[2].whole());
    gEinlaufSek = 0;
    gEinlaufzeit = system[3].isNull() ? 10 : system[3].number();
    gEinlaufLeistung = system[8].number();
    gSprache = static_cast<std::int16_t>(system[6].whole());
    if (spracheGewählt()) {
        ui.lbMessenMit->setText(
            inSprache({"Messen und Kalibrieren mit", "Measure And Calibrate With"}));
    }
}

void frmSplash::tiFormVisible_Timer() {
    tiFormVisible.setEnabled(false);
    try {
        ::screen(frm::Login).show();
    } catch (const Fehler &fehler) {
        if (fehler.number() == platform::fehlernummer::NoSuchScreen)
            ::screen(frm::Login).show();
    }
}
