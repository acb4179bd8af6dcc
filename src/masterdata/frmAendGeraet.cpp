#include "masterdata/frmAendGeraet.h"

#include "masterdata/frmGeraet.h"
#include "session/auswahl.h"

frmÄndGerät::frmÄndGerät()
    : Gerätemaske({{"Gerät ändern", "Edit Unit"},
                   "1150 - ",
                   "1150 - ",
                   {" Daten wurden geändert. ", " Data have been changed!"}}) {
    setSpeichernEnabled(false);
}

void frmÄndGerät::laden() {
    const auto *list = loaded<frmGerät>();
    if (!list || list->gezeigt() == 0)
        return;
    eintragen(gerätLesen(list->gezeigt()));
    setSpeichernEnabled(true);
}

void frmÄndGerät::speichern(const Gerätedaten &gerät) {
    gerätÄndern(gerät);
    if (gGerätID == gerät.gerätID)
        gerätUmbenennen(gerät.typ, gerät.identNr);
}
