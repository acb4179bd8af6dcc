// What one run of the lever-arm calibration comes to: moments of the raw samples, their mean and
// spread, the side that was measured, and whether it keeps the limits.
#pragma once

#include <QString>

#include <optional>
#include <vector>

#include "measure/statik.h"
#include "records/hebelarm.h"

/// gravity for which the reference moments hold, m/s²
inline constexpr double bezugsschwere = 9.8108;
inline constexpr double kleinsteSchwere = 9.8, größteSchwere = 9.82; ///< both valid

/// What was entered as local gravity, with comma or point, in m/s²; nothing when it is no number.
std::optional<double> erdschwere(const QString &text);
bool erdschwereGültig(double wert);

/// How a raw sample becomes a moment: gravity × (raw − offset) / 50 × factor.
struct Momentrechnung {
    double schwereFaktor = 1; ///< bezugsschwere / local gravity
    double offsetRoh = 0;     ///< mean raw reading without load
    double momentFaktor = 1;  ///< 50 raw units make this many N m
};

/// The mean of a run, in N m. Replaces each raw sample by its moment; one between the sides takes
/// the moment of the sample before it, 0 when it is the first. `letzte` takes the moment of the
/// last sample on each side that has one. Of one sample at least.
double fnc_Mittelwert(std::vector<double> &proben, const Momentrechnung &rechnung,
                      Hebelarmmomente &letzte);
/// The spread of such moments: the standard deviation of their mean, in N m (type A evaluation,
/// JCGM 100:2008, 4.2.3). Of two at least.
double fnc_Streuung(const std::vector<double> &momente, double mittelwert);

/// Samples that a run has at least, for a spread.
inline constexpr int kleinsteAnzahl = 2;

inline constexpr double momentGrenze = 100; ///< mN m off the reference, itself out of limits

enum class Seite { Keine, Links, Rechts };
struct Seitenurteil {
    Seite seite = Seite::Keine; ///< by the sign of the mean; none below 20 N m
    double mittel = 0;          ///< N m
    double streuung = 0;        ///< N m
    double differenz = 0;       ///< to the reference of the side, N m
    DriftBalken balken;         ///< red when the moment is out of limits
    bool streuungZuGroß = false;

    bool inOrdnung() const { return !balken.rot && !streuungZuGroß; }
};
/// `grenzwert` of the spread, N m, itself in order.
Seitenurteil seiteBeurteilen(double mittel, double streuung, const Hebelarmmomente &referenz,
                             double grenzwert);
