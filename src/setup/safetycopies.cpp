#include "safetycopies.h"

#include <QDir>
#include <QTextStream>

#include "platform/fehler.h"
#include "store/safety.h"

int copyToStick(const QString &directory, const QString &target) {
    try {
        const QString copy = copyDatabaseTo(directory, target, QDate::currentDate());
        QTextStream(stdout) << "The database was copied and the copy checked: it is sound.\n"
                            << QDir::toNativeSeparators(copy) << '\n';
        return 0;
    } catch (const Fehler &fehler) {
        QTextStream(stderr) << "torvena-setup: the database was not copied: "
                            << fehler.text().english << '\n';
        return 1;
    }
}

int listSafetyCopies(const QString &directory, bool german) {
    const auto say = [german](const Text &text) { return german ? text.german : text.english; };
    const std::vector<SafetyCopy> copies = checkedSafetyCopies(directory);
    int damaged = 0;
    QTextStream out(stdout);
    if (copies.empty())
        out << say({"Es gibt keine Sicherungskopien.", "There are no safety copies."}) << '\n';
    for (const SafetyCopy &copy : copies) {
        const bool sound = copy.damage.english.isEmpty();
        damaged += sound ? 0 : 1;
        out << say({"Sicherungskopie ", "Safety copy "}) << copy.day.toString(Qt::ISODate) << ": "
            << (sound ? say({"unbeschädigt", "sound"})
                      : say({"beschädigt: ", "damaged: "}) + say(copy.damage))
            << '\n';
    }
    return damaged;
}
