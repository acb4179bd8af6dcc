// Walks the trail and replays it against the tables: a link that was changed, put in or taken out,
// a tail that was cut off, and rows that were changed past the triggers.
#pragma once

#include <QString>

#include <functional>
#include <vector>

#include "platform/text.h"

class Datenbank;

struct TrailReport {
    qlonglong links = 0;
    QString newest; ///< "1234 / 0123456789abcdef", as it is printed
    /// What does not hold. Of many of a kind the first ones, and how many there are beyond.
    std::vector<platform::Text> found;
    qlonglong beyond = 0;
    /// What is worth knowing of a trail that holds.
    std::vector<platform::Text> noted;
};

/// Reads one state of the database, which should be a copy when others write to it. `progress` is
/// told now and then how many links and rows of how many were read. Raises what keeps the file from
/// being read.
TrailReport checkTrail(Datenbank &store,
                       const std::function<void(qlonglong done, qlonglong all)> &progress = {});
