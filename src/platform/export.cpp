#include "platform/export.h"

#include <QDir>
#include <QFile>
#include <QScopeGuard>

#include "platform/clock.h"
#include "platform/fehler.h"

namespace platform {

namespace {
constexpr QLatin1String unfinishedSuffix(".part");
} // namespace

void refuseExport(const QString &path) {
    QString native = QDir::toNativeSeparators(path);
    if (native.endsWith(unfinishedSuffix))
        native.chop(unfinishedSuffix.size());
    throw Fehler(fehlernummer::PermissionDenied,
                 {native +
                      " kann nicht geschrieben werden. Bitte prüfen Sie Ordner, Rechte und freien "
                      "Platz.",
                  native + " cannot be written. Please check folder, permissions and free space."});
}

QString exportFolder() {
    return QDir::current().absoluteFilePath("Export");
}

QString exportFile(const QString &stem, const QString &suffix,
                   const std::function<void(const QString &path)> &write) {
    return exportInto(exportFolder(), stem, suffix, write);
}

QString exportInto(const QString &where, const QString &stem, const QString &suffix,
                   const std::function<void(const QString &path)> &write) {
    const QDir folder(QDir(where).absolutePath());
    if (!folder.mkpath("."))
        refuseExport(folder.path());
    const QString name = folder.filePath(stem + now().toString("_yyyy-MM-dd_HH-mm-ss"));
    const QString end = suffix.isEmpty() ? suffix : '.' + suffix;
    int number = 0;
    const auto path = [&] {
        return ++number == 1 ? name + end : name + QString("_%1").arg(number) + end;
    };
    QString target = path();
    const QString unfinished = target + unfinishedSuffix;
    if (suffix.isEmpty())
        QDir(unfinished).removeRecursively(); // of a process that was stopped
    const auto remains = qScopeGuard([&] {
        if (!QFile::remove(unfinished) && suffix.isEmpty())
            QDir(unfinished).removeRecursively();
    });
    write(unfinished);
    while (QFile::exists(target))
        target = path();
    if (!QFile::rename(unfinished, target)) // which replaces nothing
        refuseExport(target);
    return target;
}

QString exportFile(const QString &stem, const QString &suffix, const QByteArray &content) {
    return exportFile(stem, suffix, [&](const QString &path) {
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size() ||
            !file.flush())
            refuseExport(path);
    });
}

} // namespace platform
