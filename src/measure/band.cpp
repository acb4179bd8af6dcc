#include "measure/band.h"

#include <algorithm>
#include <cmath>

#include "platform/runtime.h"

namespace {

constexpr double kleinsterBeginn = -1;
constexpr double kleinstesEnde = 0;
constexpr double überDrehzahl = 2; // 1/min above the set-point

int ganz(double value) {
    return int(std::clamp(Round(value), -32768.0, 32767.0));
}

} // namespace

Band größteSkala(Diagramm diagramm) {
    return {0, diagramm == Diagramm::Drehzahl ? 130.0 : 600.0};
}

void fnc_GraphGrenzenSetzen(const QString &soll_n, const QString &soll_P, double toleranz) {
    grafikband(Diagramm::Drehzahl) = {0, Val(soll_n) + überDrehzahl};
    grafikband(Diagramm::Leistung) = {-1, Val(soll_P) + toleranz};
}

int rasterschritt(int spanne) {
    return std::max(ganz(spanne / 10.0), 1);
}

Achse::Achse(const Band &band)
    : mVon(int(Int(band.min))),
      mBis(int(Int(band.max))),
      mRaster(rasterschritt(ganz(band.max - band.min))) {}

bool Achse::folgen(const Band &werte) {
    const int von = std::min(mVon, int(std::floor(werte.min)));
    const int bis = std::max(mBis, int(std::ceil(werte.max)));
    if (mGewählt || (von == mVon && bis == mBis))
        return false;
    mVon = von;
    mBis = bis;
    mRaster = rasterschritt(mBis - mVon);
    return true;
}

void Achse::wählen(const Band &band) {
    mGewählt = true;
    mVon = int(std::floor(band.min));
    mBis = int(std::ceil(band.max));
    mRaster = rasterschritt(ganz(std::abs(band.max) - std::abs(band.min)));
}

std::optional<Skalenfehler> skalaPrüfen(Diagramm diagramm, const QString &beginn,
                                        const QString &ende) {
    const double grenze = größteSkala(diagramm).max;
    if (!IsNumeric(beginn))
        return Skalenfehler{true,
                            {"Skalenbeginn muss ein nummerischer Wert sein!",
                             "Beginning of scale has to be a numeric value!"}};
    if (CDbl(beginn) < kleinsterBeginn || CDbl(beginn) > grenze)
        return Skalenfehler{true,
                            {"Skalenbeginn liegt außerhalb des gültigen Bereiches",
                             "Beginning of scale is outside of the valid range."}};
    if (!IsNumeric(ende))
        return Skalenfehler{false,
                            {"Skalenende muss ein nummerischer Wert sein!",
                             "End of scale has to be a numeric value!"}};
    // An axis without length shows nothing.
    if (CDbl(ende) < kleinstesEnde || CDbl(ende) > grenze || CDbl(ende) <= CDbl(beginn))
        return Skalenfehler{false,
                            {"Skalenende liegt außerhalb des gültigen Bereiches",
                             "End of scale is outside the valid range."}};
    return std::nullopt;
}
