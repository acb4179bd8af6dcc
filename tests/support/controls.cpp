#include "controls.h"

#include <QApplication>
#include <QGroupBox>
#include <QKeyEvent>

namespace support {

void sendKeys(QWidget &target, const QString &keys) {
    for (const QChar letter : keys) {
        const int key = letter.unicode() < 128 ? letter.toUpper().unicode() : 0;
        for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
            QKeyEvent event(type, key, Qt::NoModifier, QString(letter));
            QApplication::sendEvent(&target, &event);
        }
    }
}

QStringList visibleTexts(frm name) {
    QStringList texts;
    const Screen *screen = loaded(name);
    texts += screen->windowTitle();
    for (const QWidget *widget : screen->findChildren<QWidget *>()) {
        if (!widget->isVisible())
            continue;
        if (const auto *button = qobject_cast<const QAbstractButton *>(widget))
            texts += button->text();
        else if (const auto *label = qobject_cast<const QLabel *>(widget))
            texts += label->text();
        else if (const auto *group = qobject_cast<const QGroupBox *>(widget))
            texts += group->title();
    }
    texts.removeAll(QString());
    return texts;
}

} // namespace support
