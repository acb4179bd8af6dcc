#include "app/arbeitsplatz.h"

#include <QCommandLineParser>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QSaveFile>
#include <QScopeGuard>
#include <QStandardPaths>

#include <cstdio>
#include <cstdlib>

#include "app/verzeichnisfrage.h"
#include "platform/directorylock.h"
#include "platform/program.h"
#include "records/system.h"
#include "session/session.h"
#include "session/sprache.h"
#include "store/database.h"
#include "store/safety.h"
#include "store/trail.h"
#include "store/workplace.h"
#include "windows/msgbox.h"

using namespace platform;

namespace {

DirectoryLock sperre;

const Text fehlertitel{"Fehler", "Error"};

// The directory of this person: one line in a file of their own.

QString merkdatei() {
    return QDir(QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation))
        .filePath("directory");
}

QString gemerktesVerzeichnis() {
    QFile datei(merkdatei());
    return datei.open(QIODevice::ReadOnly) ? QFile::decodeName(datei.readAll().trimmed())
                                           : QString();
}

/// Where that cannot be written the next start asks again.
void verzeichnisMerken(const QString &verzeichnis) {
    QDir().mkpath(QFileInfo(merkdatei()).path());
    QSaveFile datei(merkdatei());
    if (datei.open(QIODevice::WriteOnly)) {
        datei.write(QFile::encodeName(verzeichnis) + '\n');
        datei.commit();
    }
}

/// That of the database, which the other process has open, is what this person works in.
void spracheDerDatenbankLesen(const QString &verzeichnis) try {
    gDatenbank.openFile(QDir(verzeichnis).filePath(datenbankName));
    const auto zu = qScopeGuard([] { gDatenbank.close(); });
    systemLesen();
} catch (const Fehler &fehler) {
    fehlerMerken(fehler);
}

/// False when another process works there, which was told.
bool sperren(const QString &verzeichnis) {
    if (sperre.take(verzeichnis))
        return true;
    spracheDerDatenbankLesen(verzeichnis);
    const QString wo = QDir::toNativeSeparators(QDir(verzeichnis).absolutePath());
    const QString wer = sperre.holder().isEmpty() ? "?" : sperre.holder();
    meldung({"In diesem Verzeichnis wird schon gearbeitet:\r" + wo +
                 "\rBitte gehen Sie zum Fenster des Programms, das dort läuft, oder beenden Sie es "
                 "zuerst (Prozess " +
                 wer + ").",
             "Somebody works in this directory already:\r" + wo +
                 "\rPlease go to the window of the program that runs there, or end it first "
                 "(process " +
                 wer + ")."},
            Exclamation, {"torvena läuft schon", "torvena Is Running Already"});
    return false;
}

/// A database that is missing may come back from its safety copies, which the start offers.
bool istArbeitsplatz(const QString &verzeichnis) {
    return hasDatabase(verzeichnis) || !safetyCopies(verzeichnis).empty();
}

/// Takes a directory as it is when it has a database, else fills it.
void einrichten(const QString &verzeichnis) {
    if (istArbeitsplatz(verzeichnis))
        deliverFiles(verzeichnis); // what is new in this build; told where it is missed
    else
        setUpWorkplace(verzeichnis, false);
}

std::optional<int> zuHauseBetreten(bool fragen) {
    QString verzeichnis = gemerktesVerzeichnis();
    QString fort;
    const QString bisher = verzeichnis;
    if (!verzeichnis.isEmpty() && !istArbeitsplatz(verzeichnis))
        fort = verzeichnis;
    if (fragen || !fort.isEmpty())
        verzeichnis.clear();
    for (;; verzeichnis.clear()) {
        if (verzeichnis.isEmpty()) {
            Verzeichnisfrage frage(
                bisher.isEmpty() || !fort.isEmpty() ? QDir::home().filePath("torvena") : bisher,
                fort);
            if (frage.exec() != QDialog::Accepted)
                return 0;
            verzeichnis = frage.verzeichnis();
        }
        QDir().mkpath(verzeichnis); // where that fails the filling tells it
        if (!sperren(verzeichnis))
            return 1;
        try {
            einrichten(verzeichnis);
        } catch (const Fehler &fehler) {
            sperre.release();
            meldung(fehler.text(), Critical, fehlertitel);
            continue;
        }
        verzeichnisMerken(verzeichnis);
        QDir::setCurrent(verzeichnis);
        return {};
    }
}

} // namespace

Aufruf aufrufLesen() {
    QCommandLineParser parser;
    introduce("torvena", parser);
    parser.setApplicationDescription(
        "The operator's workstation of a calibration stand for crank ergometers. All its files lie "
        "in its working directory, the current one unless another is named.");
    const QCommandLineOption home(
        "home", "Work in your own directory: the one that is remembered for you. The first start "
                "asks where it shall be and fills it.");
    const QCommandLineOption choose("choose", "Ask for your own directory anew; see --home.");
    parser.addOptions({home, choose});
    parser.addPositionalArgument("DIR", "Work in this directory, which torvena-setup has filled.",
                                 "[DIR]");
    parser.process(*QCoreApplication::instance());
    const QStringList genannt = parser.positionalArguments();
    const bool zuHause = parser.isSet(home) || parser.isSet(choose);
    if (genannt.size() > 1 || (zuHause && !genannt.isEmpty())) {
        std::fputs("torvena: name one directory, or --home. --help tells more.\n", stderr);
        std::exit(1);
    }
    if (parser.isSet(choose))
        return {Aufruf::Ort::Frage};
    if (zuHause)
        return {Aufruf::Ort::Gemerkt};
    return genannt.isEmpty() ? Aufruf{} : Aufruf{Aufruf::Ort::Genannt, genannt.first()};
}

std::optional<int> arbeitsplatzBetreten(const Aufruf &aufruf) {
    // Nobody has read the language of a database yet: until then that of the computer.
    gSprache = QLocale().language() == QLocale::German ? 1 : 2;
    setTrailPerson([] { return QString("torvena"); });
    const auto unbekannt = qScopeGuard([] { gSprache = 0; });
    if (aufruf.ort == Aufruf::Ort::Gemerkt || aufruf.ort == Aufruf::Ort::Frage)
        return zuHauseBetreten(aufruf.ort == Aufruf::Ort::Frage);
    if (aufruf.ort == Aufruf::Ort::Genannt && !QDir::setCurrent(aufruf.verzeichnis)) {
        meldung(
            {"Das Verzeichnis \"" + aufruf.verzeichnis +
                 "\" gibt es nicht, oder es darf nicht geöffnet werden.",
             "The directory \"" + aufruf.verzeichnis + "\" does not exist, or must not be opened."},
            Critical, fehlertitel);
        return 1;
    }
    return sperren(".") ? std::optional<int>() : 1;
}

void arbeitsplatzVerlassen() {
    sperre.release();
}
