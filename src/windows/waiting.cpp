#include "windows/waiting.h"

#include <QVariant>

namespace platform {

namespace {
constexpr auto waitingProperty = "waiting";
const QColor waitingColor(192, 192, 255);
const QColor freeInputColor(255, 224, 192);
} // namespace

void setWaiting(QAbstractButton *button, bool waiting) {
    if (isWaiting(button) == waiting)
        return;
    button->setProperty(waitingProperty, waiting);
    QPalette palette;
    if (waiting) {
        palette.setColor(QPalette::Button, waitingColor);
        palette.setColor(QPalette::ButtonText, Qt::black);
    }
    button->setPalette(palette);
    QFont font = button->font();
    font.setBold(waiting);
    button->setFont(font);
}

bool isWaiting(const QAbstractButton *button) {
    return button->property(waitingProperty).toBool();
}

void setFreeInput(QLineEdit *box, bool open) {
    QPalette palette;
    if (open) {
        palette.setColor(QPalette::Base, freeInputColor);
        palette.setColor(QPalette::Text, Qt::black);
    }
    box->setPalette(palette);
    box->setReadOnly(!open);
}

} // namespace platform
