#include "windows/desk.h"
#include "platform/guard.h"

#include <QAbstractButton>
#include <QApplication>
#include <QEvent>
#include <QKeyEvent>
#include <QWidget>

#include <algorithm>

#include "platform/fehler.h"
#include "windows/screen.h"

namespace platform {

namespace {

const auto dueEvent = static_cast<QEvent::Type>(QEvent::registerEventType());
const auto buryEvent = static_cast<QEvent::Type>(QEvent::registerEventType());

bool isInput(QEvent::Type type) {
    switch (type) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::Shortcut:
    case QEvent::ShortcutOverride:
    case QEvent::Wheel:
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::ContextMenu:
    case QEvent::Drop:
        return true;
    default:
        return false;
    }
}

Screen *screenOf(QObject *object) {
    while (object && !object->isWidgetType())
        object = object->parent(); // a shortcut belongs to the widget that holds it
    if (!object)
        return nullptr;
    return dynamic_cast<Screen *>(static_cast<QWidget *>(object)->window());
}

} // namespace

Desk &Desk::instance() {
    static Desk desk;
    return desk;
}

Desk::Desk() {
    qApp->installEventFilter(this);
}

QString Desk::nameOf(int id) const {
    const auto found = mNames.find(id);
    return found == mNames.end() ? QString() : found->second;
}

QStringList Desk::names() const {
    QStringList all;
    for (const auto &[id, name] : mNames)
        all << name;
    return all;
}

Screen &Desk::get(int id) {
    auto &slot = mScreens[id];
    if (!slot) {
        if (!knows(id)) {
            throw Fehler(fehlernummer::NoSuchScreen,
                         {QString("Das Fenster %1 gibt es nicht.").arg(id),
                          QString("There is no window %1.").arg(id)});
        }
        slot = mMakers.at(id)();
        slot->mId = id;
        Screen &screen = *slot;
        const Running running(&screen);
        const HoldActivations hold;
        guarded([&screen] { screen.Form_Load(); });
        return screen;
    }
    return *slot;
}

Screen *Desk::find(int id) const {
    const auto found = mScreens.find(id);
    return found == mScreens.end() ? nullptr : found->second.get();
}

void Desk::clear() {
    for (auto &[id, screen] : mScreens) {
        screen->mUnloaded = true; // what its window tells while it goes is for nobody
        screen->QWidget::hide();
    }
    mFront = nullptr;
    mActivationDue = false;
    mVisible.clear();
    mToClose.clear();
    mScreens.clear();
    mRetired.clear();
}

void Desk::moveFrontTo(Screen &screen) {
    mVisible.erase(std::remove(mVisible.begin(), mVisible.end(), &screen), mVisible.end());
    mVisible.push_back(&screen);
    if (mFront != &screen) {
        mFront = &screen;
        activate(screen);
    }
}

void Desk::wentAway(Screen &screen) {
    mVisible.erase(std::remove(mVisible.begin(), mVisible.end(), &screen), mVisible.end());
    mToClose.erase(std::remove(mToClose.begin(), mToClose.end(), &screen), mToClose.end());
    if (mFront != &screen)
        return;
    mFront = nullptr;
    mActivationDue = false;
    const auto next = std::find_if(mVisible.rbegin(), mVisible.rend(),
                                   [](const Screen *other) { return other->usable(); });
    if (next != mVisible.rend()) {
        Screen &heir = **next;
        heir.bringForward();
        moveFrontTo(heir);
    }
}

void Desk::becameUsable(Screen &screen) {
    if (!mFront && screen.isVisible() && screen.usable())
        moveFrontTo(screen);
}

void Desk::activate(Screen &screen) {
    if (mFront != &screen) {
        moveFrontTo(screen);
        return;
    }
    mActivationDue = true;
    post();
}

void Desk::closeLater(Screen &screen) {
    if (std::find(mToClose.begin(), mToClose.end(), &screen) == mToClose.end())
        mToClose.push_back(&screen);
    post();
}

void Desk::retire(Screen &screen) {
    const auto found = mScreens.find(screen.mId);
    if (found != mScreens.end() && found->second.get() == &screen) {
        mRetired.push_back(std::move(found->second));
        mScreens.erase(found);
    }
    buryLater();
}

void Desk::buryLater() {
    if (mBuryPosted)
        return;
    mBuryPosted = true;
    QCoreApplication::postEvent(this, new QEvent(buryEvent));
}

void Desk::release() {
    if (--mHolds == 0 && (mActivationDue || !mToClose.empty()))
        post();
}

void Desk::post() {
    if (mPosted || mHolds > 0)
        return;
    mPosted = true;
    QCoreApplication::postEvent(this, new QEvent(dueEvent));
}

void Desk::bury() {
    std::vector<std::unique_ptr<Screen>> dead;
    for (auto &screen : mRetired) {
        if (screen->mRunning == 0)
            dead.push_back(std::move(screen));
    }
    mRetired.erase(std::remove(mRetired.begin(), mRetired.end(), nullptr), mRetired.end());
}

void Desk::customEvent(QEvent *event) {
    if (event->type() == buryEvent) {
        mBuryPosted = false;
        bury();
        return;
    }
    mPosted = false;
    if (mHolds > 0)
        return; // release() posts again
    if (!mToClose.empty()) {
        Screen *screen = mToClose.front();
        mToClose.erase(mToClose.begin());
        if (mActivationDue || !mToClose.empty())
            post();
        if (screen->usable())
            guarded([screen] { screen->unload(); });
        return;
    }
    if (!mActivationDue || !mFront || !mFront->isVisible())
        return;
    mActivationDue = false;
    Screen *screen = mFront;
    const Running running(screen);
    guarded([screen] { screen->Form_Activate(); });
}

/// A key held down walks from button to button, and one of them starts the motor.
static bool heldEnterOnButton(const QObject *watched, const QEvent *event) {
    if (event->type() != QEvent::KeyPress || !qobject_cast<const QAbstractButton *>(watched))
        return false;
    const auto *key = static_cast<const QKeyEvent *>(event);
    return key->isAutoRepeat() && (key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter);
}

/// Escape in an open list closes the list, and is no shortcut of the screen behind it.
static bool escapeFromPopup(const QEvent *event) {
    return event->type() == QEvent::ShortcutOverride && QApplication::activePopupWidget() &&
           static_cast<const QKeyEvent *>(event)->key() == Qt::Key_Escape;
}

bool Desk::eventFilter(QObject *watched, QEvent *event) {
    if (escapeFromPopup(event)) {
        event->accept();
        return true;
    }
    if (!isInput(event->type()))
        return false;
    if (heldEnterOnButton(watched, event))
        return true;
    Screen *screen = screenOf(watched);
    if (!screen)
        return false;
    if (!screen->usable())
        return true;
    const bool chosen = event->type() == QEvent::MouseButtonPress || //
                        event->type() == QEvent::KeyPress;
    if (chosen && screen != mFront && screen->isVisible() && !screen->mUnloaded && !screen->mNotice)
        moveFrontTo(*screen);
    return false;
}

} // namespace platform
