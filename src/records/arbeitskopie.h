// The working copy of the steps of one recipe, in ÄndRez_temp. Its rows go back as they stand.
#pragma once

#include "session/session.h"

class Arbeitskopie {
  public:
    /// Of recipes whose steps stand in this table; the name stays valid.
    explicit Arbeitskopie(const char *tabelle) : mTabelle(tabelle) {}

    // All raise what fails.

    /// Copies the steps in their order. What a former copy has left there stays.
    void füllen(Schlüssel rezeptID) const;
    /// Puts all rows of the copy in the place of the recipe's steps and empties it. When it fails
    /// half-way the copy is the only one, and nothing but a second try brings the steps back.
    void fnc_ÄnderungenÜbernehmen(Schlüssel rezeptID);
    void fnc_ÄnderungenVerwerfen() const;
    /// The stored steps are gone and not replaced yet.
    bool einzige() const { return mEinzige; }

  private:
    const char *mTabelle;
    bool mEinzige = false;
};
