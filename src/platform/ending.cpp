#include "platform/ending.h"

#include <QCoreApplication>
#include <QSocketNotifier>

#include <csignal>

#include <fcntl.h>
#include <unistd.h>

namespace platform {

namespace {

int ends[2]; // of a pipe

void onSignal(int) {
    [[maybe_unused]] const ssize_t written = ::write(ends[1], "", 1);
}

} // namespace

bool onEnding(std::function<void()> handler) {
    if (::pipe2(ends, O_CLOEXEC | O_NONBLOCK) != 0)
        return false;
    auto *told = new QSocketNotifier(ends[0], QSocketNotifier::Read, qApp);
    QObject::connect(told, &QSocketNotifier::activated, [told, handler = std::move(handler)] {
        told->setEnabled(false);
        handler();
    });
    for (const int signal : {SIGTERM, SIGINT, SIGHUP})
        std::signal(signal, onSignal);
    return true;
}

} // namespace platform
