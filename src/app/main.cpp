#include <QApplication>
#include <QIcon>
#include <QTimer>

#include "app/arbeitsplatz.h"
#include "app/start.h"
#include "platform/ending.h"
#include "platform/program.h"
#include "windows/stil.h"

int main(int argc, char *argv[]) {
    if (platform::asksForWords(argc, argv)) {
        const QCoreApplication application(argc, argv);
        aufrufLesen();
        return 0;
    }
    QApplication application(argc, argv);
    const Aufruf aufruf = aufrufLesen();
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::setWindowIcon(QIcon(":/torvena.svg"));
    QApplication::setDesktopFileName("torvena");
    platform::stilAnwenden(application);
    if (!platform::onEnding(beendenOhneFrage)) // which stops the motor
        return 1;
    QTimer start; // within the loop: boxes of the start can be ended from outside, too
    start.setSingleShot(true);
    QObject::connect(&start, &QTimer::timeout, [&aufruf] {
        if (const auto ende = arbeitsplatzBetreten(aufruf))
            QCoreApplication::exit(*ende);
        else
            programmStarten();
    });
    start.start(0);
    const int result = QApplication::exec();
    programmAufräumen();
    arbeitsplatzVerlassen();
    return result;
}
