#include "app/datenbank.h"

#include <QFileInfo>

#include <utility>

#include "platform/runtime.h"
#include "records/system.h"
#include "session/session.h"
#include "session/sprache.h"
#include "store/database.h"
#include "store/scripts.h"
#include "store/swap.h"
#include "store/trail.h"
#include "windows/msgbox.h"

using namespace platform;

namespace {

/// The directory of an older build: brought up to date, and told once.
void aufStandBringen() {
    systemLesen();                                 // whose language the box speaks
    gDatenbank.open("SELECT Version FROM System"); // without it stays open, for frmRefresh
    gDatenbank.close();
    const QString kopie = sichereUndBringeAufStand(datenbankName);
    gDatenbank.openFile(datenbankName);
    meldung({"Die Datenbank wurde auf den Stand dieses Programms gebracht.\r"
             "Wie sie vorher war, liegt als " +
                 kopie + " daneben.",
             "The database was brought up to date for this program.\r"
             "As it was before, it lies beside it as " +
                 kopie + '.'},
            Information, {"Meldung", "Message"});
}

} // namespace

// An older database has no trail yet.
void imNachweisVermerken(const QString &anlass) try {
    noteInTrail(gDatenbank, anlass);
} catch (const Fehler &fehler) {
    fehlerMerken(fehler);
}

std::int16_t fnc_DatenbankÖffnen(bool nochEinmal) try {
    recoverDatabaseName();
    const QFileInfo journal(QString(datenbankName) + "-journal");
    const bool lag = journal.exists() && journal.size() > 0;
    gDatenbank.openFile(datenbankName);
    gDatenbankzustand = Datenbankzustand::Ungeprüft;
    if (lag && !QFileInfo::exists(journal.filePath()))
        imNachweisVermerken("Abgebrochene Änderung zurückgenommen (Journal)");
    clearLeftovers(); // of a swap that was stopped
    if (datenbankVeraltet(gDatenbank))
        aufStandBringen();
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
