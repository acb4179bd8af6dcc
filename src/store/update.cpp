// Brings a database of an older build up to date, by comparison with a new one.
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <algorithm>

#include "platform/clock.h"
#include "store/database.h"
#include "store/scripts.h"
#include "store/trail.h"

using namespace platform;

namespace {

// Cleared and filled by position from a view before each print.
const QStringList stagingTables{"Bericht1", "Bericht2", "Bericht3", "Bericht4", "EP_Bericht5"};

// Others have all that they had, and more.
const QStringList supersededIndexes{"ErgometerKundenID", "ProtokollKundenID", "ProtokollGerätID",
                                    "Protokoll_tempKundenID", "Protokoll_tempGerätID"};

// Rows move between them by position.
const std::pair<const char *, const char *> pairs[] = {
    {"Protokoll_temp", "Protokoll"}, {"Messwerte_temp", "Messwerte"},
    {"Blutdruck_temp", "Blutdruck"}, {"SecControl_temp", "SecControl"},
    {"ÄndRez_temp", "Rezepte"},      {"ÄndRez_temp", "EP_Rezepte"},
};

/// What the script says of a column behind its name; it gives each column a line of its own.
QString definitionOf(const QString &column, const QString &createTable) {
    const QRegularExpression line("^\\s*" + QRegularExpression::escape(column) +
                                      "\\s+(.*?)\\s*,?\\s*(--.*)?$",
                                  QRegularExpression::MultilineOption);
    return line.match(createTable).captured(1);
}

bool same(const QStringList &some, const QStringList &others) {
    return some.join('|').compare(others.join('|'), Qt::CaseInsensitive) == 0;
}

class Update {
  public:
    Update(Datenbank &store, const QString &model) : mStore(store) {
        mStore.execute("ATTACH ? AS Model", {model});
    }

    void run() {
        TrailPause trail(mStore);
        dropAll("view");
        dropAll("trigger");
        forEach("table", [this](const QString &name, const QString &sql) { table(name, sql); });
        for (const auto &[from, to] : pairs) {
            if (!same(columnsOf("main", from), columnsOf("main", to)))
                throw outOfOrder(to);
        }
        for (const QString &index : supersededIndexes)
            mStore.execute("DROP INDEX IF EXISTS main." + index);
        for (const char *type : {"index", "view", "trigger"}) {
            forEach(type, [&](const QString &name, const QString &sql) {
                if (!exists(type, name))
                    mStore.execute(sql);
            });
        }
        trail.resume();
        fillIn();
        trail.end(QString("Auf Stand %1 gebracht").arg(datenbankStand));
        mStore.execute(QString("PRAGMA main.user_version = %1").arg(datenbankStand));
    }

  private:
    template <class Action>
    void forEach(const QString &type, Action action) {
        Recordset things = mStore.open("SELECT name, sql FROM Model.sqlite_master WHERE type = ? "
                                       "AND name NOT LIKE 'sqlite%' AND sql IS NOT NULL",
                                       {type});
        for (; !things.atEnd(); things.moveNext())
            action(things[0].text(), things[1].text());
    }
    bool exists(const QString &type, const QString &name) {
        return !mStore
                    .open("SELECT 1 FROM main.sqlite_master WHERE type = ? AND name = ?",
                          {type, name})
                    .empty();
    }
    QStringList columnsOf(const QString &schema, const QString &name) {
        QStringList columns;
        Recordset rows = mStore.open("SELECT name FROM pragma_table_info(?, ?)", {name, schema});
        for (; !rows.atEnd(); rows.moveNext())
            columns += rows[0].text();
        return columns;
    }
    void dropAll(const QString &type) {
        forEach(type, [&](const QString &name, const QString &) {
            mStore.execute("DROP " + type + " IF EXISTS main.\"" + name + '"');
        });
    }

    void table(const QString &name, const QString &sql) {
        const QStringList wanted = columnsOf("Model", name);
        QStringList present = columnsOf("main", name);
        if (stagingTables.contains(name) && !present.isEmpty() && !same(present, wanted)) {
            mStore.execute("DROP TABLE main.\"" + name + '"');
            present.clear();
        }
        if (present.isEmpty()) {
            mStore.execute(sql);
            mStore.execute("INSERT INTO main.\"" + name + "\" SELECT * FROM Model.\"" + name + '"');
            return;
        }
        for (const QString &column : wanted) {
            if (present.contains(column, Qt::CaseInsensitive))
                continue;
            mStore.execute("ALTER TABLE main.\"" + name + "\" ADD COLUMN \"" + column + "\" " +
                           definitionOf(column, sql));
            present += column;
        }
        const bool paired = std::any_of(std::begin(pairs), std::end(pairs), [&](const auto &pair) {
            return name == pair.first || name == pair.second;
        });
        if (!paired && !same(present.mid(0, wanted.size()), wanted))
            throw outOfOrder(name);
    }

    /// What protocols of older builds lack of what is kept with them: the triggers know it.
    void fillIn() {
        for (const char *temp : {"_temp", ""}) {
            mStore.execute(QString("UPDATE Protokoll%1 SET PrüfungsArt = PrüfungsArt "
                                   "WHERE Spezifikation IS NULL")
                               .arg(temp));
            mStore.execute(
                QString("UPDATE Messwerte%1 SET Soll_P = Soll_P WHERE ZulAbw IS NULL").arg(temp));
        }
        mStore.execute("UPDATE Protokoll SET KundenID = KundenID "
                       "WHERE Kunde IS NULL AND IdentNr IS NULL"); // one of them is kept always
    }

    static Fehler outOfOrder(const QString &name) {
        return {fehlernummer::StatementFailed,
                {"Die Spalten der Tabelle " + name + " stehen in einer anderen Reihenfolge.",
                 "The columns of the table " + name + " stand in another order."}};
    }

    Datenbank &mStore;
};

} // namespace

void bringeDatenbankAufStand(const QString &path) {
    const QTemporaryDir directory;
    const QString model = directory.filePath("model.mdb");
    Datenbank::createFile(model, databaseScripts(false));
    Datenbank store;
    store.openFile(path);
    if (store.open("PRAGMA quick_check(1)")[0].text() != "ok") {
        throw Fehler(fehlernummer::DatabaseDamaged,
                     {"Die Datenbank ist beschädigt. Bitte spielen Sie eine Sicherungskopie ein.",
                      "The database is damaged. Please restore a safety copy."});
    }
    store.open("SELECT Version FROM System"); // the mark of a current database
    Update update(store, model);
    store.together([&] { update.run(); });
}

bool datenbankVeraltet(Datenbank &datenbank) {
    return datenbank.open("PRAGMA user_version")[0].whole() < datenbankStand;
}

QString sichereUndBringeAufStand(const QString &path) {
    const QFileInfo file(path);
    const QString copy = file.completeBaseName() + "_vor_" + now().toString("yyyy-MM-dd_HH-mm-ss") +
                         '.' + file.suffix();
    const QString target = file.dir().filePath(copy);
    if (!QFile::copy(path, target)) {
        throw Fehler(fehlernummer::PermissionDenied,
                     {"Die Sicherungskopie " + copy + " kann nicht angelegt werden.",
                      "The safety copy " + copy + " cannot be written."});
    }
    try {
        bringeDatenbankAufStand(path);
    } catch (...) {
        QFile::remove(target);
        throw;
    }
    return copy;
}
