// torvena-setup: fills a working directory for torvena.

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTextStream>

#include "database.h"
#include "fehler.h"
#include "scripts.h"

namespace {

enum ExitCode { Done = 0, Failed = 1, AlreadyThere = 2 };

int complain(const QString &text, ExitCode code) {
    QTextStream(stderr) << "torvena-setup: " << text << '\n';
    return code;
}

/// Puts the delivered files into the directory; one that lies there already stays.
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

int setUp(const QString &directory, bool demo) {
    const QString path = QDir(directory).filePath(datenbankName);
    if (QFileInfo::exists(path))
        return complain(path + " exists already. Nothing has been changed.", AlreadyThere);
    if (!QDir().mkpath(directory))
        return complain("the directory " + directory + " cannot be created.", Failed);
    if (!deliverFiles(directory))
        return complain("the delivered files cannot be written to " + directory + ".", Failed);
    try {
        legeDatenbankAn(path, demo);
    } catch (const Fehler &fehler) {
        return complain(fehler.text().english, Failed);
    }
    QTextStream(stdout) << path << '\n';
    return Done;
}

} // namespace

int main(int argc, char **argv) {
    const QCoreApplication app(argc, argv);
    QCoreApplication::setApplicationName("torvena-setup");

    QCommandLineParser parser;
    parser.setApplicationDescription(
        "Fills a working directory for torvena. An existing database is never touched.\n"
        "Exit code: 0 done, 1 failed, 2 the directory has a database already.");
    parser.addPositionalArgument("DIR", "The working directory; it is made when it is missing.");
    const QCommandLineOption demo("demo", "Add sample customers, units, recipes and protocols.");
    parser.addOption(demo);
    parser.addHelpOption();
    parser.process(app);

    const QStringList directories = parser.positionalArguments();
    if (directories.size() != 1)
        return complain("name one directory. --help tells more.", Failed);
    return setUp(directories.first(), parser.isSet(demo));
}
