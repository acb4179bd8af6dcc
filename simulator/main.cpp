// torvena-stand DIR [--no-panel]
#include "lines.h"
#include "panel.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QFileInfo>
#include <QSocketNotifier>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <fcntl.h>
#include <memory>
#include <optional>
#include <string_view>
#include <unistd.h>

#include "platform/ending.h"
#include "platform/program.h"

namespace {

void say(const std::string &text) {
    std::fputs(text.c_str(), stdout);
    std::fflush(stdout);
}

/// Answers commands until the input ends, which does not end the stand.
std::unique_ptr<QSocketNotifier> commandChannel(simulator::Lines &lines) {
    const simulator::Host host{[&lines](simulator::Line line, bool connected) {
                                   return lines.plug(line, connected).toStdString();
                               },
                               [] { QCoreApplication::quit(); }};
    auto notifier = std::make_unique<QSocketNotifier>(STDIN_FILENO, QSocketNotifier::Read);
    QSocketNotifier *channel = notifier.get();
    const auto pending = std::make_shared<std::string>();
    QObject::connect(channel, &QSocketNotifier::activated, channel,
                     [&lines, host, channel, pending] {
                         constexpr std::size_t LongestLine = 4096;
                         char bytes[512];
                         const ssize_t count = ::read(STDIN_FILENO, bytes, sizeof bytes);
                         if (count <= 0) {
                             channel->setEnabled(count < 0 && (errno == EAGAIN || errno == EINTR));
                             return;
                         }
                         pending->append(bytes, static_cast<std::size_t>(count));
                         for (std::size_t end; (end = pending->find('\n')) != pending->npos;) {
                             lines.with([&](simulator::Stand &stand) {
                                 say(runCommand(pending->substr(0, end), stand, host));
                             });
                             pending->erase(0, end + 1);
                         }
                         if (pending->size() > LongestLine)
                             pending->clear();
                     });
    return notifier;
}

int run(const QCoreApplication &application, bool panel) {
    QCommandLineParser parser;
    parser.setApplicationDescription(
        "The simulated stand: controller and ergometer as COM1 and COM4 in a directory. Takes "
        "commands on standard input, try help.");
    platform::introduce("torvena-stand", parser);
    parser.addOption({"no-panel", "Runs without a window."});
    parser.addPositionalArgument("DIR", "Where to link the two lines.");
    parser.process(application);
    const QStringList arguments = parser.positionalArguments();
    if (arguments.size() != 1 || !QFileInfo(arguments[0]).isDir()) {
        std::fputs("torvena-stand: one directory is wanted, see --help\n", stderr);
        return 2;
    }

    simulator::Lines lines(arguments[0]);
    for (const auto line : {simulator::Line::Controller, simulator::Line::Ergometer}) {
        if (const QString failure = lines.plug(line, true); !failure.isEmpty()) {
            std::fprintf(stderr, "torvena-stand: %s\n", qPrintable(failure));
            return 1;
        }
    }
    std::signal(SIGPIPE, SIG_IGN);
    if (!platform::onEnding(
            QCoreApplication::quit)) // the ordinary way out, which removes the links
        return 1;
    const auto channel = commandChannel(lines);
    std::optional<simulator::Panel> front;
    if (panel)
        front.emplace(lines).show();
    say("ready\n");
    return QCoreApplication::exec();
}

} // namespace

int main(int argc, char **argv) {
    // Descriptors that were closed at the start would be given to the lines.
    for (int descriptor = 0; descriptor >= 0 && descriptor <= STDERR_FILENO;) {
        descriptor = ::open("/dev/null", O_RDWR);
        if (descriptor > STDERR_FILENO)
            ::close(descriptor);
    }
    const bool panel = std::count(argv, argv + argc, std::string_view("--no-panel")) == 0 &&
                       !platform::asksForWords(argc, argv);
    if (panel) {
        const QApplication application(argc, argv);
        return run(application, true);
    }
    const QCoreApplication application(argc, argv);
    return run(application, false);
}
