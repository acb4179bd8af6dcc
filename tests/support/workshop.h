// A workshop for a test without screens: a database of its own in a directory of its own, virtual
// time, the simulated stand behind the line, the message boxes scripted, and a session.
#pragma once

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include "boxes.h"
#include "cases.h"
#include "journey.h"
#include "platform/text.h"
#include "simulatedline.h"
#include "store/database.h"
#include "testclock.h"

namespace support {

class Workshop : public testing::Test {
  public:
    /// What the case at hand was registered with: its language (1 German, 2 English), its row.
    static inline int givenLanguage = 1;
    static inline QString givenRow;

  protected:
    Workshop();
    ~Workshop() override;

    /// The session as in a process that has just begun.
    static void forgetSession();
    /// Rows of the one column that the statement names.
    static QStringList column(const QString &sql, const Datenbank::Params &params = {});
    /// All columns of all rows, "a|b+c|d".
    static QString grid(const QString &sql, const Datenbank::Params &params = {});
    /// Another program writes to the database. A table that loses a column is that of an older
    /// build, without the triggers of the trail.
    static void change(const QString &sql, const Datenbank::Params &params = {});
    /// Such a statement on this table fails until the database is mended; after SELECT, all do.
    static void spoil(const QString &event, const QString &table);
    static void mend();
    /// The language of the next start, and the number format that goes with it: 1 German, 2
    /// English.
    static void setLanguage(int language);
    static bool english();
    /// The box to the letter, in the language of the session.
    /// The box by its key in boxtexts.h, "failure(1018)" where its text has a place for more.
    void expectKnown(const QString &key, int answer = platform::OK,
                     std::function<void()> meanwhile = {});
    /// It may come any number of times.
    void allowKnown(const QString &key, int answer = platform::OK);
    void run(Journey journey);

    QTemporaryDir directory;
    QString previousDirectory;
    TestClock &clock;
    SimulatedLine line;
    Boxes boxes;
    int beeps = 0;

  private:
    static inline QString unreadable; // a table that bears another name
};

} // namespace support
