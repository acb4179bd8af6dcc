#include "drive.h"

#include <algorithm>
#include <cmath>

namespace simulator {

namespace {

constexpr double Slope = 0.015; // 1/min per ms: 60 1/min in 4 s
constexpr double MsPerMinute = 60000;

/// Turns during `ms` while the speed changes evenly, also through zero.
double turns(double begin, double end, double ms) {
    const double sum = std::abs(begin) + std::abs(end);
    if (sum == 0)
        return 0;
    const bool throughZero = begin * end < 0;
    const double mean = throughZero ? (begin * begin + end * end) / (2 * sum) : sum / 2;
    return mean * ms / MsPerMinute;
}

} // namespace

void Drive::setTarget(double speed, double now) {
    mFrom = speedAt(now);
    mSince = now;
    mTarget = speed;
}

double Drive::settledAt() const {
    return mSince + std::abs(mTarget - mFrom) / Slope;
}

double Drive::speedAt(double time) const {
    if (time >= settledAt())
        return mTarget;
    return mFrom + std::copysign(Slope * std::max(0.0, time - mSince), mTarget - mFrom);
}

double Drive::revolutions(double from, double to) const {
    const double settled = std::max(from, std::min(settledAt(), to));
    return turns(speedAt(from), speedAt(settled), settled - from) +
           turns(mTarget, mTarget, to - settled);
}

std::optional<double> Drive::timeOf(double wanted, double from) const {
    double before = from;
    double after = std::max(from, settledAt());
    if (mTarget != 0)
        after += wanted * MsPerMinute / std::abs(mTarget);
    if (revolutions(from, after) < wanted * (1 - 1e-12))
        return std::nullopt;
    while (after - before > 1e-6) {
        const double middle = before + (after - before) / 2;
        if (middle <= before || middle >= after)
            break; // the numbers lie no closer together
        (revolutions(from, middle) < wanted ? before : after) = middle;
    }
    return after;
}

} // namespace simulator
