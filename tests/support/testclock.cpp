#include "testclock.h"

#include <QAbstractEventDispatcher>
#include <QtGlobal>

namespace support {

using platform::Timer;

TestClock &TestClock::install() {
    auto clock = std::make_unique<TestClock>();
    TestClock &installed = *clock;
    platform::Clock::replace(std::move(clock));
    return installed;
}

QDateTime TestClock::now() const {
    return mStart.addMSecs(static_cast<qint64>(mNow));
}

void TestClock::sleep(std::chrono::microseconds duration) {
    mNow += static_cast<double>(duration.count()) / 1000;
}

void TestClock::start(Timer &timer, int milliseconds) {
    mTimers[&timer] = {mNow + milliseconds, milliseconds};
}

void TestClock::stop(Timer &timer) {
    mTimers.erase(&timer);
}

void TestClock::after(double milliseconds, std::function<void()> event) {
    mEvents.emplace(mNow + milliseconds, std::move(event));
}

void TestClock::run(double milliseconds) {
    bool over = false;
    after(milliseconds, [&over] { over = true; });
    while (!over)
        pump();
}

void TestClock::pump() {
    // The toolkit may always have a little more to do; time must not stand still for it.
    constexpr int patience = 300;
    const bool worked = QAbstractEventDispatcher::instance()->processEvents(QEventLoop::AllEvents);
    if (worked && ++mBusyRounds < patience)
        return;
    mBusyRounds = 0;
    if (idle && idle())
        return;
    jump();
}

void TestClock::jump() {
    std::optional<double> next;
    const auto earlier = [&next](double at) {
        if (!next || at < *next)
            next = at;
    };
    for (const auto &[timer, due] : mTimers)
        earlier(due.at);
    if (!mEvents.empty())
        earlier(mEvents.begin()->first);
    const std::optional<double> fromOutside = nextOutside ? nextOutside() : std::nullopt;
    if (fromOutside)
        earlier(*fromOutside);
    if (!next) {
        if (!stuck)
            qFatal("nothing is left to wait for");
        stuck();
        return;
    }
    mNow = std::max(mNow, *next);
    if (fromOutside && *fromOutside <= mNow)
        outside();
    while (!mEvents.empty() && mEvents.begin()->first <= mNow) {
        const auto event = mEvents.begin()->second;
        mEvents.erase(mEvents.begin());
        event();
    }
    // A tick may start and stop timers, itself among them.
    std::vector<Timer *> due;
    for (auto &[timer, when] : mTimers) {
        if (when.at <= mNow)
            due.push_back(timer);
    }
    for (Timer *timer : due) {
        const auto found = mTimers.find(timer);
        if (found == mTimers.end() || found->second.at > mNow)
            continue;
        found->second.at = mNow + found->second.milliseconds;
        timer->tick();
    }
}

} // namespace support
