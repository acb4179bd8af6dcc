#include "store/rowsum.h"

#include <QCryptographicHash>
#include <QtEndian>

#include <charconv>
#include <cmath>

#include <sqlite3.h>

namespace {

void appendQuoted(QByteArray &text, std::string_view value) {
    text += '"';
    for (const char letter : value) {
        if (letter == '"' || letter == '\\') {
            text += '\\';
            text += letter;
        } else if (static_cast<unsigned char>(letter) < 0x20) {
            constexpr char digits[] = "0123456789abcdef";
            text += "\\u00";
            text += digits[letter >> 4];
            text += digits[letter & 15];
        } else {
            text += letter;
        }
    }
    text += '"';
}

void appendNumber(QByteArray &text, double value) {
    constexpr double exact = 9007199254740992; // 2^53
    char digits[32];
    char *end = nullptr;
    if (!std::isfinite(value))
        return appendQuoted(text, value > 0 ? "∞" : "-∞");
    if (std::fabs(value) < exact && std::trunc(value) == value)
        end = std::to_chars(digits, std::end(digits), static_cast<qlonglong>(value)).ptr;
    else
        end = std::to_chars(digits, std::end(digits), value).ptr;
    text.append(digits, end - digits);
}

void appendValue(QByteArray &text, sqlite3_value *value) {
    const auto bytes = [&](const void *begin) {
        return std::string_view(static_cast<const char *>(begin),
                                static_cast<size_t>(sqlite3_value_bytes(value)));
    };
    switch (sqlite3_value_type(value)) {
    case SQLITE_INTEGER: {
        char digits[32];
        const char *end = std::to_chars(digits, std::end(digits), sqlite3_value_int64(value)).ptr;
        text.append(digits, end - digits);
        break;
    }
    case SQLITE_FLOAT:
        appendNumber(text, sqlite3_value_double(value));
        break;
    case SQLITE_TEXT:
        appendQuoted(text, bytes(sqlite3_value_text(value)));
        break;
    case SQLITE_BLOB: {
        const void *begin = sqlite3_value_blob(value);
        const std::string_view blob = bytes(begin);
        text += "\"x'";
        text += QByteArray::fromRawData(blob.data(), static_cast<qsizetype>(blob.size())).toHex();
        text += "'\"";
        break;
    }
    default:
        text += "null";
    }
}

void addField(QCryptographicHash &hash, const std::optional<std::string_view> &field) {
    char length[24];
    char *end = field ? std::to_chars(length, std::end(length) - 1, field->size()).ptr
                      : std::to_chars(length, std::end(length) - 1, -1).ptr;
    *end++ = ':';
    hash.addData(QByteArrayView(length, end - length));
    if (field)
        hash.addData(QByteArrayView(field->data(), static_cast<qsizetype>(field->size())));
}

} // namespace

void appendRowText(QByteArray &text, std::string_view names, std::span<sqlite3_value *> values) {
    char before = '{';
    for (sqlite3_value *value : values) {
        const size_t end = std::min(names.find('|'), names.size());
        text += before;
        appendQuoted(text, names.substr(0, end));
        text += ':';
        appendValue(text, value);
        names.remove_prefix(std::min(end + 1, names.size()));
        before = ',';
    }
    text += '}';
}

QByteArray hashOf(std::span<const std::optional<std::string_view>> fields) {
    QCryptographicHash hash(QCryptographicHash::Sha256);
    for (const auto &field : fields)
        addField(hash, field);
    return hash.result();
}

RowSum RowSum::ofRow(std::string_view table, std::string_view row) {
    const std::optional<std::string_view> fields[] = {table, row};
    const QByteArray hash = hashOf(fields);
    RowSum sum;
    sum.mCount = 1;
    for (size_t part = 0; part < sum.mParts.size(); ++part)
        sum.mParts[3 - part] =
            qFromBigEndian<std::uint64_t>(hash.constData() + part * sizeof(std::uint64_t));
    return sum;
}

void RowSum::add(std::string_view table, std::string_view row) {
    *this += ofRow(table, row);
}

void RowSum::remove(std::string_view table, std::string_view row) {
    *this -= ofRow(table, row);
}

RowSum &RowSum::operator+=(const RowSum &other) {
    mCount += other.mCount;
    std::uint64_t carry = 0;
    for (size_t part = 0; part < mParts.size(); ++part) {
        const std::uint64_t sum = mParts[part] + other.mParts[part];
        const bool over = sum < mParts[part];
        mParts[part] = sum + carry;
        carry = over || mParts[part] < sum ? 1 : 0;
    }
    return *this;
}

RowSum &RowSum::operator-=(const RowSum &other) {
    mCount -= other.mCount;
    std::uint64_t borrow = 0;
    for (size_t part = 0; part < mParts.size(); ++part) {
        const std::uint64_t rest = mParts[part] - other.mParts[part];
        const bool under = mParts[part] < other.mParts[part];
        mParts[part] = rest - borrow;
        borrow = under || rest < borrow ? 1 : 0;
    }
    return *this;
}

QString RowSum::hex() const {
    QString text;
    for (size_t part = mParts.size(); part-- > 0;)
        text += QString("%1").arg(mParts[part], 16, 16, QChar('0'));
    return text;
}

RowSum RowSum::from(qlonglong count, const QString &hex) {
    RowSum sum;
    sum.mCount = count;
    for (size_t part = 0; part < sum.mParts.size(); ++part)
        sum.mParts[3 - part] =
            hex.mid(static_cast<qsizetype>(part) * 16, 16).toULongLong(nullptr, 16);
    return sum;
}
