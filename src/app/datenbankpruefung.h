// The database as a whole: found damaged at the start, kept in safety copies at the end.
#pragma once

/// Checks the database of the current directory, also one that could not be opened, which takes up
/// to a second for 100 MB, and says in gDatenbankzustand what it found. Damage is told, and the
/// newest sound safety copy offered, also for one that is missing. True when that was put in place
/// and opened: what was read before is to be read anew. One that is missing or locked stays
/// unchecked.
bool datenbankPrüfen();

/// Makes the safety copy of the day where one is due, and takes old ones away. When it takes longer
/// a window says so, in which it can be skipped. What fails is told in a box.
void sicherungskopieAnlegen();

inline int sicherungsgeduld = 2'000; ///< ms until the window comes; else in tests
