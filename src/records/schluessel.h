// Keys of records as the session keeps them.
#pragma once

#include <limits>

#include "platform/fehler.h"
#include "session/session.h"
#include "store/recordset.h"

/// The key of a record. Raises Overflow for one that a session variable cannot hold, rather than
/// choose another record.
inline Schlüssel schlüsselAus(const Feld &feld) {
    using Grenzen = std::numeric_limits<Schlüssel>;
    const double key = feld.number(); // exact far beyond a key
    if (key < Grenzen::min() || key > Grenzen::max()) {
        throw Fehler(platform::fehlernummer::Overflow,
                     {"Überlauf: der Datensatz " + feld.text() + " kann nicht ausgewählt werden.",
                      "Overflow: record " + feld.text() + " cannot be selected."});
    }
    return static_cast<Schlüssel>(key);
}
