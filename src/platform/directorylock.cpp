#include "platform/directorylock.h"

#include <QDir>
#include <QFile>
#include <QSysInfo>

#include <cerrno>
#include <utility>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace platform {

namespace {

constexpr auto fileName = ".torvena.lock";

/// Whether the open file still lies under the name: its last holder takes the name away.
bool liesUnder(int file, const QByteArray &name) {
    struct stat opened {
    }, named{};
    return ::fstat(file, &opened) == 0 && ::stat(name.constData(), &named) == 0 &&
           opened.st_ino == named.st_ino && opened.st_dev == named.st_dev;
}

QString readFrom(int file) {
    char words[200];
    const ssize_t count = ::pread(file, words, sizeof words, 0);
    return QString::fromUtf8(words, count > 0 ? count : 0);
}

} // namespace

bool DirectoryLock::take(const QString &directory) {
    release();
    mPath = QDir(directory).absoluteFilePath(fileName);
    const QByteArray name = QFile::encodeName(mPath);
    for (;;) {
        int file = ::open(name.constData(), O_RDWR | O_CREAT | O_CLOEXEC, 0666);
        if (file < 0 && errno == EACCES) // of another user
            file = ::open(name.constData(), O_RDONLY | O_CLOEXEC);
        if (file < 0)
            return true;
        if (::flock(file, LOCK_EX | LOCK_NB) != 0) {
            const bool held = errno == EWOULDBLOCK;
            mHolder = held ? readFrom(file) : QString();
            ::close(file);
            return !held;
        }
        if (!liesUnder(file, name)) {
            ::close(file);
            continue;
        }
        mFile = file;
        // For any user who may work here: one who cannot open it would not see that it is held.
        [[maybe_unused]] const bool opened = ::fchmod(file, 0666) == 0;
        const QByteArray words =
            QString("%1 (%2)").arg(::getpid()).arg(QSysInfo::machineHostName()).toUtf8();
        [[maybe_unused]] const bool told =
            ::ftruncate(file, 0) == 0 &&
            ::pwrite(file, words.constData(), size_t(words.size()), 0) == words.size();
        return true;
    }
}

void DirectoryLock::release() {
    mHolder.clear();
    if (mFile < 0)
        return;
    ::unlink(QFile::encodeName(mPath).constData());
    ::close(std::exchange(mFile, -1));
}

} // namespace platform
