#include "store/databasecopy.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QScopeGuard>

#include "platform/clock.h"
#include "platform/fehler.h"
#include "platform/files.h"
#include "store/database.h"
#include "store/sqltext.h"

using namespace platform;

void copyDatabase(const QString &from, const QString &to, const std::function<bool()> &goesOn) {
    const QFileInfo source(from);
    if (!source.isFile()) {
        throw Fehler(fehlernummer::FileNotFound, {"Die Datei " + from + " wurde nicht gefunden.",
                                                  "The file " + from + " was not found."});
    }
    if (source.canonicalFilePath() == QFileInfo(to).canonicalFilePath()) {
        throw Fehler(fehlernummer::PermissionDenied,
                     {"Die Datei " + from + " kann nicht über sich selbst kopiert werden.",
                      "The file " + from + " cannot be copied over itself."});
    }
    const QString unfinished = to + ".part";
    const auto clear = [&] {
        for (const char *suffix : {"", "-journal", "-wal", "-shm"})
            removeFile(unfinished + suffix);
    };
    clear();
    auto remains = qScopeGuard([&] {
        try {
            clear();
        } catch (const Fehler &) { // the next attempt clears it, or says so
        }
    });
    try {
        Datenbank::copyFile(from, unfinished, [&](int, int) { return !goesOn || goesOn(); });
    } catch (const Fehler &fehler) {
        if (fehler.number() != fehlernummer::DatabaseDamaged)
            throw;
        throw Fehler(fehler.number(),
                     {"Die Datei " + from + " ist beschädigt oder keine Datenbank.",
                      "The file " + from + " is damaged or no database."});
    }
    for (const char *suffix : {"-journal", "-wal", "-shm"})
        removeFile(to + suffix); // of another file, which this one would take for its own
    moveFile(unfinished, to);
    remains.dismiss();
}

QString safetyCopy(const QString &path, const std::function<bool()> &goesOn) {
    const QFileInfo file(path);
    const QString stem = file.completeBaseName() + '_' + datumText(now().date());
    const auto name = [&](int counter) {
        return stem + (counter == 0 ? "" : '_' + QString::number(counter)) + '.' + file.suffix();
    };
    int counter = 0;
    while (QFileInfo::exists(file.dir().filePath(name(counter))))
        ++counter;
    const QString copy = file.dir().filePath(name(counter));
    copyDatabase(path, copy, goesOn);
    QFile::setPermissions(copy, QFile::permissions(path)); // whoever may read the one may the other
    return name(counter);
}
