#include "store/scripts.h"

#include <QFile>

#include "store/database.h"
#include "store/rowcopy.h"
#include "store/trail.h"

using namespace platform;

static void initResource() { // outside of every namespace: the macro declares what it calls
    Q_INIT_RESOURCE(store);
}

QString sqlScript(const QString &name) {
    initResource();
    QFile file(":/sql/" + name);
    if (!file.open(QIODevice::ReadOnly)) {
        throw Fehler(fehlernummer::FileNotFound,
                     {"Das Skript " + name + " fehlt.", "The script " + name + " is missing."});
    }
    return QString::fromUtf8(file.readAll());
}

namespace {

/// Tables, stored queries and the rows that every new file has.
std::vector<QString> emptyScripts() {
    std::vector<QString> scripts{sqlScript("schema.sql")};
    for (const char *table : {"Rezepte", "ÄndRez_temp", "EP_Rezepte"})
        scripts.push_back(sqlScript("steps.sql").replace("{steps}", table));
    for (const auto &[temp, form] : {std::pair{"_temp", "neu"}, {"", "alt"}})
        scripts.push_back(sqlScript("pairs.sql").replace("{temp}", temp).replace("{form}", form));
    scripts.push_back(sqlScript("queries.sql"));
    scripts.push_back(sqlScript("delivered.sql"));
    scripts.push_back(QString("PRAGMA user_version = %1").arg(datenbankStand));
    return scripts;
}

void createWhole(const QString &path, const std::vector<QString> &scripts, bool trail,
                 const std::function<void(Datenbank &)> &fill = {}) {
    const QString unfinished = path + ".new";
    QFile::remove(unfinished);
    QFile::remove(unfinished + "-journal"); // of a process that was stopped
    try {
        Datenbank::createFile(unfinished, scripts);
        if (fill || trail) {
            Datenbank store;
            store.openFile(unfinished);
            store.together([&] {
                if (fill)
                    fill(store);
                if (trail)
                    layTrail(store, "Neue Datenbank"); // begins with the rows that are there
            });
        }
    } catch (...) {
        QFile::remove(unfinished);
        throw;
    }
    if (!QFile::rename(unfinished, path)) {
        QFile::remove(unfinished);
        throw Fehler(fehlernummer::PermissionDenied,
                     {"Die Datei " + path + " kann nicht angelegt werden.",
                      "The file " + path + " cannot be created."});
    }
}

} // namespace

std::vector<QString> databaseScripts(bool demo) {
    std::vector<QString> scripts = emptyScripts();
    scripts.push_back(sqlScript("instrument.sql"));
    if (demo)
        scripts.push_back(sqlScript("demo.sql"));
    return scripts;
}

void legeDatenbankAn(const QString &path, bool demo) {
    createWhole(path, databaseScripts(demo), true);
}

void legeDatenbankAn(const QString &path, const std::function<void(Datenbank &)> &fill) {
    createWhole(path, emptyScripts(), true, fill);
}

void legeUpdateAn(const QString &path, const QString &version) {
    std::vector<QString> scripts = emptyScripts();
    scripts.push_back(sqlScript("update.sql"));
    for (const QString &known : updateVersions) {
        scripts.push_back(QString("INSERT INTO ToDo (Funktion, ja) VALUES ('%1', %2)")
                              .arg(known, QString::number(known == version ? -1 : 0)));
    }
    createWhole(path, scripts, false); // which comes with the rows
}
