// What a person types into a search, and dates and texts of the database as a person reads them.
#pragma once

#include <QDateTime>
#include <QString>

#include <string_view>

/// True when the whole text fits the pattern: `*` any run of letters, `?` exactly one, without
/// regard to case. Every other character stands for itself.
bool passtZumMuster(const QString &muster, const QString &text);

/// The pattern as a regular expression, not anchored.
QString musterAusdruck(const QString &muster);

/// The date of an ISO text with or without a time; invalid when there is none.
QDate datumAus(const QString &iso);
QDate datumAus(std::string_view iso);

/// dd.mm.yyyy; empty for an invalid date.
QString datumText(const QDate &datum);

/// The same with its time of day, which is midnight when the text has none.
QDateTime zeitpunktAus(const QString &iso);

/// dd.mm.yyyy hh:mm:ss, at midnight the date alone; empty for an invalid one.
QString zeitpunktText(const QDateTime &zeitpunkt);
