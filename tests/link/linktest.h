// A session with an open desktop, and stand-ins for what stands above the line.
#pragma once

#include "controller.h"
#include "einlauf.h"
#include "front.h"
#include "screens.h"
#include "session.h"
#include "workshop.h"

namespace support {

/// The window that runs the motor.
struct Window : Front {
    void setMoteinEnabled(bool on) override { moteinEnabled = on; }
    void setMotausEnabled(bool on) override { motausEnabled = on; }
    void setDrehREnabled(bool) override {}
    void setMessenEnabled(bool) override {}
    void showDrehrichtung(const QString &) override {}
    void showEinlauf(const QString &rest) override { einlauf = rest; }
    QString drehrichtung() const override { return {}; }
    void showMotorInfo(const QString &) override {}
    void enableFront() override { ++enabled; }
    void disableFront() override {}
    void focusBeenden() override {}

    bool moteinEnabled = false;
    bool motausEnabled = true;
    int enabled = 0; // how often
    QString einlauf;
};

/// A loaded screen under a name of the program, which keeps what it is told.
class Told {
  public:
    explicit Told(frm name) : mName(name) {
        platform::registerScreen(int(name), [this] { return std::make_unique<Listener>(*this); });
        screen(name);
    }
    ~Told() { screen(mName).unload(); }
    Told(const Told &) = delete;
    Told &operator=(const Told &) = delete;
    QString last() const { return mLast; }

  private:
    struct Listener : Screen {
        explicit Listener(Told &told) : mTold(told) {}
        void showInfo(const QString &text) override { mTold.mLast = text; }
        void showCountdown(const QString &text) override { mTold.mLast = text; }
        Told &mTold;
    };
    frm mName;
    QString mLast;
};

class LinkTest : public Workshop {
  protected:
    LinkTest() { enterFront(window); }
    ~LinkTest() override { leaveFront(window); }
    Window window;
};

/// The test plays what arrives.
class ScriptTest : public LinkTest {
  protected:
    ScriptTest() { line.connect(script); }
    void arrive(const QByteArrayList &pieces, double milliseconds = 1) {
        script.arrive(clock.elapsed(), {pieces.begin(), pieces.end()}, milliseconds);
    }
    ByteScript script;
};

} // namespace support
