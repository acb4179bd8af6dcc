#include "store/safety.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QScopeGuard>

#include <algorithm>
#include <functional>
#include <set>

#include "platform/fehler.h"
#include "platform/files.h"

using namespace platform;

namespace {

constexpr const char *journals[] = {"-journal", "-wal"};
const QString stem = QString(datenbankName).section('.', 0, 0);

QString copyName(const QDate &day) {
    return stem + '_' + day.toString(Qt::ISODate) + ".mdb";
}

QString firstFree(const QDir &folder, const QString &start) {
    QString name = start + ".mdb";
    for (int counter = 1; QFileInfo::exists(folder.filePath(name)); ++counter)
        name = start + '_' + QString::number(counter) + ".mdb";
    return folder.filePath(name);
}

/// What was stopped on its way into this folder.
void clearUnfinished(const QDir &folder) {
    for (const QString &file : folder.entryList({stem + "_*.mdb.part*"}, QDir::Files))
        removeFile(folder.filePath(file));
}

/// Writes a sound copy under a name that is none yet, with rights and time of the original. On disk
/// when this returns: the engine syncs what it has copied.
void copySound(const QString &from, const QString &unfinished, const CopyProgress &goesOn) {
    const QDateTime written = QFileInfo(from).lastModified(); // what comes later is not in it
    Datenbank::copyFile(from, unfinished, goesOn);
    if (const QString damage = Datenbank::damageIn(unfinished); !damage.isEmpty()) {
        throw Fehler(
            fehlernummer::DatabaseDamaged,
            {"Beim Prüfen der Kopie von " + from + " wurde ein Schaden gefunden: " + damage,
             "The check of the copy of " + from + " found damage: " + damage});
    }
    QFile::setPermissions(unfinished, QFile::permissions(from)); // where the disk knows them
    if (QFile file(unfinished); file.open(QIODevice::ReadWrite))
        file.setFileTime(written, QFileDevice::FileModificationTime);
}

void copySoundTo(const QString &from, const QString &to, const CopyProgress &goesOn) {
    const QFileInfo target(to);
    if (!QDir().mkpath(target.path())) {
        throw Fehler(fehlernummer::PathAccess,
                     {"Der Ordner " + target.path() + " kann nicht angelegt werden.",
                      "The folder " + target.path() + " cannot be made."});
    }
    clearUnfinished(target.dir());
    auto remains = qScopeGuard([&] {
        try {
            clearUnfinished(target.dir());
        } catch (const Fehler &) { // the next attempt clears it, or says so
        }
    });
    copySound(from, to + ".part", goesOn);
    moveFile(to + ".part", to);
    syncFolder(target.path());
}

/// Gives the file a second name, or a copy under it.
void keepAs(const QString &file, const QString &kept) {
    if (linkFile(file, kept))
        return;
    const QString unfinished = kept + ".part";
    if (!QFile::copy(file, unfinished)) {
        throw Fehler(fehlernummer::PathAccess,
                     {"Die Datei " + kept + " kann nicht angelegt werden.",
                      "The file " + kept + " cannot be written."});
    }
    moveFile(unfinished, kept);
}

} // namespace

std::vector<SafetyCopy> safetyCopies(const QString &directory) {
    const QDir folder(QDir(directory).filePath(sicherungsordner));
    std::vector<SafetyCopy> copies;
    for (const QString &file : folder.entryList({stem + "_*.mdb"}, QDir::Files)) {
        const QDate day = QDate::fromString(file.section('_', 1).chopped(4), Qt::ISODate);
        if (day.isValid() && file == copyName(day))
            copies.push_back({folder.filePath(file), day});
    }
    std::sort(copies.begin(), copies.end(),
              [](const SafetyCopy &a, const SafetyCopy &b) { return a.day > b.day; });
    return copies;
}

std::vector<SafetyCopy> checkedSafetyCopies(const QString &directory) {
    std::vector<SafetyCopy> copies = safetyCopies(directory);
    for (SafetyCopy &copy : copies) {
        try {
            const QString damage = Datenbank::damageIn(copy.path);
            copy.damage = {damage, damage};
        } catch (const Fehler &fehler) {
            copy.damage = fehler.text();
        }
    }
    return copies;
}

std::optional<SafetyCopy> newestSoundCopy(const QString &directory) {
    for (const SafetyCopy &copy : safetyCopies(directory)) {
        try {
            if (Datenbank::damageIn(copy.path).isEmpty())
                return copy;
        } catch (const Fehler &) { // one that cannot be read is no help
        }
    }
    return {};
}

bool safetyCopyDue(const QString &directory, const QDate &day) {
    const std::vector<SafetyCopy> copies = safetyCopies(directory);
    if (copies.empty())
        return true;
    for (const SafetyCopy &copy : copies) {
        if (copy.day == day)
            return false;
    }
    const QFileInfo used(QDir(directory).filePath(datenbankName)), newest(copies.front().path);
    return used.lastModified() != newest.lastModified(); // also where the clock was set back
}

void makeSafetyCopy(const QString &directory, const QDate &day, const CopyProgress &goesOn) {
    const QDir working(directory);
    const QDir folder(working.filePath(sicherungsordner));
    copySoundTo(working.filePath(datenbankName), folder.filePath(copyName(day)), goesOn);
}

std::vector<QDate> superfluousDays(std::vector<QDate> days) {
    constexpr size_t newest = 10;
    std::sort(days.begin(), days.end(), std::greater<>());
    std::vector<QDate> gone;
    std::set<std::pair<int, int>> months;
    for (size_t i = 0; i < days.size(); ++i) {
        const bool lastOfMonth = months.insert({days[i].year(), days[i].month()}).second;
        if (i >= newest && !lastOfMonth)
            gone.push_back(days[i]);
    }
    return gone;
}

void pruneSafetyCopies(const QString &directory) {
    const QDir folder(QDir(directory).filePath(sicherungsordner));
    std::vector<QDate> days;
    for (const SafetyCopy &copy : safetyCopies(directory))
        days.push_back(copy.day);
    for (const QDate &day : superfluousDays(days))
        removeFile(folder.filePath(copyName(day)));
}

QString copyDatabaseTo(const QString &directory, const QString &target, const QDate &day) {
    const QString copy = firstFree(QDir(target), stem + '_' + day.toString(Qt::ISODate));
    copySoundTo(QDir(directory).filePath(datenbankName), copy, {});
    return copy;
}

QString restoreSafetyCopy(const QString &directory, const SafetyCopy &copy, const QDate &day) {
    const QDir folder(directory);
    const QString used = folder.filePath(datenbankName);
    const QString unfinished = folder.filePath(stem + "_zurück.mdb.part");
    const QString kept = firstFree(folder, stem + "_beschädigt_" + day.toString(Qt::ISODate));
    clearUnfinished(folder);
    auto remains = qScopeGuard([&] {
        try {
            clearUnfinished(folder);
        } catch (const Fehler &) { // the next attempt clears it
        }
    });
    copySound(copy.path, unfinished, {});
    const bool there = QFileInfo::exists(used);
    if (there) {
        QFile::setPermissions(unfinished, QFile::permissions(used));
        keepAs(used, kept);
    }
    for (const char *journal : journals) {
        if (QFileInfo::exists(used + journal))
            keepAs(used + journal, kept + journal);
    }
    syncFolder(directory);
    for (const char *journal : journals)
        removeFile(used + journal); // it would be rolled back into the copy
    moveFile(unfinished, used);
    syncFolder(directory);
    return there ? QFileInfo(kept).fileName() : QString();
}
