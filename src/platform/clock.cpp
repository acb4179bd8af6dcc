#include "platform/clock.h"

#include <QCoreApplication>
#include <QTimer>

#include <thread>
#include <unordered_map>

#include "platform/guard.h"

namespace platform {

namespace {

class MachineClock : public Clock {
  public:
    QDateTime now() const override { return QDateTime::currentDateTime(); }

    void pump() override {
        QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
    }

    void sleep(std::chrono::microseconds duration) override {
        std::this_thread::sleep_for(duration);
    }

    void start(Timer &timer, int milliseconds) override {
        auto &qtTimer = mTimers[&timer];
        if (!qtTimer) {
            qtTimer = std::make_unique<QTimer>();
            qtTimer->setTimerType(Qt::PreciseTimer);
            QObject::connect(qtTimer.get(), &QTimer::timeout, [&timer] { timer.tick(); });
        }
        qtTimer->start(milliseconds);
    }

    void stop(Timer &timer) override {
        const auto found = mTimers.find(&timer);
        if (found == mTimers.end())
            return;
        // Perhaps the timer stops itself within its own tick: it must not die under it.
        found->second->stop();
        found->second.release()->deleteLater();
        mTimers.erase(found);
    }

  private:
    std::unordered_map<Timer *, std::unique_ptr<QTimer>> mTimers;
};

std::unique_ptr<Clock> &currentClock() {
    static std::unique_ptr<Clock> clock = std::make_unique<MachineClock>();
    return clock;
}

} // namespace

Clock &Clock::current() {
    return *currentClock();
}

void Clock::replace(std::unique_ptr<Clock> clock) {
    currentClock() = clock ? std::move(clock) : std::make_unique<MachineClock>();
}

void countedDelay(long rounds) {
    Clock::current().sleep(std::chrono::microseconds(rounds / 20));
}

Timer::Timer(int interval) : mInterval(interval) {}

Timer::~Timer() {
    setEnabled(false);
}

void Timer::setInterval(int milliseconds) {
    mInterval = milliseconds;
    if (mEnabled) {
        mEnabled = false;
        setEnabled(true);
    }
}

void Timer::setEnabled(bool enabled) {
    if (enabled == mEnabled)
        return;
    mEnabled = enabled;
    if (mEnabled && mInterval > 0)
        Clock::current().start(*this, mInterval);
    else
        Clock::current().stop(*this);
}

void Timer::tick() {
    if (mTicking || !onTick)
        return;
    mTicking = true;
    guarded(onTick);
    mTicking = false;
}

} // namespace platform
