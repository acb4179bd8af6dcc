// A person's choice of a file that is there.
#pragma once

#include <QString>
#include <QWidget>

#include <functional>

namespace platform {

/// The path, or nothing when none was chosen. The filter is written "what (pattern)".
QString chooseFile(QWidget &over, const QString &title, const QString &folder,
                   const QString &filter);

/// Chooses in place of a person; an empty function gives the person back.
void setFileChooser(std::function<QString(const QString &filter)> chooser);

} // namespace platform
