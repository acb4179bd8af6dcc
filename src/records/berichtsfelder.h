// How the fields of a page are written, whatever the page.
#pragma once

#include "store/recordset.h"
#include "windows/layout.h"

/// The columns of a row: numbers in the format of the session, dates as dd.mm.yyyy.
platform::LayoutFields felder(const Recordset &zeilen, int zeile);

/// 1 or empty.
QString marke(bool gilt);
/// A count of which layouts speak only when there is something to count.
QString anzahl(qsizetype zahl);
/// At least this many decimals, and those that the value has besides.
QString genau(double wert, qsizetype stellen);
/// With two decimals.
QString mitVorzeichen(double wert);
/// 1 right, 2 left.
QString richtungswort(int richtung);
