// Shows a recordset in a grid: chosen columns under heads of their own.
#pragma once

#include <QAbstractTableModel>

#include <vector>

#include "store/recordset.h"

class RecordsetModel : public QAbstractTableModel {
  public:
    struct Spalte {
        QString name; ///< column of the recordset
        QString kopf;
        Qt::Alignment ausrichtung = Qt::AlignLeft | Qt::AlignVCenter;
        /// "dd.mm.yyyy" for dates, "General Date" with their time, a pattern of platform::Format
        /// for numbers; without one a value is shown as it is.
        QString format = {};
    };

    void setSpalten(std::vector<Spalte> spalten);
    void setRecordset(const Recordset &rows);
    const Recordset &recordset() const { return mRows; }

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

  private:
    std::vector<Spalte> mSpalten;
    Recordset mRows;
};
