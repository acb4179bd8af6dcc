#include "store/workplace.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include "platform/fehler.h"
#include "store/database.h"
#include "store/scripts.h"

using namespace platform;

bool hasDatabase(const QString &directory) {
    return QFileInfo(QDir(directory).filePath(datenbankName)).isFile();
}

bool deliverFiles(const QString &directory) {
    const QDir delivered(":/layouts");
    for (const QString &name : delivered.entryList()) {
        const QString target = QDir(directory).filePath(name);
        if (QFileInfo::exists(target))
            continue;
        if (!QFile::copy(delivered.filePath(name), target))
            return false;
        QFile::setPermissions(target, QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup |
                                          QFile::ReadOther);
    }
    return true;
}

QString setUpWorkplace(const QString &directory, bool demo) {
    if (!QDir().mkpath(directory)) {
        throw Fehler(fehlernummer::PathAccess,
                     {"Das Verzeichnis " + directory + " kann nicht angelegt werden.",
                      "The directory " + directory + " cannot be created."});
    }
    if (!deliverFiles(directory)) {
        throw Fehler(fehlernummer::PathAccess,
                     {"Die gelieferten Dateien können nicht nach " + directory +
                          " geschrieben werden. Bitte prüfen Sie Rechte und freien Platz.",
                      "The delivered files cannot be written to " + directory +
                          ". Please check permissions and free space."});
    }
    const QString path = QDir(directory).filePath(datenbankName);
    if (QFileInfo::exists(path))
        bringeDatenbankAufStand(path);
    else
        legeDatenbankAn(path, demo);
    return path;
}
