#include "store/scripts.h"

#include <QFile>

#include "store/database.h"

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

void legeDatenbankAn(const QString &path, bool demo) {
    std::vector<QString> scripts{sqlScript("schema.sql"), sqlScript("queries.sql"),
                                 sqlScript("delivered.sql")};
    if (demo)
        scripts.push_back(sqlScript("demo.sql"));
    const QString unfinished = path + ".new";
    QFile::remove(unfinished);
    try {
        Datenbank::createFile(unfinished, scripts);
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
