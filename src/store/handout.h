// Records handed out to other programs: protocols with all that they meant. One description of the
// fields serves the three formats; docs/export.md tells what each holds.
#pragma once

#include <QString>

#include <limits>
#include <vector>

class Datenbank;

enum class HandoutFormat { Workbook, Csv, Json };

/// Protocol numbers, both included, in work and archived.
struct HandoutRange {
    qlonglong from = std::numeric_limits<qlonglong>::min();
    qlonglong to = std::numeric_limits<qlonglong>::max();
};

/// How a value is written. What is stored otherwise than its kind stands as the text that it is.
enum class HandoutKind {
    String,
    Number, ///< point as decimal sign, as many digits as it takes
    Entry,  ///< was entered or shown: a number if it reads as one, with comma or point; else text
    Verdict,
    Date, ///< yyyy-MM-dd
    Time, ///< yyyy-MM-ddTHH:mm:ss, local, with .zzz unless that is 0
};

struct HandoutField {
    const char *name;
    const char *sql; ///< P head, B customer and unit, N working standard, M row, W row as numbers
    HandoutKind kind;
};

struct HandoutTable {
    const char *name;    ///< of sheet, file, list
    const char *content; ///< table without "_temp"; nothing for the heads
    const char *order;   ///< names of fields, behind those that all tables begin with
    std::vector<HandoutField> fields;
};

/// Heads first. All begin with ProtokollID and Archiviert (0 in work, 1 archived), which tell heads
/// apart and say to which one a row belongs.
const std::vector<HandoutTable> &handoutTables();

struct Handout {
    QString path; ///< file; folder of files for CSV
    qlonglong protocols = 0;
};

/// Writes the protocols of the range into the folder, all from one state of the database, under a
/// name of their own; none is replaced, and nothing half is left. Raises NoCurrentRecord for a
/// range without protocols, Overflow for more rows than a sheet takes, PermissionDenied for a
/// folder that cannot be written, and what the store raises.
Handout handOut(Datenbank &store, const HandoutRange &range, HandoutFormat format,
                const QString &folder);
