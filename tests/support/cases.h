// What many tests say in the same words: tables as text, failures by number, readable QStrings.
#pragma once

#include <QRegularExpression>
#include <QString>

#include <ostream>
#include <vector>

#include "platform/fehler.h"

inline void PrintTo(const QString &text, std::ostream *out) {
    *out << '"' << text.toStdString() << '"';
}
inline std::ostream &operator<<(std::ostream &out, const QString &text) {
    return out << text.toStdString();
}

namespace support {

/// One row of a table: what goes in, and what is to come out.
struct Case {
    QString in, out;
    /// Of several that go in or come out, parted by ", ".
    QString in_(int which) const { return in.section(", ", which, which); }
    QString out_(int which) const { return out.section(", ", which, which); }
};

inline std::ostream &operator<<(std::ostream &out, const Case &c) {
    return out << c.in << " -> " << c.out;
}

/// "0.5, 0 -> 0 | 2.5, 0 -> 2": rows parted by a bar, blanks around them mean nothing. Blanks that
/// count stand between quotation marks.
inline std::vector<Case> cases(const QString &table) {
    static const QRegularExpression bar("(?:^|\\s)\\|(?:\\s|$)"), arrow("(?:^|\\s)->(?:\\s|$)");
    const auto unquoted = [](const QString &cell) {
        const QString bare = cell.trimmed();
        return bare.size() > 1 && bare.startsWith('"') && bare.endsWith('"')
                   ? bare.mid(1, bare.size() - 2)
                   : bare;
    };
    std::vector<Case> rows;
    for (const QString &row : table.split(bar)) {
        const QStringList cells = (' ' + row.trimmed() + ' ').split(arrow);
        rows.push_back({unquoted(cells.value(0)), unquoted(cells.value(1))});
    }
    return rows;
}

/// The number of the failure, 0 when there was none.
template <class Body>
int raised(Body body) {
    try {
        body();
        return 0;
    } catch (const Fehler &fehler) {
        return fehler.number();
    }
}

} // namespace support
