#include "windows/datefield.h"

#include <QKeyEvent>

#include <utility>

namespace platform {

namespace {

constexpr QChar Separator = '.';

QDate dateOf(const QString &typed) {
    const QDate parted = QDate::fromString(typed, "d.M.yyyy");
    return parted.isValid() ? parted : QDate::fromString(typed, "ddMMyyyy");
}

} // namespace

void DateField::keyPressEvent(QKeyEvent *key) {
    const QString text = key->text();
    const bool separator = text.size() == 1 && QString("., /-").contains(text);
    const bool digit = text.size() == 1 && text.at(0).isDigit();
    if (!separator && !digit)
        mTyped.clear();
    const bool movedOn = std::exchange(mMovedOn, false);
    if (separator && movedOn) {
        take(Separator);
        return;
    }
    const Section before = currentSection();
    QDateEdit::keyPressEvent(key);
    mMovedOn = digit && currentSection() != before;
    if (separator || digit)
        take(separator ? Separator : text.at(0));
}

void DateField::take(QChar typed) {
    mTyped += typed;
    const QDate date = dateOf(mTyped);
    if (!date.isValid())
        return;
    mTyped.clear();
    setDate(date);
    setSelectedSection(YearSection);
}

void DateField::mousePressEvent(QMouseEvent *press) {
    mTyped.clear();
    QDateEdit::mousePressEvent(press);
}

void DateField::focusInEvent(QFocusEvent *event) {
    mTyped.clear();
    QDateEdit::focusInEvent(event);
}

} // namespace platform
