// Screens and their controls as a person uses them: by name, and only what can be seen and used.
// For whatever runs the program without a person: tests, benchmarks, tour, gallery.
#pragma once

#include <QAbstractButton>
#include <QString>

#include <stdexcept>
#include <string>

#include "session/screens.h"

namespace operate {

/// Raises when the screen is not loaded or has no such control.
template <class Control = QWidget>
Control *control(frm name, const char *control) {
    Screen *screen = loaded(name);
    if (!screen)
        throw std::runtime_error(std::string("the screen of ") + control + " is not loaded");
    auto *found = screen->findChild<Control *>(QString::fromUtf8(control));
    if (!found)
        throw std::runtime_error(std::string("no control ") + control);
    return found;
}

bool inFront(frm name);

/// The window takes the keyboard, as it does when a person turns to it.
void turnTo(const QWidget &control);

bool canPress(frm name, const char *button);

/// Raises when that is not possible.
void press(frm name, const char *button);
/// Of a menu; raises when that is not possible.
void choose(frm name, const char *action);

/// What a box, a label, a button shows.
QString shownBy(const QObject *object);
inline QString text(frm name, const char *which) {
    return shownBy(control<QObject>(name, which));
}

/// Types any letters, umlauts too.
void sendKeys(QWidget &target, const QString &keys);
/// Replaces what stands in the box, key by key.
void type(frm name, const char *box, const QString &keys);
/// The Enter key, in a box.
void enter(frm name, const char *box);

} // namespace operate
