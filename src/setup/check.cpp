#include "check.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QLocale>
#include <QTemporaryDir>
#include <QTextStream>

#include "platform/fehler.h"
#include "safetycopies.h"
#include "store/database.h"
#include "store/databasecopy.h"
#include "store/trailcheck.h"

namespace {

QString inWords(const Text &text) {
    return QLocale::system().language() == QLocale::German ? text.german : text.english;
}

void say(const Text &text) {
    QTextStream(stdout) << inWords(text) << '\n';
}

void list(const std::vector<Text> &all) {
    for (const Text &one : all)
        say({"  - " + one.german, "  - " + one.english});
}

/// A long check says each second how far it is.
class Progress {
  public:
    Progress() { mSince.start(); }
    void operator()(qlonglong done, qlonglong all) {
        if (mSince.elapsed() < 1000 || all == 0)
            return;
        mSince.restart();
        QTextStream(stderr) << inWords({"Geprüft: ", "Checked: "}) << done * 100 / all << " %\n";
    }

  private:
    QElapsedTimer mSince;
};

/// Empty when nothing is damaged.
std::vector<Text> damage(Datenbank &store) {
    std::vector<Text> all;
    for (Recordset rows = store.open("PRAGMA quick_check(20)"); !rows.atEnd(); rows.moveNext()) {
        if (rows[0].text() != "ok")
            all.push_back({rows[0].text(), rows[0].text()});
    }
    return all;
}

CheckResult checkTrailOf(Datenbank &store) {
    Progress progress;
    const TrailReport report =
        checkTrail(store, [&](qlonglong done, qlonglong all) { progress(done, all); });
    const QString links = QString::number(report.links);
    if (report.links > 0)
        say({"Nachweis: " + links + " Glieder, Stand " + report.newest + '.',
             "Trail: " + links + " links, newest " + report.newest + '.'});
    list(report.noted);
    if (report.found.empty()) {
        if (report.links > 0)
            say({"Der Nachweis ist lückenlos, und die Tabellen sagen dasselbe wie er.",
                 "The trail is without gaps, and the tables say the same as it does."});
        return CheckResult::Clean;
    }
    say({"Im Nachweis gefunden:", "Found in the trail:"});
    list(report.found);
    if (report.beyond > 0) {
        const QString more = QString::number(report.beyond);
        say({"  ... und " + more + " weitere.", "  ... and " + more + " more."});
    }
    say({"Bitte heben Sie die Datei so auf, wie sie ist, und vergleichen Sie sie mit "
         "Sicherungskopien und "
         "gedruckten Protokollen: in deren Fuß steht der Stand des Nachweises von damals.",
         "Please keep the file as it is, and compare it with safety copies and printed protocols: "
         "their "
         "foot has the newest link of the trail of that time."});
    return CheckResult::Found;
}

CheckResult checkFile(const QString &path) {
    Datenbank store;
    if (QFileInfo::exists(path + "-journal"))
        say({"Neben der Datenbank liegt ein Journal: torvena schreibt gerade, oder es wurde dabei "
             "unterbrochen. Was nicht zu Ende geschrieben war, wird beim Öffnen zurückgenommen.",
             "There is a journal beside the database: torvena is writing, or was interrupted while "
             "it "
             "did. What was not written to the end is taken back when it is opened."});
    store.openFile(path);
    store.close();
    const QTemporaryDir directory;
    const QString copy = directory.filePath("copy.mdb");
    copyDatabase(path, copy);
    store.openFile(copy);
    const std::vector<Text> damaged = damage(store);
    if (!damaged.empty()) {
        say({"Die Datei " + path + " ist beschädigt:", "The file " + path + " is damaged:"});
        list(damaged);
        say({"Bitte heben Sie sie auf und spielen Sie eine Sicherungskopie ein. Der Nachweis wurde "
             "nicht "
             "geprüft.",
             "Please keep it and restore a safety copy. The trail was not checked."});
        return CheckResult::Found;
    }
    say({"Die Datei " + path + " ist unbeschädigt.", "The file " + path + " is not damaged."});
    return checkTrailOf(store);
}

} // namespace

CheckResult checkDirectory(const QString &directory) {
    CheckResult database = CheckResult::NotChecked;
    try {
        database = checkFile(QDir(directory).filePath(datenbankName));
    } catch (const Fehler &fehler) {
        say({fehler.text().german + "\nDie Datenbank wurde nicht zu Ende geprüft.",
             fehler.text().english + "\nThe database was not checked to the end."});
        if (fehler.number() == platform::fehlernummer::DatabaseDamaged)
            database = CheckResult::Found;
    }
    const bool german = QLocale::system().language() == QLocale::German;
    const int damaged = listSafetyCopies(directory, german);
    return database == CheckResult::Clean && damaged > 0 ? CheckResult::Found : database;
}
