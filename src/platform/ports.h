// The serial ports of this computer in words: which there are, and how to get at one.
#pragma once

#include <QString>

#include <functional>
#include <vector>

#include "platform/text.h"

namespace platform {

struct KnownPort {
    QString location; ///< "/dev/ttyUSB0"
    QString device;   ///< what the device calls itself, and its maker; may be empty
};

/// The system's ports that are there. Given by tests; an empty function gives the system back.
using PortLister = std::function<std::vector<KnownPort>()>;
void setPortLister(PortLister lister);
std::vector<KnownPort> knownPorts();

/// All of them, one a line, those with a number first: the entries COMn of the current directory
/// that lead to a device. At most eight. Or that there are none.
Text portsInWords();

/// True when this process may not read and write the device.
bool accessDenied(const QString &location);
/// Why, and how to get in: the group that owns the device and how to join it.
Text accessInWords(const QString &location);

} // namespace platform
