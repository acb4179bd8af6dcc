// The dynamic measurement: the stream of the controller and the charts above it.
#pragma once

#include <functional>

/// Shows the charts of frmGraphLite over the measurement and fills them until gMessStatus is
/// another one than Dynamisch, the desktop is gone, or `abgelöst`. The charts are closed then. A
/// line that has gone ends it with Ruhe. Pumps events, shows its failures in a box.
void fnc_DynamikMessen(const std::function<bool()> &abgelöst);
