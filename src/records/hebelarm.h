// The calibrations of the stand by its lever arm. The first row of their table holds the reference
// moments, against which all later ones are judged.
#pragma once

#include <QDate>

#include "session/session.h"
#include "store/recordset.h"

/// Key of the row that holds the reference.
inline constexpr Schlüssel hebelarmReferenz = 1;

/// Date of the last calibration and the day it is due again, six months on. False when there has
/// been none.
bool fnc_HebelarmDatumLesen();

/// How much of the time between the two dates is left, 0 to 100 %.
int hebelarmRest(const QDate &datum, const QDate &fällig, const QDate &heute);

/// Moments of the arm in N m at the gravity of reference, the left one negative.
struct Hebelarmmomente {
    double rechts = 0, links = 0;
};
/// Of the first row. Raises NoCurrentRecord without one, InvalidUseOfNull for a missing moment.
Hebelarmmomente hebelarmReferenzLesen();

/// A calibration in order, each number as it was shown.
struct Hebelarmkalibrierung {
    double erdschwere = 0;         ///< m/s²
    Hebelarmmomente momente;       ///< N m
    double streuR = 0, streuL = 0; ///< spreads in N m
};
/// By gPrüfer, on the newest calibration of the working standard.
void hebelarmSpeichern(const Hebelarmkalibrierung &ergebnis);

/// All of them in their order, the reference first: ID, Prüfer, PrDatum, Erdschwere, Nm_rechts,
/// Streu_R, Nm_links, Streu_L, HebelarmNr.
Recordset hebelarmHistorie();
/// The reference stays.
void hebelarmLöschen(Schlüssel id);
