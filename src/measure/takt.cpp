#include "measure/takt.h"

#include <algorithm>

Takt::Takt(std::function<void()> zeigen) : mZeigen(std::move(zeigen)) {
    mTimer.onTick = [this] {
        mAlter += mTimer.interval();
        mZeigen();
    };
}

void Takt::beginnen(double drehzahl) {
    constexpr int kürzester = 1000;        // ms: the processor has better to do
    constexpr double schritteJeRing = 6.0; // one a turn, at 60 1/min and below
    enden();
    mDrehzahl = drehzahl;
    if (drehzahl > 0)
        mTimer.setInterval(std::clamp(int(360'000 / schritteJeRing / drehzahl), kürzester, 60'000));
    mTimer.setEnabled(drehzahl > 0);
    rahmen();
}

void Takt::rahmen() {
    mAlter = 0;
    if (mTimer.enabled())
        mTimer.setInterval(mTimer.interval()); // from now on
    mZeigen();
}

void Takt::enden() {
    mTimer.setEnabled(false);
    mZeigen();
}

std::optional<Taktstand> Takt::stand() const {
    return mTimer.enabled() ? std::optional(taktstand(mDrehzahl, mAlter)) : std::nullopt;
}
