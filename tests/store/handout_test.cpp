// What was handed out is read back and compared with the rows that it came from.
#include "store/handout.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QXmlStreamReader>

#include <csignal>

#include <sys/resource.h>

#include "parts.h"
#include "store/scripts.h"
#include "workshop.h"

namespace {

using namespace support;
using Rows = std::vector<QMap<QString, QVariant>>; // a text, a double, or Null

QByteArray bytesOf(const QString &path) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path;
    return file.readAll();
}

/// As RFC 4180 says; an empty field is Null, a quoted one a text.
Rows csvRows(const QString &path) {
    const QByteArray bytes = bytesOf(path);
    EXPECT_TRUE(bytes.startsWith("\xEF\xBB\xBF"));
    const QString text = QString::fromUtf8(bytes); // without the mark
    std::vector<std::vector<QVariant>> lines{{}};
    for (qsizetype at = 0; at < text.size(); ++at) {
        QVariant value;
        if (text[at] == '"') {
            QString field;
            for (++at; text[at] != '"' || text.mid(at + 1, 1) == "\""; ++at) {
                at += text[at] == '"';
                field += text[at];
            }
            ++at;
            value = field;
        } else {
            const qsizetype start = at;
            while (text[at] != ',' && text[at] != '\r')
                ++at;
            if (at > start)
                value = text.mid(start, at - start);
        }
        lines.back().push_back(value);
        if (text[at] == '\r') {
            EXPECT_EQ(text[++at], '\n');
            lines.emplace_back();
        }
    }
    EXPECT_TRUE(lines.back().empty());
    Rows rows(lines.size() - 2);
    for (size_t row = 0; row < rows.size(); ++row) {
        EXPECT_EQ(lines[row + 1].size(), lines[0].size());
        for (size_t i = 0; i < lines[0].size(); ++i)
            rows[row][lines[0][i].toString()] = lines[row + 1][i];
    }
    return rows;
}

/// The lists of the file by the names of their tables, with what the head gives their rows.
QMap<QString, Rows> jsonRows(const QString &path) {
    QJsonParseError error{};
    const QJsonObject file = QJsonDocument::fromJson(bytesOf(path), &error).object();
    EXPECT_EQ(error.error, 0) << error.errorString();
    EXPECT_EQ(file["Fassung"].toInt(), 1);
    QMap<QString, Rows> tables;
    for (const QJsonValue &head : file["Protokolle"].toArray()) {
        QMap<QString, QVariant> own;
        const QJsonObject fields = head.toObject();
        for (auto field = fields.begin(); field != fields.end(); ++field) {
            if (!field->isArray())
                own[field.key()] = field->toVariant();
            for (const QJsonValue &row : field->toArray()) {
                tables[field.key()].push_back({});
                auto &values = tables[field.key()].back();
                const QJsonObject object = row.toObject();
                for (auto value = object.begin(); value != object.end(); ++value)
                    values[value.key()] = value->toVariant();
                values["ProtokollID"] = fields["ProtokollID"].toVariant();
                values["Archiviert"] = fields["Archiviert"].toVariant();
            }
        }
        tables["Protokoll"].push_back(own);
    }
    return tables;
}

/// An empty cell is Null, a date has the number of its day.
Rows sheetRows(const QString &sheet) {
    QStringList names;
    Rows rows;
    QString cell, type;
    for (QXmlStreamReader xml(sheet); !xml.atEnd(); xml.readNext()) {
        if (!xml.isStartElement())
            continue;
        if (xml.name() == QLatin1String("row"))
            rows.emplace_back();
        if (xml.name() == QLatin1String("c")) {
            cell = xml.attributes().value("r").toString().remove(QRegularExpression("[0-9]"));
            type = xml.attributes().value("s").toString();
        }
        if (xml.name() != QLatin1String("v") && xml.name() != QLatin1String("t"))
            continue;
        const bool number = xml.name() == QLatin1String("v");
        int column = 0;
        for (const QChar letter : cell)
            column = 26 * column + letter.unicode() - 'A' + 1;
        QString value = xml.readElementText();
        value.replace("_x000D_", "\r");
        if (rows.size() == 1)
            names += value;
        else if (number && type == "2")
            rows.back()[names[column - 1]] =
                QDate(1899, 12, 30).addDays(value.toInt()).toString(Qt::ISODate);
        else if (number)
            rows.back()[names[column - 1]] = value.toDouble();
        else
            rows.back()[names[column - 1]] = value;
    }
    rows.erase(rows.begin());
    return rows;
}

/// The value as any of the files has it, which part in how they tell a number from a text.
QString plain(const QVariant &value) {
    bool number = false;
    const double read = value.toString().replace(',', '.').toDouble(&number);
    if (value.isNull())
        return "Null";
    return number ? QString::number(read, 'g', 17) : value.toString();
}

class HandingOut : public Workshop {
  protected:
    HandingOut() {
        gDatenbank.openFile(datenbankName);
        change("UPDATE Kunden SET Name = 'Müller, \"Ähre\"' || char(13, 10, 9) || ' \\ & Søn ', "
               "Ort = ''");
        change("UPDATE Protokoll SET Kunde = (SELECT Name FROM Kunden LIMIT 1), Ort = NULL");
        change("UPDATE Messwerte SET Ist_D_torvena = replace(Ist_D_torvena, '.', ','), MU_ohne = "
               "'yes', MU_mit = 'no' WHERE ProtokollID = 2");
        change("UPDATE Messwerte SET Ist_P_torvena = '1.234,5', Soll_n = '' WHERE ProtokollID = 3");
        change("INSERT INTO Messwerte (ProtokollID, Prüfschritt, Soll_P, MDat) VALUES "
               "(3, 'FR', '30', '2024-05-06 07:08:09.500'), (3, '10', '30', NULL)");
        change("UPDATE SecControl SET IsolationsR = '> 310'");
        change("UPDATE Normalkalibrierdaten SET VK1_R = 0.1 + 0.2");
    }
    QString handed(HandoutFormat format, const HandoutRange &range = {}) {
        return handOut(gDatenbank, range, format, directory.filePath("Ziel")).path;
    }
    /// What the tables hold, in the words of the files.
    static Rows stored(const HandoutTable &table) {
        const QString name = *table.content ? table.content : "Protokoll";
        QStringList columns{"ProtokollID", "Archiviert"};
        const QString has =
            ' ' + column("SELECT name FROM pragma_table_info(?)", {name}).join(' ') + ' ';
        for (const HandoutField &field : table.fields) {
            if (has.contains(QString(" %1 ").arg(field.name)))
                columns += field.name;
        }
        const QString order = name == "Messwerte"   ? "Val(Prüfschritt) = 0, Val(Prüfschritt)"
                              : name == "Blutdruck" ? "Normalanzeige"
                                                    : "1";
        Recordset all = gDatenbank.open("SELECT " + columns.join(", ") +
                                        " FROM (SELECT *, 0 AS "
                                        "Archiviert FROM " +
                                        name + "_temp UNION ALL SELECT *, 1 FROM " + name +
                                        ") ORDER BY 1, 2, " + order);
        Rows rows(static_cast<size_t>(all.count()));
        for (int row = 0; row < all.count(); ++row) {
            for (int i = 0; i < columns.size(); ++i) {
                QVariant value = all.at(row, i);
                const QString text = value.toString();
                if (columns[i].startsWith("MU_") && (text == "yes" || text == "no"))
                    value = text == "yes" ? "ja" : "nein";
                if (columns[i] == "MDat" && !value.isNull())
                    value = QString(text).replace(' ', 'T').remove(".000");
                if (columns[i] == "Soll_n" && text.isEmpty())
                    value = {};
                rows[static_cast<size_t>(row)][columns[i]] = value;
            }
        }
        return rows;
    }
    static void compare(const Rows &came, const Rows &wanted, const QString &what) {
        ASSERT_EQ(came.size(), wanted.size()) << what;
        ASSERT_FALSE(came.empty()) << what;
        for (size_t row = 0; row < came.size(); ++row) {
            for (auto value = wanted[row].begin(); value != wanted[row].end(); ++value)
                ASSERT_EQ(plain(came[row][value.key()]), plain(*value))
                    << what << ", row " << row << ", " << value.key();
        }
    }
};

TEST_F(HandingOut, TablesAndJsonHoldEachRowAsItIsStored) {
    // Heads in work tell customer and unit as they are.
    change(
        "UPDATE Protokoll_temp SET (Kunde, Straße, PLZ, Ort) = (SELECT Name, Straße, PLZ, Ort FROM "
        "Kunden K WHERE K.KundenID = Protokoll_temp.KundenID), (Gerätetyp, Hersteller, SerienNr, "
        "IdentNr) = (SELECT Gerätetyp, Hersteller, SerienNr, IdentNr FROM Ergometer E WHERE "
        "E.GerätID = Protokoll_temp.GerätID)");
    const QString csv = handed(HandoutFormat::Csv);
    const QMap<QString, Rows> json = jsonRows(handed(HandoutFormat::Json));
    EXPECT_EQ(QDir(csv).entryList(QDir::Files).size(), 4);
    for (const HandoutTable &table : handoutTables()) {
        const Rows wanted = stored(table), tables = csvRows(csv + '/' + table.name + ".csv");
        compare(tables, wanted, QString("CSV ") + table.name);
        compare(json[table.name], wanted, QString("JSON ") + table.name);
        compare(tables, json[table.name], QString("both ") + table.name);
    }
    const QMap<QString, QVariant> head = json["Protokoll"].front();
    EXPECT_EQ(head["VK1_R"].toDouble(), 0.1 + 0.2) << "to the last digit";
    EXPECT_EQ(head["Normal"], "Drehmomentnormal");
    EXPECT_EQ(head["kalibriertBis"].toString(),
              grid("SELECT kalibriertBis FROM Normalkalibrierdaten WHERE NK_ID = 1"));
    EXPECT_EQ(json["Messwerte"].front()["Ist_P_torvena"].typeId(), QMetaType::Double);
    EXPECT_EQ(json["STK"].front()["IsolationsR"], "> 310");
}

TEST_F(HandingOut, AWorkbookHoldsTheSameRows) {
    QMap<QString, Rows> json = jsonRows(handed(HandoutFormat::Json));
    const Parts parts(handed(HandoutFormat::Workbook));
    int sheet = 0;
    for (const HandoutTable &table : handoutTables()) {
        for (auto &row : json[table.name]) {
            for (QVariant &value : row) {
                if (value.toString().isEmpty())
                    value = {}; // a cell does not tell them apart
                else if (value.typeId() == QMetaType::Double)
                    value = QString::number(value.toDouble(), 'g', 16).toDouble();
            }
        }
        EXPECT_TRUE(parts["xl/workbook.xml"].contains(QString("name=\"%1\"").arg(table.name)));
        compare(sheetRows(parts[QString("xl/worksheets/sheet%1.xml").arg(++sheet)]),
                json[table.name], table.name);
    }
}

TEST_F(HandingOut, AWorkbookThatAFullDiskCutsOffIsNotThere) {
    change("INSERT INTO Messwerte (ProtokollID, Soll_P, ZulAbw) WITH RECURSIVE n(i) AS (SELECT 1 "
           "UNION ALL SELECT i + 1 FROM n WHERE i < 6000) SELECT 1, i, 1 FROM n");
    rlimit usual{};
    ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &usual), 0);
    std::signal(SIGXFSZ, SIG_IGN);
    // Of the rows, and of the sheet that they are put into: neither is the file itself.
    for (const rlim_t size : {500'000, 1'200'000}) {
        const rlimit small{size, usual.rlim_max};
        ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &small), 0);
        EXPECT_EQ(raised([&] { handed(HandoutFormat::Workbook); }), 70) << size;
    }
    setrlimit(RLIMIT_FSIZE, &usual);
    EXPECT_TRUE(QDir("Ziel").isEmpty());
}

TEST_F(HandingOut, OnlyTheRangeIsThereUnderAFreshNameAndNothingHalf) {
    const auto numbers = [&](const HandoutRange &range) {
        QStringList found;
        for (const auto &head : csvRows(handed(HandoutFormat::Csv, range) + "/Protokoll.csv"))
            found += head["ProtokollID"].toString();
        return found.join(' ');
    };
    EXPECT_EQ(numbers({2, 4}), "2 3 4");
    EXPECT_EQ(numbers({2, 4}), "2 3 4") << "beside the other";
    EXPECT_EQ(numbers({.to = 1}), "1");
    EXPECT_EQ(QDir("Ziel").entryList(QDir::AllEntries | QDir::NoDotAndDotDot).size(), 3);
    // A move into the archive that was cut off has left the values behind.
    change("INSERT INTO Messwerte_temp SELECT * FROM Messwerte WHERE ProtokollID = 1");
    change("DELETE FROM Messwerte WHERE ProtokollID = 1");
    EXPECT_FALSE(csvRows(handed(HandoutFormat::Csv, {1, 1}) + "/Messwerte.csv").empty());

    EXPECT_EQ(raised([&] { handed(HandoutFormat::Json, {900, 999}); }), 3021);
    spoil("SELECT", "SecControl");
    for (const auto format : {HandoutFormat::Workbook, HandoutFormat::Csv, HandoutFormat::Json})
        EXPECT_NE(raised([&] { handed(format); }), 0);
    EXPECT_EQ(QDir("Ziel").entryList(QDir::AllEntries | QDir::NoDotAndDotDot).size(), 4);
    mend();
    EXPECT_EQ(raised([] { handOut(gDatenbank, {}, HandoutFormat::Csv, "/proc/nirgends"); }), 70);
}

} // namespace
