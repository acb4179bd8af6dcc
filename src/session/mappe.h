// The workbook of an export on its way from its template to the spreadsheet program.
#pragma once

#include "windows/spreadsheet.h"

// The spreadsheet of the session
inline std::optional<platform::Workbook> gMappe; ///< begun and not yet handed on
inline QString gMappenname;                      ///< of its file, without date and suffix
inline platform::Sheet *gBlatt = nullptr;        ///< of gMappe, in use
inline QString gMappenpfad;                      ///< where the last one lies that was handed on

/// Begins a workbook as a copy of the template. Raises PermissionDenied when there is no folder for
/// its file.
void fnc_ExcelÖffnen(const QString &name, platform::Workbook vorlage);

/// Writes the pending workbook into the folder "Export" and opens it with the desktop's own
/// program; a box says where it lies when there is none. True when nothing is pending any more.
/// Raises PermissionDenied when it cannot be written; it is pending no more then, so that it keeps
/// nobody from leaving.
bool fnc_ExcelFreigeben();

/// Frames these rows of gBlatt, both included, from the first column on: thin borders on all edges
/// and inner lines, also of empty cells.
void fnc_TabelleFormatieren(int ersteZeile, int letzteZeile, int spalten);
