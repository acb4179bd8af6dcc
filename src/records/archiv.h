// The way of a protocol from the working tables into the archive.
#pragma once

#include "session/session.h"

/// Moves head, measured values, safety sheet, blood-pressure sheet, in this order. A failure is
/// raised and ends the move where it stands: what was moved stays moved, the rest stays in the
/// working tables.
void archivieren(Schlüssel protokollID);
