// A chain of filters over the archive: which are in use and in which order they were chosen, the
// condition that they make together, and the order of the list. No widget.
#pragma once

#include <array>

#include "records/archivfilter.h"

/// The value of a position that is in use: the text of its list, or both dates.
struct Filterwert {
    QString text = {};
    QDate von = {}, bis = {};
};

class Filterkette {
  public:
    explicit Filterkette(Filterart art) : mArt(art) {}

    /// As at the start: no filter, rising order of the first column.
    void zurücksetzen();

    /// A choice in a list, or of the dates. Of a customer his key is looked up; it stays as it was
    /// unless exactly one customer bears the name. Positions from 0 to 5. Raises what the store
    /// raises.
    void wählen(int position, const Filterwert &wert);
    /// Gives a position the rank of the choice at hand. One in use drops all that were chosen after
    /// it.
    void fnc_BuildArray(int position);

    bool inGebrauch(int position) const { return mFilter[static_cast<size_t>(position)] > 0; }
    int rang(int position) const { return mFilter[static_cast<size_t>(position)]; }
    Schlüssel kundenID() const { return mFilterKundenID; }
    const Filterwert &wert(int position) const { return mWerte[static_cast<size_t>(position)]; }

    /// The conditions in use, " AND" between them and "WHERE " in front; empty without one.
    Bedingung fnc_Where() const;
    /// " ORDER BY" and the column chosen; empty for a column that has no order.
    QString fnc_OrderBy() const;
    /// The statement that fills the list of a position.
    Bedingung füllanweisung(int position) const;

    std::int16_t mSortSpalte = 0;
    bool mAufsteigend = true;

  private:
    Bedingungen bedingungen() const;

    Filterart mArt;
    std::array<int, filteranzahl> mFilter{}; ///< ranks; 0 is not in use
    int mFilterNr = 0;                       ///< rank given out last
    bool mFilterAktiv = false;
    Schlüssel mFilterKundenID = 0;
    std::array<Filterwert, filteranzahl> mWerte;
};

/// A date as the tables write it; empty for one that is none.
QString changedate(const QDate &value);
