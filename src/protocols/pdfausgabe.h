// PDF files of the pages of a report: the printer switched for a run and back, folder and names.
#pragma once

#include <QByteArray>

#include "protocols/berichtsseiten.h"

/// Names the printer to use and takes it and the folder into the session. False when the run ends
/// here, since there is no folder for the files, which is told. Raises what the store raises.
bool fnc_DruckerEinstellungen();
/// The PDF printer in force until fnc_DruckerZurück(). Raises PrinterError when it is gone.
void fnc_DruckerAufPDF();
void fnc_DruckerZurück();

/// What stands around a run: the settings and the PDF printer before it, the way back behind it.
/// False when the run ends here.
enum class Umschalten { AufPDF = 1, Zurück = 2 };
bool fnc_PrintPDF(Umschalten modus);

/// The folder of a protocol's files: PDF/number below the folder of the session.
QString pdfOrdner(Schlüssel protokollID);

/// Writes the page under its name, then says so. A file of that name is kept beside it. Raises
/// PermissionDenied.
void pdfSpeichern(const QByteArray &pdf, const Seitenausgabe &seite, Schlüssel protokollID);
