#include "controls/recordsetmodel.h"

#include "platform/runtime.h"
#include "store/sqltext.h"

void RecordsetModel::setSpalten(std::vector<Spalte> spalten) {
    beginResetModel();
    mSpalten = std::move(spalten);
    endResetModel();
}

void RecordsetModel::setRecordset(const Recordset &rows) {
    beginResetModel();
    mRows = rows;
    endResetModel();
}

int RecordsetModel::rowCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : mRows.count();
}

int RecordsetModel::columnCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : static_cast<int>(mSpalten.size());
}

QVariant RecordsetModel::data(const QModelIndex &index, int role) const {
    // An index may be older than the rows and columns of now.
    if (!index.isValid() || index.row() >= rowCount() || index.column() >= columnCount())
        return {};
    const Spalte &spalte = mSpalten[static_cast<size_t>(index.column())];
    if (role == Qt::TextAlignmentRole)
        return static_cast<int>(spalte.ausrichtung);
    if (role != Qt::DisplayRole)
        return {};
    const int column = mRows.columnIndex(spalte.name);
    if (column < 0)
        return {};
    const QVariant &value = mRows.at(index.row(), column);
    if (spalte.format == "dd.mm.yyyy")
        return datumText(datumAus(value.toString()));
    if (spalte.format == "General Date")
        return zeitpunktText(zeitpunktAus(value.toString()));
    if (!spalte.format.isEmpty() && !value.isNull())
        return Format(Feld(value).number(), spalte.format);
    return value.typeId() == QMetaType::Double ? QVariant(CStr(value.toDouble())) : value;
}

QVariant RecordsetModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole || section < 0 ||
        section >= columnCount())
        return {};
    return mSpalten[static_cast<size_t>(section)].kopf;
}
