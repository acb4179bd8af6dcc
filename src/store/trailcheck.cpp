#include "store/trailcheck.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QMap>

#include "store/database.h"
#include "store/scripts.h"
#include "store/trail.h"

using namespace platform;

namespace {

constexpr size_t toldAtMost = 100;
constexpr qlonglong toldEach = 20'000; // links or rows between two tellings

QString quoted(const QString &name) {
    return '"' + name + '"';
}

QJsonObject fieldsOf(const QString &row) {
    return QJsonDocument::fromJson(row.toUtf8()).object();
}

/// "Feld: old → new" of each field that differs.
QString differences(const QString &before, const QString &after) {
    const QJsonObject from = fieldsOf(before), to = fieldsOf(after);
    QStringList all;
    for (const QString &name : to.keys()) {
        if (from[name] != to[name])
            all += name + ": " + from[name].toVariant().toString() + " → " +
                   to[name].toVariant().toString();
    }
    return all.join(", ");
}

class Check {
  public:
    Check(Datenbank &store, std::function<void(qlonglong, qlonglong)> progress)
        : mStore(store), mProgress(std::move(progress)) {}

    TrailReport run() {
        if (!mStore.open("SELECT 1 FROM sqlite_master WHERE type = 'table' AND name = 'Nachweis'")
                 .empty()) {
            triggers();
            walk();
            replay();
        } else if (datenbankVeraltet(mStore)) {
            mReport.noted.push_back(
                {"Die Datenbank ist von einem älteren Programm und führt noch keinen Nachweis. Er "
                 "beginnt, wenn torvena sie öffnet.",
                 "The database is of an older program and keeps no trail yet. It begins when "
                 "torvena "
                 "opens it."});
        } else {
            found({"Die Tabelle Nachweis fehlt.", "The table Nachweis is missing."});
        }
        return mReport;
    }

  private:
    void found(const Text &text) {
        if (mReport.found.size() < toldAtMost)
            mReport.found.push_back(text);
        else
            ++mReport.beyond;
    }
    qlonglong number(const QString &sql, const Datenbank::Params &params = {}) {
        const Recordset row = mStore.open(sql, params);
        return row.empty() ? 0 : row[0].value().toLongLong();
    }
    void step(qlonglong count = 1) {
        if (mProgress && mDone / toldEach != (mDone + count) / toldEach)
            mProgress(mDone + count, mAll);
        mDone += count;
    }

    /// Changes are kept only while all of them are there, letter by letter.
    void triggers() {
        if (datenbankVeraltet(mStore))
            return; // its own may be others
        const auto stored = [this](const QString &name) {
            const Recordset row =
                mStore.open("SELECT sql FROM sqlite_master WHERE name = ?", {name});
            return row.empty() ? QString() : row[0].text();
        };
        QStringList off;
        const QString script = sqlScript("trail.sql");
        for (const char *name :
             {"NachweisNeu", "NachweisAnhängen", "NachweisBleibt", "NachweisBesteht"}) {
            const QString sql = stored(name);
            if (sql.isEmpty() || !script.contains(sql))
                off += name;
        }
        for (const QString &table : trailTables(mStore)) {
            const QMap<QString, QString> wanted = trailTriggers(mStore, table);
            for (auto trigger = wanted.begin(); trigger != wanted.end(); ++trigger) {
                if (stored(trigger.key()) != trigger.value())
                    off += trigger.key();
            }
        }
        if (!off.isEmpty())
            found({"Der Nachweis ist ganz oder zum Teil ausgeschaltet; es fehlen oder wurden "
                   "geändert: " +
                       off.join(", ") + '.',
                   "The trail is switched off, all or in part; missing or changed: " +
                       off.join(", ") + '.'});
    }

    void walk() {
        mAll = number("SELECT count(*) FROM Nachweis");
        for (const QString &table : trailTables(mStore))
            mAll += number("SELECT count(*) FROM " + quoted(table));
        QString before;
        qlonglong last = 0;
        mStore.each(QString("SELECT %1 FROM Nachweis ORDER BY Nr").arg(linkColumns), {},
                    [&](const Row &link) {
                        const qlonglong number = link.whole(0);
                        const QString chain = link.text(9);
                        if (number != last + 1)
                            missing(last + 1, number - 1);
                        else if (link.text(8) != before)
                            notJoined(number);
                        if (chain != linkHash(link))
                            changed(number);
                        if (link.bytes(4) == "Bestand")
                            state(number, link);
                        else if (last == 0)
                            found({"Der Nachweis beginnt nicht mit einem Bestand.",
                                   "The trail does not begin with a state."});
                        mSums.follow(link, 3);
                        before = chain;
                        last = number;
                        ++mReport.links;
                        step();
                    });
        const qlonglong given = number("SELECT seq FROM sqlite_sequence WHERE name = 'Nachweis'");
        if (given > last)
            missing(last + 1, given);
        else if (last == 0)
            found({"Der Nachweis ist leer.", "The trail is empty."});
        mReport.newest = QString::number(last) + " / " + before.left(16);
    }

    void missing(qlonglong from, qlonglong to) {
        const QString numbers =
            from == to ? QString::number(from) : QString::number(from) + "–" + QString::number(to);
        found({"Im Nachweis fehlt: Nr. " + numbers + '.',
               "Missing in the trail: no. " + numbers + '.'});
    }
    void notJoined(qlonglong number) {
        found(
            {QString(
                 "Nachweis Nr. %1 schließt nicht an das Glied davor an: dort wurde etwas geändert, "
                 "eingefügt oder herausgenommen.")
                 .arg(number),
             QString(
                 "Trail no. %1 does not join the link before it: something was changed, put in or "
                 "taken out there.")
                 .arg(number)});
    }
    void changed(qlonglong number) {
        found({QString("Nachweis Nr. %1 wurde geändert.").arg(number),
               QString("Trail no. %1 was changed.").arg(number)});
    }
    void state(qlonglong number, const Row &link) {
        const TrailState said = TrailState::from(link.bytes(7));
        for (const QString &table : said.tables)
            mSince[table] = number;
        if (!said.off.isEmpty())
            found({QString("Vor dem Bestand Nr. %1 (%2) wurde am Nachweis vorbei geändert: ")
                           .arg(number)
                           .arg(link.text(5)) +
                       said.off.join(", ") + '.',
                   QString("Before the state no. %1 (%2) was changed past the trail: ")
                           .arg(number)
                           .arg(link.text(5)) +
                       said.off.join(", ") + '.'});
    }

    void replay() {
        QMap<QString, RowSum> said = mSums.tables();
        for (const QString &table : trailTables(mStore)) {
            const RowSum now = sumOf(mStore, "main", table, trailColumns(mStore, "main", table));
            const RowSum wanted = said.take(table);
            if (!(now == wanted))
                differs(table, now, wanted);
            step(now.count());
        }
        for (auto gone = said.begin(); gone != said.end(); ++gone)
            found({"Tabelle " + gone.key() + ": fehlt.", "Table " + gone.key() + ": is missing."});
    }

    /// Names the rows of which the newest link says something else; of the others only that there
    /// are such.
    void differs(const QString &table, const RowSum &now, RowSum wanted) {
        struct Last {
            qlonglong number;
            QString row;
        };
        QMap<QString, Last> touched; // by key
        mStore.each(
            "SELECT Nr, Schlüssel, Neu FROM Nachweis WHERE Tabelle = ? AND Nr > ? ORDER BY Nr",
            {table, mSince.value(table)}, [&](const Row &link) {
                touched[link.text(1)] = {link.whole(0), link.text(2)};
            });
        const QByteArray name = table.toUtf8();
        const std::string_view bytes(name.constData(), static_cast<size_t>(name.size()));
        Query rowNow(mStore, "SELECT " + rowExpression(trailColumns(mStore, "main", table)) +
                                 " FROM " + quoted(table) + " WHERE rowid = ?");
        for (auto one = touched.begin(); one != touched.end(); ++one) {
            QByteArray row;
            rowNow.each({one.key().toLongLong()}, [&](const Row &there) {
                row = QByteArray(there.bytes(0).data(), there.bytes(0).size());
            });
            const QByteArray last = one->row.toUtf8();
            if (row == last)
                continue;
            if (!last.isEmpty())
                wanted.remove(bytes, {last.constData(), static_cast<size_t>(last.size())});
            if (!row.isEmpty())
                wanted.add(bytes, {row.constData(), static_cast<size_t>(row.size())});
            otherThanSaid(table, one.key(), one->number, one->row, QString::fromUtf8(row));
        }
        if (now == wanted)
            return;
        const qlonglong more = now.count() - wanted.count();
        const QString count = " (" + QString::number(std::abs(more)) + ')';
        const Text what = more > 0   ? Text{"Zeilen eingefügt" + count, "rows put in" + count}
                          : more < 0 ? Text{"Zeilen gelöscht" + count, "rows deleted" + count}
                                     : Text{"Zeilen geändert", "rows changed"};
        const QString since = QString::number(mSince.value(table));
        found({"Tabelle " + table + ": " + what.german +
                   " am Nachweis vorbei, seit dem Bestand Nr. " + since + '.',
               "Table " + table + ": " + what.english + " past the trail, since the state no. " +
                   since + '.'});
    }

    void otherThanSaid(const QString &table, const QString &key, qlonglong number,
                       const QString &last, const QString &row) {
        const QString german = QString("Tabelle %1, Schlüssel %2: ").arg(table, key);
        const QString english = QString("Table %1, key %2: ").arg(table, key);
        if (row.isEmpty())
            found({german + QString("fehlt; gelöscht am Nachweis vorbei nach Nr. %1.").arg(number),
                   english +
                       QString("is missing; deleted past the trail after no. %1.").arg(number)});
        else if (last.isEmpty())
            found(
                {german +
                     QString("steht wieder da; Nr. %1 sagt, dass sie gelöscht wurde.").arg(number),
                 english +
                     QString("is there again; no. %1 says that it was deleted.").arg(number)});
        else
            found({german + QString("am Nachweis vorbei geändert nach Nr. %1: ").arg(number) +
                       differences(last, row),
                   english + QString("changed past the trail after no. %1: ").arg(number) +
                       differences(last, row)});
    }

    Datenbank &mStore;
    std::function<void(qlonglong, qlonglong)> mProgress;
    TrailReport mReport;
    TrailSums mSums;
    QMap<QString, qlonglong> mSince; // number of the newest state of a table
    qlonglong mDone = 0, mAll = 0;
};

} // namespace

TrailReport checkTrail(Datenbank &store,
                       const std::function<void(qlonglong done, qlonglong all)> &progress) {
    TrailReport report;
    const auto run = [&] { report = Check(store, progress).run(); };
    if (store.inTransaction())
        run(); // sees one state already
    else
        store.snapshot(run);
    return report;
}
