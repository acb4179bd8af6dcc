#include "controls/suchmaske.h"

#include <QComboBox>
#include <QListView>

#include "session/sprache.h"
#include "windows/msgbox.h"

void Suchmaske::sucheVerdrahten(QComboBox *feld, QListView *liste, const Handler &geändert,
                                const Handler &bestätigt) {
    mFeld = feld;
    mSuche.verbinden(feld, liste);
    const auto zeileGewählt = [this] { mSuche.zeileGewählt(); };
    on(feld, &QComboBox::editTextChanged, geändert);
    onKey(feld, [this](QKeyEvent &key) { return mSuche.taste(key); });
    onEnter(feld, bestätigt);
    on(liste->selectionModel(), &QItemSelectionModel::selectionChanged, zeileGewählt);
    on(liste, &QListView::clicked, zeileGewählt);
    on(liste, &QListView::doubleClicked, bestätigt);
    onEnter(liste, bestätigt);
}

bool Suchmaske::nameFestlegen(const Text &titel) {
    const Suchliste::Eingabe found = mSuche.abschließen();
    if (found == Suchliste::Eingabe::Leer || found == Suchliste::Eingabe::Unbekannt) {
        nichtsGefunden(titel);
        mFeld->setFocus();
    }
    return found == Suchliste::Eingabe::Vollständig;
}

void Suchmaske::nichtsGefunden(const Text &titel) {
    meldung({"Es wurden keine Daten gefunden! ", "No data found! "}, platform::Information, titel);
}
