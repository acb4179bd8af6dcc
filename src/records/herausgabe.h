// A protocol on its way to other programs.
#pragma once

#include "session/session.h"
#include "store/handout.h"

/// Writes the protocol into the folder "Export" of the working directory; answers the absolute
/// path. Raises as handOut().
QString protokollHerausgeben(Schlüssel protokollID, HandoutFormat format);
