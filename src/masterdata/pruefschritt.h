// One test step of a recipe as a person enters it: what it may ask of the stand and what is
// missing. No widget, no database.
#pragma once

#include <QString>

#include "session/drehmoment.h"
#include "session/pruefart.h"

inline constexpr Schrittgrenzen grenzenNeuRezept{120, false, 600, grenzDrehmoment};
inline constexpr Schrittgrenzen grenzenÄndRez{120, true, 600, grenzDrehmoment};

enum class Wertprüfung { Gültig, NichtNumerisch, AußerhalbBereich };

/// Under the number format of the session.
Wertprüfung drehzahlPrüfen(const QString &text, const Schrittgrenzen &grenzen);
Wertprüfung leistungPrüfen(const QString &text, const Schrittgrenzen &grenzen);

/// Whether the torque of the two texts is permissible; a comma counts as the decimal point, and
/// what is no number as 0.
bool drehmomentZulässig(const QString &drehzahl, const QString &leistung,
                        const Schrittgrenzen &grenzen);
/// Tells that it is not.
void drehmomentMelden(const Schrittgrenzen &grenzen);

/// " die Drehzahl, Leistung und Prüfart" and the like: what of a step is missing, for a sentence in
/// German. Empty when nothing is.
QString fehlendeAngaben(bool drehzahl, bool leistung, bool prüfart);
