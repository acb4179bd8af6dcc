#include "platform/runtime.h"

#include <cmath>
#include <optional>

#include "platform/fehler.h"

namespace platform {

namespace {

QLocale &sessionLocale() {
    static QLocale locale;
    return locale;
}

bool isBlank(QChar c) {
    return c == ' ' || c == '\t' || c == '\n' || c == '\r';
}

/// Digits of |value| as plain decimal text with a point, at most 15 significant, no exponent.
QString decimalDigits(double value) {
    QString text = QString::number(std::fabs(value), 'e', 14);
    const qsizetype mark = text.indexOf('e');
    const int exponent = text.mid(mark + 1).toInt();
    QString digits = text.left(mark).remove('.');
    while (digits.size() > 1 && digits.endsWith('0'))
        digits.chop(1);
    if (exponent < 0)
        return "0." + QString(-exponent - 1, '0') + digits;
    if (digits.size() <= exponent + 1)
        return digits + QString(exponent + 1 - digits.size(), '0');
    return digits.left(exponent + 1) + '.' + digits.mid(exponent + 1);
}

enum class Half { AwayFromZero, ToEven };

/// Plain decimal text with exactly `decimals` digits behind the point.
QString roundDigits(QString digits, int decimals, Half half) {
    qsizetype point = digits.indexOf('.');
    if (point < 0) {
        point = digits.size();
        digits += '.';
    }
    const qsizetype keep = point + 1 + decimals;
    while (digits.size() <= keep)
        digits += '0';
    const QString tail = digits.mid(keep);
    digits.truncate(keep);

    bool up = tail.at(0) > '5';
    if (tail.at(0) == '5') {
        const bool exactHalf = QString(tail).remove('0') == "5";
        const qsizetype last = decimals > 0 ? keep - 1 : point - 1;
        const bool odd = digits.at(last).digitValue() % 2 == 1;
        up = !exactHalf || half == Half::AwayFromZero || odd;
    }
    for (qsizetype i = digits.size() - 1; up && i >= 0; --i) {
        if (digits.at(i) == '.')
            continue;
        up = digits.at(i) == '9';
        digits[i] = up ? QChar('0') : QChar(digits.at(i).unicode() + 1);
    }
    if (up)
        digits.prepend('1');
    if (digits.endsWith('.'))
        digits.chop(1);
    return digits;
}

QString plainNumber(double value) {
    if (std::fabs(value) >= 1e15 || (value != 0 && std::fabs(value) < 1e-15))
        return QString::number(value, 'g', 15).toUpper();
    const QString digits = decimalDigits(value);
    return value < 0 ? '-' + digits : digits;
}

std::optional<double> numberOfThePerson(const QString &text) {
    QLocale locale = sessionLocale();
    locale.setNumberOptions(QLocale::RejectGroupSeparator);
    bool ok = false;
    const double value = locale.toDouble(text.trimmed(), &ok);
    return ok && std::isfinite(value) ? std::optional(value) : std::nullopt;
}

} // namespace

void setNumberLocale(const QLocale &locale) {
    sessionLocale() = locale;
}

const QLocale &numberLocale() {
    return sessionLocale();
}

double Val(const QString &text) {
    QString number;
    bool point = false;
    bool exponent = false;
    for (const QChar c : text) {
        if (isBlank(c))
            continue;
        const bool atStart = number.isEmpty() || number.endsWith('E');
        const bool sign = (c == '+' || c == '-') && atStart;
        if (sign || (c.unicode() >= '0' && c.unicode() <= '9')) {
            number += c;
        } else if (c == '.' && !point && !exponent) {
            point = true;
            number += c;
        } else if ((c.toUpper() == 'E' || c.toUpper() == 'D') && !exponent && !number.isEmpty() &&
                   number.back().isDigit()) {
            exponent = true;
            number += 'E';
        } else {
            break;
        }
    }
    // A dangling exponent mark or sign is no part of the number.
    while (!number.isEmpty()) {
        bool ok = false;
        const double value = QLocale::c().toDouble(number, &ok);
        if (ok)
            return value;
        number.chop(1);
    }
    return 0;
}

QString Str(double value) {
    const QString number = plainNumber(value);
    return number.startsWith('-') ? number : ' ' + number;
}

QString CStr(double value) {
    return plainNumber(value).replace('.', sessionLocale().decimalPoint());
}

double CDbl(const QString &text) {
    const std::optional<double> value = numberOfThePerson(text);
    if (!value) {
        throw Fehler(fehlernummer::TypeMismatch,
                     {"Typen unverträglich: \"" + text + "\" ist keine Zahl.",
                      "Type mismatch: \"" + text + "\" is not a number."});
    }
    return *value;
}

bool IsNumeric(const QString &text) {
    return numberOfThePerson(text).has_value();
}

QString Format(double value, const QString &pattern) {
    const qsizetype point = pattern.indexOf('.');
    const QString whole = point < 0 ? pattern : pattern.left(point);
    const int decimals = point < 0 ? 0 : static_cast<int>(pattern.size() - point - 1);

    QString digits = roundDigits(decimalDigits(value), decimals, Half::AwayFromZero);
    const bool zero = QString(digits).remove('0').remove('.').isEmpty();
    qsizetype wholeDigits = digits.indexOf('.');
    if (wholeDigits < 0)
        wholeDigits = digits.size();
    if (whole.count('0') == 0 && digits.left(wholeDigits) == "0") {
        digits.remove(0, 1);
        wholeDigits = 0;
    }
    if (wholeDigits < whole.count('0'))
        digits.prepend(QString(whole.count('0') - wholeDigits, '0'));
    digits.replace('.', sessionLocale().decimalPoint());
    return value < 0 && !zero ? '-' + digits : digits;
}

double Round(double value, int digits) {
    if (!std::isfinite(value) || std::fabs(value) >= 1e15)
        return value;
    const double rounded = roundDigits(decimalDigits(value), digits, Half::ToEven).toDouble();
    return value < 0 ? -rounded : rounded;
}

double ValBeider(const QString &text) {
    return Val(QString(text).replace(',', '.'));
}

void fnc_KommaZuPunkt(QString &text) {
    text.replace(',', '.');
}

QString fnc_OhnePunkt(const QString &text) {
    return QString(text).remove('.');
}

double Int(double value) {
    return std::floor(value);
}

} // namespace platform
