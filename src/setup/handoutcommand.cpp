#include <QDir>
#include <QTemporaryDir>
#include <QTextStream>

#include "commands.h"
#include "store/database.h"
#include "store/databasecopy.h"
#include "store/handout.h"
#include "store/scripts.h"

namespace {

/// Leaves the number as it is for an empty text; false for what is none.
bool readNumber(const QString &text, qlonglong &number) {
    if (text.isEmpty())
        return true;
    bool whole = false;
    number = text.toLongLong(&whole);
    return whole;
}

} // namespace

int handOutCommand(const HandoutOrder &order) {
    const qsizetype format = QStringList{"xlsx", "csv", "json"}.indexOf(order.format.toLower());
    if (format < 0)
        return complain("the formats are xlsx, csv and json.");
    HandoutRange range;
    if (!readNumber(order.first, range.from) || !readNumber(order.last, range.to))
        return complain("--von and --bis take the number of a protocol.");
    const QDir directory(order.directory);
    try {
        // On a copy: a save of the program would not wait until all is read.
        const QTemporaryDir temporary;
        const QString copy = temporary.filePath("copy.mdb");
        Datenbank store;
        store.openFile(directory.filePath(datenbankName)); // says what is wrong with it
        store.close();
        copyDatabase(directory.filePath(datenbankName), copy);
        store.openFile(copy);
        if (datenbankVeraltet(store))
            return complain("the database is of an older build. Run torvena-setup " +
                            order.directory + " first, which brings it up to date.");
        const Handout handed =
            handOut(store, range, static_cast<HandoutFormat>(format),
                    order.folder.isEmpty() ? directory.filePath("Export") : order.folder);
        QTextStream(stdout) << handed.protocols
                            << (handed.protocols == 1 ? " protocol: " : " protocols: ")
                            << QDir::toNativeSeparators(handed.path) << '\n';
    } catch (const Fehler &fehler) {
        return complain(fehler.text().english);
    }
    return Done;
}
