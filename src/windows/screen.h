// Screens: top-level windows with the life of a form, one instance each, and an order of
// activation that is the program's own and does not depend on the window manager.
//
// One visible screen has the front. Moving it there posts one Form_Activate, which the event loop
// delivers when nothing holds activations back. See docs/activation.md for the rules.
#pragma once

#include <QWidget>

#include <functional>
#include <memory>
#include <unordered_map>
#include <vector>

class QAbstractButton;
class QKeyEvent;

namespace platform {

class Screen : public QWidget {
  public:
    Screen();
    ~Screen() override;

    /// Makes the screen visible on top and moves the front to it.
    void show();
    /// The same, and takes the screens that are visible now out of use until this one closes.
    /// Returns at once.
    void showModal();
    /// Makes the screen visible without moving the front: what stands below goes on as it was, and
    /// closing the notice activates nothing. It takes neither keyboard nor place in the order.
    void showNotice();
    void hide();
    /// Asks Form_QueryUnload, runs Form_Unload, and takes the screen away; the next use starts with
    /// a fresh instance. False when the screen refused. Code of the screen that still runs goes on.
    bool unload();

    /// A disabled screen keeps its looks but takes no input and cannot be closed by a person.
    void enable() { setInUse(true); }
    void disable() { setInUse(false); }
    void setInUse(bool inUse);
    /// Enabled, and not below a modal screen.
    bool usable() const { return mInUse && mModalAbove == 0; }
    bool unloaded() const { return mUnloaded; }

    /// What its class is called; the help finds its page by it.
    QString screenName() const;

    void setCaption(const QString &caption) { setWindowTitle(caption); }
    QString caption() const { return windowTitle(); }
    /// A line of information, for screens that have one.
    virtual void showInfo(const QString &) {}

  protected:
    virtual void Form_Load() {}
    virtual void Form_Activate() {}
    /// False refuses the unloading.
    virtual bool Form_QueryUnload() { return true; }
    virtual void Form_Unload() {}

    // Wiring. Each handler counts as running code of this screen, and what it throws is reported.
    using Handler = std::function<void()>;
    template <class Sender, class Signal>
    void on(Sender *sender, Signal signal, Handler handler) {
        connect(sender, signal, this, [this, handler = std::move(handler)] {
            if (!mUnloaded)
                run(handler);
        });
    }
    /// Only while button and screen are in use: an access key presses late. The button takes the
    /// keyboard first, so that the field left is checked; if the field takes it back nothing
    /// happens.
    void onClick(QAbstractButton *button, Handler handler);
    void onEnter(QWidget *control, Handler handler);
    /// Enter in each but the last turns to the next. With Qt::TabFocusReason its text is selected.
    void enterChain(std::initializer_list<QWidget *> fields,
                    Qt::FocusReason reason = Qt::OtherFocusReason);
    /// The Escape key, anywhere on the screen.
    void onEscape(Handler handler);
    void onGotFocus(QWidget *control, Handler handler);
    /// A control that was to get the keyboard but never did, since the handler of the one before it
    /// sent it elsewhere, is not left.
    void onLostFocus(QWidget *control, Handler handler);
    /// The handler answers true when it used the key up.
    void onKey(QWidget *control, std::function<bool(QKeyEvent &)> handler);
    /// Wraps a handler for a Timer of this screen; it does not tick once the screen is unloaded.
    Handler handler(Handler inner) {
        return [this, inner = std::move(inner)] {
            if (!mUnloaded)
                run(inner);
        };
    }

    bool eventFilter(QObject *watched, QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

  private:
    friend class Desk;
    friend class Running;

    struct FilterHandlers {
        Handler enter, gotFocus, lostFocus;
        bool entered = false; ///< has the keyboard
        std::function<bool(QKeyEvent &)> key;
    };
    FilterHandlers &filterOf(QWidget *control);
    void run(const Handler &handler);
    void appear();
    void place();
    void bringForward();
    void leaveDesk();

    std::unordered_map<QObject *, FilterHandlers> mFilters;
    std::vector<Screen *> mTakenOutOfUse; // by showModal()
    int mId = 0;
    int mModalAbove = 0;
    int mRunning = 0;
    bool mInUse = true;
    bool mNotice = false;
    bool mUnloading = false;
    bool mUnloaded = false;
};

/// While one lives, code of the screen is running and its instance stays.
class Running {
  public:
    explicit Running(Screen *screen);
    ~Running();
    Running(const Running &) = delete;
    Running &operator=(const Running &) = delete;

  private:
    Screen *mScreen;
};

/// While one lives no Form_Activate is delivered and no person closes a screen; both are made up
/// for when the last one is gone.
class HoldActivations {
  public:
    HoldActivations();
    ~HoldActivations();
    HoldActivations(const HoldActivations &) = delete;
    HoldActivations &operator=(const HoldActivations &) = delete;
};

// Screens by number, so that a low floor can name a high one.
void registerScreen(int id, const QString &name, std::function<std::unique_ptr<Screen>()> make);
/// Of all screens that are registered.
QStringList screenNames();
bool screenExists(int id);
/// The one instance, made and loaded on first use. `id` must be registered.
Screen &screenWithId(int id);
/// The instance if there is one, without making it.
Screen *loadedScreen(int id);

/// The screen that has the front, or none.
Screen *frontScreen();
/// Asks for a Form_Activate of this screen where no move of the front would bring it.
void requestActivation(Screen &screen);
/// Takes all screens away without asking them, as the end of the process does.
void closeAllScreens();

} // namespace platform

using platform::HoldActivations;
using platform::Screen;
