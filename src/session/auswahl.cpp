#include "auswahl.h"

namespace {

Auswahl gewählt;
std::function<void()> listener;

void changed() {
    if (listener)
        listener();
}

} // namespace

const Auswahl &auswahl() {
    return gewählt;
}

void kundeWählen(const QString &name) {
    if (gewählt.kunde != name) {
        gewählt.gerät.clear();
        gewählt.gerätID.clear();
    }
    gewählt.kunde = name;
    changed();
}

void gerätWählen(const QString &typ, const QString &ident) {
    gewählt.gerät = typ;
    gewählt.gerätID = ident;
    changed();
}

void rezeptWählen(const QString &name) {
    gewählt.rezept = name;
    changed();
}

void normalZeigen(const QString &text) {
    gewählt.normal = text;
    changed();
}

void datumZeigen(const QString &text) {
    gewählt.datum = text;
    changed();
}

void setAuswahlListener(std::function<void()> newListener) {
    listener = std::move(newListener);
}

DesktopRegeln desktopRegeln(const Auswahl &wahl) {
    DesktopRegeln regeln;
    regeln.nurGerät = wahl.kunde.isEmpty();
    if (regeln.nurGerät)
        return regeln;
    regeln.gerät = true;
    regeln.secControl = !wahl.gerätID.isEmpty();
    regeln.messen = !wahl.gerätID.isEmpty() && !wahl.rezept.isEmpty();
    return regeln;
}
