// The trail: who changed which row when, from what to what, as the links of a chain of hashes in
// the table Nachweis. Triggers write it, so that no flow knows of it; what was changed past them
// shows when the chain is replayed against the tables (trailcheck.h).
//
// It is tamper-evident and no proof of identity: the person is who was named at the login, the time
// is that of the computer, and who can write the file can make the whole chain anew, but not with a
// link that was printed before.
#pragma once

#include <QMap>
#include <QString>
#include <QStringList>

#include <functional>

#include "store/rowsum.h"

class Datenbank;
class Row;
namespace SQLite {
class Database;
}

/// Who the changes of this process are put down to; asked at each of them.
void setTrailPerson(std::function<QString()> person);

/// What the triggers call: Satz(names, values...), Kettenglied(fields...), Person().
void addTrailFunctions(SQLite::Database &database);

/// Lays the trail over a database that has its tables, within a transaction of the caller:
/// triggers, and what the tables hold as the state that links count from. `occasion` says why, in
/// German.
void layTrail(Datenbank &store, const QString &occasion);

/// A note among the links, as of a restored safety copy. Raises as Datenbank::execute().
void noteInTrail(Datenbank &store, const QString &occasion);

/// Number and hash of the newest link, empty in a database without trail.
struct TrailHead {
    qlonglong number = 0;
    QString hash;
};
TrailHead trailHead(Datenbank &store);

/// The columns of a table that the trail kept of it.
using TrailColumns = QMap<QString, QStringList>;

/// Takes the trail off while tables get other columns or their rows from another file, and lays it
/// again. All of it within one transaction of the caller.
class TrailPause {
  public:
    /// `former` is the schema with the rows as the trail knows them, "main" or an attached one.
    explicit TrailPause(Datenbank &store, QString former = "main");

    /// Tables have their columns, and those of `former` its rows still: lays the trail on those
    /// that need no new state. Without a list these are the ones with the columns and triggers that
    /// they had, else those of the list.
    void resume();
    void resume(const QStringList &moved);
    /// Lays it on the others and appends their state as a link, if there are any. It says which of
    /// them were not, before, what the links had said. Answers how many links it appended.
    int end(const QString &occasion);

  private:
    void takeOff();
    void putTriggers(const QString &table);

    Datenbank &mStore;
    QString mFormer;
    TrailColumns mColumns;            // as they were
    QMap<QString, QString> mTriggers; // of a table, as they were
    QStringList mFresh;               // need their state
    QStringList mOff;                 // of these, were not as the links said
};

// For the check
// ------------------------------------------------------------------------------------

/// Tables that the trail covers.
QStringList trailTables(Datenbank &store, const QString &schema = "main");
QStringList trailColumns(Datenbank &store, const QString &schema, const QString &table);
/// Name and statement of each trigger.
QMap<QString, QString> trailTriggers(Datenbank &store, const QString &table);
/// An expression that gives the row as text.
QString rowExpression(const QStringList &columns, const QString &prefix = {});
RowSum sumOf(Datenbank &store, const QString &schema, const QString &table,
             const QStringList &columns);

/// What the links say that each table holds.
class TrailSums {
  public:
    /// Columns of the row, from `first` on: Tabelle, Vorgang, Schlüssel, Alt, Neu.
    void follow(const Row &link, int first);
    const QMap<QString, RowSum> &tables() const { return mTables; }

  private:
    QMap<QString, RowSum> mTables;
};
TrailSums sumsOfLinks(Datenbank &store, const QString &schema);

/// What a link of the kind Bestand says beside the state of tables.
struct TrailState {
    QStringList tables;
    QStringList off; ///< were not as the links before had said
    static TrailState from(std::string_view json);
};

/// Of a link: its hash over all columns before it.
QString linkHash(const Row &link);
inline constexpr const char *linkColumns =
    "Nr, Zeit, Person, Tabelle, Vorgang, Schlüssel, Alt, Neu, Vorher, Kette";
