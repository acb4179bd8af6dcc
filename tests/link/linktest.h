// A session with an open desktop, and stand-ins for what stands above the line.
#pragma once

#include "link/controller.h"
#include "link/einlauf.h"
#include "session/motorfenster.h"
#include "session/screens.h"
#include "session/session.h"
#include "workshop.h"

namespace support {

/// The window that runs the motor.
struct Window : Motorfenster {
    void setMoteinEnabled(bool on) override { moteinEnabled = on; }
    void setMotausEnabled(bool on) override { motausEnabled = on; }
    void showEinlauf(const QString &rest) override { einlauf = rest; }
    void enableFront() override { ++enabled; }

    bool moteinEnabled = false, motausEnabled = true;
    int enabled = 0; // how often
    QString einlauf;
};

/// A screen under a name of the program, which keeps what it is told.
class Told {
  public:
    explicit Told(frm name) : mName(name) {
        platform::registerScreen(int(name), {}, [] { return std::make_unique<Listener>(); });
        form(name);
    }
    ~Told() { form(mName).unload(); }
    QString last() const { return static_cast<Listener &>(form(mName)).told; }

  private:
    struct Listener : Screen {
        void showInfo(const QString &text) override { told = text; }
        QString told;
    };
    frm mName;
};

struct LinkTest : Workshop {
    LinkTest() { enterMotorfenster(window); }
    ~LinkTest() override { leaveMotorfenster(window); }
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
