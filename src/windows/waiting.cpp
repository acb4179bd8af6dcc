#include "windows/waiting.h"

#include <QVariant>

#include "windows/stil.h"

namespace platform {

namespace {
constexpr auto waitingProperty = "waiting"; // the style paints it
} // namespace

void setWaiting(QAbstractButton *button, bool waiting) {
    if (isWaiting(button) == waiting)
        return;
    button->setProperty(waitingProperty, waiting);
    button->update();
}

bool isWaiting(const QAbstractButton *button) {
    return button->property(waitingProperty).toBool();
}

void setFreeInput(QLineEdit *box, bool open) {
    setFreiGetönt(box, open);
    box->setReadOnly(!open);
}

} // namespace platform
