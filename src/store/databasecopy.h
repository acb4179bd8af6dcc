// Copies of whole databases. A plain copy would drop the engine's locks on a file that is open in
// this process, and the next change would fail; these go by the engine itself.
#pragma once

#include <QString>

#include <functional>

/// Copies a database, open or not, over `to`: whole or as it was before. `goesOn` is asked while it
/// runs, and false breaks it off with UserInterrupt. Raises FileNotFound, PermissionDenied for one
/// file under both names, DatabaseNotFound where it cannot be written, DatabaseLocked,
/// DatabaseDamaged for what is no database, StatementFailed for a full disk.
void copyDatabase(const QString &from, const QString &to, const std::function<bool()> &goesOn = {});

/// The copy of the database that is put beside it before an update: the first free name of the day.
/// Returns the name. Raises as copyDatabase().
QString safetyCopy(const QString &path, const std::function<bool()> &goesOn = {});
