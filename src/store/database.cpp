#include "store/database.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QScopeGuard>

#include <SQLiteCpp/Backup.h>
#include <SQLiteCpp/SQLiteCpp.h>
#include <fcntl.h>
#include <sqlite3.h>
#include <unistd.h>

#include "platform/runtime.h"
#include "store/sqltext.h"
#include "store/trail.h"

using namespace platform;

Datenbank gDatenbank;

namespace {

constexpr int busyMilliseconds = 400; // long enough for a backup tool, short enough for a person

Fehler fehlerOf(const SQLite::Exception &problem) {
    const QString words = QString::fromUtf8(problem.what());
    switch (problem.getErrorCode()) {
    case SQLITE_CANTOPEN:
        return {fehlernummer::DatabaseNotFound,
                {"Die Datenbank oder ihre Begleitdatei kann nicht geöffnet werden. Bitte prüfen "
                 "Sie, ob sie im Arbeitsverzeichnis liegt und beschreibbar ist.",
                 "The database or its journal cannot be opened. Please check that it lies in the "
                 "working directory and can be written."}};
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
        return {fehlernummer::DatabaseLocked,
                {"Die Datenbank ist von einem anderen Programm gesperrt. Bitte schließen Sie es.",
                 "The database is locked by another program. Please close it."}};
    case SQLITE_READONLY:
        return {fehlernummer::ReadOnly,
                {"Die Datenbank ist schreibgeschützt. Es wurde nichts gespeichert.",
                 "The database is read-only. Nothing has been saved."}};
    case SQLITE_NOTADB:
    case SQLITE_CORRUPT:
        return {fehlernummer::DatabaseDamaged,
                {"Die Datenbank ist beschädigt. Bitte spielen Sie eine Sicherungskopie ein.",
                 "The database is damaged. Please restore a safety copy."}};
    case SQLITE_CONSTRAINT:
        return {fehlernummer::DuplicateKey,
                {"Der Datensatz verletzt einen Schlüssel: " + words,
                 "The record violates a key: " + words}};
    case SQLITE_INTERRUPT:
        return {fehlernummer::UserInterrupt, {"Abgebrochen.", "Cancelled."}};
    default:
        break;
    }
    if (words.startsWith("no such table"))
        return {fehlernummer::MissingTable,
                {"Die Tabelle wurde nicht gefunden: " + words, "Table not found: " + words}};
    if (words.startsWith("no such column") || words.contains("has no column named"))
        return {fehlernummer::MissingColumn,
                {"Die Spalte wurde nicht gefunden: " + words, "Column not found: " + words}};
    return {fehlernummer::StatementFailed,
            {"Die Anweisung ist fehlgeschlagen: " + words, "The statement failed: " + words}};
}

template <class Body>
auto translated(Body body) {
    try {
        return body();
    } catch (const SQLite::Exception &problem) {
        throw fehlerOf(problem);
    }
}

/// As the tables write it: yes is -1, times are text that sorts, in local time.
QVariant stored(const QVariant &value) {
    switch (value.typeId()) {
    case QMetaType::Bool:
        return value.toBool() ? -1 : 0;
    case QMetaType::QDate:
        return value.toDate().isValid() ? value.toDate().toString(Qt::ISODate) : QVariant();
    case QMetaType::QTime:
        return value.toTime().isValid() ? value.toTime().toString("HH:mm:ss.zzz") : QVariant();
    case QMetaType::QDateTime: {
        const QDateTime time = value.toDateTime().toLocalTime();
        return time.isValid() ? time.toString("yyyy-MM-dd HH:mm:ss.zzz") : QVariant();
    }
    default:
        return value;
    }
}

void bind(SQLite::Statement &statement, int index, const QVariant &given) {
    const QVariant value = stored(given);
    if (value.isNull())
        statement.bind(index);
    else if (value.typeId() == QMetaType::Double || value.typeId() == QMetaType::Float)
        statement.bind(index, value.toDouble());
    else if (value.canConvert<qlonglong>() && value.typeId() != QMetaType::QString)
        statement.bind(index, static_cast<int64_t>(value.toLongLong()));
    else
        statement.bind(index, value.toString().toStdString());
}

void bind(sqlite3_stmt *statement, int index, const QVariant &given) {
    const QVariant value = stored(given);
    if (value.isNull()) {
        sqlite3_bind_null(statement, index);
    } else if (value.typeId() == QMetaType::Double || value.typeId() == QMetaType::Float) {
        sqlite3_bind_double(statement, index, value.toDouble());
    } else if (value.canConvert<qlonglong>() && value.typeId() != QMetaType::QString) {
        sqlite3_bind_int64(statement, index, value.toLongLong());
    } else {
        const QByteArray text = value.toString().toUtf8();
        sqlite3_bind_text(statement, index, text.constData(), static_cast<int>(text.size()),
                          SQLITE_TRANSIENT);
    }
}

QVariant valueOf(const SQLite::Column &column) {
    if (column.isNull())
        return {};
    if (column.isInteger())
        return QVariant::fromValue<qlonglong>(column.getInt64());
    if (column.isFloat())
        return column.getDouble();
    return QString::fromStdString(column.getString());
}

QString textOf(sqlite3_value *value) {
    const auto *bytes = reinterpret_cast<const char *>(sqlite3_value_text(value));
    return QString::fromUtf8(bytes, sqlite3_value_bytes(value));
}

/// Puts on disk what was written to an unfinished copy, so that a slow one is waited for between
/// the parts and not at the end, where nobody is asked. The engine's locks on it go: nobody else
/// knows the file. What fails fails again when the engine does it.
void flush(const QString &copy) {
    const int opened = ::open(QFile::encodeName(copy).constData(), O_RDONLY | O_CLOEXEC);
    if (opened < 0)
        return;
    ::fdatasync(opened);
    ::close(opened);
}

} // namespace

bool Row::isNull(int column) const {
    return sqlite3_column_type(mStatement, column) == SQLITE_NULL;
}

qlonglong Row::whole(int column) const {
    return sqlite3_column_int64(mStatement, column);
}

double Row::number(int column) const {
    return sqlite3_column_double(mStatement, column);
}

bool Row::isNumber(int column) const {
    const int type = sqlite3_column_type(mStatement, column);
    return type == SQLITE_INTEGER || type == SQLITE_FLOAT;
}

std::string_view Row::bytes(int column) const {
    const auto *text = reinterpret_cast<const char *>(sqlite3_column_text(mStatement, column));
    if (!text)
        return {"", 0};
    return {text, static_cast<size_t>(sqlite3_column_bytes(mStatement, column))};
}

QString Row::text(int column) const {
    const std::string_view text = bytes(column);
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

Query::Query(Datenbank &database, const QString &sql) {
    translated([&] {
        sqlite3 *handle = database.database().getHandle();
        const QByteArray text = sql.toUtf8();
        if (const int came = sqlite3_prepare_v2(
                handle, text.constData(), static_cast<int>(text.size()), &mStatement, nullptr))
            throw SQLite::Exception(handle, came);
    });
}

Query::~Query() {
    sqlite3_finalize(mStatement);
}

void Query::each(const Datenbank::Params &params, const std::function<void(const Row &)> &row) {
    translated([&] {
        const auto rest = qScopeGuard([this] { sqlite3_reset(mStatement); });
        for (size_t i = 0; i < params.size(); ++i)
            bind(mStatement, static_cast<int>(i) + 1, params[i]);
        int came = SQLITE_ROW;
        while ((came = sqlite3_step(mStatement)) == SQLITE_ROW)
            row(Row(mStatement));
        if (came != SQLITE_DONE)
            throw SQLite::Exception(sqlite3_db_handle(mStatement), came);
    });
}

Datenbank::Datenbank() = default;
Datenbank::~Datenbank() = default;

void Datenbank::openFile(const QString &path) {
    close();
    if (!QFileInfo::exists(path)) {
        throw Fehler(fehlernummer::DatabaseNotFound,
                     {"Die Datei \"" + path + "\" wurde im Arbeitsverzeichnis nicht gefunden.",
                      "The file \"" + path + "\" was not found in the working directory."});
    }
    translated([&] {
        auto database = std::make_unique<SQLite::Database>(
            path.toStdString(), SQLite::OPEN_READWRITE, busyMilliseconds);
        database->exec("PRAGMA synchronous=FULL");
        // Reads, so that a damaged file tells now. One without tables was cut off to nothing.
        if (database->execAndGet("SELECT count(*) FROM sqlite_master").getInt() == 0)
            throw SQLite::Exception("no tables", SQLITE_CORRUPT);
        database->exec("PRAGMA cache_size=-32768");    // KiB; the tables of a search stay in it
        database->exec("PRAGMA journal_mode=DELETE");  // a copy of the file holds all data
        database->exec("PRAGMA recursive_triggers=1"); // a row that is replaced is a deleted one
        mDatabase = std::move(database);
        registerFunctions();
    });
}

void Datenbank::createFile(const QString &path, const std::vector<QString> &scripts) {
    translated([&] {
        SQLite::Database database(path.toStdString(), SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE);
        SQLite::Transaction whole(database);
        for (const QString &script : scripts)
            database.exec(script.toStdString());
        whole.commit();
    });
}

void Datenbank::copyFile(const QString &from, const QString &to, const CopyProgress &goesOn) {
    translated([&] {
        constexpr int pages = 500; // of 4 KB
        // For writing, so that what a stopped process left is rolled back; where it cannot be
        // written it is read all the same.
        SQLite::Database source(from.toStdString(), SQLite::OPEN_READWRITE, busyMilliseconds);
        source.execAndGet("SELECT count(*) FROM sqlite_master"); // a file of another kind tells now
        SQLite::Database target(to.toStdString(), SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE);
        SQLite::Backup backup(target, source);
        const auto ask = [&] {
            const int total = backup.getTotalPageCount(); // 0 before the first step
            if (goesOn && !goesOn(total - backup.getRemainingPageCount(), total))
                throw SQLite::Exception("cancelled", SQLITE_INTERRUPT);
        };
        constexpr int flushed = 8; // parts, 16 MB
        for (int came = SQLITE_OK, part = 1; came != SQLITE_DONE; ++part) {
            ask();
            came = backup.executeStep(pages);
            if (part % flushed == 0)
                flush(to);
            if (came == SQLITE_BUSY || came == SQLITE_LOCKED)
                throw SQLite::Exception("locked", came);
        }
        ask(); // what is done with a whole copy may take as long again
    });
}

QString Datenbank::damageIn(const QString &path) {
    try {
        SQLite::Database database(path.toStdString(), SQLite::OPEN_READWRITE, busyMilliseconds);
        if (database.execAndGet("SELECT count(*) FROM sqlite_master").getInt() == 0)
            return "no tables";
        const std::string found = database.execAndGet("PRAGMA quick_check(1)").getString();
        return found == "ok" ? QString() : QString::fromStdString(found);
    } catch (const SQLite::Exception &problem) {
        switch (problem.getErrorCode()) {
        case SQLITE_BUSY:
        case SQLITE_LOCKED:
        case SQLITE_CANTOPEN:
        case SQLITE_READONLY:
        case SQLITE_PERM:
        case SQLITE_NOMEM:
            throw fehlerOf(problem);
        default:
            return QString::fromUtf8(problem.what());
        }
    }
}

bool fnc_DateiGeöffnet(const QString &path) {
    if (!QFileInfo::exists(path)) {
        throw Fehler(fehlernummer::FileNotFound, {"Die Datei " + path + " wurde nicht gefunden.",
                                                  "The file " + path + " was not found."});
    }
    if (const QFileInfo file(path); !file.isReadable() || !file.isWritable())
        return true;
    return translated([&] {
        SQLite::Database database(path.toStdString(), SQLite::OPEN_READWRITE);
        const int came = database.tryExec("BEGIN EXCLUSIVE; ROLLBACK");
        if (came != SQLITE_OK && came != SQLITE_BUSY)
            throw SQLite::Exception(database.getHandle(), came);
        return came == SQLITE_BUSY;
    });
}

void Datenbank::close() {
    mKept.clear();
    mDatabase.reset();
}

void Datenbank::registerFunctions() {
    addTrailFunctions(*mDatabase);
    const auto add = [this](const char *name, int arguments, auto function) {
        mDatabase->createFunction(name, arguments, true, nullptr, function, nullptr, nullptr,
                                  nullptr);
    };
    add("Val", 1, [](sqlite3_context *context, int, sqlite3_value **values) {
        sqlite3_result_double(context, Val(textOf(values[0])));
    });
    add("Muster", 2, [](sqlite3_context *context, int, sqlite3_value **values) {
        sqlite3_result_int(context, passtZumMuster(textOf(values[0]), textOf(values[1])));
    });
    add("Gleich", 2, [](sqlite3_context *context, int, sqlite3_value **values) {
        const bool same = textOf(values[0]).compare(textOf(values[1]), Qt::CaseInsensitive) == 0;
        sqlite3_result_int(context, same);
    });
    add("CStr", 1, [](sqlite3_context *context, int, sqlite3_value **values) {
        if (sqlite3_value_type(values[0]) == SQLITE_NULL)
            return; // stays Null
        const QByteArray text = CStr(sqlite3_value_double(values[0])).toUtf8();
        sqlite3_result_text(context, text.constData(), static_cast<int>(text.size()),
                            SQLITE_TRANSIENT);
    });
}

SQLite::Database &Datenbank::database() {
    if (!mDatabase) {
        throw Fehler(fehlernummer::DatabaseNotOpen,
                     {"Die Datenbank ist nicht geöffnet.", "The database is not open."});
    }
    return *mDatabase;
}

SQLite::Statement Datenbank::prepare(const QString &sql, const Params &params) {
    SQLite::Statement statement(database(), sql.toStdString());
    for (size_t i = 0; i < params.size(); ++i)
        bind(statement, static_cast<int>(i) + 1, params[i]);
    return statement;
}

Recordset Datenbank::open(const QString &sql, const Params &params) {
    return translated([&] {
        SQLite::Statement statement = prepare(sql, params);
        QStringList columns;
        for (int i = 0; i < statement.getColumnCount(); ++i)
            columns += QString::fromUtf8(statement.getColumnName(i));
        std::vector<std::vector<QVariant>> rows;
        while (statement.executeStep()) {
            std::vector<QVariant> row;
            row.reserve(static_cast<size_t>(columns.size()));
            for (int i = 0; i < columns.size(); ++i)
                row.push_back(valueOf(statement.getColumn(i)));
            rows.push_back(std::move(row));
        }
        return Recordset(std::move(columns), std::move(rows));
    });
}

void Datenbank::each(const QString &sql, const Params &params,
                     const std::function<void(const Row &)> &row) {
    Query(*this, sql).each(params, row);
}

void Datenbank::snapshot(const std::function<void()> &statements) {
    execute("BEGIN");
    const auto end = qScopeGuard([this] {
        if (mDatabase)
            mDatabase->tryExec("COMMIT"); // nothing was written
    });
    statements();
}

/// With all the triggers behind it a change of a row takes as long to prepare as to run.
SQLite::Statement &Datenbank::kept(const QString &sql) {
    constexpr size_t enough = 64;
    const auto there = mKept.find(sql);
    if (there != mKept.end())
        return there->second;
    SQLite::Statement statement(database(), sql.toStdString());
    if (mKept.size() >= enough)
        mKept.clear();
    return mKept.emplace(sql, std::move(statement)).first->second;
}

int Datenbank::execute(const QString &sql, const Params &params) {
    const bool change =
        sql.startsWith("INSERT") || sql.startsWith("UPDATE") || sql.startsWith("DELETE");
    return translated([&] {
        if (!change)
            return prepare(sql, params).exec();
        SQLite::Statement &statement = kept(sql);
        const auto rest = qScopeGuard([&] {
            statement.tryReset();
            statement.clearBindings();
        });
        for (size_t i = 0; i < params.size(); ++i)
            bind(statement, static_cast<int>(i) + 1, params[i]);
        return statement.exec();
    });
}

void Datenbank::run(const QString &script) {
    translated([&] { database().exec(script.toStdString()); });
}

qlonglong Datenbank::insert(const QString &sql, const Params &params) {
    execute(sql, params);
    return database().getLastInsertRowid();
}

void Datenbank::together(const std::function<void()> &statements) {
    execute("BEGIN IMMEDIATE");
    auto undo = qScopeGuard([this] {
        if (mDatabase)
            mDatabase->tryExec("ROLLBACK"); // also what a reader kept from being committed
    });
    statements();
    execute("COMMIT");
    undo.dismiss();
}

bool Datenbank::inTransaction() {
    return sqlite3_get_autocommit(database().getHandle()) == 0;
}

void Datenbank::watch(std::function<bool(int)> goesOn) {
    constexpr int steps = 20'000; // well below a millisecond
    mGoesOn = std::move(goesOn);
    const auto asked = [](void *self) {
        return static_cast<Datenbank *>(self)->mGoesOn(steps) ? 0 : 1;
    };
    sqlite3_progress_handler(database().getHandle(), mGoesOn ? steps : 0,
                             mGoesOn ? +asked : nullptr, this);
}

quint32 Datenbank::changeMark() {
    open("SELECT 1 FROM sqlite_master"); // looks at the file
    quint32 mark = 0;
    sqlite3_file_control(database().getHandle(), "main", SQLITE_FCNTL_DATA_VERSION, &mark);
    return mark;
}
