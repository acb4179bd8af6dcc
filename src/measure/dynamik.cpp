#include "measure/dynamik.h"

#include <algorithm>

namespace {
constexpr std::uint8_t firstMark = 0xFF, secondMark = 0xFE;
constexpr double highest = 800; // 1/min and W
constexpr double pi = 3.14;
} // namespace

bool DynamikDecoder::feed(std::uint8_t byte) {
    if (mState == State::HuntingFirst) {
        if (byte == firstMark)
            mState = State::HuntingSecond;
        return false;
    }
    if (mState == State::HuntingSecond) {
        mState = byte == secondMark ? State::InFrame : State::HuntingFirst;
        mPosition = 0;
        return false;
    }
    switch (mPosition) {
    case 0:
    case 2:
        mHigh = byte * 256.0;
        break;
    case 1:
        mDrehzahl = std::min((mHigh + byte) / 10, highest);
        break;
    case 3: // the torque comes in tenths of a N m
        mLeistung = std::min((mHigh + byte) / 600 * 2 * pi * mDrehzahl, highest);
        break;
    case 4:
        if (byte != firstMark) {
            mState = State::HuntingFirst;
            ++gDynFehler;
            return false;
        }
        break;
    default:
        if (byte != secondMark)
            return false; // waits for it
        mPosition = 0;    // and the next frame has begun
        return true;
    }
    ++mPosition;
    return false;
}
