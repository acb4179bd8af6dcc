// The calibration history as a workbook: a sheet for either side with the values and their chart
// over the dates.
#pragma once

#include "store/recordset.h"
#include "windows/spreadsheet.h"

/// Sheets, heads and charts in the language of the session, without values.
platform::Workbook historienvorlage();

/// Fills gMappe, begun with the template, from rows of hebelarmHistorie(). Without rows it stays as
/// it is.
void historieEintragen(const Recordset &historie);

/// Begins gMappe and fills it with all calibrations. Raises what the store and fnc_ExcelÖffnen
/// raise.
void fnc_HistorieExport();
