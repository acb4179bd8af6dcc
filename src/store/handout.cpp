#include "store/handout.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QRegularExpression>

#include <algorithm>
#include <array>
#include <functional>
#include <memory>

#include "platform/export.h"
#include "platform/spreadsheet.h"
#include "store/database.h"
#include "store/sqltext.h"

using namespace platform;

namespace {

using enum HandoutKind;

constexpr int ownFields = 2; // ProtokollID, Archiviert
constexpr qlonglong sheetRows = 1'048'575;
constexpr int dateFormat = 0, headFormat = 1; // of a workbook
constexpr int firstSheetYear = 1900;
constexpr int version = 1;

/// Where the rows of a table lie: with their head, or left behind by a move into the archive that
/// was cut off.
struct Place {
    const char *content, *head, *form;
    bool archived, left;
};
constexpr Place places[] = {{"_temp", "_temp", "neu", false, false},
                            {"", "", "alt", true, false},
                            {"_temp", "", "neu", true, true}};

QString statement(const HandoutTable &table) {
    const bool heads = !*table.content;
    QStringList parts;
    for (const Place &place : places) {
        if (heads && place.left)
            continue;
        QStringList fields{"P.ProtokollID AS ProtokollID",
                           QString("%1 AS Archiviert").arg(int{place.archived})};
        for (const HandoutField &field : table.fields)
            fields += QString("%1 AS \"%2\"").arg(field.sql, field.name);
        QString part = "SELECT " + fields.join(", ");
        const QString head = QString(" Protokoll%1 P").arg(place.head);
        if (heads) {
            part += " FROM" + head +
                    QString(" JOIN BerichtKopf%1 B ON B.ProtokollID = P.ProtokollID "
                            "LEFT JOIN Normalkalibrierdaten N ON N.NK_ID = P.NK_ID")
                        .arg(place.form);
        } else {
            part += QString(" FROM %1%2 M JOIN").arg(table.content, place.content) + head +
                    " ON P.ProtokollID = M.ProtokollID";
            if (QLatin1String(table.content) == QLatin1String("Messwerte"))
                part += QString(" JOIN Messwert%1 W ON W.Zeile = M.rowid").arg(place.form);
        }
        part += " WHERE P.ProtokollID BETWEEN ?1 AND ?2";
        if (place.left)
            part += " AND NOT EXISTS (SELECT 1 FROM Protokoll_temp T WHERE T.ProtokollID = "
                    "P.ProtokollID)";
        parts += part;
    }
    return "SELECT * FROM (" + parts.join(" UNION ALL ") +
           ") WHERE ?3 IS NULL OR Archiviert = ?3 ORDER BY ProtokollID, Archiviert" +
           QString(table.order);
}

/// A number if the text reads as one that a person has entered.
std::optional<double> entered(const QString &text) {
    static const QRegularExpression number("^\\s*[+-]?[0-9]{1,15}([.,][0-9]{1,15})?\\s*$");
    if (!number.match(text).hasMatch())
        return {};
    return QString(text).replace(',', '.').toDouble();
}

/// A value of a field as all formats write it: Null, a text or a double.
QVariant valueOf(const Row &row, int column, HandoutKind kind) {
    if (row.isNull(column))
        return {};
    if (kind != String && row.isNumber(column))
        return row.number(column);
    const QString text = row.text(column);
    switch (kind) {
    case Entry:
        if (text.trimmed().isEmpty())
            return {};
        if (const auto number = entered(text))
            return *number;
        return text;
    case Verdict:
        return text == "yes" ? QString("ja") : text == "no" ? QString("nein") : text;
    case Date:
        if (const QDate date = datumAus(text); date.isValid())
            return date.toString(Qt::ISODate);
        return text;
    case Time:
        if (const QDateTime time = zeitpunktAus(text); time.isValid())
            return time.toString(time.time().msec() ? Qt::ISODateWithMs : Qt::ISODate);
        return text;
    case String:
    case Number:
        break;
    }
    return text;
}

/// The rows of one table, asked again and again.
class Rows {
  public:
    using Write = std::function<void(const QString &name, HandoutKind kind, const QVariant &value)>;

    Rows(Datenbank &store, const HandoutTable &table)
        : mTable(table), mQuery(store, statement(table)) {}

    /// Rows of archived heads, of others, or for Null of both; `end` comes behind each row.
    void each(const HandoutRange &range, const QVariant &archived, const Write &field,
              const std::function<void()> &end) {
        mQuery.each({range.from, range.to, archived}, [&](const Row &row) {
            field("ProtokollID", Number, row.whole(0));
            field("Archiviert", Number, row.whole(1));
            int column = ownFields;
            for (const HandoutField &one : mTable.fields) {
                field(one.name, one.kind, valueOf(row, column, one.kind));
                ++column;
            }
            end();
        });
    }

  private:
    const HandoutTable &mTable;
    Query mQuery;
};

class OutFile {
  public:
    explicit OutFile(const QString &path) : mFile(path) {
        if (!mFile.open(QIODevice::WriteOnly))
            refuseExport(path);
    }
    void write(const QByteArray &bytes) {
        if (mFile.write(bytes) != bytes.size())
            refuseExport(mFile.fileName());
    }
    void finish() {
        if (!mFile.flush())
            refuseExport(mFile.fileName());
    }

  private:
    QFile mFile;
};

QByteArray numberText(const QVariant &value) {
    return value.typeId() == QMetaType::LongLong
               ? QByteArray::number(value.toLongLong())
               : QByteArray::number(value.toDouble(), 'g', QLocale::FloatingPointShortest);
}

// CSV ------------------------------------------------------------------------------------------

QByteArray csvField(const QVariant &value) {
    if (value.isNull())
        return {};
    if (value.typeId() != QMetaType::QString)
        return numberText(value);
    QString text = value.toString();
    const auto special = [](QChar c) { return c == '"' || c == ',' || c == '\r' || c == '\n'; };
    if (text.isEmpty() || text.front().isSpace() || text.back().isSpace() ||
        std::any_of(text.begin(), text.end(), special))
        text = '"' + text.replace('"', "\"\"") + '"';
    return text.toUtf8();
}

void writeCsv(Datenbank &store, const HandoutRange &range, const QString &folder) {
    if (!QDir().mkpath(folder))
        refuseExport(folder);
    for (const HandoutTable &table : handoutTables()) {
        OutFile file(QDir(folder).filePath(QString(table.name) + ".csv"));
        QByteArray line = "\xEF\xBB\xBFProtokollID,Archiviert";
        for (const HandoutField &field : table.fields)
            line += QByteArray(",") + field.name;
        file.write(line + "\r\n");
        line.clear();
        Rows(store, table)
            .each(
                range, {},
                [&](const QString &name, HandoutKind, const QVariant &value) {
                    if (name != "ProtokollID")
                        line += ',';
                    line += csvField(value);
                },
                [&] {
                    file.write(line + "\r\n");
                    line.clear();
                });
        file.finish();
    }
}

// JSON -----------------------------------------------------------------------------------------

QByteArray json(const QVariant &value) {
    if (value.isNull())
        return "null";
    if (value.typeId() != QMetaType::QString)
        return numberText(value);
    QByteArray quoted = "\"";
    for (const char c : value.toString().toUtf8()) {
        if (c == '"' || c == '\\')
            quoted += '\\';
        if (c >= 0 && c < ' ')
            quoted += "\\u00" + QByteArray::number(c, 16).rightJustified(2, '0');
        else
            quoted += c;
    }
    return quoted + '"';
}

QByteArray member(const QString &name, const QVariant &value) {
    return json(name) + ": " + json(value);
}

void writeJson(Datenbank &store, const HandoutRange &range, const QString &path) {
    const auto &tables = handoutTables();
    std::vector<std::unique_ptr<Rows>> contents;
    for (size_t i = 1; i < tables.size(); ++i)
        contents.push_back(std::make_unique<Rows>(store, tables[i]));

    OutFile file(path);
    file.write("{\n" + member("Format", "torvena-protokolle") + ",\n" +
               member("Fassung", QVariant::fromValue<qlonglong>(version)) + ",\n\"Protokolle\": [");
    QByteArray head, before = "\n";
    qlonglong number = 0, archived = 0;
    const auto content = [&](size_t i) {
        file.write(",\n" + json(tables[i].name) + ": [");
        QByteArray row, comma;
        contents[i - 1]->each(
            {number, number}, archived,
            [&](const QString &name, HandoutKind, const QVariant &value) {
                if (name != "ProtokollID" && name != "Archiviert")
                    row += (row.isEmpty() ? "" : ", ") + member(name, value);
            },
            [&] {
                file.write(comma + "\n  {" + row + '}');
                row.clear();
                comma = ",";
            });
        file.write("]");
    };
    Rows(store, tables[0])
        .each(
            range, {},
            [&](const QString &name, HandoutKind, const QVariant &value) {
                if (name == "ProtokollID")
                    number = value.toLongLong();
                else if (name == "Archiviert")
                    archived = value.toLongLong();
                head += (head.isEmpty() ? "" : ", ") + member(name, value);
            },
            [&] {
                file.write(before + '{' + head);
                head.clear();
                before = ",\n";
                for (size_t i = 1; i < tables.size(); ++i)
                    content(i);
                file.write("}");
            });
    file.write("\n]\n}\n");
    file.finish();
}

// Workbook -------------------------------------------------------------------------------------

void writeCell(RowWriter &cells, HandoutKind kind, const QVariant &value) {
    const QDate date = kind == Date ? QDate::fromString(value.toString(), Qt::ISODate) : QDate();
    if (value.typeId() == QMetaType::Double || value.typeId() == QMetaType::LongLong)
        cells.number(value.toDouble(), -1);
    else if (date.isValid() && date.year() >= firstSheetYear)
        cells.date(date, dateFormat);
    else
        cells.text(value.toString().toStdString(), -1);
}

void refuseLongSheet(qlonglong rows) {
    if (rows > sheetRows)
        throw Fehler(fehlernummer::Overflow,
                     {QString("%1 Zeilen sind mehr, als ein Tabellenblatt fasst. Bitte wählen Sie "
                              "weniger Protokolle oder CSV.")
                          .arg(rows),
                      QString("%1 rows are more than a sheet takes. Please choose fewer protocols, "
                              "or CSV.")
                          .arg(rows)});
}

void writeSheets(Datenbank &store, const HandoutRange &range, const QString &path) {
    Workbook book;
    book.formats = {{.number = "yyyy-mm-dd"}, {.bold = true}};
    for (const HandoutTable &table : handoutTables()) {
        refuseLongSheet(store
                            .open("SELECT count(*) FROM (" + statement(table) + ')',
                                  {range.from, range.to, {}})[0]
                            .value()
                            .toLongLong());
        Sheet sheet{.name = table.name, .headRows = 1};
        std::vector<Cell> head{{QString("ProtokollID"), headFormat},
                               {QString("Archiviert"), headFormat}};
        for (const HandoutField &field : table.fields)
            head.push_back({QString(field.name), headFormat});
        sheet.widths.assign(head.size(), 14);
        sheet.rows.push_back(std::move(head));
        sheet.more = [&store, &table, range](RowWriter &cells) {
            Rows(store, table)
                .each(
                    range, {},
                    [&](const QString &, HandoutKind kind, const QVariant &value) {
                        writeCell(cells, kind, value);
                    },
                    [&] { cells.endRow(); });
        };
        book.sheets.push_back(std::move(sheet));
    }
    writeWorkbook(book, path);
}

struct Format {
    const char *suffix;
    void (*write)(Datenbank &store, const HandoutRange &range, const QString &path);
};
constexpr std::array<Format, 3> formats{
    {{"xlsx", writeSheets}, {"", writeCsv}, {"json", writeJson}}};

QString stemOf(const HandoutRange &range) {
    if (range.from == range.to)
        return QString("Protokoll_%1").arg(range.from);
    const HandoutRange all;
    QString stem = "Protokolle";
    if (range.from != all.from)
        stem += QString("_von_%1").arg(range.from);
    if (range.to != all.to)
        stem += QString("_bis_%1").arg(range.to);
    return stem;
}

} // namespace

Handout handOut(Datenbank &store, const HandoutRange &range, HandoutFormat format,
                const QString &folder) {
    Handout handed;
    store.snapshot([&] {
        handed.protocols =
            store
                .open("SELECT (SELECT count(*) FROM Protokoll_temp WHERE ProtokollID BETWEEN ?1 "
                      "AND ?2) + (SELECT count(*) FROM Protokoll WHERE ProtokollID BETWEEN ?1 AND "
                      "?2)",
                      {range.from, range.to})[0]
                .value()
                .toLongLong();
        if (handed.protocols == 0)
            throw Fehler(fehlernummer::NoCurrentRecord,
                         {"In diesem Bereich gibt es kein Protokoll. Bitte prüfen Sie die Nummern.",
                          "There is no protocol in this range. Please check the numbers."});
        const Format &with = formats[static_cast<size_t>(format)];
        handed.path = exportInto(folder, stemOf(range), with.suffix,
                                 [&](const QString &path) { with.write(store, range, path); });
    });
    return handed;
}
