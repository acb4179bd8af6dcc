// Safety copies on the command line: to a stick, and what those of a directory are worth.
#pragma once

#include <QString>

/// Copies the database of a working directory to the folder `target` and tells where it lies. 0, or
/// 1 after it has told what kept it.
int copyToStick(const QString &directory, const QString &target);

/// Lists the safety copies of a working directory with what the check of each found. Answers how
/// many are damaged.
int listSafetyCopies(const QString &directory, bool german);
