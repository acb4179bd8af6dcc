// What torvena-setup does beside setting up. Each answers the exit code of the program.
#pragma once

#include <QString>

#include "platform/directorylock.h"

enum ExitCode { Done = 0, Failed = 1 };

/// Says so on the error output.
int complain(const QString &text);
int complainInUse(const QString &directory, const platform::DirectoryLock &lock);

struct HandoutOrder {
    QString directory;
    QString first, last; ///< numbers, empty for no bound
    QString format;
    QString folder; ///< empty for that of the directory
};
int handOutCommand(const HandoutOrder &order);

int takeOverCommand(const QString &jetFile, const QString &directory, bool unreadableEmpty);
