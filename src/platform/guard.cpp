#include "platform/guard.h"

#include <cstdio>

namespace platform {

namespace {
std::function<void(const std::exception &)> uncaughtReporter;
}

void setUncaughtReporter(std::function<void(const std::exception &)> reporter) {
    uncaughtReporter = std::move(reporter);
}

void guarded(const std::function<void()> &body) {
    try {
        body();
    } catch (const std::exception &problem) {
        if (uncaughtReporter)
            uncaughtReporter(problem);
        else
            std::fprintf(stderr, "%s\n", problem.what());
    }
}

} // namespace platform
