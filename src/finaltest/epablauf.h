// The run of a final test as a flow over the measurement screen: it sets the ergometer's load,
// reads its speed after each complete result, judges and stores by itself, and goes on to the next
// step.
//
// Nobody need be there. So load and motor are off on every way out of it, and before any box that
// waits for a person, except where a person can only go on (a reading that was missed): that box
// has as long as a step has for its next result, 18 s.
#pragma once

/// The measurement screen runs final tests from now on, of gEPProtokollID by gEPRezeptID and
/// gRezeptName.
void epAblaufEinsetzen();
/// It runs ordinary measurements again.
void epAblaufWegnehmen();
