#include "lines.h"

#include <algorithm>
#include <cmath>

namespace simulator {

Lines::Lines(const QString &directory)
    : mFirst(directory + "/COM1",
             [this](const std::string &bytes) {
                 with([&bytes, this](Stand &stand) { stand.receive(bytes, now()); });
             }),
      mSecond(directory + "/COM4", [this](const std::string &bytes) {
          with([&bytes, this](Stand &stand) { stand.receiveSecond(bytes, now()); });
      }) {
    mClock.start();
    mNext.setSingleShot(true);
    mNext.setTimerType(Qt::PreciseTimer);
    mNext.callOnTimeout([this] { deliver(); });
}

QString Lines::plug(Line line, bool connected) {
    if (connected)
        return terminal(line).plug();
    terminal(line).unplug();
    return {};
}

void Lines::with(const std::function<void(Stand &)> &action) {
    mStand.advance(now());
    action(mStand);
    deliver();
}

double Lines::now() const {
    return static_cast<double>(mClock.nsecsElapsed()) / 1e6;
}

void Lines::deliver() {
    mFirst.write(mStand.take(now()));
    mSecond.write(mStand.takeSecond(now()));
    mStand.clearWires(); // nobody asks for them here, and the stand may run for weeks
    constexpr double Longest = 3600000; // a slow shaft may take its time, an int may not
    if (const auto next = mStand.nextEvent())
        mNext.start(static_cast<int>(std::ceil(std::clamp(*next - now(), 1.0, Longest))));
    else
        mNext.stop();
}

} // namespace simulator
