// Workbooks (platform/spreadsheet.h) on their way to the program that shows them.
#pragma once

#include <QString>

#include <functional>

#include "platform/spreadsheet.h"

namespace platform {

/// Opens the file with the desktop's own program for it. False when there is none; true says that
/// it was started.
bool openFile(const QString &path);
/// What does so instead, in a test; an empty function gives the desktop's own back.
void setFileOpener(std::function<bool(const QString &path)> opener);

} // namespace platform
