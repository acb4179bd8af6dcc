#include "store/rowcopy.h"

#include <QScopeGuard>

#include <algorithm>

#include "store/scripts.h"
#include "store/sqltext.h"
#include "store/trail.h"

using namespace platform;

namespace {

const QString delivered = "Normalkalibrierdaten_neu";

QString quoted(const QString &name) {
    return '"' + name + '"';
}

} // namespace

RowCopy::RowCopy(const QString &used, const QString &fresh,
                 std::function<bool(const CopyState &)> goesOn)
    : mGoesOn(std::move(goesOn)) {
    openSound(fresh);
    mStore.execute("ATTACH ? AS Alt", {used});
    mStore.execute("BEGIN");
    const TrailPause none(mStore); // an update file that somebody made of a database has its own
    // Rows move page by page where nothing hangs on them, and nothing is computed anew.
    Recordset triggers = mStore.open("SELECT name, sql FROM main.sqlite_master "
                                     "WHERE type = 'trigger' ORDER BY rowid");
    for (; !triggers.atEnd(); triggers.moveNext()) {
        mStore.execute("DROP TRIGGER main." + quoted(triggers[0].text()));
        mTriggers += triggers[1].text();
    }
    if (mGoesOn)
        mStore.watch([this](int steps) { return ask(steps); });
}

/// Its damage is told as its own: the database in use needs no safety copy for it.
void RowCopy::openSound(const QString &fresh) {
    bool sound = false;
    try {
        mStore.openFile(fresh);
        sound = mStore.open("PRAGMA quick_check(1)")[0].text() == "ok";
    } catch (const Fehler &fehler) {
        if (fehler.number() != fehlernummer::DatabaseDamaged)
            throw;
    }
    if (!sound) {
        throw Fehler(fehlernummer::DatabaseDamaged,
                     {"Die neue Datenbank ist beschädigt.", "The new database is damaged."});
    }
}

bool RowCopy::ask(int steps) {
    mSteps += steps;
    mState.done = mFinished + std::min(mState.rows, static_cast<qlonglong>(mSteps / mStepsARow));
    return mGoesOn(mState);
}

QString RowCopy::version() {
    const Recordset rows = mStore.open("SELECT Funktion FROM main.ToDo WHERE ja <> 0 "
                                       "ORDER BY rowid");
    const QString version = rows.empty() ? QString() : rows[0].text().trimmed();
    if (!updateVersions.contains(version)) {
        throw Fehler(fehlernummer::MissingTable,
                     {"Die Datei nennt keine bekannte Version: \"" + version + "\".",
                      "The file names no version that is known: \"" + version + "\"."});
    }
    return version;
}

QStringList RowCopy::tables() {
    QStringList names;
    Recordset rows =
        mStore.open("SELECT name FROM main.sqlite_master WHERE type = 'table' AND "
                    "name NOT LIKE 'sqlite%' AND name NOT IN ('ToDo', 'Nachweis', ?) AND name IN "
                    "(SELECT name FROM Alt.sqlite_master WHERE type = 'table')",
                    {delivered});
    for (; !rows.atEnd(); rows.moveNext())
        names += rows[0].text();
    return names;
}

void RowCopy::announce(const QStringList &tables) {
    for (const QString &table : tables)
        mState.total += rowsInUse(table);
}

bool RowCopy::exists(const QString &schema, const QString &table) {
    return !columnsOf(schema, table).isEmpty();
}

QStringList RowCopy::columnsOf(const QString &schema, const QString &table) {
    return trailColumns(mStore, schema, table);
}

QString RowCopy::typesOf(const QString &schema, const QString &table) {
    return mStore.open("SELECT group_concat(type) FROM pragma_table_info(?, ?)", {table, schema})[0]
        .text();
}

qlonglong RowCopy::countOf(const QString &schema, const QString &table) {
    return mStore.open("SELECT count(*) FROM " + schema + '.' + quoted(table))[0]
        .value()
        .toLongLong();
}

/// 0 for a table that is not there.
qlonglong RowCopy::rowsInUse(const QString &table) {
    const auto known = mRowsInUse.constFind(table);
    if (known != mRowsInUse.constEnd())
        return *known;
    return mRowsInUse[table] = exists("Alt", table) ? countOf("Alt", table) : 0;
}

/// The columns that both have, as each writes them; empty when they have the same.
QString RowCopy::columnsFor(const QString &table) {
    const QStringList old = columnsOf("Alt", table);
    const QStringList fresh = columnsOf("main", table);
    if (old == fresh || old.isEmpty())
        return {};
    QStringList into, from;
    for (const QString &column : fresh) {
        const auto same = std::find_if(old.begin(), old.end(), [&](const QString &one) {
            return one.compare(column, Qt::CaseInsensitive) == 0;
        });
        if (same == old.end())
            continue;
        into += quoted(column);
        from += quoted(*same);
    }
    return '(' + into.join(", ") + ") SELECT " + from.join(", ");
}

void RowCopy::copy(const QString &table, const QString &into, const QString &select) {
    const qlonglong before = exists("main", table) ? countOf("main", table) : 0;
    mRecord.extra[table] = before;
    mState.table = table;
    mState.rows = rowsInUse(table);
    mState.done = mFinished;
    mSteps = 0;
    // The engine's steps for a row and for its entry in an index, when both are alike.
    mStepsARow =
        5 +
        4 * mStore.open("SELECT count(*) FROM pragma_index_list(?, 'main')", {table})[0].number();
    if (mGoesOn && !mGoesOn(mState))
        throw Fehler(fehlernummer::UserInterrupt, {"Abgebrochen.", "Cancelled."});
    const qlonglong rows = mState.rows;
    const auto counted = qScopeGuard([&] { mFinished += rows; });
    mStore.execute("INSERT INTO main." + quoted(table) + ' ' + into + ' ' + select + " FROM Alt." +
                   quoted(table));
    keepCounter(table);
}

void RowCopy::add(const QString &table) {
    const QString columns = columnsFor(table);
    copy(table, columns, columns.isEmpty() ? "SELECT *" : "");
    mMoved.removeAll(table);
    if (columns.isEmpty() && mRecord.extra[table] == 0 &&
        typesOf("Alt", table) == typesOf("main", table))
        mMoved += table;
}

void RowCopy::replace(const QString &table) {
    noteUncertainty(table);
    mStore.execute("SAVEPOINT Ersatz");
    try {
        mStore.execute("DELETE FROM main." + quoted(table));
        add(table);
    } catch (const Fehler &) { // the delivered rows are better than none
        if (mStore.inTransaction()) {
            mStore.execute("ROLLBACK TO Ersatz");
            mStore.execute("RELEASE Ersatz");
        }
        throw;
    }
    mStore.execute("RELEASE Ersatz");
}

/// A number that was given once is not given again, also when its row is gone.
void RowCopy::keepCounter(const QString &table) {
    if (!exists("Alt", "sqlite_sequence") || !exists("main", "sqlite_sequence"))
        return;
    mStore.execute("INSERT INTO main.sqlite_sequence (name, seq) SELECT name, 0 FROM "
                   "Alt.sqlite_sequence WHERE name = ?1 AND NOT EXISTS (SELECT 1 FROM "
                   "main.sqlite_sequence WHERE name = ?1)",
                   {table});
    mStore.execute("UPDATE main.sqlite_sequence SET seq = max(seq, ifnull((SELECT A.seq FROM "
                   "Alt.sqlite_sequence A WHERE A.name = ?1), 0)) WHERE name = ?1",
                   {table});
}

void RowCopy::noteUncertainty(const QString &table) {
    if (!table.startsWith("MU_") || !exists("Alt", table))
        return;
    const QString rows = "SELECT bis, MU FROM %1." + quoted(table);
    const auto beyond = [&](const char *one, const char *other) {
        return !mStore.open(rows.arg(one) + " EXCEPT " + rows.arg(other)).empty();
    };
    if (beyond("main", "Alt") || beyond("Alt", "main"))
        mRecord.otherUncertainties += table;
}

void RowCopy::addRecipeNamesOf203() {
    copy("Rezeptnamen", "(RezeptID, RezName, Toleranz, ToleranzID)",
         "SELECT RezeptID, RezName, "
         "iif(Toleranz = 'ohne Toleranz' COLLATE NOCASE, 'stationäre Trainingsgeräte', Toleranz), "
         "iif(Toleranz = 'medizinische Geräte' COLLATE NOCASE, 1, 2)");
}

bool RowCopy::addCalibration() {
    add("Normalkalibrierdaten");
    addDeliveredCalibration();
    mStore.execute("DELETE FROM main.Hebelarmkalibrierung");
    add("Hebelarmkalibrierung");
    mStore.execute("UPDATE main.Hebelarmkalibrierung SET NK_ID = "
                   "(SELECT MAX(NK_ID) FROM main.Normalkalibrierdaten)");
    mMoved.removeAll("Hebelarmkalibrierung");
    return rowsInUse("Normalkalibrierdaten") == 1;
}

void RowCopy::addDeliveredCalibration() {
    if (!exists("main", delivered))
        return;
    const Recordset fresh =
        mStore.open("SELECT kalibriertBis FROM main." + delivered + " ORDER BY rowid");
    Recordset old = mStore.open("SELECT NK_ID, kalibriertBis FROM Alt.Normalkalibrierdaten "
                                "ORDER BY NK_ID");
    old.moveLast();
    if (fresh.empty() || (!old.empty() && datumAus(old[1].text()) == datumAus(fresh[0].text())))
        return;
    const QString columns =
        "SerienNr, Normal, kalibriertVon, kalibriertBis, KalScheinNr, Offset, Gain_R, Gain_L, "
        "VK1_R, VK1_L, HebelarmNr, GrenzwStreubreite, AnzahlStreu";
    mMoved.removeAll("Normalkalibrierdaten");
    mRecord.extra["Normalkalibrierdaten"] +=
        mStore.execute("INSERT INTO main.Normalkalibrierdaten (" + columns + ") SELECT " + columns +
                       " FROM main." + delivered + " ORDER BY rowid");
}

qlonglong RowCopy::standOf(const char *schema) {
    return mStore.open(QString("PRAGMA %1.user_version").arg(schema))[0].value().toLongLong();
}

/// The links move as they stand; tables that are what they were go on with them, of others the
/// state becomes a link. A database that never had a trail gets it when it is opened.
void RowCopy::layTrail() {
    const QString trail = "Nachweis";
    const bool kept = exists("Alt", trail);
    if (!kept && standOf("Alt") < datenbankStand)
        return;
    if (!exists("main", trail)) {
        Recordset parts = mStore.open("SELECT sql FROM Alt.sqlite_master WHERE tbl_name = ? AND "
                                      "type IN ('table', 'index') ORDER BY type DESC",
                                      {trail});
        for (; !parts.atEnd(); parts.moveNext())
            mStore.execute(parts[0].text());
    }
    if (kept)
        replace(trail);
    TrailPause pause(mStore, "Alt");
    pause.resume(mMoved);
    const int added = pause.end("Update");
    if (kept)
        mRecord.extra[trail] += added;
}

CopyRecord RowCopy::finish() {
    mStore.execute("DROP TABLE main.ToDo");
    mStore.execute("DROP TABLE IF EXISTS main." + delivered);
    for (const QString &trigger : mTriggers)
        mStore.execute(trigger);
    layTrail();
    // What an older database never kept is filled in when this one is opened.
    if (standOf("Alt") < standOf("main"))
        mStore.execute(QString("PRAGMA main.user_version = %1").arg(standOf("Alt")));
    mStore.execute("COMMIT");
    mStore.close();
    return mRecord;
}
