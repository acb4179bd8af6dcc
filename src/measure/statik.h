// Offset and gain at rest: the decoder of their streams, the mean, the drifts and their limits.
#pragma once

#include <QByteArray>

#include <cstdint>

#include "records/normal.h"

inline constexpr std::uint8_t codeOffset = 250;
inline constexpr std::uint8_t codeGain = 253;

/// Decodes frames of 0xFF, code, three bytes of ten times the raw value. A frame counts when its
/// end mark arrives, which is the head of the next one.
class StatikDecoder {
  public:
    explicit StatikDecoder(std::uint8_t code) : mCode(code) {}

    /// True when the byte completed a sample.
    bool feed(std::uint8_t byte);
    /// Raw value of the last sample.
    double value() const { return mValue; }

  private:
    enum class State { Sync, Code, InFrame };

    std::uint8_t mCode;
    State mState = State::Sync;
    int mPosition = 0;
    double mValue = 0;
};

/// All in N m: the torque of a raw value is raw / 50 × moment factor.
struct StatikErgebnis {
    double soll = 0;
    double ist = 0;
    double drift = 0;
};
StatikErgebnis offsetErgebnis(double offsetRoh, const StatikSoll &soll);
StatikErgebnis gainErgebnis(double gainRoh, double offsetRoh, const StatikSoll &soll);

inline constexpr double statikWarnung = 150; ///< mN m from which the bar is red
inline constexpr double statikGrenze = 300;  ///< mN m above which the correction is refused
enum class Drift { Gut, Warnung, Verweigert };
Drift driftUrteil(double drift);                           // mN m
bool statikZulässig(double offsetDrift, double gainDrift); // mN m

/// The bar of a drift on the scale from -300 to 300 mN m: 12 units a mN m around 3720.
struct DriftBalken {
    double links = 0;
    double breite = 0;
    bool rot = false;
};
inline constexpr int balkenMitte = 3720;
inline constexpr int balkenJeMNm = 12;
/// `rotAb`: mN m from which it is red. `ganz`: of whole units, cut towards minus infinity.
DriftBalken driftBalken(double drift, double rotAb = statikWarnung, bool ganz = true); // mN m

/// "p" and three bytes: ten times the offset, rounded to one decimal, most significant byte first.
QByteArray offsetBefehl(double offsetRoh);
/// "w" and two bytes: ten thousand times the moment factor, most significant byte first.
QByteArray momentFaktorBefehl(double momentFaktor);
