// The one source of time, timers and waiting.
#pragma once

#include <QDateTime>

#include <chrono>
#include <functional>
#include <memory>

namespace platform {

class Timer;

/// What the program runs on: the machine's clock, or the virtual clock of a test.
class Clock {
  public:
    virtual ~Clock() = default;
    /// Local date and time.
    virtual QDateTime now() const = 0;
    /// Handles what is pending and, when nothing was, sleeps until the next event or timer.
    virtual void pump() = 0;
    /// Lets time pass without handling anything.
    virtual void sleep(std::chrono::microseconds duration) = 0;
    /// The timer is to tick in `milliseconds`, and again after each such time, until stopped.
    virtual void start(Timer &timer, int milliseconds) = 0;
    virtual void stop(Timer &timer) = 0;

    /// The clock in force; the machine's until a test puts its own in place. None gives the
    /// machine's back.
    static Clock &current();
    static void replace(std::unique_ptr<Clock> clock);
};

inline void pump() {
    Clock::current().pump();
}

inline QDateTime now() {
    return Clock::current().now();
}

/// A short fixed wait between two operations on a line: `rounds` of 0.05 µs each, so 20 000 is a
/// millisecond. Nothing is handled meanwhile.
void countedDelay(long rounds);

/// A message timer: ticks every `interval` ms while enabled. Enabling an enabled timer does not
/// start it anew; an interval of 0 never ticks.
class Timer {
  public:
    explicit Timer(int interval = 0);
    ~Timer();
    Timer(const Timer &) = delete;
    Timer &operator=(const Timer &) = delete;

    int interval() const { return mInterval; }
    /// 0 or above; on an enabled timer the time runs anew.
    void setInterval(int milliseconds);
    bool enabled() const { return mEnabled; }
    void setEnabled(bool enabled);

    std::function<void()> onTick;
    /// For clocks: runs onTick unless an earlier tick of this timer is still running. What it
    /// throws is reported as from a screen's handler.
    void tick();

  private:
    int mInterval;
    bool mEnabled = false;
    bool mTicking = false;
};

} // namespace platform

using platform::countedDelay;
using platform::pump;
using platform::Timer;
