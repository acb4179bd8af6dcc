// A name box and the list below it. Typing filters the list, the arrow keys of the box move in it,
// and the row that a person moves to or clicks goes into the box. The screen wires the events.
#pragma once

#include "controls/namensliste.h"

class QComboBox;
class QKeyEvent;
class QListView;
class QStringListModel;

class Suchliste {
  public:
    /// Where a text stands when the person says that it is the one.
    enum class Eingabe {
        Leer,
        Unbekannt, ///< nothing in the list fits
        Ergänzt,   ///< one of several that fit has gone into the box, to be confirmed
        Vollständig,
    };

    /// Called once, before everything else.
    void verbinden(QComboBox *feld, QListView *liste);

    /// All names there are. Text in the box stays.
    void füllen(const QStringList &namen);
    /// The result of a search, until the text changes.
    void zeigen(const QStringList &namen);
    /// Empties the box; the list shows all.
    void leeren();

    QString text() const;
    /// The name that the box spells; empty when it spells none.
    QString name() const { return mAlle.genau(text()); }
    /// All names there are.
    const QStringList &namen() const { return mAlle.namen(); }
    /// How many the list shows.
    int anzahl() const;

    /// Puts a name into the box and leaves the list as it is, but stands on the name.
    void übernehmen(const QString &name);
    Eingabe abschließen();

    // Events of the two controls
    void textGeändert();
    void zeileGewählt();
    /// A key in the box. True when it moved the list.
    bool taste(const QKeyEvent &event);

  private:
    void zeigenUndMarkieren(const Namensliste::Treffer &treffer);
    void markieren(qsizetype row);
    qsizetype markiert() const; ///< -1 for none

    QComboBox *mFeld = nullptr;
    QListView *mListe = nullptr;
    QStringListModel *mAuswahl = nullptr; ///< of the box: all
    QStringListModel *mModell = nullptr;  ///< of the list: what fits
    Namensliste mAlle;
    bool mSelbst = false; ///< the change comes from here
};
