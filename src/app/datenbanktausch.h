// The end of a database update: the filled database takes the place of the one in use, when the
// program ends.
#pragma once

#include "store/rowcopy.h"

/// Sets gUpdateBeimBeenden. `stand` is what gDatenbank.changeMark() said before the copying.
void tauschVormerken(const CopyRecord &übernommen, quint32 stand);

/// The database in use becomes ToDelete.mdb and the filled one gets its name. Raises as
/// swapDatabase().
void fnc_ChangeDbName();

/// Closes gDatenbank, and swaps where gUpdateBeimBeenden says so. What is in the way is told in
/// boxes; the database in use is whole then.
void datenbankSchließenUndTauschen();
