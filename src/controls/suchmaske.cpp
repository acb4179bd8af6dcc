#include "controls/suchmaske.h"

#include <QComboBox>
#include <QListView>

void Suchmaske::sucheVerdrahten(QComboBox *feld, QListView *liste, const Handler &geändert,
                                const Handler &bestätigt) {
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
