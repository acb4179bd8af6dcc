#include "controls.h"

#include <QApplication>
#include <QGroupBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMenu>

namespace support {

void turnTo(const QWidget &control) {
    QApplication::setActiveWindow(control.window());
}

void sendKeys(QWidget &target, const QString &keys) {
    for (const QChar letter : keys) {
        const int key = letter.unicode() < 128 ? letter.toUpper().unicode() : 0;
        for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
            QKeyEvent event(type, key, Qt::NoModifier, QString(letter));
            QApplication::sendEvent(&target, &event);
        }
    }
}

namespace {

QStringList headings(const QHeaderView &header) {
    QStringList texts;
    for (int section = 0; header.model() && section < header.count(); ++section)
        texts += header.model()->headerData(section, header.orientation()).toString();
    return texts;
}

} // namespace

QStringList visibleTexts(const Screen &screen) {
    QStringList texts{screen.windowTitle()};
    for (const QWidget *widget : screen.findChildren<QWidget *>()) {
        if (!widget->isVisible())
            continue;
        if (const auto *button = qobject_cast<const QAbstractButton *>(widget))
            texts += button->text();
        else if (const auto *label = qobject_cast<const QLabel *>(widget))
            texts += label->text();
        else if (const auto *group = qobject_cast<const QGroupBox *>(widget))
            texts += group->title();
        else if (const auto *edit = qobject_cast<const QLineEdit *>(widget))
            texts += edit->placeholderText();
        else if (const auto *header = qobject_cast<const QHeaderView *>(widget))
            texts += headings(*header);
        texts += widget->toolTip();
    }
    for (const QAction *action : screen.findChildren<QAction *>())
        texts += action->text();
    for (const QMenu *menu : screen.findChildren<QMenu *>())
        texts += menu->title();
    texts.removeAll(QString());
    return texts;
}

} // namespace support
