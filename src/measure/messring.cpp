#include "measure/messring.h"

#include <algorithm>

namespace {
constexpr int letzte = Messring::länge - 1;
} // namespace

bool Messring::speichern(double drehzahl, double leistung) {
    mDrehzahl[std::size_t(mStelle)] = drehzahl;
    mLeistung[std::size_t(mStelle)] = leistung;
    if (mStelle < letzte) {
        ++mStelle;
        if (mStelle != mMarke + 1)
            return false;
        mMarke += schub;
        mGezeigt = std::size_t(mStelle);
        return true;
    }
    // Full: from here on the next value overwrites the newest, and a picture comes with each turn.
    schieben(mDrehzahl);
    schieben(mLeistung);
    mStelle = letzte - schub;
    return true;
}

void Messring::schieben(Reihe &reihe) {
    std::copy(reihe.begin() + schub, reihe.end(), reihe.begin());
}
