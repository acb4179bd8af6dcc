#include "session/auswahl.h"

namespace {

Auswahl gewählt;
RezeptKopf gewähltesRezept;
std::function<void()> showListener;
std::function<void()> choiceListener;

void shown() {
    if (showListener)
        showListener();
}

void chosen() {
    shown();
    if (choiceListener)
        choiceListener();
}

} // namespace

const Auswahl &auswahl() {
    return gewählt;
}

void kundeWählen(const QString &name, Schlüssel kundenID) {
    if (gewählt.kunde != name || gKundenID != kundenID) {
        gewählt.gerät.clear();
        gewählt.gerätID.clear();
        gGerätID = 0;
    }
    gewählt.kunde = name;
    gKundenID = kundenID;
    chosen();
}

void gerätWählen(const QString &typ, const QString &ident) {
    gewählt.gerät = typ;
    gewählt.gerätID = ident;
    chosen();
}

void gerätUmbenennen(const QString &typ, const QString &ident) {
    const bool regelnBleiben = gewählt.gerätID.isEmpty() == ident.isEmpty();
    gewählt.gerät = typ;
    gewählt.gerätID = ident;
    regelnBleiben ? shown() : chosen();
}

void kundeUmbenennen(const QString &name) {
    gewählt.kunde = name;
    shown();
}

void kundeAbwählen() {
    gerätAbwählen(); // while there is a customer: without one nothing is said about measuring
    kundeWählen({}, 0);
}

void gerätAbwählen() {
    gGerätID = 0;
    gerätWählen({}, {});
}

void rezeptEinsetzen(const RezeptKopf &kopf) {
    gRezeptID = kopf.rezeptID;
    gToleranzID = kopf.toleranzID;
    gRezeptName = kopf.toleranz;
    gMessverfahren = kopf.messverfahren;
}

void rezeptWählen(const QString &name) {
    if (name.isEmpty())
        rezeptEinsetzen({});
    gewähltesRezept = {gRezeptID, gToleranzID, gRezeptName, gMessverfahren};
    gewählt.rezept = name;
    chosen();
}

void rezeptErneuern(const RezeptKopf &kopf) {
    gewähltesRezept = kopf;
    rezeptEinsetzen(kopf);
    shown();
}

void rezeptZurückholen() {
    rezeptEinsetzen(gewähltesRezept);
}

void normalZeigen(const QString &text) {
    gewählt.normal = text;
    shown();
}

void datumZeigen(const QString &text) {
    gewählt.datum = text;
    shown();
}

void setAuswahlListener(std::function<void()> zeigen, std::function<void()> wahl) {
    showListener = std::move(zeigen);
    choiceListener = std::move(wahl);
}

DesktopRegeln desktopRegeln(const Auswahl &wahl) {
    DesktopRegeln regeln;
    regeln.prüfstand = gDatenbankzustand != Datenbankzustand::Beschädigt;
    regeln.ohneKunde = wahl.kunde.isEmpty();
    if (regeln.ohneKunde)
        return regeln;
    regeln.gerät = true;
    regeln.secControl = !wahl.gerätID.isEmpty();
    regeln.messen = regeln.prüfstand && !wahl.gerätID.isEmpty() && !wahl.rezept.isEmpty();
    return regeln;
}
