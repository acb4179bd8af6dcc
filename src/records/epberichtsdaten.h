// What a layout can show of the staged page of a final test; docs/layouts.md lists the fields.
#pragma once

#include "records/bericht.h"
#include "store/recordset.h"
#include "windows/layout.h"

/// `zeilen`: of the stage table, at least one, all of one test.
platform::LayoutData epBerichtsdaten(const Recordset &zeilen, const Seitendaten &seite);

/// "45 s", "12 min 30 s", "1 h 02 min".
QString dauerText(int sekunden);
/// "2 Schritte gemessen, 1 OK, 1 außer Toleranz, 0 nicht beurteilt", in the language of the
/// session.
QString epSumme(int gemessen, int außerToleranz, int unbeurteilt);
