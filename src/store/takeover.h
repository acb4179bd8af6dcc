// Takes the rows of a Jet file over into a new database.
#pragma once

#include <QString>
#include <QStringList>

#include <vector>

struct TakeOver {
    struct Table {
        QString name;
        qlonglong rows = 0;
    };
    /// A value that the column cannot hold, or a date that the file does not really tell.
    struct Value {
        QString table;
        QString row; ///< first column and its value
        QString column, value;
        bool key = false; ///< by which rows find each other: never left empty
    };
    struct Orphans {
        QString table, column, target;
        qlonglong rows = 0;
        QStringList keys; ///< of what is not there, the first ones
    };

    std::vector<Table> taken;
    QStringList asDelivered;   ///< tables that the file lacks
    QStringList left;          ///< tables of the file that have no place here
    QStringList lackedColumns; ///< "Table.Column" that the file lacks: left empty
    QStringList leftColumns;   ///< "Table.Column" with values, which has no place here
    std::vector<Value> refused;
    std::vector<Orphans> orphans; ///< rows that are there and refer to nothing
    bool done = false;            ///< the database is there
};

/// Makes the database at `path`, under which there is none yet, with the rows of the file: all, or
/// there is no database. Refused values undo all, and only the report comes; with `unreadableEmpty`
/// they are left empty, but for keys. Raises as JetFile and legeDatenbankAn(), PermissionDenied for
/// a database or a journal that is there, DuplicateKey for twins, MissingTable and MissingColumn
/// for a file of another program.
TakeOver takeOver(const QString &jetFile, const QString &path, bool unreadableEmpty);
