#include "store/recordset.h"

#include "platform/fehler.h"
#include "platform/runtime.h"

using namespace platform;

double Feld::number() const {
    if (mValue.typeId() != QMetaType::QString)
        return mValue.toDouble();
    return ValBeider(mValue.toString());
}

double Feld::requiredNumber() const {
    if (isNull()) {
        throw Fehler(fehlernummer::InvalidUseOfNull,
                     {"Unzulässige Verwendung von Null: Der Wert fehlt in der Datenbank.",
                      "Invalid use of Null: the value is missing in the database."});
    }
    return number();
}

Recordset::Recordset(QStringList columns, std::vector<std::vector<QVariant>> rows)
    : mColumns(std::move(columns)),
      mRows(std::make_shared<const std::vector<std::vector<QVariant>>>(std::move(rows))) {}

void Recordset::moveNext() {
    if (mCurrent < count())
        ++mCurrent;
}

void Recordset::movePrevious() {
    if (mCurrent >= 0)
        --mCurrent;
}

bool Recordset::matches(int row, int column, const QString &text) const {
    return at(row, column).toString().compare(text, Qt::CaseInsensitive) == 0;
}

bool Recordset::findFirst(const QString &column, const QString &text) {
    const int index = columnIndex(column);
    for (int row = 0; index >= 0 && row < count(); ++row) {
        if (matches(row, index, text)) {
            mCurrent = row;
            return true;
        }
    }
    return false;
}

bool Recordset::findLast(const QString &column, const QString &text) {
    const int index = columnIndex(column);
    for (int row = count() - 1; index >= 0 && row >= 0; --row) {
        if (matches(row, index, text)) {
            mCurrent = row;
            return true;
        }
    }
    return false;
}

Feld Recordset::operator[](int column) const {
    if (column < 0 || column >= mColumns.size()) {
        throw Fehler(
            fehlernummer::MissingColumn,
            {QString("Element in dieser Auflistung nicht gefunden (Spalte %1).").arg(column),
             QString("Item not found in this collection (column %1).").arg(column)});
    }
    if (atStart() || atEnd())
        throw Fehler(fehlernummer::NoCurrentRecord,
                     {"Kein aktueller Datensatz.", "No current record."});
    return Feld(at(mCurrent, column));
}

Feld Recordset::operator[](const QString &column) const {
    const int index = columnIndex(column);
    if (index < 0) {
        throw Fehler(fehlernummer::MissingColumn,
                     {"Element in dieser Auflistung nicht gefunden (Spalte " + column + ").",
                      "Item not found in this collection (column " + column + ")."});
    }
    return (*this)[index];
}

const QVariant &Recordset::at(int row, int column) const {
    return (*mRows)[static_cast<size_t>(row)][static_cast<size_t>(column)];
}

int Recordset::columnIndex(const QString &column) const {
    for (int i = 0; i < mColumns.size(); ++i) {
        if (mColumns[i].compare(column, Qt::CaseInsensitive) == 0)
            return i;
    }
    return -1;
}
