// The PDF files of the pages of a report, in a folder of the protocol's own.
#pragma once

#include <QString>

#include "session/session.h"

/// Where the files of a protocol lie below the chosen folder: PDF/number.
QString protokollordner(const QString &ordner, Schlüssel protokollID);

/// For a number whose protocol is gone: its pages, in both languages, move into the folder
/// "ersetzt" beside them, with date and time in their names, so that the next protocol of the
/// number does not meet them. Other files stay, and so do these where they cannot be moved.
/// Raises nothing.
void seitenAblegen(Schlüssel protokollID);
