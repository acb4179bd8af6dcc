// When a unit is due again, by the month, and the letters that say so.
#pragma once

#include <QByteArray>
#include <QDate>

#include <vector>

#include "records/archivfilter.h"

enum class Fälligkeit {
    Keine, ///< later, or not by this calibration
    DieserMonat,
    Überfällig, ///< in a month that is over
};
/// Of a calibration that is the newest of its unit.
Fälligkeit fälligkeit(const QDate &kalibriert, const QDate &heute);

/// "mm/yyyy" of the next calibration; empty for an invalid date.
QString fälligImMonat(const QDate &kalibriert);

/// A line for each customer with his units that are due by their newest calibration: up to this
/// month, or with `alle` whenever. Fields as a spreadsheet of the session's number format parts
/// them. Empty when nobody gets a letter. Raises what the store raises.
QByteArray serienbrief(const std::vector<Wiedervorlage> &zeilen, const QDate &heute, bool alle);
