// The bands of the dynamic measurement: between which lines the values are to stay, and the axes
// on which they are shown.
#pragma once

#include <QString>

#include <array>
#include <optional>

#include "platform/text.h"

enum class Diagramm { Drehzahl, Leistung };
inline constexpr Diagramm diagramme[] = {Diagramm::Drehzahl, Diagramm::Leistung};

/// In 1/min or W.
struct Band {
    double min = 0, max = 0;
    bool operator==(const Band &) const = default;
};

/// The largest scale that can be chosen, and the one without a step.
Band größteSkala(Diagramm diagramm);

/// The lines in force of both charts; of the step that is shown, until a scale is chosen.
using Grafikband = std::array<Band, 2>;
inline Grafikband gGrafikband{größteSkala(Diagramm::Drehzahl), größteSkala(Diagramm::Leistung)};
inline Band &grafikband(Diagramm diagramm) {
    return gGrafikband[std::size_t(diagramm)];
}
/// Those of a step: its set-points as their boxes show them, and the permitted deviation in W.
void fnc_GraphGrenzenSetzen(const QString &soll_n, const QString &soll_P, double toleranz);

/// Between two lines of the grid, for an axis that is so long.
int rasterschritt(int spanne);

/// The axis of the values, in whole numbers.
class Achse {
  public:
    explicit Achse(const Band &band);
    /// Makes room for values that it does not reach, unless a person chose it. True when it grew.
    bool folgen(const Band &werte);
    /// As a person wants it, from now on.
    void wählen(const Band &band);

    int von() const { return mVon; }
    int bis() const { return mBis; }
    int raster() const { return mRaster; }

  private:
    int mVon, mBis, mRaster;
    bool mGewählt = false;
};

/// What is wrong with a scale that a person has entered.
struct Skalenfehler {
    bool amBeginn; ///< otherwise at the end
    platform::Text text;
};
std::optional<Skalenfehler> skalaPrüfen(Diagramm diagramm, const QString &beginn,
                                        const QString &ende);
