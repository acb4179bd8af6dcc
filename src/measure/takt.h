// The time since the last result of six turns, for a ring that fills.
#pragma once

#include <functional>
#include <optional>

#include "measure/vorschau.h"
#include "platform/clock.h"

class Takt {
  public:
    /// `zeigen` is called whenever the state has changed, at most once a second and with each
    /// result.
    explicit Takt(std::function<void()> zeigen);

    /// A stream begins; at `drehzahl` 1/min. None is expected of a shaft that stands.
    void beginnen(double drehzahl);
    /// A complete result has come.
    void rahmen();
    void enden();
    /// Nothing while no result is expected.
    std::optional<Taktstand> stand() const;

  private:
    std::function<void()> mZeigen;
    Timer mTimer;
    double mDrehzahl = 0;
    int mAlter = 0; ///< ms
};
