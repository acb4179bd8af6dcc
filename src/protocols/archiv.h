// The way of a protocol from the working tables into the archive.
#pragma once

/// Moves the protocol gBerichtProtokoll: head, measured values, safety sheet, blood-pressure sheet,
/// in this order. A failure is shown in a box and ends the move where it stands: what was moved
/// stays moved, the rest stays in the working tables.
void fnc_Archivieren();
