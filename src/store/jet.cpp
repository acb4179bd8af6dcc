#include "store/jet.h"

#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <QStringDecoder>

#include "platform/fehler.h"

using namespace platform;

namespace {

// Control characters that no text of a person holds.
const QChar between(0x1f), rowEnd(0x1e), null(0x1d);

constexpr int jet4 = 1; // byte that tells the version; 0 for Jet 3
constexpr int versionAt = 0x14;
constexpr int longestRun = 10 * 60 * 1000; // ms; a damaged file can keep a tool in a loop

[[noreturn]] void doubt(const QString &german, const QString &english) {
    throw Fehler(fehlernummer::DatabaseDamaged,
                 {german + " Bitte reparieren Sie die Datei mit dem Programm, das sie angelegt "
                           "hat, oder nehmen Sie eine ältere Sicherungskopie.",
                  english + " Please repair the file with the program that made it, or take an "
                            "older safety copy."});
}

void checkKind(const QString &path) {
    QFile file(path);
    if (!file.exists())
        throw Fehler(fehlernummer::FileNotFound, {"Die Datei " + path + " wurde nicht gefunden.",
                                                  "The file " + path + " was not found."});
    if (!file.open(QIODevice::ReadOnly))
        throw Fehler(fehlernummer::PermissionDenied,
                     {"Die Datei " + path + " kann nicht gelesen werden. Bitte prüfen Sie Rechte.",
                      "The file " + path + " cannot be read. Please check permissions."});
    const QByteArray head = file.read(versionAt + 1);
    if (head.startsWith("SQLite format 3"))
        throw Fehler(fehlernummer::TypeMismatch,
                     {path + " ist schon eine Datenbank dieses Programms. Bitte kopieren Sie sie "
                             "in ein Arbeitsverzeichnis.",
                      path + " is a database of this program already. Please copy it into a "
                             "working directory."});
    if (head.size() <= versionAt || head.mid(4, 15) != "Standard Jet DB" || head[versionAt] < 0 ||
        head[versionAt] > jet4)
        throw Fehler(fehlernummer::TypeMismatch,
                     {path + " ist keine Jet-Datei der Fassung 3 oder 4. Bitte nennen Sie die "
                             "Datenbankdatei (.mdb) des früheren Programms.",
                      path + " is no Jet file of version 3 or 4. Please name the database file "
                             "(.mdb) of the earlier program."});
}

} // namespace

JetFile::JetFile(const QString &path) : mName(QFileInfo(path).fileName()) {
    checkKind(path);
    for (const char *tool : {"mdb-tables", "mdb-count", "mdb-export"}) {
        if (QStandardPaths::findExecutable(tool).isEmpty())
            throw Fehler(fehlernummer::PathAccess,
                         {QString("%1 fehlt, womit Jet-Dateien gelesen werden. Bitte installieren "
                                  "Sie das Paket mdbtools (sudo apt install mdbtools).")
                              .arg(tool),
                          QString("%1 is missing, by which Jet files are read. Please install the "
                                  "package mdbtools (sudo apt install mdbtools).")
                              .arg(tool)});
    }
    mCopy = mFolder.filePath("jet.mdb");
    if (!QFile::copy(path, mCopy))
        throw Fehler(fehlernummer::PermissionDenied,
                     {"Die Datei " + path + " kann nicht nach " + mFolder.path() +
                          " kopiert werden. Bitte prüfen Sie den freien Platz.",
                      "The file " + path + " cannot be copied to " + mFolder.path() +
                          ". Please check free space."});
}

QByteArray JetFile::run(const QString &program, const QStringList &arguments) const {
    QProcess tool;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("LC_ALL", "C.UTF-8"); // or names with umlauts are no arguments
    environment.insert("MDB_JET3_CHARSET", "CP1252");
    environment.remove("MDBOPTS");
    tool.setProcessEnvironment(environment);
    tool.start(program, arguments);
    if (!tool.waitForFinished(longestRun) || tool.exitStatus() != QProcess::NormalExit ||
        tool.exitCode() != 0) {
        const bool late = tool.state() != QProcess::NotRunning;
        tool.kill();
        tool.waitForFinished();
        const QString words = late ? QString("> 10 min")
                                   : QString::fromUtf8(tool.readAllStandardError()).simplified();
        const QString what = program + (arguments.size() > 1 ? ' ' + arguments.last() : QString());
        doubt(QString("%1 ist an %2 gescheitert (%3).").arg(what, mName, words),
              QString("%1 failed on %2 (%3).").arg(what, mName, words));
    }
    return tool.readAllStandardOutput();
}

QStringList JetFile::tables() const {
    return QString::fromUtf8(run("mdb-tables", {"-1", mCopy})).split('\n', Qt::SkipEmptyParts);
}

JetTable JetFile::table(const QString &name) const {
    bool counted = false;
    const qsizetype count = run("mdb-count", {mCopy, name}).trimmed().toLongLong(&counted);
    const QByteArray bytes =
        run("mdb-export", {"-Q", "-d", between, "-R", rowEnd, "-0", null, "-D", "%Y-%m-%d", "-T",
                           "%Y-%m-%d %H:%M:%S", "-b", "hex", mCopy, name});
    QStringDecoder utf8(QStringDecoder::Utf8);
    const QString text = utf8(bytes);
    QStringList rows = text.split(rowEnd);
    if (!counted || utf8.hasError() || !rows.last().trimmed().isEmpty() || rows.size() < 2)
        doubt("Die Tabelle " + name + " in " + mName + " ist nicht vollständig lesbar.",
              "The table " + name + " in " + mName + " cannot be read whole.");
    rows.removeLast();
    JetTable table{.columns = rows.takeFirst().trimmed().split(between), .rows = {}};
    if (rows.size() != count)
        doubt(QString("Die Tabelle %1 in %2 hat %3 Zeilen statt %4.")
                  .arg(name, mName)
                  .arg(rows.size())
                  .arg(count),
              QString("The table %1 in %2 has %3 rows instead of %4.")
                  .arg(name, mName)
                  .arg(rows.size())
                  .arg(count));
    for (const QString &row : rows) {
        QStringList values = row.split(between);
        if (values.size() != table.columns.size())
            doubt(QString("Zeile %1 der Tabelle %2 in %3 hat %4 Werte statt %5.")
                      .arg(table.rows.size() + 1)
                      .arg(name, mName)
                      .arg(values.size())
                      .arg(table.columns.size()),
                  QString("Row %1 of the table %2 in %3 has %4 values instead of %5.")
                      .arg(table.rows.size() + 1)
                      .arg(name, mName)
                      .arg(values.size())
                      .arg(table.columns.size()));
        for (QString &value : values) {
            if (value == null)
                value.clear();
        }
        table.rows.push_back(std::move(values));
    }
    return table;
}
