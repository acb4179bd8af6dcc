// How far the calibrations lie from the reference, over time.
#pragma once

#include <vector>

#include "store/recordset.h"

/// One side, in the order of time.
struct Verlauf {
    std::vector<double> zeit; ///< seconds since 1970
    std::vector<double> wert; ///< moment less that of the reference, N m
    std::vector<int> zeile;   ///< of the history, from 0
};

/// Of the moments in the column of hebelarmHistorie(). The reference itself, and what lacks date or
/// moment, is left out; without a reference there is none.
Verlauf verlauf(const Recordset &historie, const QString &spalte);
