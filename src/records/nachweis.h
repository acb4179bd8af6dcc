// The trail as a person reads it: who changed which record when, from what to what. The links are
// written by store/trail; here they are only read.
#pragma once

#include <QDate>
#include <QString>

#include "session/session.h"
#include "store/recordset.h"

/// What is looked for. 0, an empty name and an invalid day ask for all.
struct Nachweisfilter {
    Schlüssel protokollID = 0; ///< in work or archived, with its values and sheets
    Schlüssel epID = 0;        ///< a final test with its values
    QDate tag = {};            ///< of the change, in local time
    QString person = {};       ///< by whole name, without regard to case
    qlonglong vor = 0;         ///< links before this number; 0 from the newest on
};

/// Rows that a list takes.
inline constexpr int nachweisGrenze = 1'000;
/// Links that are looked at for a list, however few of them are taken, unless a number is asked
/// for: what a person waits for without noticing.
inline constexpr qlonglong nachweisSpanne = 100'000;

struct Nachweisliste {
    /// Newest first. Nr; Zeit, dd.mm.yyyy hh:mm:ss in local time; Person; Tabelle; Vorgang in the
    /// language of the session; Schlüssel; Änderung, "Feld: alt → neu" separated by "; ".
    Recordset zeilen;
    /// There are links that nobody has looked at yet: those before this number. 0 when all were.
    qlonglong weiter = 0;
};

/// Raises MissingTable in a database without a trail.
Nachweisliste nachweis(const Nachweisfilter &filter);

/// Number and beginning of the newest link, "1234 / 0123456789abcdef": what ties a sheet of paper
/// to the trail. Empty in a database without one.
QString nachweisStand();
