#include "masterdata/rezepttafel.h"

#include <QLabel>

#include "session/sprache.h"

void Rezepttafel::verdrahten(const Tafel &tafel, const Handler &geändert,
                             const Handler &bestätigt) {
    mTafel = tafel;
    sucheVerdrahten(tafel.feld, tafel.liste, geändert, bestätigt);
    mGitter.verbinden(tafel.schritte, tafel.spalten);
    onEscape([this] { unload(); });
}

void Rezepttafel::namenLesen() {
    mSuche.füllen(rezeptnamen(mTafel.tabellen));
    anzahlZeigen();
}

void Rezepttafel::anzahlZeigen() {
    mTafel.anzahl->setText(inSprache(mTafel.zähler) + QString::number(mSuche.namen().size()));
}

void Rezepttafel::zeigen(const QString &toleranz, const Recordset &schritte) {
    mTafel.toleranz->setText(toleranz);
    mGitter.zeigen(schritte);
}
