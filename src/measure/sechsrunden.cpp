#include "measure/sechsrunden.h"

namespace {
constexpr std::uint8_t syncByte = 0xFF;
constexpr double scale = 100;
} // namespace

SechsRundenDecoder::Ereignis SechsRundenDecoder::feed(std::uint8_t byte) {
    if (mState == State::HuntingFirst) {
        if (byte == syncByte)
            mState = State::HuntingSecond;
        return Ereignis::Nichts;
    }
    if (mState == State::HuntingSecond) {
        mState = byte == syncByte ? State::InFrame : State::HuntingFirst;
        mPosition = 0;
        return byte == syncByte ? Ereignis::Sync : Ereignis::Nichts;
    }
    switch (mPosition++) {
    case 0:
    case 2:
        mAccumulator = byte * 256.0;
        return Ereignis::Nichts;
    case 1:
        mAccumulator = (mAccumulator + byte) / scale;
        return Ereignis::Drehzahl;
    case 3:
        mAccumulator = (mAccumulator + byte) / scale;
        return Ereignis::Drehmoment;
    case 4:
        mAccumulator = byte * 65536.0;
        return Ereignis::Nichts;
    case 5:
        mAccumulator += byte * 256.0;
        return Ereignis::Nichts;
    default:
        mAccumulator = (mAccumulator + byte) / scale;
        mState = State::HuntingFirst;
        return Ereignis::Leistung;
    }
}
