// Where the program works: a directory that is in use, and the question of the first start.
#include <QApplication>
#include <QDialog>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>

#include <csignal>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include "app/arbeitsplatz.h"
#include "platform/directorylock.h"
#include "session/session.h"
#include "workplace.h"

namespace {

using namespace support;
using Ort = Aufruf::Ort;

class Directories : public Workplace {
  protected:
    Directories() {
        qputenv("HOME", directory.path().toUtf8());
        qputenv("XDG_CONFIG_HOME", directory.filePath("config").toUtf8());
    }
    ~Directories() override { QLocale::setDefault(QLocale::system()); }

    /// Enters, closes, and says where that led: the exit code, or the directory.
    QString entered(Ort ort, const QString &named = {}) {
        const std::optional<int> end = arbeitsplatzBetreten({ort, named});
        const QString at = QDir::home().relativeFilePath(QDir::currentPath());
        arbeitsplatzVerlassen();
        return end ? QString::number(*end) : at;
    }
    /// Answers the question for a directory that comes next; mSaid is what was told then.
    void answer(const char *button, const QString &typed = {}) {
        QTimer::singleShot(0, [this, button, typed] {
            auto *question = qobject_cast<QDialog *>(QApplication::activeModalWidget());
            auto *path = question->findChild<QLineEdit *>("txtPfad");
            mProposed = path->text();
            if (!typed.isEmpty())
                path->setText(typed);
            mSaid.clear();
            for (const auto *label : question->findChildren<QLabel *>())
                mSaid += label->text() + '\n';
            mCanPress = question->findChild<QPushButton *>("pbok")->isEnabled();
            question->findChild<QPushButton *>(button)->click();
        });
    }

    QString mSaid, mProposed;
    bool mCanPress = false;
};

JOURNEY_P(Directories, TakeNoSecondProgram) {
    int ready[2];
    EXPECT_EQ(pipe(ready), 0);
    const pid_t other = fork();
    if (other == 0) {
        umask(077);
        platform::DirectoryLock lock;
        [[maybe_unused]] const auto told = lock.take(".") ? write(ready[1], "", 1) : 0;
        for (;;)
            pause();
    }
    char byte = 0;
    EXPECT_EQ(read(ready[0], &byte, 1), 1);
    expectKnown("running"); // in the language of the directory
    EXPECT_EQ(entered(Ort::Hier), "1");
    EXPECT_TRUE(boxes.seen().back().text.contains(QString::number(other)));
    EXPECT_TRUE(QFile::permissions(".torvena.lock") & QFile::ReadOther)
        << "or another user walks in";
    kill(other, SIGKILL);
    waitpid(other, nullptr, 0);
    EXPECT_TRUE(QFile::exists(".torvena.lock")) << "left by the kill";
    EXPECT_EQ(entered(Ort::Genannt, directory.path()), ".");
    EXPECT_FALSE(QFile::exists(".torvena.lock"));
    co_return;
}

JOURNEY_P(Directories, AreAskedForOnceAndRemembered) {
    QLocale::setDefault(givenLanguage == 2 ? QLocale::English : QLocale::German);
    expectKnown("noDirectory(fort)");
    EXPECT_EQ(entered(Ort::Genannt, "fort"), "1");
    answer("pbexit");
    EXPECT_EQ(entered(Ort::Gemerkt), "0");
    EXPECT_EQ(mProposed, directory.filePath("torvena"));
    answer("pbok");
    EXPECT_EQ(entered(Ort::Gemerkt), "torvena");
    EXPECT_TRUE(QFile::exists("torvena470.mdb") && QFile::exists("deckblatt.rpt"));
    QDir::setCurrent("/");
    EXPECT_EQ(entered(Ort::Gemerkt), "torvena") << "without a question";
    answer("pbexit");
    EXPECT_EQ(entered(Ort::Frage), "0") << "asked anew";

    change("INSERT INTO Kunden (Name) VALUES ('Bleibt')");
    EXPECT_TRUE(QDir::home().rename("torvena", "umgezogen"));
    answer("pbok", "~/umgezogen"); // a database that is there
    EXPECT_EQ(entered(Ort::Gemerkt), "umgezogen");
    EXPECT_TRUE(mSaid.contains(directory.filePath("torvena")) &&
                mSaid.contains(givenLanguage == 2 ? "as it is" : "wie sie ist"))
        << mSaid.toStdString();
    gDatenbank.openFile(datenbankName);
    EXPECT_EQ(column("SELECT Name FROM Kunden"), QStringList("Bleibt"));
    gDatenbank.close();

    // What cannot be one is told before, what fails is told behind it and asked again.
    answer("pbexit", "torvena470.mdb");
    EXPECT_EQ(entered(Ort::Frage), "0");
    EXPECT_FALSE(mCanPress);
    answer("pbok", "x" + QString(300, 'x'));
    gSprache = std::int16_t(givenLanguage);
    expectKnown("notMade", platform::OK, [this] { answer("pbexit"); });
    EXPECT_EQ(entered(Ort::Frage), "0");
    co_return;
}

} // namespace
