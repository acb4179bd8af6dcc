// The trail as a person reads it: who changed which record when, from what to what. The links are
// written by store/trail; here they are only read.
#pragma once

#include <QDate>
#include <QStringList>

#include "session/session.h"
#include "store/recordset.h"

/// What is looked for. 0, an empty name and an invalid day ask for all.
struct Nachweisfilter {
    Schlüssel protokollID = 0; ///< in work or archived, with its values and sheets
    Schlüssel epID = 0;        ///< a final test with its values
    QDate tag = {};            ///< of the change, in local time; reads all links, as a name does
    QString person = {};       ///< by whole name, without regard to case
};

/// Rows that a list takes.
inline constexpr int nachweisGrenze = 10'000;

struct Nachweisliste {
    /// Newest first. Nr; Zeit, dd.mm.yyyy hh:mm:ss in local time; Person; Tabelle; Vorgang in the
    /// language of the session; Schlüssel; Änderung, "Feld: alt → neu" separated by "; ".
    Recordset zeilen;
    /// There are older ones, beyond nachweisGrenze.
    bool mehr = false;
};

/// Raises MissingTable in a database without a trail.
Nachweisliste nachweis(const Nachweisfilter &filter);

/// Who has changed something, by name.
QStringList nachweisPersonen();

/// Number and beginning of the newest link, "1234 / 0123456789abcdef": what ties a sheet of paper
/// to the trail. Empty in a database without one.
QString nachweisStand();
