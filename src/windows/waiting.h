// State that colour carries: a button that waits for the operator, a box that is open for input.
// The logic reads it back, so it is kept here and not in a style.
#pragma once

#include <QAbstractButton>
#include <QLineEdit>

namespace platform {

/// Light blue and bold: this one is next. Otherwise as any button.
void setWaiting(QAbstractButton *button, bool waiting);
bool isWaiting(const QAbstractButton *button);

/// Open for free input: writable and tinted. Otherwise locked.
void setFreeInput(QLineEdit *box, bool open);

} // namespace platform
