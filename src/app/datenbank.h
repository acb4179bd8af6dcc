// The database of the current directory, opened with a box for what fails.
#pragma once

#include <QString>

#include <cstdint>

/// Opens it into gDatenbank. What fails is shown in a box, not raised; on another try not again, if
/// it fails as before. Answers 0 always.
std::int16_t fnc_DatenbankÖffnen(bool nochEinmal = false);

/// Notes, beside what it says of the rows, what happened to the file as a whole.
void imNachweisVermerken(const QString &anlass);
