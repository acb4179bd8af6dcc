#include "protocols/archivieren.h"

#include "records/archiv.h"
#include "session/session.h"
#include "session/sprache.h"

void fnc_Archivieren() try { archivieren(gBerichtProtokoll); } catch (const Fehler &fehler) {
    fehlerBox("1083 - ", fehler);
}
