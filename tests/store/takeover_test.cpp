// A Jet file is taken over whole or not at all. Stand-ins for mdbtools play the files.
#include "store/takeover.h"

#include <QDir>
#include <QFileInfo>

#include <csignal>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include "store/scripts.h"
#include "workshop.h"

namespace {

using namespace support;

const QString between(QChar(0x1f)), rowEnd(QChar(0x1e)), null(QChar(0x1d));

void write(const QString &path, const QByteArray &bytes) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size()) << path;
}

class JetTakeOver : public Workshop {
  protected:
    /// The file holds what the demo database does, as far as the earlier program knew it.
    JetTakeOver() {
        QDir().mkpath("bin");
        const QByteArray check = "#!/bin/sh\n[ \"$LC_ALL\" = C.UTF-8 ] || exit 9\n"
                                 "[ -s \"$1\" ] || [ -s \"$2\" ] || [ \"$1\" = -Q ] || exit 8\n";
        const QByteArray here = directory.filePath("jet").toUtf8();
        tool("mdb-tables", check + "cat '" + here + "/tables'");
        tool("mdb-count", check + "cat \"" + here + "/$2.count\"");
        tool("mdb-export", check +
                               "[ \"$8$9\" = '-D%Y-%m-%d' ] || exit 7\nfor name; do :; done\n"
                               "cat \"" +
                               here +
                               "/$name.rows\"\n"
                               "[ ! -e \"" +
                               here + "/$name.rc\" ] || [ ! -e \"" + here +
                               "/kill\" ] || kill -9 $PPID\n[ ! -e \"" + here + "/$name.rc\" ]");
        qputenv("PATH", directory.filePath("bin").toUtf8() + ':' + path);
        write("alt.mdb", QByteArray("\0\1\0\0Standard Jet DB\0\1", 21) + QByteArray(4000, 'x'));
        QDir().mkpath("jet");
        gDatenbank.openFile(datenbankName);
        change("UPDATE Kunden SET Ort = 'Straße' || char(10) || '\"1\", 2' WHERE KundenID = 1");
        for (const QString &table : column(
                 "SELECT name FROM sqlite_master WHERE type = 'table' AND name NOT LIKE 'sqlite%' "
                 "AND name NOT LIKE 'Nachweis%' AND name NOT LIKE '%Bericht%'"))
            give(table);
        write("jet/tables", tables.join('\n').toUtf8() + "\nEigene Notizen\n");
    }
    ~JetTakeOver() override { qputenv("PATH", path); }

    static void tool(const QString &name, const QByteArray &script) {
        write("bin/" + name, script + '\n');
        QFile::setPermissions("bin/" + name, QFile::ReadOwner | QFile::ExeOwner);
    }
    /// The told columns: what is kept with a protocol came later.
    static QStringList columnsOf(const QString &table) {
        QStringList columns = column("SELECT name FROM pragma_table_info(?)", {table});
        const qsizetype kept = table.startsWith("Protokoll")   ? columns.indexOf("Spezifikation")
                               : table.startsWith("Messwerte") ? columns.indexOf("ZulAbw")
                                                               : -1;
        return columns.mid(0, kept);
    }
    void give(const QString &table) {
        const QStringList columns = columnsOf(table);
        Recordset all = gDatenbank.open("SELECT " + columns.join(", ") + " FROM " + table);
        QString text = columns.join(between) + rowEnd;
        for (int row = 0; row < all.count(); ++row) {
            QStringList values;
            for (int i = 0; i < columns.size(); ++i) {
                QString value = all.at(row, i).toString();
                if (columns[i] == "ErstellDatum" || columns[i].startsWith("kalibriert"))
                    value += value.size() == 10 && value[4] == '-' ? " 00:00:00" : "";
                if (columns[i] == "MDat")
                    value.truncate(19);
                if (columns[i] == "LetzterAufruf" || columns[i] == "Endprüfung")
                    value.remove('-');
                values += value.isEmpty() ? null : value;
            }
            text += values.join(between) + rowEnd;
        }
        tables += table;
        rows(table, text, all.count());
    }
    static void rows(const QString &table, const QString &text, int count) {
        write("jet/" + table + ".rows", text.toUtf8());
        write("jet/" + table + ".count", QByteArray::number(count) + '\n');
    }
    /// In what the tool gives of the table.
    static void replace(const QString &table, const QString &what, const QString &with) {
        QFile file("jet/" + table + ".rows");
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        QString text = file.readAll();
        file.close();
        ASSERT_TRUE(text.contains(what)) << table << ' ' << what;
        write(file.fileName(), text.replace(text.indexOf(what), what.size(), with).toUtf8());
    }
    void lack(const QStringList &some) {
        for (const QString &table : some)
            tables.removeAll(table);
        write("jet/tables", tables.join('\n').toUtf8());
    }
    TakeOver take(bool unreadableEmpty = false) {
        return takeOver("alt.mdb", "neu/torvena470.mdb", unreadableEmpty);
    }
    /// What the report tells beside the counts.
    static QString doubts(const TakeOver &report) {
        QStringList all = report.leftColumns;
        for (const QString &column : report.lackedColumns)
            all += '-' + column;
        for (const TakeOver::Value &value : report.refused)
            all +=
                QString("%1 %2 %3=%4%5")
                    .arg(value.table, value.row, value.column, value.value, value.key ? "!" : "");
        for (const TakeOver::Orphans &lost : report.orphans)
            all += QString("%1.%2 %3: %4")
                       .arg(lost.table, lost.column)
                       .arg(lost.rows)
                       .arg(lost.keys.join(' '));
        return all.join(" | ");
    }
    static void expectNothing() {
        EXPECT_TRUE(QDir("neu").isEmpty()) << QDir("neu").entryList().join(' ');
    }
    static QString taken(const QString &sql) {
        Datenbank store;
        store.openFile("neu/torvena470.mdb");
        return store.open(sql)[0].text();
    }

    const QByteArray path = qgetenv("PATH");
    QStringList tables;
    bool made = QDir().mkpath("neu");
};

TEST_F(JetTakeOver, AllRowsAreThereAndMeanWhatTheyMeant) {
    change("UPDATE EP_Rezeptnamen SET LetzterAufruf = -1 WHERE RezeptID = 1");
    give("EP_Rezeptnamen");
    const TakeOver report = take();
    ASSERT_TRUE(report.done);
    EXPECT_EQ(doubts(report), "");
    EXPECT_EQ(report.left.join(' '), "Sitzung ÄndRez_temp Eigene Notizen");
    gDatenbank.execute("ATTACH 'neu/torvena470.mdb' AS Neu");
    for (const TakeOver::Table &table : report.taken) {
        QStringList columns;
        for (const QString &column : columnsOf(table.name))
            columns += column == "MDat" ? "substr(MDat, 1, 19)" : "NULLIF(" + column + ", '')";
        const QString select = "SELECT " + columns.join(", ") + " FROM %1." + table.name;
        EXPECT_EQ(grid(select.arg("main")), grid(select.arg("Neu")));
        EXPECT_EQ(grid("SELECT count(*) FROM " + table.name), QString::number(table.rows));
    }
    EXPECT_EQ(taken("SELECT count(*) FROM Protokoll WHERE Spezifikation IS NULL OR Kunde IS NULL"),
              "0");
    EXPECT_EQ(taken("SELECT count(*) FROM Messwerte WHERE ZulAbw IS NULL"), "0");
    EXPECT_EQ(taken("SELECT LetzterAufruf FROM EP_Rezeptnamen WHERE RezeptID = 1"), "-1");
    EXPECT_EQ(raised([&] { take(); }), 70) << "a database that is there stays";
    QFile::rename("neu/torvena470.mdb", "neu/torvena470.mdb-journal");
    EXPECT_EQ(raised([&] { take(); }), 70) << "the journal of another";
}

TEST_F(JetTakeOver, AnyDoubtLeavesNothing) {
    const std::vector<std::tuple<const char *, int, std::function<void()>>> doubtful{
        {"rc", 3343, [] { write("jet/Messwerte.rc", ""); }},
        {"cut", 3343, [] { replace("Kunden", rowEnd + "2" + between, "" + between); }},
        {"cut at the end", 3343,
         [] {
             QFile file("jet/Blutdruck.rows");
             EXPECT_TRUE(file.resize(file.size() - 20));
         }},
        {"more rows than are counted", 3343, [] { write("jet/Rezepte.count", "3\n"); }},
        {"no count", 3343, [] { write("jet/Rezepte.count", "\n"); }},
        {"a column more", 3343, [] { replace("Ergometer", rowEnd + "2", rowEnd + "2" + between); }},
        {"no rows at all", 3343, [] { write("jet/EP.rows", ""); }},
        {"a twin", 3022, [] { replace("Kunden", rowEnd + "2" + between, rowEnd + "1" + between); }},
        {"no key", 3265, [] { replace("Kunden", "KundenID", "Nummer"); }},
        {"no owner", 3265, [] { replace("Ergometer", "KundenID", "Nummer"); }},
        {"two settings", 3343,
         [] { rows("System", "Sprache" + rowEnd + "1" + rowEnd + "2" + rowEnd, 2); }},
        {"Missing table", 3078, [this] { lack({"Messwerte_temp"}); }},
        {"no tool", 75, [] { qputenv("PATH", "/nirgends"); }},
        {"ours", 13, [] { QFile::remove("alt.mdb"), QFile::copy(datenbankName, "alt.mdb"); }},
        {"later version", 13,
         [] { write("alt.mdb", QByteArray("\0\1\0\0Standard Jet DB\0\2", 21)); }},
        {"no file", 53, [] { QFile::remove("alt.mdb"); }},
    };
    const QString whole = directory.filePath("ganz");
    const auto copyAll = [](const QString &from, const QString &to) {
        QDir().mkpath(to);
        for (const QString &name : QDir(from).entryList(QDir::Files)) {
            QFile::remove(to + '/' + name);
            QFile::copy(from + '/' + name, to + '/' + name);
        }
    };
    copyAll("jet", whole);
    const QByteArray jet = [] {
        QFile file("alt.mdb");
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }();
    const QByteArray search = qgetenv("PATH");
    for (const auto &[what, number, spoilt] : doubtful) {
        spoilt();
        EXPECT_EQ(raised([&] { take(true); }), number) << what;
        expectNothing();
        qputenv("PATH", search);
        write("alt.mdb", jet);
        QDir("jet").removeRecursively();
        copyAll(whole, "jet");
    }
    EXPECT_TRUE(take().done) << "what was stopped hinders nothing";
}

TEST_F(JetTakeOver, WhereverItIsKilledOrFullThereIsNoDatabase) {
    const auto inChild = [&](const std::function<void()> &prepare) {
        const pid_t child = ::fork();
        if (child == 0) {
            prepare();
            ::_exit(raised([&] { take(); }) == 0 ? 0 : 2);
        }
        int status = 0;
        ::waitpid(child, &status, 0);
        return status;
    };
    write("jet/kill", "");
    for (const char *table : {"System", "Protokoll", "Blutdruck_temp"}) {
        const QString mark = QString("jet/%1.rc").arg(table);
        write(mark, "");
        EXPECT_TRUE(WIFSIGNALED(inChild([] {}))) << table;
        EXPECT_FALSE(QFile::exists("neu/torvena470.mdb")) << table;
        QFile::remove(mark);
    }
    int stops = 0;
    for (rlim_t size = 2000; size < 1'000'000; size *= 2) {
        for (const auto action : {SIG_DFL, SIG_IGN}) { // killed as it writes, a full disk
            QDir("neu").removeRecursively();
            QDir().mkpath("neu");
            const int status = inChild([&] {
                std::signal(SIGXFSZ, action);
                const rlimit small{size, size};
                setrlimit(RLIMIT_FSIZE, &small);
                setrlimit(RLIMIT_CORE, &small);
            });
            EXPECT_EQ(QFile::exists("neu/torvena470.mdb"), status == 0) << size;
            EXPECT_TRUE(status == 0 || action == SIG_DFL || QDir("neu").isEmpty()) << size;
            stops += status != 0;
        }
    }
    EXPECT_GT(stops, 6);
    EXPECT_EQ(taken("SELECT count(*) FROM Kunden"), grid("SELECT count(*) FROM Kunden"));
}

TEST_F(JetTakeOver, ValuesThatCannotBeAreRefusedOrLeftEmpty) {
    const QString date = grid("SELECT ErstellDatum FROM Protokoll WHERE ProtokollID = 1");
    replace("Protokoll", date + " 00:00:00", "1900-01-00 00:00:00");
    replace("Toleranzen", between + "5" + between, between + "viel" + between);
    const QString told =
        "Toleranzen ID 1 Prozent=viel | Protokoll ProtokollID 1 ErstellDatum=1900-01-00 00:00:00";
    TakeOver report = take();
    EXPECT_EQ(doubts(report), told);
    EXPECT_FALSE(report.done);
    expectNothing();
    report = take(true);
    EXPECT_TRUE(report.done);
    EXPECT_EQ(doubts(report), told);
    EXPECT_EQ(
        taken("SELECT count(*) FROM Protokoll WHERE ErstellDatum IS NULL AND ProtokollID = 1"),
        "1");
    EXPECT_EQ(taken("SELECT Prozent IS NULL FROM Toleranzen WHERE ID = 1"), "1");
    QFile::remove("neu/torvena470.mdb");
    replace("Ergometer", rowEnd + "1" + between + "1" + between,
            rowEnd + "1" + between + "eins" + between);
    report = take(true);
    EXPECT_FALSE(report.done) << "a row without its customer";
    EXPECT_TRUE(doubts(report).contains("Ergometer GerätID 1 KundenID=eins!"));
    replace("SecControl", rowEnd + "3" + between, rowEnd + null + between);
    EXPECT_TRUE(doubts(take(true)).contains("SecControl ProtokollID  ProtokollID=!"))
        << "it would get a number of its own";
    expectNothing();
}

TEST_F(JetTakeOver, WhatIsOddIsTakenAndTold) {
    replace("Toleranzen", between + "5" + between + "3" + between + "2" + between,
            between + "0.050000001" + between + "12.7500" + between + "1.000123456789" + between);
    replace("Normalkalibrierdaten", "VK1_R", "vk1_r");
    replace("Hebelarmkalibrierung", "Prüfdatum", "Datum"); // known by its place
    replace("Kunden", between + "Ort" + rowEnd, between + "Bemerkung" + rowEnd);
    replace("Messwerte", rowEnd + "1" + between, rowEnd + "777" + between);
    replace("Messwerte", rowEnd + "1" + between, rowEnd + null + between);
    replace("Messwerte", between + "MDat", between + "Wann");
    rows("MU_Drehzahl",
         QStringList{"Bereich", "Grenze", "U"}.join(between) + rowEnd +
             QStringList{"bis 130", "130", "0.2"}.join(between) + rowEnd,
         1);
    lack({"EP", "EP_Messwerte", "EP_Rezepte", "EP_Rezeptnamen", "MU_Leistung"});
    const TakeOver report = take();
    EXPECT_EQ(
        doubts(report),
        "MU_Drehzahl.Bereich | Kunden.Bemerkung | Messwerte.Wann | -Kunden.Ort | -Messwerte.MDat | "
        "Messwerte.ProtokollID 2: 0 777");
    EXPECT_EQ(report.asDelivered.join(' '),
              "MU_Leistung EP_Rezeptnamen EP_Rezepte EP EP_Messwerte");
    EXPECT_EQ(
        taken("SELECT Prozent || ' ' || Watt || ' ' || GrenzAbw FROM Toleranzen WHERE ID = 1"),
        "0.05 12.75 1.000123456789");
    EXPECT_EQ(taken("SELECT count(MDat) FROM Messwerte"), "0") << "not the day of the take-over";
    EXPECT_EQ(taken("SELECT group_concat(ID || ' ' || bis || ' ' || MU) FROM MU_Drehzahl"),
              "1 130.0 0.2");
    EXPECT_EQ(taken("SELECT Prüfdatum FROM Hebelarmkalibrierung"),
              grid("SELECT Prüfdatum FROM Hebelarmkalibrierung LIMIT 1"));
    EXPECT_EQ(taken("SELECT count(*) FROM Messwerte WHERE ProtokollID = 777"), "1");
    EXPECT_EQ(taken("SELECT count(*) FROM MU_Leistung"), "2");
}

TEST_F(JetTakeOver, AnOlderFileWithoutSpecificationsGetsThem) {
    lack({"System", "SecondInterface", "Toleranzen", "Protokoll_temp", "Messwerte",
          "Messwerte_temp", "SecControl", "SecControl_temp", "Blutdruck", "Blutdruck_temp", "EP",
          "EP_Messwerte", "EP_Rezepte", "EP_Rezeptnamen", "MU_Leistung", "MU_Drehzahl"});
    const QString row = "%1" + between + "R" + between + "%2" + rowEnd;
    rows("Rezeptnamen",
         "REZEPTID" + between + "RezName" + between + "Toleranz" + rowEnd +
             row.arg("1", "Medizinische Geräte") + row.arg("2", "ohne Toleranz"),
         2);
    ASSERT_TRUE(take().done);
    EXPECT_EQ(
        taken("SELECT group_concat(RezeptID || ToleranzID || Toleranz, '|') FROM Rezeptnamen"),
        "11Medizinische Geräte|22stationäre Trainingsgeräte");
    EXPECT_EQ(taken("SELECT count(*) FROM Protokoll WHERE Spezifikation IS NULL"), "0");
    EXPECT_EQ(taken("SELECT Version FROM System"), "470");
}

} // namespace
