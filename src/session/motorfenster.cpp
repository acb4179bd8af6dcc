#include "session/motorfenster.h"

#include <vector>

namespace {

std::vector<Motorfenster *> entered;

Motorfenster &none() {
    static Motorfenster nowhere;
    return nowhere;
}

} // namespace

Motorfenster &motorfenster() {
    return entered.empty() ? none() : *entered.back();
}

Motorfenster &hauptfenster() {
    return entered.empty() ? none() : *entered.front();
}

void enterMotorfenster(Motorfenster &fenster) {
    leaveMotorfenster(fenster);
    entered.push_back(&fenster);
}

void leaveMotorfenster(Motorfenster &fenster) {
    std::erase(entered, &fenster);
}

void drehrichtungZeigen(const QString &wort) {
    for (Motorfenster *fenster : entered)
        fenster->showDrehrichtung(wort);
}

void einlaufZeigen(const QString &rest) {
    for (Motorfenster *fenster : entered)
        fenster->showEinlauf(rest);
}

void messenSperren() {
    for (Motorfenster *fenster : entered)
        fenster->setMessenEnabled(false);
}

void welleZeigen() {
    for (Motorfenster *fenster : entered)
        fenster->showWelle();
}
