#include "masterdata/frmNeuKunde.h"

#include "session/sprache.h"
#include "windows/msgbox.h"

void frmNeuKunde::Form_Load() try { vorbereiten(); } catch (const Fehler &fehler) {
    fehlerBox("1051 - ", fehler);
}

void frmNeuKunde::pbSave_Click() try {
    if (!prüfen(0))
        return;
    const Kundendaten kunde = eingabe();
    kundeEinfügen(kunde);
    meldung({"Daten wurden gespeichert!", "Data have been saved!"}, platform::Information,
            {"Bestätigung", "MESSAGE"});
    schließen(kunde.name);
} catch (const Fehler &fehler) {
    fehlerBox("1050 - ", fehler);
}
