#include "masterdata/frmLoeschKunde.h"

#include "masterdata/frmKunden.h"
#include "session/auswahl.h"
#include "session/session.h"
#include "session/sprache.h"

namespace {

constexpr Beschriftung english[] = {
    {"", "Delete Customer"},
    {"pbok", "&Yes"},
    {"pbCancel", "&No"},
};

} // namespace

frmLöschKunde::frmLöschKunde() {
    ui.setupUi(this);
    verdrahten({.ziel = Löschziel::Kunde,
                .liste = frm::Kunden,
                .achtung = ui.anzAchtung,
                .frage = ui.lbProtocollCount,
                .ja = ui.pbok,
                .nein = ui.pbCancel,
                .gelöscht = {"Die Daten wurden gelöscht!", "Data have been deleted!"},
                .fragen = "LK 1 - "});
}

void frmLöschKunde::beschriften() {
    beschriftungenSetzen(ui, *this, english);
}

platform::Text frmLöschKunde::frage(Schlüssel kundenID) {
    mGeräteZuvor = std::exchange(mGeräte, geräteZählen(kundenID));
    return kundenfrage(mGeräte, protokolleZählen(Löschziel::Kunde, kundenID),
                       loaded<frmKunden>()->kundenname());
}

void frmLöschKunde::abwählen(Schlüssel kundenID) {
    if (gKundenID == kundenID)
        kundeAbwählen();
}

/// Units may be gone while the customer is still there.
void frmLöschKunde::nachFehler(Schlüssel kundenID) {
    if (gKundenID == kundenID && mGeräte < mGeräteZuvor)
        gerätAbwählen();
}
