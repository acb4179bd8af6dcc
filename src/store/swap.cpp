#include "store/swap.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include "platform/files.h"
#include "store/database.h"
#include "store/databasecopy.h"
#include "store/references.h"

using namespace platform;

namespace {

/// Cleared before each use, or of the moment.
bool isStaging(const QString &table) {
    return table.startsWith("Bericht") || table.startsWith("EP_Bericht") ||
           table == "ÄndRez_temp" || table == "Sitzung";
}

class Check {
  public:
    Check(const QString &used, const QString &filled) {
        mStore.openFile(filled);
        mStore.execute("ATTACH ? AS Alt", {used});
    }

    std::vector<Text> run(const CopyRecord &record) {
        const QString sound = mStore.open("PRAGMA main.integrity_check(1)")[0].text();
        if (sound != "ok") {
            found({"Die neue Datenbank ist beschädigt: " + sound,
                   "The new database is damaged: " + sound});
            return mFound;
        }
        for (const QString &table : tables()) {
            if (record.extra.contains(table))
                copied(table, record.extra[table]);
            else if (!isStaging(table))
                leftBehind(table);
        }
        for (const Reference &reference : references)
            referring(reference);
        return mFound;
    }

  private:
    void found(const Text &text) { mFound.push_back(text); }
    qlonglong number(const QString &sql) { return mStore.open(sql)[0].value().toLongLong(); }
    qlonglong countOf(const QString &schema, const QString &table) {
        return hasColumn(schema, table, {})
                   ? number("SELECT count(*) FROM " + schema + ".\"" + table + '"')
                   : 0;
    }
    /// Any one, for an empty name.
    bool hasColumn(const QString &schema, const QString &table, const QString &column) {
        return !mStore
                    .open("SELECT 1 FROM pragma_table_info(?1, ?2) WHERE ?3 IN ('', name)",
                          {table, schema, column.isNull() ? "" : column})
                    .empty();
    }
    QStringList tables() {
        QStringList names;
        Recordset rows = mStore.open("SELECT name FROM Alt.sqlite_master WHERE type = 'table' AND "
                                     "name NOT LIKE 'sqlite%'");
        for (; !rows.atEnd(); rows.moveNext())
            names += rows[0].text();
        return names;
    }

    void copied(const QString &table, qlonglong extra) {
        const qlonglong wanted = countOf("Alt", table) + extra;
        const qlonglong there = countOf("main", table);
        const bool goesOn = table == "Nachweis" && there > wanted; // with a change of the new file
        if (wanted != there && !goesOn) {
            const QString numbers = table + ": " + QString::number(there);
            found({numbers + QString(" statt %1 Zeilen").arg(wanted),
                   numbers + QString(" instead of %1 rows").arg(wanted)});
        }
        Recordset lost = mStore.open("SELECT A.name FROM pragma_table_info(?1, 'Alt') A LEFT JOIN "
                                     "pragma_table_info(?1, 'main') M ON M.name = A.name "
                                     "COLLATE NOCASE WHERE M.name IS NULL",
                                     {table});
        for (; !lost.atEnd(); lost.moveNext()) {
            const QString column = lost[0].text();
            if (!mStore
                     .open("SELECT 1 FROM Alt.\"" + table + "\" WHERE \"" + column +
                           "\" IS NOT NULL LIMIT 1")
                     .empty())
                found({table + '.' + column + ": Spalte ohne Gegenstück",
                       table + '.' + column + ": column without a counterpart"});
        }
    }

    void leftBehind(const QString &table) {
        const qlonglong rows = countOf("Alt", table);
        if (rows > 0 && countOf("main", table) == 0) {
            found({table + QString(": %1 Zeilen werden nicht übernommen").arg(rows),
                   table + QString(": %1 rows are not taken over").arg(rows)});
        }
    }

    qlonglong toNothing(const QString &schema, const Reference &to) {
        if (!hasColumn(schema, to.table, to.column))
            return 0;
        const QString refers = QString("SELECT count(*) FROM %1.\"%2\" WHERE \"%3\" <> 0")
                                   .arg(schema, to.table, to.column);
        if (!hasColumn(schema, to.target, to.key))
            return number(refers);
        return number(refers + QString(" AND \"%1\" NOT IN (SELECT \"%2\" FROM %3.\"%4\")")
                                   .arg(to.column, to.key, schema, to.target));
    }
    void referring(const Reference &reference) {
        const qlonglong lost = toNothing("main", reference);
        if (lost > 0 && lost > toNothing("Alt", reference)) {
            const QString name = QString("%1.%2: ").arg(reference.table, reference.column);
            found({name + QString("%1 Verweise ins Leere").arg(lost),
                   name + QString("%1 references to nothing").arg(lost)});
        }
    }

    Datenbank mStore;
    std::vector<Text> mFound;
};

/// A journal beside a name belongs to the file that lay there before, and would be rolled back into
/// the one that lies there then.
void refuseJournals() {
    for (const QString name : {datenbankName, gefüllteDatenbank}) {
        for (const char *suffix : {"-journal", "-wal"}) {
            if (QFileInfo::exists(name + suffix)) {
                throw Fehler(fehlernummer::PathAccess,
                             {"Neben " + name + " liegt noch ein Journal.",
                              "There is a journal beside " + name + " still."});
            }
        }
    }
}

} // namespace

std::vector<Text> checkFilled(const QString &used, const QString &filled,
                              const CopyRecord &record) {
    return Check(used, filled).run(record);
}

void swapDatabase(bool delivered) {
    refuseJournals();
    removeFile(abgelösteDatenbank);
    if (!linkFile(datenbankName, abgelösteDatenbank))
        copyDatabase(datenbankName, abgelösteDatenbank);
    // Whoever could read or write the old one can the new one.
    QFile::setPermissions(gefüllteDatenbank, QFile::permissions(datenbankName));
    try {
        syncFolder(".");
        moveFile(gefüllteDatenbank, datenbankName);
    } catch (const Fehler &) {
        clearLeftovers();
        throw;
    }
    try {
        syncFolder(".");
        removeFile(abgelösteDatenbank);
        if (delivered)
            removeFile(gelieferteDatenbank);
    } catch (const Fehler &fehler) {
        throw Fehler(fehlernummer::PermissionDenied,
                     {"Die neue Datenbank ist in Kraft. " + fehler.text().german,
                      "The new database is in force. " + fehler.text().english});
    }
}

void recoverDatabaseName() {
    if (QFileInfo::exists(datenbankName) || !QFileInfo::exists(abgelösteDatenbank))
        return;
    try {
        moveFile(abgelösteDatenbank, datenbankName);
    } catch (const Fehler &) { // opening it tells
    }
}

void clearLeftovers() {
    QStringList files = QDir().entryList({"torvena470_*.mdb.part*", "ToDelete.mdb.part*"});
    files += abgelösteDatenbank;
    for (const QString &file : files) {
        try {
            removeFile(file);
        } catch (const Fehler &) {
        }
    }
}
