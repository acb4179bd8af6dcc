// torvena-setup --prüfen: says in words what was found in a working directory.
#pragma once

#include <QString>

enum class CheckResult { Clean = 0, Found = 1, NotChecked = 2 };

/// Checks the database of the directory: the file, the chain of the trail, and the trail against
/// the tables. It is copied first, so that whoever works with it can go on. Writes to standard
/// output, how far it is to standard error.
CheckResult checkDirectory(const QString &directory);
