// The engine that makes a page of a report: fills a layout file with what was staged for it and
// prints it, or opens it in a window.
#pragma once

#include <QByteArray>
#include <QString>

#include "records/protokollinhalt.h"

class Berichtsmaschine {
  public:
    enum class Ziel { Vorschau = 0, Drucker = 1 };

    QString daten;  ///< database file
    QString layout; ///< layout file; kept from page to page
    Ziel ziel = Ziel::Drucker;

    /// Runs. `titel` names window, print job and file. Raises Fehler without layout or database,
    /// for a broken layout, when the table that the layout reads does not hold just this protocol,
    /// and when the printer takes nothing. The result is the file where the printer is the built-in
    /// PDF writer, else empty.
    QByteArray ausführen(Bestand bestand, Schlüssel protokollID, const QString &titel) const;
};
