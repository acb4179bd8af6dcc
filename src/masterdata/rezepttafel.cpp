#include "masterdata/rezepttafel.h"

#include <QLabel>

#include "records/rezept.h"
#include "session/sprache.h"

void Rezepttafel::verdrahten(const Tafel &tafel, const Handler &geändert,
                             const Handler &bestätigt) {
    mTafel = tafel;
    sucheVerdrahten(tafel.feld, tafel.liste, geändert, bestätigt);
    mGitter.verbinden(tafel.schritte);
    onEscape([this] { unload(); });
}

void Rezepttafel::namenLesen() {
    mSuche.füllen(rezeptnamen());
    anzahlZeigen();
}

void Rezepttafel::anzahlZeigen() {
    mTafel.anzahl->setText(inSprache({"Rezeptanzahl: ", "Number Of Recipes: "}) +
                           QString::number(mSuche.namen().size()));
}

void Rezepttafel::zeigen(const QString &toleranz, const Recordset &schritte) {
    mTafel.toleranz->setText(toleranz);
    mGitter.zeigen(schritte);
}
