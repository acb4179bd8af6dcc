// bench-firstwindow DIR: starts itself over and over and tells how long it takes from the start of
// the process until the splash screen is painted, on the large database in DIR.
#include <QApplication>
#include <QDir>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>

#include <sys/wait.h>
#include <unistd.h>

#include "app/start.h"
#include "figures.h"
#include "largedatabase.h"
#include "session/screens.h"

namespace {

constexpr int runs = 10;
constexpr double target = 300; // ms

double milliseconds() {
    timespec now;
    ::clock_gettime(CLOCK_MONOTONIC, &now); // counts alike in all processes
    return static_cast<double>(now.tv_sec) * 1e3 + static_cast<double>(now.tv_nsec) / 1e6;
}

class FirstPaint : public QObject {
  public:
    bool eventFilter(QObject *watched, QEvent *event) override {
        // The window sends its backing store to the display when this event has been handled.
        if (watched == loaded(frm::Splash) && event->type() == QEvent::Paint)
            QMetaObject::invokeMethod(
                this, [] { QApplication::exit(); }, Qt::QueuedConnection);
        return false;
    }
};

/// The way of the program's own main(), up to the first window; its time goes to standard output.
int child(int argc, char *argv[], double started) {
    QApplication application(argc, argv);
    QApplication::setApplicationName("torvena");
    QApplication::setQuitOnLastWindowClosed(false);
    FirstPaint firstPaint;
    application.installEventFilter(&firstPaint);
    programmStarten();
    QApplication::exec();
    std::printf("%.3f\n", milliseconds() - started);
    std::fflush(stdout);
    std::_Exit(0);
}

double oneStart(const char *program) {
    int ends[2];
    if (::pipe(ends) != 0)
        return -1;
    const std::string started = std::to_string(milliseconds());
    const pid_t pid = ::fork();
    if (pid == 0) {
        ::dup2(ends[1], STDOUT_FILENO);
        ::execl(program, program, "--child", started.c_str(), nullptr);
        std::_Exit(1);
    }
    ::close(ends[1]);
    char text[64] = {};
    const ssize_t length = ::read(ends[0], text, sizeof text - 1);
    ::close(ends[0]);
    ::waitpid(pid, nullptr, 0);
    return length > 0 ? std::atof(text) : -1;
}

} // namespace

int main(int argc, char *argv[]) {
    if (argc == 3 && std::strcmp(argv[1], "--child") == 0)
        return child(argc, argv, std::atof(argv[2]));
    if (argc != 2) {
        std::fputs("usage: bench-firstwindow DIR\n", stderr);
        return 2;
    }
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    bench::prepareLargeDatabase(argv[1]);
    if (::chdir(argv[1]) != 0)
        return 1;
    std::vector<double> took;
    for (int run = 0; run <= runs; ++run) {
        const double one = oneStart("/proc/self/exe");
        if (one < 0) {
            std::fputs("the program did not start\n", stderr);
            return 1;
        }
        if (run > 0) // the first one warms the caches
            took.push_back(one);
    }
    const double median = bench::percentile(took, 50);
    std::printf("first window after %.0f ms (median), %.0f ms (longest) of %d\n", median,
                bench::percentile(took, 100), runs);
    bench::figure("First window after start, median", median, "ms", bench::Wanted::Below, target);
    bench::figure("First window after start, longest", bench::percentile(took, 100), "ms");
    bench::writeFigures();
    return 0;
}
