#include "masterdata/frmLoeschKunde.h"

#include "controls/umbruch.h"
#include "masterdata/frmKunden.h"
#include "records/loeschung.h"
#include "session/auswahl.h"
#include "session/session.h"
#include "session/sprache.h"
#include "windows/msgbox.h"

namespace {

constexpr Beschriftung english[] = {
    {"", "Delete Customer"},
    {"pbok", "&Yes"},
    {"pbCancel", "&No"},
};

} // namespace

frmLöschKunde::frmLöschKunde() {
    ui.setupUi(this);
    onClick(ui.pbok, [this] { pbok_Click(); });
    onClick(ui.pbCancel, [this] { unload(); });
    onEscape([this] { unload(); });
}

void frmLöschKunde::beschriften() {
    beschriftungenSetzen(ui, *this, english);
}

void frmLöschKunde::Form_Load() try {
    ui.pbCancel->setFocus();
    fnc_FrageZeigen();
} catch (const Fehler &fehler) {
    fehlerBox("LK 1 - ", fehler);
}

void frmLöschKunde::fnc_FrageZeigen() {
    beschriften();
    ui.pbok->setEnabled(false); // until it is known what Yes would delete
    const auto *kunden = loaded<frmKunden>();
    const Schlüssel shown = kunden ? kunden->kundenID() : 0;
    if (shown == 0)
        return;
    mGeräte = geräteZählen(shown);
    const Text frage =
        kundenfrage(mGeräte, protokolleZählen(Löschziel::Kunde, shown), kunden->kundenname());
    ui.lbProtocollCount->setText(umbrechbar(inSprache(frage)));
    mKundenID = shown;
    ui.pbok->setEnabled(true);
}

void frmLöschKunde::pbok_Click() try {
    löschen(Löschziel::Kunde, mKundenID, ui.lbProtocollCount);
    meldung({"Die Daten wurden gelöscht!", "Data have been deleted!"}, platform::Information,
            {"Bestätigung", "Confirmation"});
    if (auto *kunden = loaded<frmKunden>())
        kunden->fnc_ListeLeeren();
    if (gKundenID == mKundenID)
        kundeAbwählen();
    unload();
} catch (const Fehler &fehler) {
    fehlerBox("31001 - ", fehler);
    nachFehler();
}

/// Asks about what is left. Units may be gone while the customer is still there.
void frmLöschKunde::nachFehler() try {
    const int before = mGeräte;
    fnc_FrageZeigen();
    if (gKundenID == mKundenID && mGeräte < before)
        gerätAbwählen();
} catch (const Fehler &fehler) {
    fehlerBox("LK 1 - ", fehler);
}
