// The motor of the stand: follows its target along a straight ramp. Known in closed form, so that
// it comes out the same however often it is asked.
#pragma once

#include <numbers>
#include <optional>

namespace simulator {

/// 1/s of a speed in 1/min.
constexpr double angularVelocity(double speed) {
    return 2 * std::numbers::pi * speed / 60;
}

/// Times in ms. Speeds in 1/min with the sign of the direction. No time asked for may lie before
/// the last change of the target.
class Drive {
  public:
    void setTarget(double speed, double now);
    double target() const { return mTarget; }
    double speedAt(double time) const;
    /// When the ramp ends, which may be long ago.
    double settledAt() const;
    /// Turns of the shaft between two times, whichever way.
    double revolutions(double from, double to) const;
    /// When so many turns have passed since `from`; none when the shaft comes to rest before.
    std::optional<double> timeOf(double revolutions, double from) const;

  private:
    double mFrom = 0;
    double mTarget = 0;
    double mSince = 0;
};

} // namespace simulator
