#pragma once

/// Moves the protocol gBerichtProtokoll into the archive. A failure is shown in a box; what was
/// moved by then stays moved, the rest stays in the working tables.
void fnc_Archivieren();
