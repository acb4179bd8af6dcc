// The verdicts over a step: does the ergometer keep the permissible deviation, without and with
// regard to the measurement uncertainty?
//
// With D the absolute deviation, U the expanded uncertainty and T the permissible deviation, the
// device conforms when the whole interval D ± U lies inside T and does not when it lies wholly
// outside; between the two the case is undecided (decision rule with guard band in the sense of
// ISO 14253-1).
#pragma once

#include <QString>

#include <cstdint>
#include <optional>
#include <vector>

/// The specification of the session.
struct Spezifikation {
    double prozent = 0;        ///< permissible deviation of power, % of the set-point
    double watt = 0;           ///< permissible deviation of power at least, W
    std::int16_t grenzAbw = 0; ///< permissible deviation of speed, 1/min
};

/// A row of the uncertainty tables: applies up to `grenze` (W or 1/min). What the table leaves open
/// is nothing, not 0.
struct Unsicherheit {
    std::optional<double> grenze;
    std::optional<double> wert; ///< %; in the first row for power W
};
using Unsicherheiten = std::vector<Unsicherheit>;

/// The boxes of a step as they are shown, under the number format of the session.
struct SchrittTexte {
    QString soll_n;        // 1/min
    QString soll_P;        // W
    QString ist_n_torvena; // 1/min, of the working standard
    QString ist_P_torvena; // W, of the working standard
    QString ist_n_ergom;   // 1/min, as read off the ergometer
};

/// What is stored with a step. Kept from step to step: a verdict that fails half-way leaves the
/// rest as the step before left it.
struct Urteil {
    bool ohne = false; ///< MU_ohne
    QString mit;       ///< MU_mit: "ja", "nein", "yes", "no" or "?"
    double muProz = 0; ///< MU_Proz, uncertainty in %
};

/// Judges the power of the working standard against the set-point. Writes "0" to ist_n_ergom.
/// Raises TypeMismatch for a text that is no number, InvalidUseOfNull for an uncertainty that is
/// missing, DivisionByZero at 0 W in the first row.
void leistungBewerten(Urteil &urteil, SchrittTexte &texte, Spezifikation spezifikation,
                      const Unsicherheiten &muLeistung);

/// Judges the reading of the ergometer against the speed of the working standard. Raises
/// TypeMismatch and InvalidUseOfNull.
void drehzahlBewerten(Urteil &urteil, const SchrittTexte &texte, const Spezifikation &spezifikation,
                      const Unsicherheiten &muDrehzahl);

/// The one verdict of a final test: power and, unless grenzAbw is 0, speed. `prozent` is a share
/// here (0.05 for 5 %). Raises TypeMismatch.
bool endprüfungBewerten(const SchrittTexte &texte, const Spezifikation &spezifikation);

/// The permitted deviation of power in W at the set-point, by the greater of share and minimum.
double fnc_LeistungsToleranz(double prozent, double watt, const QString &soll_P);
