// On the first day: what the database lacks before anything can be measured, one thing after the
// other, as a quiet line with the way to the screen for it.
#pragma once

#include <QAction>
#include <QFrame>
#include <QLabel>
#include <QPushButton>

#include <map>
#include <optional>

#include "records/grundbestand.h"

/// In the order of the road.
enum class Anfang { Normal, Kunde, Gerät, Spezifikation, Rezept };

/// The first thing that is missing; none when all is there.
std::optional<Anfang> nächsterAnfang(const Grundbestand &bestand);

class ErsterTag : public QFrame {
  public:
    ErsterTag();

    /// The entry of the menu behind which the thing is entered. A unit is entered for a customer,
    /// who is chosen first.
    void setZiele(std::map<Anfang, QAction *> ziele) { mZiele = std::move(ziele); }
    /// Asks the database anew and speaks the language of the session. Hidden when nothing is
    /// missing, when it was dismissed for this database, when that cannot be read, and where the
    /// place is taken by what is more urgent.
    void zeigen(bool vergeben = false);
    /// Dismissed for this database.
    void fürImmerAusblenden();

    QPushButton *öffnen() { return &mÖffnen; }
    QPushButton *ausblenden() { return &mAusblenden; }
    /// Of the thing that is shown.
    QAction *ziel() const;

  private:
    QLabel mText;
    QPushButton mÖffnen, mAusblenden;
    std::map<Anfang, QAction *> mZiele;
    std::optional<Anfang> mNächster;
    bool mErledigt = false; ///< all is there, or it was dismissed: not asked again
};
