// torvena-setup: fills a working directory for torvena, or brings one up to date; hands protocols
// out, takes the database of an earlier program over.

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QTextStream>

#include "check.h"
#include "commands.h"
#include "platform/fehler.h"
#include "platform/program.h"
#include "safetycopies.h"
#include "store/rowcopy.h"
#include "store/scripts.h"
#include "store/trail.h"
#include "store/workplace.h"

int complain(const QString &text) {
    QTextStream(stderr) << "torvena-setup: " << text << '\n';
    return Failed;
}

int complainInUse(const QString &directory, const platform::DirectoryLock &lock) {
    return complain(directory + " is in use by another program, process " + lock.holder() +
                    ". Please close it first.");
}

namespace {

int setUp(const QString &directory, bool demo) {
    const bool older = hasDatabase(directory);
    platform::DirectoryLock lock;
    if (older && !lock.take(directory))
        return complainInUse(directory, lock);
    try {
        QTextStream(stdout) << setUpWorkplace(directory, demo) << '\n';
    } catch (const Fehler &fehler) {
        return complain(directory + ": " + fehler.text().english +
                        (older ? "\nNothing in its database has been changed." : ""));
    }
    return Done;
}

int makeUpdate(const QString &file, const QString &version) {
    if (!updateVersions.contains(version))
        return complain("the versions are " + updateVersions.join(", ") + '.');
    try {
        legeUpdateAn(file, version);
    } catch (const Fehler &fehler) {
        return complain(fehler.text().english);
    }
    QTextStream(stdout) << file << '\n';
    return Done;
}

} // namespace

int main(int argc, char **argv) {
    const QCoreApplication app(argc, argv);
    QCommandLineParser parser;
    platform::introduce("torvena-setup", parser);
    setTrailPerson([] { return QCoreApplication::applicationName(); });
    parser.setApplicationDescription(
        "Fills a working directory for torvena. A directory with a database is brought up to "
        "date:\n"
        "it gets the delivered files, tables and columns that it lacks, and the views and "
        "triggers\n"
        "of this build. Its rows stay as they are.\n"
        "Exit code: 0 done, 1 failed; the database is then as it was.");
    parser.addPositionalArgument("DIR", "The working directory; it is made when it is missing.");
    parser.addPositionalArgument("VERSION", "With --update: " + updateVersions.join(", ") + '.',
                                 "[VERSION]");
    const QCommandLineOption demo(
        "demo", "Give a new database sample customers, units, recipes and protocols.");
    parser.addOption(demo);
    const QCommandLineOption update(
        "update",
        "Make an update file instead, by the name of torvena470_neu.mdb as a rule. The version "
        "says what of a database moves over: 470, every table, unless another is named.",
        "FILE");
    parser.addOption(update);
    const QCommandLineOption check(
        {"prüfen", "pruefen"},
        "Check a working directory instead and say what was found: damage of the database, links "
        "of the trail that were changed or taken out, rows that were changed past it. Exit code: 0 "
        "clean, 1 something was found, 2 it could not be checked.");
    parser.addOption(check);
    const QCommandLineOption secure(
        "sichern",
        "Copy the database of DIR, or of the current directory, to a folder instead, on a stick "
        "for example, and check the copy. The program may be running.",
        "TARGET");
    parser.addOption(secure);
    const QCommandLineOption fromJet(
        {"aus-jet", "from-jet"},
        "Take over a database file of the kind that the program had before (Jet): read through "
        "mdbtools, on a copy, all of it or nothing. DIR must not have a database yet.",
        "FILE");
    parser.addOption(fromJet);
    const QCommandLineOption blank(
        {"unlesbares-leer", "unreadable-empty"},
        "With --aus-jet: leave values empty that cannot be read, and list them, instead of taking "
        "nothing.");
    parser.addOption(blank);
    const QCommandLineOption handOutOf(
        "export", "Write protocols of DIR for other programs, final tests excepted.");
    parser.addOption(handOutOf);
    const QCommandLineOption first({"von", "from"}, "With --export: the first number.", "NR");
    const QCommandLineOption last({"bis", "to"}, "With --export: the last number.", "NR");
    const QCommandLineOption format("format", "With --export: xlsx, csv or json.", "FORMAT",
                                    "xlsx");
    const QCommandLineOption into(
        {"nach", "into"}, "With --export: the folder, DIR/Export unless it is named.", "FOLDER");
    parser.addOptions({first, last, format, into});
    parser.process(app);

    const QStringList directories = parser.positionalArguments();
    if (parser.isSet(update)) {
        if (directories.size() > 1)
            return complain("name one file and one version. --help tells more.");
        return makeUpdate(parser.value(update), directories.value(0, updateVersions.last()));
    }
    if (parser.isSet(secure)) {
        if (directories.size() > 1)
            return complain("name one directory. --help tells more.");
        return copyToStick(directories.value(0, "."), parser.value(secure));
    }
    if (directories.size() != 1)
        return complain("name one directory. --help tells more.");
    const QString &directory = directories.first();
    if (parser.isSet(check))
        return static_cast<int>(checkDirectory(directory));
    if (parser.isSet(fromJet))
        return takeOverCommand(parser.value(fromJet), directory, parser.isSet(blank));
    if (parser.isSet(handOutOf))
        return handOutCommand({directory, parser.value(first), parser.value(last),
                               parser.value(format), parser.value(into)});
    return setUp(directory, parser.isSet(demo));
}
