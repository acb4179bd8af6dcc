#include "store/scripts.h"

#include <QFile>

#include "store/database.h"

using namespace platform;

static void initResource() { // outside of every namespace: the macro declares what it calls
    Q_INIT_RESOURCE(store);
}

namespace {

QString sqlScript(const QString &name) {
    initResource();
    QFile file(":/sql/" + name);
    if (!file.open(QIODevice::ReadOnly)) {
        throw Fehler(fehlernummer::FileNotFound,
                     {"Das Skript " + name + " fehlt.", "The script " + name + " is missing."});
    }
    return QString::fromUtf8(file.readAll());
}

} // namespace

std::vector<QString> databaseScripts(bool demo) {
    std::vector<QString> scripts{sqlScript("schema.sql")};
    for (const char *table : {"Rezepte", "ÄndRez_temp", "EP_Rezepte"})
        scripts.push_back(sqlScript("steps.sql").replace("{steps}", table));
    for (const auto &[temp, form] : {std::pair{"_temp", "neu"}, {"", "alt"}})
        scripts.push_back(sqlScript("pairs.sql").replace("{temp}", temp).replace("{form}", form));
    scripts.push_back(sqlScript("queries.sql"));
    scripts.push_back(sqlScript("delivered.sql"));
    if (demo)
        scripts.push_back(sqlScript("demo.sql"));
    scripts.push_back(QString("PRAGMA user_version = %1").arg(datenbankStand));
    return scripts;
}

void legeDatenbankAn(const QString &path, bool demo) {
    const QString unfinished = path + ".new";
    QFile::remove(unfinished);
    try {
        Datenbank::createFile(unfinished, databaseScripts(demo));
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
