// Support of the tests of this floor: a session with an open desktop on virtual time, a line whose
// answers a test plays byte by byte, and stand-ins for the windows above.
#pragma once

#include <gtest/gtest.h>

#include <map>
#include <vector>

#include "boxes.h"
#include "controller.h"
#include "einlauf.h"
#include "front.h"
#include "msgbox.h"
#include "screens.h"
#include "serial.h"
#include "session.h"
#include "simulatedline.h"
#include "testclock.h"

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

class LinkTest : public testing::Test {
  protected:
    LinkTest() {
        gSprache = 1;
        gDesktopAktiv = true;
        gDrehrichtung = 0;
        gFormStatus = 0;
        gEingelaufen = false;
        gFehlerNr = 0;
        platform::setBeeper([this] { ++beeps; });
        controllerVorbereiten();
        einlaufVorbereiten();
        enterFront(window);
    }
    ~LinkTest() override {
        for (Timer *timer : {&Timer1, &tiDrehzahl, &tiEinlauf})
            timer->setEnabled(false);
        MSComm1.setPortOpen(false);
        leaveFront(window);
        platform::closeAllScreens();
        platform::setBeeper({});
    }

    support::TestClock &clock = support::TestClock::install();
    support::Boxes boxes;
    Window window;
    int beeps = 0;
};

/// The first port, with a far end that does what the test says.
class ScriptedLine {
  public:
    explicit ScriptedLine(support::TestClock &clock) : mClock(clock) {
        platform::setSerialDeviceMaker(
            [this](const QString &) { return std::make_unique<Device>(*this); });
    }
    ~ScriptedLine() { platform::setSerialDeviceMaker({}); }
    ScriptedLine(const ScriptedLine &) = delete;
    ScriptedLine &operator=(const ScriptedLine &) = delete;

    /// The pieces arrive one by one, the first so many milliseconds from now.
    void arrive(const std::vector<QByteArray> &pieces, double milliseconds = 1) {
        double at = 0;
        for (const QByteArray &piece : pieces) {
            mUnderWay.emplace(mClock.elapsed() + (at += milliseconds), piece);
            mClock.after(at, [] {}); // wakes who waits
        }
    }
    std::function<void(const QByteArray &)> onWrite;
    QByteArray written;
    bool gone = false; // while open

  private:
    struct Device : platform::SerialDevice {
        explicit Device(ScriptedLine &theLine) : line(theLine) {}
        void open(const platform::SerialSettings &) override {}
        void write(const QByteArray &bytes) override {
            line.written += bytes;
            if (line.onWrite)
                line.onWrite(bytes);
        }
        QByteArray readAll() override { return std::exchange(line.arrived(), {}); }
        void discard() override { line.arrived().clear(); }
        qsizetype waiting() override { return line.arrived().size(); }
        bool lost() const override { return line.gone; }
        ScriptedLine &line;
    };

    QByteArray &arrived() {
        while (!mUnderWay.empty() && mUnderWay.begin()->first <= mClock.elapsed())
            mArrived += mUnderWay.extract(mUnderWay.begin()).mapped();
        return mArrived;
    }

    support::TestClock &mClock;
    std::multimap<double, QByteArray> mUnderWay;
    QByteArray mArrived;
};
