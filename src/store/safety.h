// Safety copies of the database, one a day in a folder beside it, and the way back from one. Each
// is written under another name, checked and renamed when it is whole; older ones go only then.
#pragma once

#include <QDate>
#include <QString>

#include <optional>
#include <vector>

#include "store/database.h"

/// In the working directory.
inline constexpr const char *sicherungsordner = "Sicherung";

struct SafetyCopy {
    QString path;
    QDate day;               ///< of its name
    platform::Text damage{}; ///< what its check found, or why it cannot be read
};

/// The copies of a working directory, the newest first, not checked.
std::vector<SafetyCopy> safetyCopies(const QString &directory);
/// The same, each checked.
std::vector<SafetyCopy> checkedSafetyCopies(const QString &directory);
/// The newest one that is sound.
std::optional<SafetyCopy> newestSoundCopy(const QString &directory);

/// Whether there is none of this day yet, and the database was written to since the newest.
bool safetyCopyDue(const QString &directory, const QDate &day);
/// Makes the copy of the day. The older ones stay, also when it fails. Raises PathAccess,
/// UserInterrupt for `goesOn`, DatabaseDamaged for what the check of the copy found, and as
/// Datenbank::copyFile().
void makeSafetyCopy(const QString &directory, const QDate &day, const CopyProgress &goesOn = {});
/// Takes away what is kept no longer. Raises PathAccess.
void pruneSafetyCopies(const QString &directory);
/// Of these days, in any order, all but the ten newest and the last of each month.
std::vector<QDate> superfluousDays(std::vector<QDate> days);

/// Copies the database to another folder, a stick perhaps, under a name with the day, the first
/// free one. Returns its path. Raises as makeSafetyCopy().
QString copyDatabaseTo(const QString &directory, const QString &target, const QDate &day);

/// A copy of the safety copy takes the place of the damaged database, which is kept, with a journal
/// that lies beside it, under a name with the day, the first free one. Returns that name, an empty
/// one where the database was missing. Nobody may have it open. Raises as makeSafetyCopy(): the
/// damaged one then lies under its name as before. Wherever it is stopped, one of the two lies
/// there, and the safety copy is whole.
QString restoreSafetyCopy(const QString &directory, const SafetyCopy &copy, const QDate &day);
