#include "app/datenbank.h"

#include <utility>

#include "platform/runtime.h"
#include "session/session.h"
#include "session/sprache.h"
#include "store/database.h"
#include "windows/msgbox.h"

using namespace platform;

std::int16_t fnc_DatenbankÖffnen(bool nochEinmal) try {
    gDatenbank.openFile(datenbankName);
    return 0;
} catch (const Fehler &fehler) {
    static int gemeldet = 0;
    if (gSprache == 0)
        gSprache = 1; // nobody can be asked for it any more
    fehlerMerken(fehler);
    if (fehler.number() == std::exchange(gemeldet, fehler.number()) && nochEinmal)
        return 0;
    meldung({"Fehler 1002-" + Str(fehler.number()) + ' ' + gFehlerText,
             "Error 1002-" + Str(fehler.number()) + ' ' + gFehlerText},
            Critical, {"Fehler", "Error"});
    return 0;
}
