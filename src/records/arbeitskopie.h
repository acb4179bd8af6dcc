// The working copy of the steps of one recipe, in ÄndRez_temp. All kinds of recipes share the
// table, and what one has left there never meets the other: the sign of the key tells whose row it
// is.
#pragma once

#include "records/rezept.h"
#include "session/session.h"

class Arbeitskopie {
  public:
    explicit Arbeitskopie(const Rezepttabellen &tabellen) : mTabellen(tabellen) {}

    // All raise what fails.

    /// Copies the steps in their order. What a former copy of this kind has left there stays.
    void füllen(Schlüssel rezeptID) const;
    /// Puts all rows of this kind in the place of the recipe's steps and empties the copy of them.
    /// When it fails half-way the copy is the only one, and nothing but a second try brings the
    /// steps back.
    void fnc_ÄnderungenÜbernehmen(Schlüssel rezeptID);
    void fnc_ÄnderungenVerwerfen() const;
    /// The stored steps are gone and not replaced yet.
    bool einzige() const { return mEinzige; }

  private:
    Rezepttabellen mTabellen;
    bool mEinzige = false;
};
