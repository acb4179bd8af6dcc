#include "loeschabfrage.h"

#include <QCoreApplication>
#include <QLabel>

#include "sprache.h"

void Löschabfrage::löschen(const Löschplan &plan, int schlüssel, QLabel *frage) try {
    const HoldActivations hold;
    frage->setText(inSprache({"Die Daten werden gelöscht ...", "Data are being deleted ..."}));
    disable();
    QCoreApplication::processEvents();
    datensatzLöschen(plan, schlüssel, [] { QCoreApplication::processEvents(); });
} catch (const Fehler &) {
    enable();
    throw;
}
