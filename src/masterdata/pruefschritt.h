// One test step of a recipe as a person enters it: what it may ask of the stand. No widget, no
// database.
#pragma once

#include <QString>

#include "session/drehmoment.h"
#include "session/pruefart.h"

enum class Wertprüfung { Gültig, NichtNumerisch, AußerhalbBereich };

/// Under the number format of the session.
Wertprüfung drehzahlPrüfen(const QString &text, const Schrittgrenzen &grenzen);
Wertprüfung leistungPrüfen(const QString &text, const Schrittgrenzen &grenzen);

/// Whether the torque of the two texts is permissible; a comma counts as the decimal point, and
/// what is no number as 0.
bool drehmomentZulässig(const QString &drehzahl, const QString &leistung,
                        const Schrittgrenzen &grenzen);
