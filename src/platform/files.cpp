#include "platform/files.h"

#include <QDir>
#include <QFile>

#include <cerrno>
#include <csignal>
#include <cstring>

#include <fcntl.h>
#include <unistd.h>

#include "platform/fehler.h"

namespace platform {

namespace {

std::function<int(const QString &, const QString &)> fileWatcher;

/// The system's error, or 0.
template <class Call>
int failureOf(const char *operation, const QString &file, Call call) {
    if (const int error = fileWatcher ? fileWatcher(operation, file) : 0)
        return error;
    return call() == 0 ? 0 : errno;
}

[[noreturn]] void refuse(const QString &file, int error) {
    const QString words = QString::fromLocal8Bit(std::strerror(error));
    const QString name = QDir::toNativeSeparators(file);
    throw Fehler(fehlernummer::PathAccess, {"Kein Zugriff auf " + name + " (" + words + ").",
                                            "No access to " + name + " (" + words + ")."});
}

} // namespace

bool linkFile(const QString &file, const QString &second) {
    const int error = failureOf("link", second, [&] {
        return ::link(QFile::encodeName(file).constData(), QFile::encodeName(second).constData());
    });
    if (error == EPERM || error == EOPNOTSUPP || error == ENOSYS || error == EMLINK)
        return false;
    if (error != 0)
        refuse(second, error);
    return true;
}

void moveFile(const QString &from, const QString &to) {
    const int error = failureOf("move", to, [&] {
        return ::rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData());
    });
    if (error != 0)
        refuse(to, error);
}

void removeFile(const QString &file) {
    const int error =
        failureOf("remove", file, [&] { return ::unlink(QFile::encodeName(file).constData()); });
    if (error != 0 && error != ENOENT)
        refuse(file, error);
}

void syncFolder(const QString &folder) {
    const int error = failureOf("sync", folder, [&] {
        const int opened =
            ::open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
        if (opened < 0)
            return -1;
        const int synced = ::fsync(opened);
        ::close(opened);
        return synced == 0 || errno == EINVAL ? 0 : -1; // not every file system has it
    });
    if (error != 0)
        refuse(folder, error);
}

bool openSomewhere(const QString &file) {
    const int opened = ::open(QFile::encodeName(file).constData(), O_RDONLY | O_CLOEXEC);
    if (opened < 0)
        return false;
    // Granted to the only one who has it open. Who opens it meanwhile waits until we close it.
    const auto usual = std::signal(SIGIO, SIG_IGN);
    const bool others = ::fcntl(opened, F_SETLEASE, F_WRLCK) != 0 && errno == EAGAIN;
    ::close(opened);
    std::signal(SIGIO, usual);
    return others;
}

void setFileWatcher(std::function<int(const QString &, const QString &)> watcher) {
    fileWatcher = std::move(watcher);
}

} // namespace platform
