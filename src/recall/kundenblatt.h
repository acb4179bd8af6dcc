// The recall list as a workbook.
#pragma once

#include <memory>
#include <vector>

#include "records/archivfilter.h"

/// Begins gMappe and hands it the rows, which are read while it is written. Without rows nothing is
/// begun. Raises Overflow for more rows than a sheet holds, and what fnc_ExcelÖffnen raises.
void fnc_KundenExport(std::shared_ptr<const std::vector<Wiedervorlage>> zeilen);
