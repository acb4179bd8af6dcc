// The working standard in use and the date of its lever-arm calibration, read into the session.
#pragma once

#include <QDate>

#include <functional>

#include "store/recordset.h"

/// Runs a statement and passes over a missing column, so that the next one still runs.
void ohneFehlendeSpalte(const std::function<void()> &anweisung);

/// Takes the data of the working standard from the current row, as far as the columns are there.
void normalÜbernehmen(const Recordset &zeile);

/// The last row of the calibration data, whichever instrument it is. Raises Fehler without one.
void letztesNormalLesen();

/// The working standard's own values at rest.
struct StatikSoll {
    double offset = 0;       ///< raw
    double gain = 0;         ///< raw, of the direction of rotation
    double momentFaktor = 0; ///< 50 raw units make this many N m
};
/// Of the last row, for Rechtslauf or Linkslauf. Raises Fehler without a row, and for Null.
StatikSoll statikSollLesen(bool rechtslauf);

/// The last row of the instrument with gSeriennummer. False when there is none.
bool normalDatenLesen();

/// Date of the last lever-arm calibration and the day it is due again, six months on. False when
/// there has been none.
bool fnc_HebelarmDatumLesen();

/// How much of the time between the two dates is left, 0 to 100 %.
int hebelarmRest(const QDate &datum, const QDate &fällig, const QDate &heute);
