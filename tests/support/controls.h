// Screens and their controls as a person uses them: by name, and only what can be seen and used.
#pragma once

#include <QAbstractButton>
#include <QAction>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QTest>

#include <stdexcept>

#include "screens.h"

namespace support {

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

inline bool inFront(frm name) {
    return loaded(name) && platform::frontScreen() == loaded(name);
}

/// The window takes the keyboard, as it does when a person turns to it.
void turnTo(const QWidget &control);

inline bool canPress(frm name, const char *button) {
    if (!loaded(name) || !loaded(name)->usable())
        return false;
    const auto *b = control<QAbstractButton>(name, button);
    return b->isVisible() && b->isEnabled();
}

inline void press(frm name, const char *button) {
    if (!canPress(name, button))
        throw std::runtime_error(std::string("cannot press ") + button);
    auto *pressed = control<QAbstractButton>(name, button);
    turnTo(*pressed);
    pressed->click();
}

inline void choose(frm name, const char *action) {
    auto *a = control<QAction>(name, action);
    if (!loaded(name)->usable() || !a->isEnabled())
        throw std::runtime_error(std::string("cannot choose ") + action);
    a->trigger();
}

/// The text of a box or label.
inline QString text(frm name, const char *which) {
    QObject *object = control<QObject>(name, which);
    if (auto *box = qobject_cast<QLineEdit *>(object))
        return box->text();
    if (auto *combo = qobject_cast<QComboBox *>(object))
        return combo->currentText();
    if (auto *label = qobject_cast<QLabel *>(object))
        return label->text().remove(QChar(0x200B)); // places to break a long word
    return object->property("text").toString();
}

/// Types any letters, umlauts too.
void sendKeys(QWidget &target, const QString &keys);

/// Replaces what stands in the box, key by key.
inline void type(frm name, const char *box, const QString &keys) {
    auto *edit = control<QWidget>(name, box);
    turnTo(*edit);
    edit->setFocus();
    if (auto *line = qobject_cast<QLineEdit *>(edit))
        line->selectAll();
    else if (auto *combo = qobject_cast<QComboBox *>(edit); combo && combo->lineEdit())
        combo->lineEdit()->selectAll();
    sendKeys(*edit, keys);
}

inline void enter(frm name, const char *box) {
    auto *edit = control<QWidget>(name, box);
    turnTo(*edit);
    QTest::keyClick(edit, Qt::Key_Return);
}

/// All captions of the screen, of menus, headings and hints too, for looking for left-over German.
QStringList visibleTexts(const Screen &screen);
inline QStringList visibleTexts(frm name) {
    return visibleTexts(*loaded(name));
}

} // namespace support
