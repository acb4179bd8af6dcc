// The grid that shows the steps of a recipe. Its current row is the step at hand; moving past
// either end stays on the last or first row.
#pragma once

#include <QString>

#include "store/recordset.h"

class QTableView;
class RecordsetModel;

class Schrittgitter {
  public:
    /// Called once, before everything else. `messart` is the column of the type.
    void verbinden(QTableView *gitter, const QString &messart = "Messart");
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
    QString mMessart;
    bool mSelbst = false;
};
