#include <QDir>
#include <QFileInfo>
#include <QTextStream>

#include "commands.h"
#include "platform/fehler.h"
#include "store/database.h"
#include "store/takeover.h"
#include "store/workplace.h"

namespace {

void tell(QTextStream &out, const TakeOver &report) {
    for (const TakeOver::Table &table : report.taken)
        out << QString("%1: %2 rows\n").arg(table.name).arg(table.rows);
    for (const QString &table : report.asDelivered)
        out << table << ": not in the file, as delivered\n";
    for (const QString &table : report.left)
        out << table << ": left out, has no place here\n";
    for (const QString &column : report.lackedColumns)
        out << column << ": not in the file, left empty\n";
    for (const QString &column : report.leftColumns)
        out << column << ": left out, has no place here, but holds values\n";
    for (const TakeOver::Orphans &lost : report.orphans) {
        out << QString("%1.%2: %3 rows refer to what is not in %4 (%5%6)\n")
                   .arg(lost.table, lost.column)
                   .arg(lost.rows)
                   .arg(lost.target, lost.keys.join(", "),
                        lost.keys.size() < lost.rows ? ", ..." : "");
    }
    for (const TakeOver::Value &value : report.refused) {
        out << QString("%1, %2: %3 cannot be \"%4\"%5\n")
                   .arg(value.table, value.row, value.column, value.value,
                        value.key ? " and must not be empty" : "");
    }
}

} // namespace

int takeOverCommand(const QString &jetFile, const QString &directory, bool unreadableEmpty) {
    const bool fresh = !QFileInfo::exists(directory);
    const QString path = QDir(directory).filePath(datenbankName);
    platform::DirectoryLock lock;
    if (!fresh && !lock.take(directory))
        return complainInUse(directory, lock);
    if (!QDir().mkpath(directory))
        return complain("the directory " + directory + " cannot be created.");
    QString failure;
    try {
        const TakeOver report = takeOver(jetFile, path, unreadableEmpty);
        QTextStream out(stdout);
        tell(out, report);
        if (report.done) {
            out << path << '\n';
            out.flush();
            if (deliverFiles(directory))
                return Done;
            return complain("the database is there, but the delivered files cannot be written to " +
                            directory + ". Run torvena-setup " + directory + '.');
        }
        failure = "values of the file cannot be read; they are listed above. Correct them in the "
                  "earlier program";
        failure += unreadableEmpty ? ": keys cannot be left empty."
                                   : ", or leave them empty by --unlesbares-leer.";
    } catch (const Fehler &fehler) {
        failure = fehler.text().english;
    }
    if (fresh)
        QDir().rmdir(directory);
    return complain(failure + "\nNothing has been taken over.");
}
