// Whole files by name, in steps that a stopped process or a cut current finds done or not done.
#pragma once

#include <QString>

#include <functional>

namespace platform {

/// Gives the file a second name, under which there is none yet. False where the file system knows
/// no second names. Raises PathAccess.
bool linkFile(const QString &file, const QString &second);
/// Puts the file under another name of the same folder, in place of what lies there. Raises
/// PathAccess; both are then as they were.
void moveFile(const QString &from, const QString &to);
/// Takes the name away, if it is there. Raises PathAccess.
void removeFile(const QString &file);
/// The names in the folder are on disk when this returns. Raises PathAccess.
void syncFolder(const QString &folder);

/// True when anybody has the file open, this process too; false also where the system cannot tell.
/// Nobody may hold a lock of this process on it: it would be dropped.
bool openSomewhere(const QString &file);

/// Told before each of these: "link", "move", "remove" or "sync", and the name that it is about. A
/// number other than 0 is the system's error that it fails with. For tests; none without a
/// function.
void setFileWatcher(std::function<int(const QString &operation, const QString &file)> watcher);

} // namespace platform
