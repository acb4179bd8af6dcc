// Virtual time: pump() handles what is pending and otherwise jumps to the next timer, byte or
// scripted event, so that a time-out of 18 s costs nothing and comes out the same each time.
#pragma once

#include <functional>
#include <map>
#include <optional>
#include <utility>
#include <vector>

#include "platform/clock.h"

namespace support {

class TestClock : public platform::Clock {
  public:
    /// Puts a fresh one in force.
    static TestClock &install();

    QDateTime now() const override;
    void pump() override;
    void sleep(std::chrono::microseconds duration) override;
    void start(platform::Timer &timer, int milliseconds) override;
    void stop(platform::Timer &timer) override;

    /// The day on which it was installed, at nine; today unless said otherwise.
    void setDay(const QDate &day) { mStart = nineOnDay(day); }
    /// Milliseconds since the clock was installed.
    double elapsed() const { return mNow; }
    /// Runs `event` so many milliseconds from now, inside whatever pumps then.
    void after(double milliseconds, std::function<void()> event);
    /// Pumps until so much time has passed.
    void run(double milliseconds);

    /// Something outside that happens by itself: when next, and what to do then.
    std::function<std::optional<double>()> nextOutside;
    std::function<void()> outside;
    /// Called whenever nothing is pending, before time moves. True when it did something.
    std::function<bool()> idle;
    /// Called when nothing at all is left to wait for. Without one the test ends.
    std::function<void()> stuck;

  private:
    struct Due {
        double at;
        int milliseconds;
    };
    void jump();

    static QDateTime nineOnDay(const QDate &day) { return day.startOfDay().addSecs(9 * 3600); }

    QDateTime mStart = nineOnDay(QDate::currentDate());
    double mNow = 0;
    std::map<platform::Timer *, Due> mTimers;
    std::multimap<double, std::function<void()>> mEvents;
    int mBusyRounds = 0;
};

} // namespace support
