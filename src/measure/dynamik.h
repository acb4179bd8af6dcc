// Decoder of the dynamic stream: frames of speed and torque, each ended by the marks that begin the
// next one.
#pragma once

#include <cstdint>

inline int gDynFehler = 0; ///< frames given up for want of their end mark

class DynamikDecoder {
  public:
    /// True when the frame is complete; its values stand until the next byte.
    bool feed(std::uint8_t byte);
    double drehzahl() const { return mDrehzahl; } ///< 1/min, 0 to 800
    double leistung() const { return mLeistung; } ///< W, 0 to 800

  private:
    enum class State { HuntingFirst, HuntingSecond, InFrame };

    State mState = State::HuntingFirst;
    int mPosition = 0;
    double mHigh = 0;
    double mDrehzahl = 0;
    double mLeistung = 0;
};
