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

QString exportFile(const QString &stem, const QString &suffix,
                   const std::function<void(const QString &path)> &write) {
    const QDir folder(QDir::current().absoluteFilePath("Export"));
    if (!folder.mkpath("."))
        refuseExport(folder.path());
    const QString name = folder.filePath(stem + now().toString("_yyyy-MM-dd_HH-mm-ss"));
    int number = 0;
    const auto path = [&] {
        return ++number == 1 ? name + '.' + suffix
                             : QString("%1_%2.%3").arg(name).arg(number).arg(suffix);
    };
    QString target = path();
    const QString unfinished = target + unfinishedSuffix;
    const auto remains = qScopeGuard([&] { QFile::remove(unfinished); });
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
