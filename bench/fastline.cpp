#include "fastline.h"

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cmath>
#include <csignal>
#include <cstdlib>

#include <fcntl.h>
#include <poll.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <termios.h>
#include <unistd.h>

#include "stand.h"

namespace bench {

namespace {

constexpr double load = 100; // W

[[noreturn]] void standBehind(int terminal) {
    using Clock = std::chrono::steady_clock;
    simulator::Stand stand;
    stand.setLoad(load);
    const auto start = Clock::now();
    const auto now = [start] {
        return std::chrono::duration<double, std::milli>(Clock::now() - start).count() *
               FastLine::haste;
    };
    for (;;) {
        const auto next = stand.nextEvent();
        const double wait = next ? std::max(*next - now(), 0.0) / FastLine::haste : 1000;
        pollfd waiting{terminal, POLLIN, 0};
        ::poll(&waiting, 1, static_cast<int>(std::ceil(wait)));
        char bytes[512];
        if (waiting.revents & POLLIN) {
            const ssize_t count = ::read(terminal, bytes, sizeof bytes);
            if (count > 0)
                stand.receive({bytes, static_cast<std::size_t>(count)}, now());
        }
        const std::string answer = stand.take(now());
        if (!answer.empty() && ::write(terminal, answer.data(), answer.size()) < 0)
            std::_Exit(1);
    }
}

} // namespace

FastLine::FastLine(const std::string &directory) : mLink(directory + "/COM1") {
    const int terminal = ::posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC);
    if (terminal < 0 || ::grantpt(terminal) != 0 || ::unlockpt(terminal) != 0)
        return;
    char name[128];
    if (::ptsname_r(terminal, name, sizeof name) != 0)
        return;
    const int line = ::open(name, O_RDWR | O_NOCTTY | O_CLOEXEC); // keeps the line up
    termios settings;
    if (line < 0 || ::tcgetattr(line, &settings) != 0)
        return;
    ::cfmakeraw(&settings);
    ::tcsetattr(line, TCSANOW, &settings);
    ::unlink(mLink.c_str());
    if (::symlink(name, mLink.c_str()) != 0)
        return;
    mChild = ::fork();
    if (mChild == 0) {
        ::prctl(PR_SET_PDEATHSIG, SIGKILL);
        standBehind(terminal);
    }
    ::close(terminal);
    ::close(line); // the child has its own
}

FastLine::~FastLine() {
    if (mChild > 0) {
        ::kill(mChild, SIGKILL);
        ::waitpid(mChild, nullptr, 0);
    }
    ::unlink(mLink.c_str());
}

} // namespace bench
