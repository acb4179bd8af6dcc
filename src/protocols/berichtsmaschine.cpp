#include "protocols/berichtsmaschine.h"

#include <QFileInfo>

#include "platform/fehler.h"
#include "records/berichtsdaten.h"
#include "windows/preview.h"
#include "windows/printers.h"

using namespace platform;

QByteArray Berichtsmaschine::ausführen(Bestand bestand, Schlüssel protokollID,
                                       const QString &titel) const {
    if (!QFileInfo(daten).isFile()) {
        throw Fehler(fehlernummer::DatabaseNotFound,
                     {"Die Datei " + daten + " wurde nicht gefunden.",
                      "The file " + daten + " was not found."});
    }
    if (layout.isEmpty()) {
        throw Fehler(fehlernummer::LayoutBroken,
                     {"Für diese Seite ist kein Layout gewählt: Die Spezifikation des Protokolls "
                      "hat keine Geräteklasse.",
                      "No layout is chosen for this page: the specification of the protocol has no "
                      "device class."});
    }
    const Layout vorlage(layout);
    Report seiten(vorlage.filled(berichtsdaten(gelesen(vorlage), bestand, protokollID)), titel);
    if (ziel == Ziel::Drucker)
        return printReport(seiten);
    showPreview(std::move(seiten));
    return {};
}
