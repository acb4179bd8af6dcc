// Moves the rows of the database in use into a new, empty one: as data, without the triggers that
// would compute kept values anew.
#pragma once

#include <QMap>
#include <QString>
#include <QStringList>

#include <functional>

#include "store/database.h"

/// What an update file may ask for in its table ToDo.
inline const QStringList updateVersions{"203", "301", "302", "470"};

/// How far the rows are.
struct CopyState {
    QString table;      ///< that is being copied; empty before the first
    qlonglong rows = 0; ///< of this table
    qlonglong done = 0; ///< of all tables; within a table estimated
    qlonglong total = 0;
};

/// What was to be moved, for the check of the result.
struct CopyRecord {
    /// By table that was to be copied: how many rows it has beyond those of the database in use.
    QMap<QString, qlonglong> extra;
    /// Tables of uncertainty whose delivered rows were others than those that replaced them.
    QStringList otherUncertainties;
};

class RowCopy {
  public:
    /// Opens both files; what follows holds together until finish() and is undone without it.
    /// `goesOn` is asked while rows are moved, raises nothing, and false breaks off: then the call
    /// raises UserInterrupt. Raises as Datenbank::openFile(), and DatabaseDamaged for a new file
    /// with a broken page.
    RowCopy(const QString &used, const QString &fresh,
            std::function<bool(const CopyState &)> goesOn = {});

    /// The version that the new file asks for. Raises MissingTable where it asks for none of
    /// updateVersions.
    QString version();
    /// All tables that both files have, but for the trail, which comes with finish().
    QStringList tables();
    /// For the total of the progress.
    void announce(const QStringList &tables);

    // Each raises what its statement raises; the others may go on if whole() says so.
    void add(const QString &table);     ///< behind the rows that are there
    void replace(const QString &table); ///< in place of them
    /// With the specification as a word turned into a reference.
    void addRecipeNamesOf203();
    /// Calibration data, the delivered one last if its date is another, and the rows of the lever
    /// arm, which all refer to the newest then. True when there was exactly one row before.
    bool addCalibration();
    /// The delivered one alone, last, if its date is another.
    void addDeliveredCalibration();
    /// False when a failure undid everything, as a full disk does.
    bool whole() { return mStore.inTransaction(); }

    /// The new file is a database like any other now, with the trail of the old one, and on disk.
    CopyRecord finish();

  private:
    void openSound(const QString &fresh);
    void copy(const QString &table, const QString &into, const QString &select);
    QString columnsFor(const QString &table);
    bool exists(const QString &schema, const QString &table);
    QStringList columnsOf(const QString &schema, const QString &table);
    QString typesOf(const QString &schema, const QString &table);
    qlonglong countOf(const QString &schema, const QString &table);
    qlonglong rowsInUse(const QString &table);
    qlonglong standOf(const char *schema);
    void layTrail();
    void keepCounter(const QString &table);
    void noteUncertainty(const QString &table);
    bool ask(int steps);

    Datenbank mStore;
    std::function<bool(const CopyState &)> mGoesOn;
    QStringList mTriggers;               // their statements
    QMap<QString, qlonglong> mRowsInUse; // as counted so far
    QStringList mMoved;                  // tables that are what they were
    CopyRecord mRecord;
    CopyState mState;
    qlonglong mFinished = 0; // rows of the tables before this one
    double mStepsARow = 1;
    double mSteps = 0; // of this table
};
