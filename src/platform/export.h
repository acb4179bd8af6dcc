// Files that a person takes along: in the folder "Export" of the working directory, each under a
// name of its own.
#pragma once

#include <QByteArray>
#include <QString>

#include <functional>

namespace platform {

/// Has `write` write the file at the path that it is handed, beside its place, and moves it there:
/// the file is whole under its name or is not there, also when `write` raises. The name is `stem`,
/// the date and the time, and a number behind them where such a file is there already; none is
/// replaced. Answers the absolute path. Makes the folder. Raises PermissionDenied, in words that
/// say what to do.
QString exportFile(const QString &stem, const QString &suffix,
                   const std::function<void(const QString &path)> &write);
QString exportFile(const QString &stem, const QString &suffix, const QByteArray &content);
/// The same in a folder of the caller's choice. Without a suffix `write` may make a folder of files
/// at the path: that is then whole under its name, or is not there.
QString exportInto(const QString &folder, const QString &stem, const QString &suffix,
                   const std::function<void(const QString &path)> &write);
/// The folder of the others.
QString exportFolder();

/// What the one above raises, for a `write` that fails.
[[noreturn]] void refuseExport(const QString &path);

} // namespace platform
