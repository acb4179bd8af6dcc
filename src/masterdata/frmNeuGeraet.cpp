#include "masterdata/frmNeuGeraet.h"

#include "session/session.h"
#include "session/sprache.h"
#include "windows/msgbox.h"

void frmNeuGerät::Form_Load() try { vorbereiten(); } catch (const Fehler &fehler) {
    fehlerBox("1061 - ", fehler);
}

void frmNeuGerät::Form_Unload() {
    gNeuModus = false;
}

void frmNeuGerät::pbSave_Click() try {
    if (!prüfen(0))
        return;
    const Gerätedaten gerät = eingabe();
    gerätEinfügen(gKundenID, gerät);
    if (gNeuModus) // the customer's first: the list of units was skipped, and comes now
        gDesktopFolge = Desktopfolge::Gerät;
    meldung({"Daten wurden gespeichert!", "Data have been saved!"}, platform::Information,
            {"Bestätigung", "MESSAGE"});
    schließen(gerät.identNr);
} catch (const Fehler &fehler) {
    fehlerBox("1060 - ", fehler);
}
