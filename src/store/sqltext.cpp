#include "store/sqltext.h"

#include <QRegularExpression>

#include <utility>

QString musterAusdruck(const QString &muster) {
    QString expression;
    QString letters; // escaped as one run, since a character may be a pair of them
    const auto endRun = [&] {
        expression += QRegularExpression::escape(std::exchange(letters, {}));
    };
    for (const QChar c : muster) {
        if (c != '*' && c != '?') {
            letters += c;
            continue;
        }
        endRun();
        if (c == '?')
            expression += '.';
        else if (!expression.endsWith(".*")) // one is enough, and many take very long
            expression += ".*";
    }
    endRun();
    return expression;
}

namespace {

QRegularExpression expressionFor(const QString &muster) {
    QRegularExpression pattern(QRegularExpression::anchoredPattern(musterAusdruck(muster)),
                               QRegularExpression::CaseInsensitiveOption |
                                   QRegularExpression::DotMatchesEverythingOption |
                                   QRegularExpression::UseUnicodePropertiesOption);
    pattern.optimize();
    return pattern;
}

} // namespace

bool passtZumMuster(const QString &muster, const QString &text) {
    // A query asks for one pattern row after row.
    static QString lastMuster;
    static QRegularExpression last = expressionFor(lastMuster);
    if (muster != lastMuster) {
        lastMuster = muster;
        last = expressionFor(muster);
    }
    return last.match(text).hasMatch();
}

QDate datumAus(const QString &iso) {
    return QDate::fromString(iso.left(10), Qt::ISODate);
}

QDate datumAus(std::string_view iso) {
    constexpr size_t length = 10;
    if (iso.size() < length || iso[4] != '-' || iso[7] != '-')
        return {};
    const auto number = [iso](size_t from, size_t to) {
        int value = 0;
        for (; from < to; ++from) {
            if (iso[from] < '0' || iso[from] > '9')
                return -1;
            value = value * 10 + iso[from] - '0';
        }
        return value;
    };
    return {number(0, 4), number(5, 7), number(8, length)}; // invalid for what is none
}

QString datumText(const QDate &datum) {
    return datum.toString("dd.MM.yyyy");
}

QDateTime zeitpunktAus(const QString &iso) {
    return QDateTime::fromString(iso, Qt::ISODate);
}

QString zeitpunktText(const QDateTime &zeitpunkt) {
    return zeitpunkt.toString(zeitpunkt.time() == QTime(0, 0) ? "dd.MM.yyyy"
                                                              : "dd.MM.yyyy HH:mm:ss");
}
