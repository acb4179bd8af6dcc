// The two sheets that are entered by hand under the head of a protocol: blood pressure, one row a
// pressure, and electrical safety, one row. All their values are texts.
#pragma once

#include <QString>
#include <QStringList>

#include <array>
#include <map>
#include <utility>

#include "records/protokollinhalt.h"

/// Pressures at the working standard, mmHg, one a row of the blood-pressure sheet.
inline constexpr std::array druckstufen{0, 50, 100, 150, 200, 250, 300};

/// Texts by row, from 0, and column. What all rows share stands at row 0; Null is left out.
using Blatt = std::map<std::pair<int, QString>, QString>;

/// Whether the column holds what was measured, other than the standard, limits, uncertainties.
bool istMesswert(const QString &spalte);

/// Columns of the working standard: number, identification, who calibrated it, until when,
/// certificate.
QStringList normalspalten(Inhalt blatt);

/// Empty without rows. Raises what the store raises, as all of these.
Blatt blattLesen(Bestand bestand, Inhalt blatt, Schlüssel protokollID);

/// What a new sheet begins with: the newest sheet without its measured values. Nothing when there
/// is none, or when `nächste`, the next free number, is not above all sheets.
Blatt vorschlagLesen(Inhalt blatt, Schlüssel nächste);

/// Writes all rows, all or none; those that are missing are made. A column that `werte` lacks
/// becomes empty. NoCurrentRecord when the head is gone.
void blattSpeichern(Inhalt blatt, Schlüssel protokollID, const Blatt &werte);

/// Deletes the sheet, and the head with it when nothing else hangs on it.
void blattLöschen(Inhalt blatt, Schlüssel protokollID);

/// Makes the row of a safety sheet, with nothing in it. NoCurrentRecord when the head is gone.
void sicherheitszeileAnlegen(Schlüssel protokollID);
/// Deletes the row of a safety sheet if nothing was entered in it.
void leereSicherheitszeileLöschen(Schlüssel protokollID);
