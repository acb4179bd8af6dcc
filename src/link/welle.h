// Whether the shaft may be turning. One place says so, and gMotorEin holds it: true from the moment
// the confirmation of a speed above 0 begins to go out, false only when that of a stop has gone
// out. A command that the controller did not take changes nothing of it.
#pragma once

/// The confirmation of a speed above 0 is about to go out.
void welleLäuftAn();
/// The confirmation of a stop has gone out.
void welleSteht();
