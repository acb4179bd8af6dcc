#include "controls/suchliste.h"

#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListView>
#include <QScopedValueRollback>
#include <QSignalBlocker>
#include <QStringListModel>

#include <algorithm>

#include "controls/eintrag.h"

void Suchliste::verbinden(QComboBox *feld, QListView *liste) {
    mFeld = feld;
    mListe = liste;
    mAuswahl = new QStringListModel(feld);
    mModell = new QStringListModel(liste);
    ohneErgänzung(mFeld);
    mFeld->setModel(mAuswahl);
    if (auto *popup = qobject_cast<QListView *>(mFeld->view()))
        popup->setUniformItemSizes(true); // measuring each of 20 000 rows takes a second
    mListe->setModel(mModell);
}

int Suchliste::anzahl() const {
    return mModell->rowCount();
}

void Suchliste::füllen(const QStringList &namen) {
    mAlle = Namensliste(namen);
    const QString text = mFeld->currentText();
    {
        const QSignalBlocker quiet(mFeld);
        mAuswahl->setStringList(mAlle.namen());
        mFeld->setCurrentIndex(-1);
        mFeld->setEditText(text);
    }
    zeigenUndMarkieren(mAlle.treffer(name().isEmpty() ? text : QString()));
}

void Suchliste::zeigen(const QStringList &namen) {
    zeigenUndMarkieren({Namensliste(namen).namen(), 0});
}

void Suchliste::leeren() {
    mFeld->setEditText({});
    textGeändert(); // also when the box was empty: the list may show a search
}

QString Suchliste::text() const {
    return mFeld->currentText();
}

void Suchliste::übernehmen(const QString &name) {
    const QScopedValueRollback own(mSelbst, true);
    mFeld->setEditText(name);
    zumErsetzenMarkieren(mFeld->lineEdit()); // typing starts another search
    markieren(mModell->stringList().indexOf(name));
}

Suchliste::Eingabe Suchliste::abschließen() {
    if (text().trimmed().isEmpty())
        return Eingabe::Leer;
    if (const QString complete = name(); !complete.isEmpty()) {
        if (text() != complete)
            übernehmen(complete);
        return Eingabe::Vollständig;
    }
    const qsizetype row = markiert();
    if (row < 0)
        return Eingabe::Unbekannt;
    übernehmen(mModell->stringList().at(row));
    return anzahl() == 1 ? Eingabe::Vollständig : Eingabe::Ergänzt;
}

void Suchliste::textGeändert() {
    if (!mSelbst)
        zeigenUndMarkieren(mAlle.treffer(text()));
}

void Suchliste::zeileGewählt() {
    const qsizetype row = markiert();
    if (!mSelbst && row >= 0)
        übernehmen(mModell->stringList().at(row));
}

bool Suchliste::taste(const QKeyEvent &event) {
    if (event.modifiers() & ~Qt::KeypadModifier || anzahl() == 0)
        return false;
    constexpr qsizetype page = 10;
    const qsizetype row = markiert();
    qsizetype next = 0;
    switch (event.key()) {
    case Qt::Key_Down:
        next = row + 1;
        break;
    case Qt::Key_Up:
        next = row < 0 ? anzahl() - 1 : row - 1;
        break;
    case Qt::Key_PageDown:
        next = row + page;
        break;
    case Qt::Key_PageUp:
        next = row - page;
        break;
    default:
        return false;
    }
    next = std::clamp<qsizetype>(next, 0, anzahl() - 1);
    übernehmen(mModell->stringList().at(next));
    return true;
}

void Suchliste::zeigenUndMarkieren(const Namensliste::Treffer &treffer) {
    const QScopedValueRollback own(mSelbst, true);
    mModell->setStringList(treffer.namen);
    const QString complete = name();
    markieren(complete.isEmpty() ? treffer.vorschlag : treffer.namen.indexOf(complete));
}

void Suchliste::markieren(qsizetype row) {
    const QScopedValueRollback own(mSelbst, true);
    if (row < 0) {
        mListe->clearSelection();
        return;
    }
    const QModelIndex index = mModell->index(static_cast<int>(row));
    mListe->setCurrentIndex(index);
    mListe->scrollTo(index);
}

qsizetype Suchliste::markiert() const {
    const QModelIndexList rows = mListe->selectionModel()->selectedIndexes();
    return rows.isEmpty() ? -1 : rows.first().row();
}
