#include "measure/statik.h"

#include <QString>

#include <cmath>

#include "platform/runtime.h"

using namespace platform;

namespace {

constexpr std::uint8_t syncByte = 0xFF;
constexpr double rawPerUnit = 50;

/// The leading `count` bytes of the number's hex digits, padded on the left.
QByteArray hexBytes(double number, qsizetype count) {
    const QString digits =
        QString::number(static_cast<qint64>(number), 16).rightJustified(2 * count, '0');
    return QByteArray::fromHex(digits.left(2 * count).toLatin1());
}

} // namespace

bool StatikDecoder::feed(std::uint8_t byte) {
    switch (mState) {
    case State::Sync:
        if (byte == syncByte)
            mState = State::Code;
        return false;
    case State::Code:
        if (byte == mCode) {
            mState = State::InFrame;
            mPosition = 0;
        }
        return false;
    case State::InFrame:
        break;
    }
    switch (mPosition) {
    case 0:
        mValue = byte * 65536.0;
        break;
    case 1:
        mValue += byte * 256.0;
        break;
    case 2:
        mValue = (mValue + byte) / 10;
        break;
    case 3:
        if (byte != syncByte)
            return false;
        break;
    default:
        if (byte != mCode)
            return false;
        mPosition = 0;
        return true;
    }
    ++mPosition;
    return false;
}

StatikErgebnis offsetErgebnis(double offsetRoh, const StatikSoll &soll) {
    const double drift = (offsetRoh - soll.offset) / rawPerUnit * soll.momentFaktor;
    return {0, drift, drift};
}

StatikErgebnis gainErgebnis(double gainRoh, double offsetRoh, const StatikSoll &soll) {
    const double reference = soll.gain / rawPerUnit * soll.momentFaktor;
    const double measured = (gainRoh - offsetRoh) / rawPerUnit * soll.momentFaktor;
    return {reference, measured, measured - reference};
}

Drift driftUrteil(double drift) {
    // Judged to a nanonewton metre, so that 0.300 N m is not above its limit by noise.
    const double betrag = std::fabs(Round(drift, 6));
    return betrag > statikGrenze     ? Drift::Verweigert
           : betrag >= statikWarnung ? Drift::Warnung
                                     : Drift::Gut;
}

bool statikZulässig(double offsetDrift, double gainDrift) {
    return driftUrteil(offsetDrift) != Drift::Verweigert &&
           driftUrteil(gainDrift) != Drift::Verweigert;
}

DriftBalken driftBalken(double drift, double rotAb, bool ganz) {
    const double shown = Round(drift, 6);
    const double width = std::fabs(ganz ? Int(shown * balkenJeMNm) : shown * balkenJeMNm);
    return {shown >= 0 ? balkenMitte : balkenMitte - width, width, std::fabs(shown) >= rotAb};
}

QByteArray offsetBefehl(double offsetRoh) {
    return "p" + hexBytes(Round(Round(offsetRoh, 1) * 10), 3);
}

QByteArray momentFaktorBefehl(double momentFaktor) {
    return "w" + hexBytes(Round(momentFaktor * 10'000), 2);
}
