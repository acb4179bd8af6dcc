#include "masterdata/frmAendKund.h"

#include "masterdata/frmKunden.h"
#include "session/auswahl.h"

frmÄndKund::frmÄndKund()
    : Kundenmaske({{"Kunde ändern", "Edit Customer"},
                   "1140 - ",
                   "1140 - ",
                   {" Daten wurden geändert. ", " Data have been changed!"}}) {
    setSpeichernEnabled(false);
}

void frmÄndKund::laden() {
    const auto *list = loaded<frmKunden>();
    if (!list || list->gezeigt() == 0)
        return;
    eintragen(kundeLesen(list->gezeigt()));
    setSpeichernEnabled(true);
}

void frmÄndKund::speichern(const Kundendaten &kunde) {
    kundeÄndern(kunde);
    if (gKundenID == kunde.kundenID)
        kundeUmbenennen(kunde.name);
}
