#include "masterdata/frmAendKund.h"

#include "masterdata/frmKunden.h"
#include "session/auswahl.h"
#include "session/session.h"
#include "session/sprache.h"
#include "windows/msgbox.h"

void frmÄndKund::Form_Load() try {
    setSpeichernEnabled(false);
    vorbereiten();
    const auto *kunden = loaded<frmKunden>();
    const Schlüssel shown = kunden ? kunden->gezeigt() : 0;
    if (shown == 0)
        return;
    eintragen(kundeLesen(shown));
    mKundenID = shown;
    setSpeichernEnabled(true);
} catch (const Fehler &fehler) {
    fehlerBox("1140 - ", fehler);
}

void frmÄndKund::pbSave_Click() try {
    if (!prüfen(mKundenID))
        return;
    const Kundendaten kunde = eingabe();
    kundeÄndern(mKundenID, kunde);
    if (gKundenID == mKundenID)
        kundeUmbenennen(kunde.name);
    meldung({" Daten wurden geändert. ", " Data have been changed!"}, platform::Information,
            {"Bestätigung", "MESSAGE"});
    schließen(kunde.name);
} catch (const Fehler &fehler) {
    fehlerBox("1140 - ", fehler);
}
