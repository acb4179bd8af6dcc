// The working standard in use, read into the session.
#pragma once

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
