#include <QApplication>
#include <QSocketNotifier>

#include <csignal>
#include <sys/socket.h>
#include <unistd.h>

#include "app/start.h"

namespace {

int signalPipe[2];

void onSignal(int) {
    const char byte = 1;
    [[maybe_unused]] const auto written = ::write(signalPipe[1], &byte, 1);
}

} // namespace

int main(int argc, char *argv[]) {
    QApplication application(argc, argv);
    QApplication::setApplicationName("torvena");
    QApplication::setQuitOnLastWindowClosed(false);

    // Told to end from outside: an orderly way out like any other, which stops the motor.
    if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, signalPipe) != 0)
        return 1;
    QSocketNotifier ended(signalPipe[0], QSocketNotifier::Read);
    QObject::connect(&ended, &QSocketNotifier::activated, [&ended] {
        ended.setEnabled(false);
        beendenOhneFrage();
    });
    for (const int signal : {SIGTERM, SIGINT, SIGHUP})
        std::signal(signal, onSignal);

    // Within the loop: boxes of the start can be ended from outside, too.
    QMetaObject::invokeMethod(&application, programmStarten, Qt::QueuedConnection);
    const int result = QApplication::exec();
    programmAufräumen();
    return result;
}
