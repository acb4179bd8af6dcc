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

    bool moteinEnabled = false, motausEnabled = true;
    int enabled = 0; // how often
    QString einlauf;
};

/// A screen under a name of the program, which keeps what it is told.
class Told {
  public:
    explicit Told(frm name) : mName(name) {
        platform::registerScreen(int(name), [] { return std::make_unique<Listener>(); });
        screen(name);
    }
    ~Told() { screen(mName).unload(); }
    QString last() const { return static_cast<Listener &>(screen(mName)).told; }

  private:
    struct Listener : Screen {
        void showInfo(const QString &text) override { told = text; }
        void showCountdown(const QString &text) override { told = text; }
        QString told;
    };
    frm mName;
};

struct LinkTest : Workshop {
    LinkTest() { enterFront(window); }
    ~LinkTest() override { leaveFront(window); }
    Window window;
};

/// The test plays what arrives.
struct ScriptTest : LinkTest {
    ScriptTest() { line.connect(script); }
    void arrive(const QByteArrayList &pieces, double milliseconds = 1) {
        script.arrive(clock.elapsed(), {pieces.begin(), pieces.end()}, milliseconds);
    }
    ByteScript script;
};

} // namespace support
