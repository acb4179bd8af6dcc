#include "operate.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>

namespace operate {

namespace {

void key(QWidget &target, int code, const QString &letter) {
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, code, Qt::NoModifier, letter);
        QApplication::sendEvent(&target, &event);
    }
}

} // namespace

bool inFront(frm name) {
    return loaded(name) && platform::frontScreen() == loaded(name);
}

void turnTo(const QWidget &control) {
    QApplication::setActiveWindow(control.window());
}

bool canPress(frm name, const char *button) {
    if (!loaded(name) || !loaded(name)->usable())
        return false;
    const auto *b = control<QAbstractButton>(name, button);
    return b->isVisible() && b->isEnabled();
}

void press(frm name, const char *button) {
    if (!canPress(name, button))
        throw std::runtime_error(std::string("cannot press ") + button);
    auto *pressed = control<QAbstractButton>(name, button);
    turnTo(*pressed);
    pressed->click();
}

void choose(frm name, const char *action) {
    auto *a = control<QAction>(name, action);
    if (!loaded(name)->usable() || !a->isEnabled())
        throw std::runtime_error(std::string("cannot choose ") + action);
    a->trigger();
}

QString shownBy(const QObject *object) {
    if (auto *label = qobject_cast<const QLabel *>(object))
        return label->text().remove(QChar(0x200B)); // places to break a long word
    if (auto *combo = qobject_cast<const QComboBox *>(object))
        return combo->currentText();
    return object->property("text").toString();
}

void sendKeys(QWidget &target, const QString &keys) {
    for (const QChar letter : keys)
        key(target, letter.unicode() < 128 ? letter.toUpper().unicode() : 0, letter);
}

void type(frm name, const char *box, const QString &keys) {
    auto *field = control<QWidget>(name, box);
    turnTo(*field);
    field->setFocus();
    const auto *combo = qobject_cast<QComboBox *>(field);
    if (auto *edit = combo ? combo->lineEdit() : qobject_cast<QLineEdit *>(field))
        edit->selectAll();
    sendKeys(*field, keys);
}

void enter(frm name, const char *box) {
    auto *field = control<QWidget>(name, box);
    turnTo(*field);
    key(*field, Qt::Key_Return, "\r");
}

} // namespace operate
