#include "controls.h"

#include <QAction>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>

namespace support {

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
