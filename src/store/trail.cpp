#include "store/trail.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <SQLiteCpp/SQLiteCpp.h>
#include <sqlite3.h>

#include "store/database.h"
#include "store/scripts.h"

using namespace platform;

namespace {

std::function<QString()> whoChanges;

constexpr const char *state = "Bestand";
constexpr const char *note = "Vermerk";

void rowText(sqlite3_context *context, int count, sqlite3_value **values) {
    static thread_local QByteArray text;
    text.resize(0); // keeps its room
    const auto *names = reinterpret_cast<const char *>(sqlite3_value_text(values[0]));
    appendRowText(text, names, {values + 1, static_cast<size_t>(count - 1)});
    sqlite3_result_text(context, text.constData(), static_cast<int>(text.size()), SQLITE_TRANSIENT);
}

void chainLink(sqlite3_context *context, int count, sqlite3_value **values) {
    std::vector<std::optional<std::string_view>> fields;
    for (sqlite3_value *value : std::span(values, static_cast<size_t>(count))) {
        const auto *text = reinterpret_cast<const char *>(sqlite3_value_text(value));
        if (text)
            fields.emplace_back(std::in_place, text,
                                static_cast<size_t>(sqlite3_value_bytes(value)));
        else
            fields.emplace_back();
    }
    const QByteArray hex = hashOf(fields).toHex();
    sqlite3_result_text(context, hex.constData(), static_cast<int>(hex.size()), SQLITE_TRANSIENT);
}

void person(sqlite3_context *context, int, sqlite3_value **) {
    const QByteArray name = (whoChanges ? whoChanges() : QString()).toUtf8();
    sqlite3_result_text(context, name.constData(), static_cast<int>(name.size()), SQLITE_TRANSIENT);
}

QString quoted(const QString &name) {
    return '"' + name + '"';
}

bool isTrailed(const QString &table) {
    return !table.startsWith("Bericht") && !table.startsWith("EP_Bericht") &&
           !table.startsWith("sqlite") && table != "ÄndRez_temp" && table != "Sitzung" &&
           table != "Nachweis";
}

bool hasTable(Datenbank &store, const QString &schema, const QString &name) {
    return !store
                .open("SELECT 1 FROM " + schema +
                          ".sqlite_master WHERE type = 'table' AND name = ?",
                      {name})
                .empty();
}

void appendLink(Datenbank &store, const char *kind, const QString &occasion,
                const QJsonObject &said) {
    store.execute(
        "INSERT INTO NachweisNeu VALUES (NULL, ?, ?, NULL, ?)",
        {kind, occasion, QString::fromUtf8(QJsonDocument(said).toJson(QJsonDocument::Compact))});
}

} // namespace

void setTrailPerson(std::function<QString()> personNow) {
    whoChanges = std::move(personNow);
}

void addTrailFunctions(SQLite::Database &database) {
    constexpr int any = -1;
    database.createFunction("Satz", any, true, nullptr, rowText, nullptr, nullptr, nullptr);
    database.createFunction("Kettenglied", any, true, nullptr, chainLink, nullptr, nullptr,
                            nullptr);
    database.createFunction("Person", 0, false, nullptr, person, nullptr, nullptr, nullptr);
}

void layTrail(Datenbank &store, const QString &occasion) {
    TrailPause pause(store);
    pause.resume();
    pause.end(occasion);
}

void noteInTrail(Datenbank &store, const QString &occasion) {
    appendLink(store, note, occasion, {{"Anlass", occasion}});
}

TrailHead trailHead(Datenbank &store) {
    if (!hasTable(store, "main", "Nachweis"))
        return {};
    const Recordset newest = store.open("SELECT Nr, Kette FROM Nachweis ORDER BY Nr DESC LIMIT 1");
    if (newest.empty())
        return {};
    return {newest[0].value().toLongLong(), newest[1].text()};
}

TrailPause::TrailPause(Datenbank &store, QString former)
    : mStore(store), mFormer(std::move(former)) {
    for (const QString &table : trailTables(mStore, mFormer))
        mColumns[table] = trailColumns(mStore, mFormer, table);
    takeOff();
}

void TrailPause::takeOff() {
    Recordset triggers = mStore.open("SELECT tbl_name, name, sql FROM main.sqlite_master WHERE "
                                     "type = 'trigger' AND name GLOB 'Nachweis*' ORDER BY name");
    for (; !triggers.atEnd(); triggers.moveNext()) {
        mTriggers[triggers[0].text()] += triggers[2].text();
        mStore.execute("DROP TRIGGER main." + quoted(triggers[1].text()));
    }
    mStore.execute("DROP VIEW IF EXISTS main.NachweisNeu");
}

void TrailPause::resume() {
    QStringList same;
    for (const QString &table : trailTables(mStore)) {
        if (mTriggers.value(table) == QStringList(trailTriggers(mStore, table).values()).join(""))
            same += table;
    }
    resume(same);
}

void TrailPause::resume(const QStringList &moved) {
    mStore.run(sqlScript("trail.sql"));
    const bool linked = hasTable(mStore, mFormer, "Nachweis") &&
                        !mStore.open("SELECT 1 FROM " + mFormer + ".Nachweis LIMIT 1").empty();
    for (const QString &table : trailTables(mStore)) {
        if (linked && moved.contains(table))
            putTriggers(table);
        else
            mFresh += table;
    }
    if (!linked || mFresh.isEmpty())
        return;
    const QMap<QString, RowSum> said = sumsOfLinks(mStore, mFormer).tables();
    for (const QString &table : mFresh) {
        const bool gone = !mColumns.contains(table);
        if (said.contains(table) &&
            (gone || !(sumOf(mStore, mFormer, table, mColumns[table]) == said[table])))
            mOff += table;
    }
}

void TrailPause::putTriggers(const QString &table) {
    for (const QString &trigger : trailTriggers(mStore, table))
        mStore.execute(trigger);
}

int TrailPause::end(const QString &occasion) {
    if (mFresh.isEmpty())
        return 0;
    QJsonObject sums;
    for (const QString &table : mFresh) {
        const RowSum sum = sumOf(mStore, "main", table, trailColumns(mStore, "main", table));
        sums[table] = QJsonArray{sum.count(), sum.hex()};
        putTriggers(table);
    }
    QJsonObject said{{"Anlass", occasion}, {"Tabellen", sums}};
    if (!mOff.isEmpty())
        said["Abweichend"] = QJsonArray::fromStringList(mOff);
    appendLink(mStore, state, occasion, said);
    return 1;
}

QStringList trailTables(Datenbank &store, const QString &schema) {
    QStringList tables;
    Recordset rows =
        store.open("SELECT name FROM " + schema + ".sqlite_master WHERE type = 'table' ORDER BY 1");
    for (; !rows.atEnd(); rows.moveNext()) {
        if (isTrailed(rows[0].text()))
            tables += rows[0].text();
    }
    return tables;
}

QStringList trailColumns(Datenbank &store, const QString &schema, const QString &table) {
    QStringList columns;
    Recordset rows = store.open("SELECT name FROM pragma_table_info(?, ?)", {table, schema});
    for (; !rows.atEnd(); rows.moveNext())
        columns += rows[0].text();
    return columns;
}

QString rowExpression(const QStringList &columns, const QString &prefix) {
    QString names = columns.join('|');
    QString text = "Satz('" + names.replace('\'', "''") + '\'';
    for (const QString &column : columns)
        text += ", " + prefix + quoted(column);
    return text + ')';
}

QMap<QString, QString> trailTriggers(Datenbank &store, const QString &table) {
    const QStringList columns = trailColumns(store, "main", table);
    const QString before = rowExpression(columns, "OLD.");
    const QString after = rowExpression(columns, "NEW.");
    QMap<QString, QString> triggers;
    const auto add = [&](const QString &what, const QString &event, const QString &key,
                         const QString &from, const QString &to) {
        const QString name = "Nachweis_" + table + '_' + what;
        triggers[name] = "CREATE TRIGGER " + quoted(name) + " AFTER " + event + " ON " +
                         quoted(table) + " BEGIN INSERT INTO NachweisNeu VALUES ('" + table +
                         "', '" + what + "', " + key + ".rowid, " + from + ", " + to + "); END";
    };
    add("neu", "INSERT", "NEW", "NULL", after);
    add("geändert", "UPDATE", "NEW", before, after);
    add("gelöscht", "DELETE", "OLD", before, "NULL");
    return triggers;
}

RowSum sumOf(Datenbank &store, const QString &schema, const QString &table,
             const QStringList &columns) {
    RowSum sum;
    const QByteArray name = table.toUtf8();
    store.each("SELECT " + rowExpression(columns) + " FROM " + schema + '.' + quoted(table), {},
               [&](const Row &row) {
                   sum.add({name.constData(), size_t(name.size())}, row.bytes(0));
               });
    return sum;
}

void TrailSums::follow(const Row &link, int first) {
    const int kind = first + 1, before = first + 3, after = first + 4;
    if (link.bytes(kind) == state) {
        const QJsonObject sums =
            QJsonDocument::fromJson(link.text(after).toUtf8())["Tabellen"].toObject();
        for (auto table = sums.begin(); table != sums.end(); ++table) {
            const QJsonArray sum = table.value().toArray();
            mTables[table.key()] = RowSum::from(sum[0].toInteger(), sum[1].toString());
        }
    } else if (!link.isNull(first)) {
        RowSum &sum = mTables[link.text(first)];
        if (!link.isNull(before))
            sum.remove(link.bytes(first), link.bytes(before));
        if (!link.isNull(after))
            sum.add(link.bytes(first), link.bytes(after));
    }
}

TrailSums sumsOfLinks(Datenbank &store, const QString &schema) {
    TrailSums sums;
    store.each("SELECT Tabelle, Vorgang, Schlüssel, Alt, Neu FROM " + schema +
                   ".Nachweis ORDER BY Nr",
               {}, [&](const Row &link) { sums.follow(link, 0); });
    return sums;
}

TrailState TrailState::from(std::string_view json) {
    const QJsonDocument said =
        QJsonDocument::fromJson(QByteArray(json.data(), static_cast<qsizetype>(json.size())));
    TrailState state;
    state.tables = said["Tabellen"].toObject().keys();
    for (const QJsonValue &table : said["Abweichend"].toArray())
        state.off += table.toString();
    return state;
}

QString linkHash(const Row &link) {
    constexpr int columns = 9;
    std::array<std::optional<std::string_view>, columns> fields;
    for (int column = 0; column < columns; ++column) {
        if (!link.isNull(column))
            fields[static_cast<size_t>(column)] = link.bytes(column);
    }
    return QString::fromLatin1(hashOf(fields).toHex());
}
