#include "windows/screen.h"

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QCloseEvent>
#include <QComboBox>
#include <QKeyEvent>
#include <QPushButton>
#include <QScreen>
#include <QShortcut>
#include <QWindow>

#include <utility>

#include "platform/guard.h"
#include "windows/desk.h"
#include "windows/help.h"
#include "windows/msgbox.h"

namespace platform {

namespace {

/// The offscreen platform has no order of windows, and says so each time.
bool hasWindowOrder() {
    return QGuiApplication::platformName() != "offscreen";
}

/// Takes another value when the mouse wheel turns over it.
bool turnsByWheel(const QObject *object) {
    return qobject_cast<const QComboBox *>(object) ||
           qobject_cast<const QAbstractSpinBox *>(object);
}

} // namespace

Running::Running(Screen *screen) : mScreen(screen) {
    ++mScreen->mRunning;
}

Running::~Running() {
    if (--mScreen->mRunning == 0 && mScreen->mUnloaded)
        Desk::instance().buryLater();
}

HoldActivations::HoldActivations() {
    Desk::instance().hold();
}

HoldActivations::~HoldActivations() {
    Desk::instance().release();
}

Screen::Screen() : QWidget(nullptr, Qt::Window) {
    setAttribute(Qt::WA_QuitOnClose, false);
}

Screen::~Screen() = default;

void Screen::show() {
    if (mUnloaded)
        return;
    appear();
    bringForward();
    Desk::instance().moveFrontTo(*this);
}

void Screen::showNotice() {
    if (mUnloaded)
        return;
    mNotice = true;
    setAttribute(Qt::WA_ShowWithoutActivating);
    setWindowFlag(Qt::WindowDoesNotAcceptFocus);
    appear();
    if (hasWindowOrder())
        raise();
}

void Screen::appear() {
    if (isVisible())
        return;
    for (QWidget *field : findChildren<QWidget *>()) {
        if (turnsByWheel(field))
            filterOf(field);
    }
    for (QPushButton *button : findChildren<QPushButton *>()) {
        if (button->isDefault())
            button->setAutoDefault(
                false); // else it is no longer default once the keyboard leaves it
    }
    place();
    QWidget::show();
}

// Over the screen that it came from and stacked above it, but whole within the display.
void Screen::place() {
    constexpr int frame = 40; // what a window manager may draw around
    if (testAttribute(Qt::WA_Resized))
        resize(size().expandedTo(sizeHint())); // the design has a size of its own
    else
        adjustSize();
    Screen *origin = frontScreen();
    const QScreen *on = origin ? origin->screen() : screen();
    const QRect display =
        on->availableGeometry().adjusted(frame / 4, frame, -frame / 4, -frame / 4);
    QRect place = rect();
    place.moveCenter(display.center());
    if (origin && origin != this && origin->isVisible()) {
        place.moveCenter(origin->geometry().center());
        winId(); // makes the window
        if (windowHandle() && origin->windowHandle())
            windowHandle()->setTransientParent(origin->windowHandle());
    }
    place.moveLeft(std::max(display.left(), std::min(place.left(), display.right() - width())));
    place.moveTop(std::max(display.top(), std::min(place.top(), display.bottom() - height())));
    setGeometry(place);
}

void Screen::bringForward() {
    if (!hasWindowOrder())
        return;
    raise();
    activateWindow();
}

void Screen::showModal() {
    if (mUnloaded)
        return;
    for (Screen *other : Desk::instance().visible()) {
        if (other != this) {
            ++other->mModalAbove;
            mTakenOutOfUse.push_back(other);
        }
    }
    show();
}

void Screen::leaveDesk() {
    Desk &desk = Desk::instance();
    for (Screen *other : std::exchange(mTakenOutOfUse, {})) {
        --other->mModalAbove;
        desk.becameUsable(*other);
    }
    for (Screen *other : desk.visible()) {
        auto &taken = other->mTakenOutOfUse;
        if (mUnloaded)
            taken.erase(std::remove(taken.begin(), taken.end(), this), taken.end());
    }
    QWidget::hide();
    desk.wentAway(*this);
}

void Screen::hide() {
    leaveDesk();
}

bool Screen::unload() {
    if (mUnloading || mUnloaded)
        return true;
    const Running running(this);
    const HoldActivations hold;
    mUnloading = true;
    bool agreed = true;
    guarded([&] { agreed = Form_QueryUnload(); });
    if (!agreed) {
        mUnloading = false;
        return false;
    }
    guarded([this] { Form_Unload(); });
    mUnloaded = true;
    leaveDesk();
    Desk::instance().retire(*this);
    return true;
}

void Screen::setInUse(bool inUse) {
    mInUse = inUse;
    if (mInUse) {
        unsetCursor();
        Desk::instance().becameUsable(*this);
    } else {
        setCursor(Qt::WaitCursor);
    }
}

void Screen::closeEvent(QCloseEvent *event) {
    event->ignore(); // the screen itself decides when it goes
    if (!usable() || mUnloading || mUnloaded)
        return;
    if (Desk::instance().held())
        Desk::instance().closeLater(*this);
    else
        unload();
}

QString Screen::screenName() const {
    return Desk::instance().nameOf(mId);
}

// Enter in a field that has no use for it presses the button that is drawn as the default one.
void Screen::keyPressEvent(QKeyEvent *event) {
    if (event->key() == Qt::Key_F1) {
        run([this] { showHelp(screenName()); });
        return;
    }
    if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter) {
        QWidget::keyPressEvent(event);
        return;
    }
    for (QPushButton *button : findChildren<QPushButton *>()) {
        if (button->isDefault() && button->isEnabled() && button->isVisible()) {
            button->click();
            return;
        }
    }
}

void Screen::run(const Handler &handler) {
    const Running running(this);
    guarded(handler);
}

Screen::FilterHandlers &Screen::filterOf(QWidget *control) {
    control->installEventFilter(this);
    return mFilters[control];
}

void Screen::onClick(QAbstractButton *button, Handler handler) {
    on(button, &QAbstractButton::clicked, [this, button, handler = std::move(handler)] {
        if (!usable() || !button->isEnabled())
            return;
        const QWidget *left = focusWidget();
        if (left != button && button->focusPolicy() != Qt::NoFocus) {
            button->setFocus(Qt::ShortcutFocusReason);
            if (focusWidget() == left || !button->isEnabled() || mUnloaded)
                return;
            button->setFocus(Qt::ShortcutFocusReason); // a handler may have suggested another one
        }
        handler();
    });
}

void Screen::onEnter(QWidget *control, Handler handler) {
    filterOf(control).enter = std::move(handler);
}

void Screen::enterChain(std::initializer_list<QWidget *> fields, Qt::FocusReason reason) {
    for (const auto *field = fields.begin(); field + 1 < fields.end(); ++field)
        onEnter(*field, [next = field[1], reason] { next->setFocus(reason); });
}

void Screen::onEscape(Handler handler) {
    auto *escape = new QShortcut(Qt::Key_Escape, this);
    escape->setAutoRepeat(false); // held down, it leaves one window and not those behind it
    on(escape, &QShortcut::activated, std::move(handler));
}

void Screen::onGotFocus(QWidget *control, Handler handler) {
    filterOf(control).gotFocus = std::move(handler);
}

void Screen::onLostFocus(QWidget *control, Handler handler) {
    filterOf(control).lostFocus = std::move(handler);
}

void Screen::onKey(QWidget *control, std::function<bool(QKeyEvent &)> handler) {
    filterOf(control).key = std::move(handler);
}

bool Screen::eventFilter(QObject *watched, QEvent *event) {
    const auto found = mFilters.find(watched);
    if (found == mFilters.end() || mUnloaded)
        return false;
    FilterHandlers &handlers = found->second;
    switch (event->type()) {
    case QEvent::KeyPress: {
        auto &key = static_cast<QKeyEvent &>(*event);
        bool used = false;
        if (handlers.key)
            run([&] { used = handlers.key(key); });
        const bool enter = key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
        if (!used && enter && handlers.enter) {
            run(handlers.enter);
            used = true;
        }
        return used;
    }
    case QEvent::FocusIn:
    case QEvent::FocusOut: {
        // Leaving for a menu, a popup or another window is no leaving of the field, and coming
        // back from there no entering.
        const Qt::FocusReason reason = static_cast<QFocusEvent *>(event)->reason();
        const bool entering = event->type() == QEvent::FocusIn;
        if (!std::exchange(handlers.entered, entering) && !entering)
            return false;
        const Handler &handler = entering ? handlers.gotFocus : handlers.lostFocus;
        if (handler && reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason &&
            reason != Qt::MenuBarFocusReason)
            run(handler);
        return false;
    }
    case QEvent::Wheel: // would pick another entry unseen, and some picks are stored at once
        if (!turnsByWheel(watched))
            return false;
        event->ignore();
        return true;
    default:
        return false;
    }
}

void registerScreen(int id, const QString &name, std::function<std::unique_ptr<Screen>()> make) {
    Desk::instance().add(id, name, std::move(make));
}

QStringList screenNames() {
    return Desk::instance().names();
}

bool screenExists(int id) {
    return Desk::instance().knows(id);
}

Screen &screenWithId(int id) {
    return Desk::instance().get(id);
}

Screen *loadedScreen(int id) {
    return Desk::instance().find(id);
}

Screen *frontScreen() {
    return Desk::instance().front();
}

void requestActivation(Screen &screen) {
    if (screen.isVisible() && !screen.unloaded())
        Desk::instance().activate(screen);
}

void closeAllScreens() {
    Desk::instance().clear();
}

} // namespace platform
