#include "journey.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "testclock.h"

namespace support {

namespace {

TestClock *theClock = nullptr;

struct Waiting {
    std::coroutine_handle<> handle;
    const Until *until = nullptr;
    double deadline = 0;
    bool inVain = false;
} waiting;

bool goOnIfTrue() {
    if (!waiting.handle)
        return false;
    waiting.inVain = waiting.inVain || theClock->elapsed() > waiting.deadline;
    if (!waiting.inVain && !waiting.until->condition())
        return false;
    const auto handle = std::exchange(waiting.handle, {});
    handle.resume();
    return true;
}

} // namespace

void Until::await_suspend(std::coroutine_handle<> handle) const {
    waiting = {handle, this, theClock->elapsed() + milliseconds, false};
    // Time must be able to reach the deadline even when nothing else is due.
    theClock->after(milliseconds + 1, [] {});
}

void Until::await_resume() const {
    if (std::exchange(waiting.inVain, false))
        throw std::runtime_error("waited in vain: " + what);
}

Until pass(double milliseconds) {
    const double end = theClock->elapsed() + milliseconds;
    theClock->after(milliseconds, [] {});
    return until(
        "time to pass", [end] { return theClock->elapsed() >= end; }, milliseconds + 60'000);
}

void run(TestClock &clock, Journey journey, const std::function<void()> &leave) {
    theClock = &clock;
    const auto handle = journey.handle();
    clock.idle = [handle, &leave] {
        if (handle.done() && leave)
            leave();
        return goOnIfTrue();
    };
    handle.resume();
    while (!handle.done())
        clock.pump();
    clock.idle = {};
    try {
        journey.await_resume();
    } catch (const std::exception &problem) {
        ADD_FAILURE() << "the journey ended early: " << problem.what();
    }
}

} // namespace support
