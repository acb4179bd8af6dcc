// What every program of the house answers about itself.
#pragma once

#include <QCommandLineParser>
#include <QString>

namespace platform {

/// Of this build.
QString programVersion();

/// Gives the process its name and version, and the parser --help and --version.
void introduce(const QString &name, QCommandLineParser &parser);

/// True when --help or --version is asked for, which the parser answers without a display.
bool asksForWords(int argc, const char *const *argv);

} // namespace platform
