// The newest values of the dynamic measurement, and when there are enough new ones for a picture.
#pragma once

#include <array>
#include <span>

class Messring {
  public:
    static constexpr int länge = 560;
    static constexpr int schub = 20; ///< values that leave together, and between two pictures

    /// Takes a sample in, 1/min and W. True when a picture is due.
    bool speichern(double drehzahl, double leistung);
    /// Those of the picture that is due, from the oldest on.
    std::span<const double> drehzahlen() const { return {mDrehzahl.data(), mGezeigt}; }
    std::span<const double> leistungen() const { return {mLeistung.data(), mGezeigt}; }

  private:
    using Reihe = std::array<double, länge>;
    static void schieben(Reihe &reihe);

    Reihe mDrehzahl{}, mLeistung{};
    int mStelle = 0;
    int mMarke = schub - 1;
    std::size_t mGezeigt = 0;
};
