#include "masterdata/frmAendGeraet.h"

#include "masterdata/frmGeraet.h"
#include "session/auswahl.h"
#include "session/session.h"
#include "session/sprache.h"
#include "windows/msgbox.h"

void frmÄndGerät::Form_Load() try {
    setSpeichernEnabled(false);
    vorbereiten();
    const auto *geräte = loaded<frmGerät>();
    const Schlüssel shown = geräte ? geräte->gezeigt() : 0;
    if (shown == 0)
        return;
    eintragen(gerätLesen(shown));
    mGerätID = shown;
    setSpeichernEnabled(true);
} catch (const Fehler &fehler) {
    fehlerBox("1150 - ", fehler);
}

void frmÄndGerät::pbSave_Click() try {
    if (!prüfen(mGerätID))
        return;
    const Gerätedaten gerät = eingabe();
    gerätÄndern(mGerätID, gerät);
    if (gGerätID == mGerätID)
        gerätUmbenennen(gerät.typ, gerät.identNr);
    meldung({" Daten wurden geändert. ", " Data have been changed!"}, platform::Information,
            {"Bestätigung", "MESSAGE"});
    schließen(gerät.identNr);
} catch (const Fehler &fehler) {
    fehlerBox("1150 - ", fehler);
}
