// The trail as a workbook.
#pragma once

#include "store/recordset.h"

/// Begins gMappe with these rows of records/nachweis; without rows nothing is begun. Raises what
/// fnc_ExcelÖffnen raises.
void nachweisExport(const Recordset &zeilen);

/// What stands over a column of such rows, in the language of the session.
QString nachweiskopf(int spalte);
