// Digests of rows: what the trail keeps of a row, its hash, and sums of hashes in which the order
// of rows does not count.
#pragma once

#include <QByteArray>
#include <QString>

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

struct sqlite3_value;

/// A row as a JSON object of its columns, in their order; `names` are theirs, separated by `|`. The
/// same in each version of the engine: a number is as short as it can be read back, a whole one
/// without a point whatever its kind.
void appendRowText(QByteArray &text, std::string_view names, std::span<sqlite3_value *> values);

/// SHA-256 over fields of which each bears its length; no value is another one than an empty one.
QByteArray hashOf(std::span<const std::optional<std::string_view>> fields);

/// Rows of a table: how many, and the sum of their hashes modulo 2^256.
class RowSum {
  public:
    void add(std::string_view table, std::string_view row);
    void remove(std::string_view table, std::string_view row);
    qlonglong count() const { return mCount; }
    /// Most significant first.
    QString hex() const;
    static RowSum from(qlonglong count, const QString &hex);
    bool operator==(const RowSum &) const = default;
    RowSum &operator+=(const RowSum &other);
    RowSum &operator-=(const RowSum &other);

  private:
    static RowSum ofRow(std::string_view table, std::string_view row);

    qlonglong mCount = 0;
    std::array<std::uint64_t, 4> mParts{}; // least significant first
};
