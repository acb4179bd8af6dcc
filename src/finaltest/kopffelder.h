// The head of a final test field by field: one table, from which saving, overwriting, clearing and
// the way of the Enter key come. No widget.
#pragma once

#include <QDate>
#include <QStringList>

#include <vector>

#include "records/epkopf.h"

struct Kopffeld {
    enum : unsigned {
        Pflicht = 1,      ///< nothing is saved without it
        EnterMitText = 2, ///< Enter leaves it only when something stands in it
        Freiwillig = 4,   ///< empty, it is Null
        Zahl = 8,         ///< a decimal comma becomes a point when it is left
        Bleibend = 16,    ///< overwriting a test does not touch it
        Leeren = 32,      ///< the next device begins without it
    };
    const char *feld;   ///< name of the box
    const char *spalte; ///< column of EP
    unsigned art = 0;
    const char *weiter = nullptr; ///< where Enter goes when it is not the next row

    bool ist(unsigned eigenschaft) const { return (art & eigenschaft) != 0; }
};

/// In the order of entry.
const std::vector<Kopffeld> &kopffelder();

/// What is stored of the texts, which come in the order of the fields: all of it for a new test,
/// without what stays for one that is overwritten.
EPKopf kopfAus(const QStringList &texte, bool überschreiben);

/// A date as a person writes it: day first, year first, or in the session's own format. Invalid
/// when it is none.
QDate prüfdatumAus(const QString &text);

/// Until when a device that was tested on this day counts as calibrated: the month in the language
/// of the number format, and the year two on.
QString kalibriertBis(const QDate &prüfdatum);
