#include <QApplication>
#include <QTimer>

#include "app/start.h"
#include "platform/ending.h"
#include "windows/stil.h"

int main(int argc, char *argv[]) {
    QApplication application(argc, argv);
    QApplication::setApplicationName("torvena");
    QApplication::setQuitOnLastWindowClosed(false);
    platform::stilAnwenden(application);
    if (!platform::onEnding(beendenOhneFrage)) // which stops the motor
        return 1;
    QTimer start; // within the loop: boxes of the start can be ended from outside, too
    start.setSingleShot(true);
    QObject::connect(&start, &QTimer::timeout, programmStarten);
    start.start(0);
    const int result = QApplication::exec();
    programmAufräumen();
    return result;
}
