// The printed protocol of one tested device.
#pragma once

#include "session/session.h"

/// Stages the rows of the test and shows them in a window, in the language of the session. False
/// for a test without rows: nothing is staged or shown. Raises Fehler, also for a layout that is
/// missing or broken.
bool epBerichtZeigen(Schlüssel protokollID);
