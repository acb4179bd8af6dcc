// The verdicts over a step: does the ergometer keep the permissible deviation, without and with
// regard to the measurement uncertainty?
//
// With D the absolute deviation, U the expanded uncertainty and T the permissible deviation, the
// device conforms when the whole interval D ± U lies inside T and does not when it lies wholly
// outside; between the two the case is undecided (decision rule with guard band in the sense of
// ISO 14253-1).
#pragma once

#include <QString>

#include <optional>

#include "records/messwerte.h"
#include "records/toleranz.h"

/// How far a value lies from what it is compared with, in W or 1/min.
struct Abstand {
    double d = 0; ///< deviation with its sign: measured less set, read less measured
    double u = 0; ///< uncertainty
    double t = 0; ///< permissible deviation
    bool operator==(const Abstand &) const = default;
};
enum class Spruch { Ja, Offen, Nein };
Spruch spruchOhne(const Abstand &abstand);
Spruch spruchMit(const Abstand &abstand);
/// "ja", "?" or "nein" in the language of the session.
QString wort(Spruch spruch);
/// The longest of the words that may stand in the place of this one, for its room.
QString längstesWort(const QString &wort);
/// What a stored word says, in either language, also that of a final test; nothing for none.
std::optional<Spruch> ausWort(const QString &wort);

/// What the two below judge, and with what they raise, by the type of the step.
Abstand schrittAbstand(const SchrittTexte &texte, const Spezifikation &spezifikation,
                       const Unsicherheiten &tabelle);

/// Judges the power of the working standard against the set-point. Writes "0" to ist_n_ergom.
/// Raises TypeMismatch for a text that is no number, InvalidUseOfNull for an uncertainty that is
/// missing, DivisionByZero at 0 W in the first row.
void leistungBewerten(Urteil &urteil, SchrittTexte &texte, const Spezifikation &spezifikation,
                      const Unsicherheiten &muLeistung);

/// Judges the reading of the ergometer against the speed of the working standard. Raises
/// TypeMismatch and InvalidUseOfNull.
void drehzahlBewerten(Urteil &urteil, const SchrittTexte &texte, const Spezifikation &spezifikation,
                      const Unsicherheiten &muDrehzahl);

/// The one verdict of a final test: power and, unless grenzAbw is 0, speed. `prozent` is a share
/// here (0.05 for 5 %). Raises TypeMismatch for a text that is no number: that is no verdict.
bool endprüfungBewerten(const SchrittTexte &texte, const Spezifikation &spezifikation);
/// What that judges, without uncertainty. Raises TypeMismatch.
Abstand endprüfungLeistung(const SchrittTexte &texte, const Spezifikation &spezifikation);
Abstand endprüfungDrehzahl(const SchrittTexte &texte, const Spezifikation &spezifikation);

/// The permitted deviation of power in W at the set-point, by the greater of share and minimum.
double fnc_LeistungsToleranz(double prozent, double watt, const QString &soll_P);
