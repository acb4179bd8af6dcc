// The rows of one query as they were when it ran, with a cursor that walks them.
#pragma once

#include <QString>
#include <QStringList>
#include <QVariant>

#include <functional>
#include <memory>
#include <vector>

/// One value of a row. Null reads as 0 and as the empty text. A text read as a number may hold a
/// decimal comma or a decimal point.
class Feld {
  public:
    explicit Feld(QVariant value) : mValue(std::move(value)) {}

    bool isNull() const { return mValue.isNull(); }
    QString text() const { return mValue.toString(); }
    double number() const;
    /// As number(), for a value that nothing may be reckoned without: InvalidUseOfNull for Null.
    double requiredNumber() const;
    int whole() const { return static_cast<int>(number()); }
    const QVariant &value() const { return mValue; }

  private:
    QVariant mValue;
};

class Recordset {
  public:
    Recordset() = default;
    Recordset(QStringList columns, std::vector<std::vector<QVariant>> rows);

    int count() const { return static_cast<int>(mRows->size()); }
    bool empty() const { return mRows->empty(); }
    const QStringList &columns() const { return mColumns; }

    // The cursor stands on a row, before the first or behind the last. A fresh recordset stands on
    // its first row; one without rows stands before and behind at once.
    bool atStart() const { return mCurrent < 0 || empty(); }
    bool atEnd() const { return mCurrent >= count() || empty(); }
    int position() const { return mCurrent; }
    void moveFirst() { mCurrent = 0; }
    void moveLast() { mCurrent = count() - 1; }
    void moveTo(int row) { mCurrent = row; } ///< from 0
    void moveNext();
    void movePrevious();
    /// Stops on the first, or last, row whose column equals the text without regard to case. When
    /// there is none the cursor stays and the result is false.
    bool findFirst(const QString &column, const QString &text);
    bool findLast(const QString &column, const QString &text);

    /// Of the current row. MissingColumn for a column that is not there, NoCurrentRecord when the
    /// cursor stands on no row.
    Feld operator[](int column) const;
    Feld operator[](const QString &column) const;

    /// Of any row, for lists and tables; row and column must be there.
    const QVariant &at(int row, int column) const;
    int columnIndex(const QString &column) const; ///< -1 when it is not there

  private:
    bool matches(int row, int column, const QString &text) const;

    QStringList mColumns;
    std::shared_ptr<const std::vector<std::vector<QVariant>>> mRows =
        std::make_shared<const std::vector<std::vector<QVariant>>>();
    int mCurrent = 0;
};
