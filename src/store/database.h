// The one database. Values are bound, never written into the statement, so an apostrophe is a
// letter like any other. Each statement is whole on disk before the next one runs.
//
// Functions of its own in statements: Val(text), CStr(number) in the number format of the session,
// Muster(pattern, text) for `*` and `?`, and Gleich(a, b), which tells names apart as a person
// does: all letters without regard to case, where `=` folds A to Z only.
#pragma once

#include <QString>
#include <QVariant>

#include <functional>
#include <memory>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "platform/fehler.h"
#include "store/recordset.h"

namespace SQLite {
class Database;
class Statement;
} // namespace SQLite
struct sqlite3_stmt;

/// The row at which a running statement stands. Nothing of it is copied: it is gone with the next
/// one. Columns count from 0.
class Row {
  public:
    explicit Row(sqlite3_stmt *statement) : mStatement(statement) {}

    bool isNull(int column) const;
    qlonglong whole(int column) const;
    double number(int column) const;
    /// A whole one or a double, as it is stored.
    bool isNumber(int column) const;
    /// UTF-8 with a zero behind it; empty for null.
    std::string_view bytes(int column) const;
    QString text(int column) const;

  private:
    sqlite3_stmt *mStatement;
};

/// Asked between the parts of a copy; false breaks it off with UserInterrupt. Counts pages.
using CopyProgress = std::function<bool(int done, int total)>;

class Datenbank {
  public:
    /// Texts, whole numbers, doubles, yes/no, dates and times, or null.
    using Params = std::vector<QVariant>;

    Datenbank();
    ~Datenbank();
    Datenbank(const Datenbank &) = delete;
    Datenbank &operator=(const Datenbank &) = delete;

    /// Opens an existing file; it is never created here. Raises DatabaseNotFound, DatabaseDamaged
    /// or DatabaseLocked.
    void openFile(const QString &path);
    /// Makes a new file by running whole scripts in it, and closes it again.
    static void createFile(const QString &path, const std::vector<QString> &scripts);
    /// Copies a database, which others and this process may have open, to a name under which there
    /// is none. What is there of a copy that failed is the caller's to clear. See databasecopy.h.
    static void copyFile(const QString &from, const QString &to, const CopyProgress &goesOn);
    /// What a quick check finds in the file first, in the engine's words, or why it cannot be read
    /// at all; empty for a sound one. A journal that a stopped process left is rolled back first.
    /// Raises what is no damage: DatabaseNotFound, DatabaseLocked, ReadOnly.
    static QString damageIn(const QString &path);
    void close();
    bool isOpen() const { return mDatabase != nullptr; }

    /// A snapshot of the rows. Raises MissingTable, MissingColumn, or StatementFailed with the
    /// engine's words.
    Recordset open(const QString &sql, const Params &params = {});
    /// Hands over row by row what open() would answer, for results of many rows. Raises as open().
    void each(const QString &sql, const Params &params,
              const std::function<void(const Row &)> &row);
    /// Runs reading statements that all see the same state; many of them run faster so. They hold
    /// no second of these.
    void snapshot(const std::function<void()> &statements);
    /// Writes and answers how many rows were touched. Raises DuplicateKey besides those of open().
    int execute(const QString &sql, const Params &params = {});
    /// Runs the statements of a whole script. Raises as execute().
    void run(const QString &script);
    /// Writes one new row and answers its key, which may be greater than the session can hold.
    /// Raises as execute().
    qlonglong insert(const QString &sql, const Params &params = {});
    /// Runs statements of which all hold or none; they hold no second of these. What they raise
    /// goes on to the caller.
    void together(const std::function<void()> &statements);
    /// False once a failure has undone what was begun with BEGIN, as a full disk does.
    bool inTransaction();

    /// Asked again and again while a statement runs, with the engine's steps between two times; it
    /// raises nothing. False breaks the statement off with UserInterrupt, which undoes what was
    /// begun. None without a function.
    void watch(std::function<bool(int steps)> goesOn);
    /// Another number after each change of the file, by whomever, since this one was opened.
    quint32 changeMark();

  private:
    friend class Query;

    SQLite::Database &database();
    SQLite::Statement prepare(const QString &sql, const Params &params);
    SQLite::Statement &kept(const QString &sql);
    void registerFunctions();

    std::unique_ptr<SQLite::Database> mDatabase;
    std::unordered_map<QString, SQLite::Statement> mKept; // changes of rows, ready to run again
    std::function<bool(int)> mGoesOn;
};

/// A reading statement that is prepared once and run many times. It must not outlive the opening of
/// its database. All raise as Datenbank::open().
class Query {
  public:
    Query(Datenbank &database, const QString &sql);
    ~Query();
    Query(const Query &) = delete;
    Query &operator=(const Query &) = delete;

    void each(const Datenbank::Params &params, const std::function<void(const Row &)> &row);

  private:
    sqlite3_stmt *mStatement = nullptr;
};

extern Datenbank gDatenbank;

/// Name of the database in use, in the current directory.
inline constexpr const char *datenbankName = "torvena470.mdb";

/// True when somebody holds the database at this path so that it cannot be had alone; an open one
/// at rest does not. Raises FileNotFound for a missing file, and what else keeps it from being
/// opened.
bool fnc_DateiGeöffnet(const QString &path);
