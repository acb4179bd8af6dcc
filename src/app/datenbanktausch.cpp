#include "app/datenbanktausch.h"

#include <QFileInfo>

#include <utility>

#include "platform/fehler.h"
#include "platform/files.h"
#include "session/session.h"
#include "session/sprache.h"
#include "store/database.h"
#include "store/swap.h"
#include "windows/msgbox.h"

using namespace platform;

namespace {

CopyRecord vorgemerkt;
quint32 vorgemerkterStand = 0;

const Text titel{"Datenbank-Update", "Database Update"};

/// Locked, or open in another program, which would go on writing into the old file.
bool belegt() {
    return fnc_DateiGeöffnet(datenbankName) || openSomewhere(datenbankName);
}

/// Told once; what holds it may have let go then.
void gesperrtMelden() {
    meldung({"Das Update der Datenbank kann nicht ausgeführt werden. Bitte schließen Sie alle "
             "Datenbanken und klicken auf 'OK'.",
             "The update of the database can not be finished. Please close all open databases and "
             "push 'OK'."},
            Exclamation, titel);
    if (belegt()) {
        throw Fehler(fehlernummer::PathAccess,
                     {"Die Datenbank ist in Gebrauch oder schreibgeschützt.",
                      "The database is in use or read-only."});
    }
}

std::vector<Text> einwände(bool geändert) {
    std::vector<Text> alle;
    if (geändert)
        alle.push_back({"Die Datenbank wurde nach dem Kopieren noch geändert.",
                        "The database was changed after it had been copied."});
    try {
        for (const Text &einwand : checkFilled(datenbankName, gefüllteDatenbank, vorgemerkt))
            alle.push_back(einwand);
    } catch (const Fehler &fehler) {
        alle.push_back(fehler.text());
    }
    return alle;
}

bool trotzdem(const std::vector<Text> &einwände) {
    constexpr size_t lesbar = 8;
    Text liste;
    for (size_t i = 0; i < einwände.size() && i < lesbar; ++i) {
        liste.german += einwände[i].german + '\r';
        liste.english += einwände[i].english + '\r';
    }
    if (einwände.size() > lesbar) {
        liste.german += "...\r";
        liste.english += "...\r";
    }
    return meldung({"Die neue Datenbank stimmt nicht mit der bisherigen überein:\r" + liste.german +
                        "Soll sie trotzdem eingesetzt werden? Bei 'Nein' bleibt die bisherige.",
                    "The new database does not match the one in use:\r" + liste.english +
                        "Shall it be put in place all the same? With 'No' the present one stays."},
                   YesNo + Exclamation + SecondButtonDefault, titel) == Yes;
}

} // namespace

void tauschVormerken(const CopyRecord &übernommen, quint32 stand) {
    vorgemerkt = übernommen;
    vorgemerkterStand = stand;
    gUpdateBeimBeenden = true;
}

void fnc_ChangeDbName() {
    swapDatabase(QFileInfo::exists(gelieferteDatenbank));
}

void datenbankSchließenUndTauschen() try {
    const bool tauschen = std::exchange(gUpdateBeimBeenden, false);
    const bool geändert =
        tauschen && gDatenbank.isOpen() && gDatenbank.changeMark() != vorgemerkterStand;
    gDatenbank.close();
    if (!tauschen)
        return;
    if (belegt())
        gesperrtMelden();
    const std::vector<Text> gefunden = einwände(geändert);
    if (gefunden.empty() || trotzdem(gefunden))
        fnc_ChangeDbName();
} catch (const Fehler &fehler) {
    gDatenbank.close();
    if (fehler.number() != fehlernummer::PathAccess)
        return fehlerBox("6005 - ", fehler);
    fehlerMerken(fehler);
    meldung(
        {"Fehler 75 - Update konnte nicht ordnungsgemäß abgeschlossen werden. Bitte wenden Sie "
         "sich an die Hotline!",
         "Error 75 - The update could not be finished correctly. Please contact the hotline for "
         "help!"},
        Critical, {"Datenbank-Update", " Database Update"});
}
