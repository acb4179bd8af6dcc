// Keys of records as the session keeps them.
#pragma once

#include <concepts>
#include <utility>

#include "fehler.h"
#include "recordset.h"

/// Takes the key of a record into a session variable. Raises Overflow for a key that the variable
/// cannot hold, rather than choose another record.
template <std::integral T>
void schlüsselNach(T &variable, const Feld &feld) {
    const int key = feld.whole();
    if (!std::in_range<T>(key)) {
        throw Fehler(platform::fehlernummer::Overflow,
                     {QString("Überlauf: der Datensatz %1 kann nicht ausgewählt werden.").arg(key),
                      QString("Overflow: record %1 cannot be selected.").arg(key)});
    }
    variable = static_cast<T>(key);
}
