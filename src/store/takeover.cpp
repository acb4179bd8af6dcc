#include "store/takeover.h"

#include <QDate>
#include <QFileInfo>
#include <QRegularExpression>

#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>

#include "platform/fehler.h"
#include "store/database.h"
#include "store/jet.h"
#include "store/references.h"
#include "store/scripts.h"
#include "store/sqltext.h"

using namespace platform;

namespace {

/// What the file must have. An older one has neither specifications nor sheets.
enum class Need { Always, SinceSpecifications, Never };

struct Known {
    const char *name;
    Need need;
    int byPosition = 0;        ///< so many columns are known by position, whatever their names
    const char *own = nullptr; ///< from this column on this program's own: no file has them
};
// In the order in which rows refer to those before them: what is kept with a protocol comes from
// there.
constexpr Known known[] = {
    {"System", Need::SinceSpecifications, 9, "Endprüfung"},
    {"Interface", Need::Always, 2},
    {"SecondInterface", Need::Never, 2},
    {"MU_Leistung", Need::Never, 3},
    {"MU_Drehzahl", Need::Never, 3},
    {"Normalkalibrierdaten", Need::Always, 14},
    {"Hebelarmkalibrierung", Need::Always, 8},
    {"Toleranzen", Need::SinceSpecifications},
    {"Kunden", Need::Always},
    {"Ergometer", Need::Always},
    {"Rezeptnamen", Need::Always},
    {"Rezepte", Need::Always},
    {"EP_Rezeptnamen", Need::Never},
    {"EP_Rezepte", Need::Never},
    {"EP", Need::Never, 0, "Rezept"},
    {"EP_Messwerte", Need::Never, 0, "Klasse"},
    {"Protokoll", Need::Always, 0, "Spezifikation"},
    {"Protokoll_temp", Need::SinceSpecifications, 0, "Spezifikation"},
    {"Messwerte", Need::SinceSpecifications, 0, "ZulAbw"},
    {"Messwerte_temp", Need::SinceSpecifications, 0, "ZulAbw"},
    {"SecControl", Need::SinceSpecifications},
    {"SecControl_temp", Need::SinceSpecifications},
    {"Blutdruck", Need::SinceSpecifications},
    {"Blutdruck_temp", Need::SinceSpecifications},
};

// Others are texts in the file, too, or numbers.
const QStringList dateColumns{"ErstellDatum", "kalibriertVon", "kalibriertBis"}; // without a time
const QStringList timeColumns{"Prüfdatum", "MDat"};
const QStringList dated{
    "Protokoll", "Protokoll_temp", "Normalkalibrierdaten", "Hebelarmkalibrierung",
    "Messwerte", "Messwerte_temp"};
const QStringList yesNoColumns{"LetzterAufruf", "Endprüfung"};
// Doubles in the file; other numbers with decimals may be singles.
const QStringList doubles{"Normalkalibrierdaten", "System"};
// Keys that a file may lack: what they tell is filled in, or is empty.
const QStringList dispensable{"ToleranzID", "NK_ID", "PrüfungsArt"};
// Keys of the row that another one is a part of. The other keys may be 0 or empty on purpose.
const QStringList belonging{"ProtokollID", "RezeptID"};

constexpr int firstYear = 1950, lastYear = 2150; // of a date that a stand can have
constexpr int doubleDigits = 15, singleDigits = 7;
constexpr int toldOfSingle = 8; // digits that mdbtools writes of a single
constexpr qsizetype mostKeys = 20;

QString quoted(const QString &name) {
    return '"' + name + '"';
}

qsizetype indexOf(const QStringList &names, const QString &name) {
    const auto at = std::find_if(names.begin(), names.end(), [&](const QString &one) {
        return one.compare(name, Qt::CaseInsensitive) == 0;
    });
    return at == names.end() ? -1 : at - names.begin();
}

bool isKey(const QString &table, const QString &column) {
    return std::any_of(std::begin(references), std::end(references), [&](const Reference &one) {
        return (table == one.table && column == one.column) ||
               (table == one.target && column == one.key);
    });
}

enum class Kind { Text, Whole, Number, Date, Time, YesNo };

struct Column {
    QString name;
    qsizetype from; ///< column of the file
    Kind kind;
    bool key;     ///< never left empty where its value cannot be read
    bool needed;  ///< never empty
    bool doubles; ///< cannot be singles
};

Kind kindOf(const QString &table, const QString &column, const QString &type) {
    if (yesNoColumns.contains(column))
        return Kind::YesNo;
    if (dated.contains(table) && dateColumns.contains(column))
        return Kind::Date;
    if (dated.contains(table) && timeColumns.contains(column))
        return Kind::Time;
    return type == "INTEGER" ? Kind::Whole : type == "TEXT" ? Kind::Text : Kind::Number;
}

/// The decimal number that was meant: a double has noise behind its 15th digit, and a single in the
/// last one that is written of it.
double withoutNoise(const QString &text, double number, bool isDouble) {
    QString digits =
        text.section(QRegularExpression("[eE]"), 0, 0).remove(QRegularExpression("[^0-9]"));
    digits.remove(QRegularExpression("^0+"));
    const double rounded = QString::number(number, 'g', doubleDigits).toDouble();
    if (isDouble || digits.size() > toldOfSingle)
        return rounded;
    const double single = QString::number(number, 'g', singleDigits).toDouble();
    return static_cast<float>(single) == static_cast<float>(number) ? single : rounded;
}

/// As the tables hold it; nothing for a value that the column cannot hold.
std::optional<QVariant> converted(const QString &text, const Column &column) {
    if (text.isEmpty())
        return QVariant();
    bool good = false;
    switch (column.kind) {
    case Kind::Text:
        return text;
    case Kind::Date:
    case Kind::Time: {
        // The whole text: a date that the tools cannot read comes with a day 0. No zone: there is
        // an hour, and in some a midnight, that the computer's zone has not.
        constexpr int dateLength = 10;
        const QDate date = QDate::fromString(text.left(dateLength), Qt::ISODate);
        const QTime time = text.size() == dateLength
                               ? QTime(0, 0)
                               : QTime::fromString(text.mid(dateLength), " HH:mm:ss");
        if (!date.isValid() || !time.isValid() || date.year() < firstYear || date.year() > lastYear)
            return {};
        if (column.kind == Kind::Date)
            return date.toString(Qt::ISODate);
        return date.toString(Qt::ISODate) + time.toString(" HH:mm:ss");
    }
    case Kind::YesNo:
        if (text == "0")
            return 0;
        if (text == "1" || text == "-1")
            return -1;
        return {};
    case Kind::Whole:
    case Kind::Number:
        break;
    }
    const double number = text.toDouble(&good);
    if (!good || !std::isfinite(number))
        return {};
    if (column.kind == Kind::Whole) {
        constexpr double exact = 9e15;
        if (number != std::floor(number) || std::abs(number) > exact)
            return {};
        return static_cast<qlonglong>(number);
    }
    return withoutNoise(text, number, column.doubles);
}

class Taking {
  public:
    Taking(Datenbank &store, const JetFile &file, TakeOver &report)
        : mStore(store), mFile(file), mReport(report), mTables(file.tables()) {}

    void run() {
        checkTables();
        for (const Known &one : known) {
            if (indexOf(mTables, one.name) >= 0)
                table(one);
            else
                mReport.asDelivered += one.name;
        }
        for (const QString &name : mTables) {
            const bool taken =
                std::any_of(std::begin(known), std::end(known), [&](const Known &one) {
                    return name.compare(QString(one.name), Qt::CaseInsensitive) == 0;
                });
            if (!taken)
                mReport.left += name;
        }
        for (const Reference &reference : references)
            orphans(reference);
    }

  private:
    bool has(const char *name) const { return indexOf(mTables, name) >= 0; }

    void checkTables() {
        for (const Known &one : known) {
            const bool needed = one.need == Need::Always ||
                                (one.need == Need::SinceSpecifications && has("Toleranzen"));
            if (needed && !has(one.name))
                throw Fehler(fehlernummer::MissingTable,
                             {QString("In der Datei fehlt die Tabelle %1. Bitte prüfen Sie, ob sie "
                                      "die Datenbank des früheren Programms ist.")
                                  .arg(one.name),
                              QString("The file lacks the table %1. Please check whether it is the "
                                      "database of the earlier program.")
                                  .arg(one.name)});
        }
    }

    [[noreturn]] static void refuseWithout(const QString &table, const QString &column) {
        throw Fehler(fehlernummer::MissingColumn,
                     {"In der Datei fehlt die Spalte " + table + '.' + column +
                          ". Bitte prüfen Sie, ob sie die Datenbank des früheren Programms ist.",
                      "The file lacks the column " + table + '.' + column +
                          ". Please check whether it is the database of the earlier program."});
    }

    std::vector<Column> columnsFor(const Known &one, const JetTable &rows) {
        const QString name = one.name;
        Recordset info = mStore.open("SELECT name, type, pk FROM pragma_table_info(?)", {name});
        QStringList ours;
        for (int i = 0; i < info.count(); ++i)
            ours += info.at(i, 0).toString();
        const qsizetype told = one.own ? ours.indexOf(one.own) : ours.size();
        std::vector<Column> columns;
        std::vector<bool> used(static_cast<size_t>(rows.columns.size()));
        for (int i = 0; i < info.count(); ++i) {
            const bool primary = info.at(i, 2).toInt() != 0;
            const bool key = primary || isKey(name, ours[i]);
            const bool numbered = primary && one.byPosition > 0 && one.need == Need::Never;
            qsizetype from = indexOf(rows.columns, ours[i]);
            if (from < 0 && i < one.byPosition && i < rows.columns.size() && !numbered &&
                indexOf(ours, rows.columns[i]) < 0)
                from = i;
            if (from < 0 && (i >= told || numbered))
                continue;
            if (from < 0) {
                if (key && !dispensable.contains(ours[i]))
                    refuseWithout(name, ours[i]);
                mReport.lackedColumns += name + '.' + ours[i];
            } else {
                used[static_cast<size_t>(from)] = true;
            }
            columns.push_back({ours[i], from, kindOf(name, ours[i], info.at(i, 1).toString()), key,
                               primary, doubles.contains(name)});
        }
        for (qsizetype i = 0; i < rows.columns.size(); ++i) {
            if (!used[static_cast<size_t>(i)] &&
                std::any_of(rows.rows.begin(), rows.rows.end(),
                            [&](const QStringList &row) { return !row[i].isEmpty(); }))
                mReport.leftColumns += name + '.' + rows.columns[i];
        }
        return columns;
    }

    void table(const Known &one) {
        const QString name = one.name;
        const JetTable rows = mFile.table(mTables[indexOf(mTables, name)]);
        if (name == "System" && rows.rows.size() != 1)
            throw Fehler(fehlernummer::DatabaseDamaged,
                         {QString("Die Tabelle System der Datei hat %1 Zeilen statt einer. Bitte "
                                  "berichtigen Sie sie im früheren Programm.")
                              .arg(rows.rows.size()),
                          QString("The table System of the file has %1 rows instead of one. Please "
                                  "mend it in the earlier program.")
                              .arg(rows.rows.size())});
        const std::vector<Column> columns = columnsFor(one, rows);
        QStringList names, places;
        for (const Column &column : columns) {
            names += quoted(column.name);
            places += "?";
        }
        mStore.execute("DELETE FROM " + quoted(name)); // the delivered ones
        const QString insert = "INSERT INTO " + quoted(name) + " (" + names.join(", ") +
                               ") VALUES (" + places.join(", ") + ')';
        for (const QStringList &row : rows.rows) {
            Datenbank::Params values;
            for (const Column &column : columns) {
                const QString text = column.from < 0 ? QString() : row[column.from];
                const std::optional<QVariant> value = converted(text, column);
                if (!value || (column.needed && value->isNull()))
                    mReport.refused.push_back(
                        {name, tellingRow(rows, row), column.name, text, column.key});
                values.push_back(value.value_or(QVariant()));
            }
            try {
                mStore.execute(insert, values);
            } catch (const Fehler &fehler) {
                if (fehler.number() != fehlernummer::DuplicateKey)
                    throw;
                refuseTwin(name, tellingRow(rows, row));
            }
        }
        mReport.taken.push_back({name, static_cast<qlonglong>(rows.rows.size())});
        complete(name, rows.columns);
    }

    static QString tellingRow(const JetTable &rows, const QStringList &row) {
        return rows.columns.first() + ' ' + row.first();
    }

    [[noreturn]] static void refuseTwin(const QString &table, const QString &row) {
        throw Fehler(fehlernummer::DuplicateKey,
                     {QString("In der Tabelle %1 der Datei steht eine Zeile zweimal (%2). Bitte "
                              "berichtigen Sie das im früheren Programm.")
                          .arg(table, row),
                      QString("In the table %1 of the file a row stands twice (%2). Please mend "
                              "that in the earlier program.")
                          .arg(table, row)});
    }

    /// What an older file tells in another way.
    void complete(const QString &table, const QStringList &columns) {
        if (table == "Rezeptnamen" && indexOf(columns, "ToleranzID") < 0) {
            mReport.lackedColumns.removeAll("Rezeptnamen.ToleranzID");
            mStore.execute("UPDATE Rezeptnamen SET "
                           "Toleranz = iif(Toleranz = 'ohne Toleranz', 'stationäre "
                           "Trainingsgeräte', Toleranz), "
                           "ToleranzID = iif(Toleranz = 'medizinische Geräte', 1, 2)");
        }
        if (table == "Hebelarmkalibrierung" && indexOf(columns, "NK_ID") < 0) {
            mReport.lackedColumns.removeAll("Hebelarmkalibrierung.NK_ID");
            mStore.execute("UPDATE Hebelarmkalibrierung SET NK_ID = "
                           "(SELECT MAX(NK_ID) FROM Normalkalibrierdaten)");
        }
    }

    void orphans(const Reference &to) {
        const QString lost =
            QString(belonging.contains(to.column)
                        ? " FROM \"%1\" WHERE IFNULL(\"%2\", 0) NOT IN (SELECT \"%4\" FROM \"%3\")"
                        : " FROM \"%1\" WHERE \"%2\" <> 0 AND \"%2\" NOT IN "
                          "(SELECT \"%4\" FROM \"%3\")")
                .arg(to.table, to.column, to.target, to.key);
        const qlonglong rows = mStore.open("SELECT count(*)" + lost)[0].value().toLongLong();
        if (rows == 0)
            return;
        TakeOver::Orphans orphans{to.table, to.column, to.target, rows, {}};
        Recordset keys = mStore.open(QString("SELECT DISTINCT IFNULL(\"%1\", 0)").arg(to.column) +
                                     lost + QString(" ORDER BY 1 LIMIT %1").arg(mostKeys));
        for (int i = 0; i < keys.count(); ++i)
            orphans.keys += keys.at(i, 0).toString();
        mReport.orphans.push_back(std::move(orphans));
    }

    Datenbank &mStore;
    const JetFile &mFile;
    TakeOver &mReport;
    QStringList mTables;
};

/// Undoes what was taken; the report of it goes on.
struct Refused {};

} // namespace

TakeOver takeOver(const QString &jetFile, const QString &path, bool unreadableEmpty) {
    if (QFileInfo::exists(path))
        throw Fehler(fehlernummer::PermissionDenied,
                     {path + " ist schon da. Bitte nennen Sie ein Verzeichnis ohne Datenbank.",
                      path + " is there already. Please name a directory without a database."});
    const QString journal = path + "-journal"; // which would be played into the new database
    if (QFileInfo::exists(journal))
        throw Fehler(fehlernummer::PermissionDenied,
                     {journal +
                          " gehört zu einer Datenbank, die nicht mehr da ist. Bitte nennen Sie "
                          "ein anderes Verzeichnis.",
                      journal + " belongs to a database that is no longer there. Please name "
                                "another directory."});
    const JetFile file(jetFile);
    TakeOver report;
    try {
        legeDatenbankAn(path, [&](Datenbank &store) {
            Taking(store, file, report).run();
            if (std::any_of(report.refused.begin(), report.refused.end(),
                            [&](const auto &value) { return value.key || !unreadableEmpty; }))
                throw Refused();
        });
        report.done = true;
    } catch (const Refused &) {
    }
    return report;
}
