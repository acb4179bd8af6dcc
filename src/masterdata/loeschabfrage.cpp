#include "masterdata/loeschabfrage.h"

#include <QCoreApplication>
#include <QLabel>
#include <QPushButton>

#include "controls/umbruch.h"
#include "masterdata/listenmaske.h"
#include "session/sprache.h"
#include "windows/msgbox.h"

using platform::Text;

Text kundenfrage(int geräte, int protokolle, const QString &name) {
    if (geräte == 0 && protokolle == 0)
        return {"Wollen Sie die Daten zu dem Kunden '" + name + "' jetzt löschen?",
                "Do you want to delete the data of '" + name + "' now?"};
    const QString n = QString::number(geräte);
    const QString m = QString::number(protokolle);
    Text erster{"Zu dem Kunden '" + name, "For the customer '" + name};
    const auto weiter = [&erster](const QString &german, const QString &english) {
        erster.german += german;
        erster.english += english;
    };
    if (geräte == 1 && protokolle == 0)
        erster = {"Zu diesem Kunden existiert ein Gerät.",
                  "For this customer there is a unit existent."};
    else if (protokolle == 0)
        weiter("' existieren " + n + " Geräte.", "' there are " + n + " units existent.");
    else if (geräte == 1 && protokolle == 1)
        weiter("' existiert ein Gerät und ein Protokoll.", "' there is a unit and a protocol.");
    else if (protokolle == 1)
        weiter("' existiert " + n + " Geräte und ein Protokoll.",
               "' there are " + n + " units and a protocol.");
    else if (geräte == 1)
        weiter("' existiert ein Gerät und " + m + " Protokolle.",
               "' there are " + m + " protocols and a unit.");
    else
        weiter("' existieren " + n + " Geräte und " + m + " Protokolle.",
               "' there are " + n + " units and " + m + " protocols.");
    return {erster.german + "\rWollen Sie alle zu diesem Kunden gehörenden Daten jetzt löschen?",
            erster.english + "\rShall data of the customer be deleted now?"};
}

Text gerätefrage(int protokolle, const QString &name) {
    if (protokolle == 0)
        return {"Sollen die Daten zu dem Gerät '" + name + "' jetzt gelöscht werden?",
                "Shall data of the unit '" + name + "' be deleted now?"};
    const QString german = "Zu dem Gerät '" + name;
    const QString english = "For the unit '" + name;
    const QString frage = "\rSollen diese Daten jetzt gelöscht werden?";
    if (protokolle == 1)
        return {german + "' existiert ein Protokoll." + frage,
                english + "' there is one protocol existent.\rShall it be deleted now?"};
    const QString m = QString::number(protokolle);
    return {german + "' existieren " + m + " Protokolle." + frage,
            english + "' there are " + m + " protocols existent.\rShall they be deleted now?"};
}

void Löschabfrage::verdrahten(const Aufbau &aufbau) {
    mAufbau = aufbau;
    onClick(aufbau.ja, [this] { ja_Click(); });
    onClick(aufbau.nein, [this] { unload(); });
    onEscape([this] { unload(); });
}

void Löschabfrage::Form_Load() {
    beschriften();
    mAufbau.achtung->zeige(platform::Zeichen::Achtung, inSprache({"Achtung!", "Attention!"}));
    mAufbau.nein->setFocus();
    gefangen(mAufbau.fragen, [this] { fnc_FrageZeigen(); })();
}

void Löschabfrage::fnc_FrageZeigen() {
    mAufbau.ja->setEnabled(false); // until it is known what Yes would delete
    const auto *list = static_cast<Listenmaske *>(loaded(mAufbau.liste));
    if (!list || list->gezeigt() == 0)
        return;
    mAufbau.frage->setText(umbrechbar(inSprache(frage(list->gezeigt()))));
    mSchlüssel = list->gezeigt();
    mAufbau.ja->setEnabled(true);
}

void Löschabfrage::ja_Click() try {
    löschen();
    meldung(mAufbau.gelöscht, platform::Information, {"Bestätigung", "Confirmation"});
    if (Screen *list = loaded(mAufbau.liste))
        static_cast<Listenmaske *>(list)->fnc_ListeLeeren();
    abwählen(mSchlüssel);
    unload();
} catch (const Fehler &fehler) {
    fehlerBox("31001 - ", fehler);
    gefangen(mAufbau.fragen, [this] {
        fnc_FrageZeigen();
        nachFehler(mSchlüssel);
    })();
}

/// May take a while. The window says so and takes no more input, unless it fails, which is raised.
void Löschabfrage::löschen() try {
    const HoldActivations hold;
    mAufbau.frage->setText(
        inSprache({"Die Daten werden gelöscht ...", "Data are being deleted ..."}));
    disable();
    QCoreApplication::processEvents();
    datensatzLöschen(mAufbau.ziel, mSchlüssel, [] { QCoreApplication::processEvents(); });
} catch (const Fehler &) {
    enable();
    throw;
}
