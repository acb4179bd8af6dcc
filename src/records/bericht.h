// The pages that are printed: which a protocol has, the one of a final test, and how each is staged
// into a table of its own, which holds one protocol at a time.
#pragma once

#include <QString>
#include <QStringList>

#include <optional>
#include <span>

#include "platform/text.h"
#include "records/protokollinhalt.h"

/// The numbers of the pages of a protocol are those of the PDF pages.
enum class Berichtsseite {
    Deckblatt = 1,
    Messergebnisse = 2,
    Blutdruck = 3,
    SecControl = 4,
    Endprüfung = 5, ///< of a final test, which has no other
};

/// What the records know of a page.
struct Seitendaten {
    Berichtsseite seite;
    std::optional<Inhalt> inhalt; ///< a protocol that holds it has the page; nothing: none has
    QString tabelle;              ///< stage table
    QString arbeit, archiv;       ///< views that fill it
    QStringList listen;           ///< lists of a layout that reads the page
    platform::Text blatt;         ///< name on the sheet
    platform::Text datei;         ///< end of the PDF file's name, behind the number
};
/// Those of a protocol, in the order of a complete set.
std::span<const Seitendaten> seitendaten();
std::span<const Seitendaten> alleSeitendaten();
const Seitendaten &seitendaten(Berichtsseite seite);

/// The stage table of a page.
QString stufentabelle(Berichtsseite seite);

/// Empties the stage table and fills it with the rows of the protocol, both or neither. `konform`:
/// of the results page, whether it carries the statement of conformity. Raises what the store
/// raises.
void stufen(Berichtsseite seite, Bestand bestand, Schlüssel protokollID, bool konform = false);

/// 1 medical, 2 stationary devices; nothing where head or specification are missing, or for any
/// other text.
std::int16_t geräteklasse(Bestand bestand, Schlüssel protokollID);

// What the lists of the two report screens offer
/// Date, three blanks, number, " - " and name; the newest first.
QStringList arbeitsprotokolle();
/// Number, " - " and name, of one customer.
QStringList archivprotokolle(Schlüssel kundenID);
/// Names of the customers with archived protocols.
QStringList archivkunden();
Schlüssel kundeMitNamen(const QString &name);
