// The line about a session of measuring that was cut off, and the way back into it.
#include "app/frmDesktop.h"

#include "session/auswahl.h"
#include "session/sprache.h"
#include "windows/zeichen.h"

using namespace platform;

namespace {

QString stand(const Unterbrechung &was) {
    if (was.erster.isEmpty())
        return inSprache({"Alle %1 Schritte sind gespeichert.", "All %1 steps are saved."})
            .arg(was.schritte);
    return inSprache({"%1 von %2 Schritten sind gespeichert, der erste fehlende ist Schritt %3.",
                      "%1 of %2 steps are saved, the first one missing is step %3."})
        .arg(QString::number(was.gemessen), QString::number(was.schritte), was.erster);
}

} // namespace

// What became of its protocol meanwhile.
void frmDesktop::unterbrechungLesen() {
    if (!mUnterbrechung)
        return;
    mUnterbrechung = unterbrochen();
    unterbrechungZeigen();
}

void frmDesktop::unterbrechungZeigen() {
    ui.frUnterbrechung->setVisible(mUnterbrechung.has_value() && spracheGewählt());
    if (!mUnterbrechung || !spracheGewählt())
        return;
    const Unterbrechung &was = *mUnterbrechung;
    const QString name = was.name.trimmed(); // many have none
    QStringList sätze{
        inSprache({"Die Messung von Protokoll %1 wurde unterbrochen.",
                   "The measurement of protocol %1 was cut off."})
            .arg(QString::number(was.protokollID) + (name.isEmpty() ? QString() : " - " + name)),
        stand(was)};
    if (!was.fortsetzbar)
        sätze +=
            inSprache({"Fortsetzen lässt sich nur das letzte Protokoll, und nur an seinem Tag.",
                       "Only the last protocol can be continued, and only on its day."});
    ui.laUnterbrechung->setText(sätze.join(' '));
    ui.anzUnterbrechung->zeige(Zeichen::Achtung, inSprache({"unterbrochen", "cut off"}));
    ui.pbFortsetzen->setVisible(was.fortsetzbar);
}

// Who chooses goes another way; who takes another customer leaves the session behind.
void frmDesktop::unterbrechungBeiWahl() {
    gWiederaufnahme = 0;
    if (!mUnterbrechung || gKundenID == 0 || gKundenID == mUnterbrechung->kundenID)
        return;
    sitzungVergessen(mUnterbrechung->protokollID);
    mUnterbrechung.reset();
    unterbrechungZeigen();
}

void frmDesktop::pbFortsetzen_Click() {
    unterbrechungLesen();
    if (!mUnterbrechung || !mUnterbrechung->fortsetzbar)
        return;
    wiederaufnehmen(*mUnterbrechung);
    wegZeigen();
    tastaturFühren();
}
