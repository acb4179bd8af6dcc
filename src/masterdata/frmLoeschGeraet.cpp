#include "masterdata/frmLoeschGeraet.h"

#include "controls/umbruch.h"
#include "masterdata/frmGeraet.h"
#include "records/loeschung.h"
#include "session/auswahl.h"
#include "session/session.h"
#include "session/sprache.h"
#include "windows/msgbox.h"

namespace {

constexpr Beschriftung english[] = {
    {"", "Delete Unit"},
    {"lbIdentNr", "ID number:"},
    {"pbYes", "&Yes"},
    {"pbNo", "&No"},
};

} // namespace

frmLöschGerät::frmLöschGerät() {
    ui.setupUi(this);
    onClick(ui.pbYes, [this] { pbYes_Click(); });
    onClick(ui.pbNo, [this] { unload(); });
    onEscape([this] { unload(); });
}

void frmLöschGerät::beschriften() {
    beschriftungenSetzen(ui, *this, english);
}

void frmLöschGerät::Form_Load() try {
    beschriften();
    ui.pbNo->setFocus();
    fnc_FrageZeigen();
} catch (const Fehler &fehler) {
    fehlerBox("31002 - ", fehler);
}

void frmLöschGerät::fnc_FrageZeigen() {
    ui.pbYes->setEnabled(false); // until it is known what Yes would delete
    const auto *geräte = loaded<frmGerät>();
    const Schlüssel shown = geräte ? geräte->gerätID() : 0;
    if (shown == 0)
        return;
    const Text frage = gerätefrage(protokolleZählen(Löschziel::Gerät, shown), geräte->gerätename());
    ui.lbProtocollCount->setText(umbrechbar(inSprache(frage)));
    ui.laIdent->setText(umbrechbar(geräte->identnummer()));
    mGerätID = shown;
    ui.pbYes->setEnabled(true);
}

void frmLöschGerät::pbYes_Click() try {
    löschen(Löschziel::Gerät, mGerätID, ui.lbProtocollCount);
    meldung({"Daten wurden gelöscht!", "Data have been deleted!"}, platform::Information,
            {"Bestätigung", "Confirmation"});
    if (auto *geräte = loaded<frmGerät>())
        geräte->fnc_ListeLeeren();
    if (gGerätID == mGerätID)
        gerätAbwählen();
    unload();
} catch (const Fehler &fehler) {
    fehlerBox("31001 - ", fehler);
    nachFehler();
}

/// Asks about what is left; the unit itself goes last.
void frmLöschGerät::nachFehler() try { fnc_FrageZeigen(); } catch (const Fehler &fehler) {
    fehlerBox("31002 - ", fehler);
}
