// Decoder of the six-round stream: frames of nine bytes with speed, torque and power.
#pragma once

#include <cstdint>

class SechsRundenDecoder {
  public:
    enum class Ereignis {
        Nichts,
        Sync,       ///< a frame begins
        Drehzahl,   ///< value() in 1/min, at most 655.35
        Drehmoment, ///< value() in N m, at most 655.35
        Leistung,   ///< value() in W, at most 167772.15; the frame is complete
    };

    Ereignis feed(std::uint8_t byte);
    double value() const { return mAccumulator; }

  private:
    enum class State { HuntingFirst, HuntingSecond, InFrame };

    State mState = State::HuntingFirst;
    int mPosition = 0;
    double mAccumulator = 0;
};
