// The grid that shows the steps of a recipe. Its current row is the step at hand; moving past
// either end stays on the last or first row.
#pragma once

#include <Qt>

#include <vector>

#include "platform/text.h"
#include "store/recordset.h"

class QTableView;
class RecordsetModel;

class Schrittgitter {
  public:
    struct Spalte {
        const char *name; ///< column of the recordset
        platform::Text kopf;
        Qt::Alignment ausrichtung;
    };
    /// Number, speed, power, type.
    static inline const std::vector<Spalte> ordentlich{
        {"Prüfschritt", {"Prüfschritt", "Test Step"}, Qt::AlignCenter},
        {"Drehzahl", {"Drehzahl\n1/min", "Speed\nrpm"}, Qt::AlignRight | Qt::AlignVCenter},
        {"Leistung", {"Leistung\nW", "Power\nW"}, Qt::AlignRight | Qt::AlignVCenter},
        {"Messart", {"Messart", "Type"}, Qt::AlignLeft | Qt::AlignVCenter},
    };

    /// Called once, before everything else.
    void verbinden(QTableView *gitter, std::vector<Spalte> spalten = ordentlich);
    /// Column heads in the language of the session.
    void beschriften();

    void zeigen(const Recordset &schritte);
    const Recordset &schritte() const;
    bool leer() const { return schritte().empty(); }

    int zeile() const; ///< from 0; -1 when no row is current
    /// Stands on the row, or on the nearest there is. A grid without rows stays as it is.
    void gehen(int zeile);
    void zumLetzten() { gehen(schritte().count() - 1); }
    /// The rows with the cursor on the current one.
    Recordset aktuell() const;
    /// True while the row changes by a call of this class and not by a person.
    bool selbst() const { return mSelbst; }

  private:
    QTableView *mGitter = nullptr;
    RecordsetModel *mModell = nullptr;
    std::vector<Spalte> mSpalten;
    bool mSelbst = false;
};
