// Screens that keep a journal, and a desk to lay them on.
#pragma once

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QLineEdit>
#include <QPushButton>

#include <map>
#include <string>
#include <vector>

#include "screen.h"
#include "testclock.h"

using platform::Timer;

enum Id { A = 1000, B, C, D };

class Probe;

/// What the instances of one screen do besides being logged.
struct Plan {
    std::function<void(Probe &)> load, activate, unload, click, tick;
    std::function<bool(Probe &)> queryUnload;
    std::function<void(Probe &)> lost = {};
};

inline std::map<int, Plan> plans;
inline std::vector<std::string> journal;
inline int living = 0;

class Probe : public Screen {
  public:
    explicit Probe(int id)
        : mName(1, static_cast<char>('A' + id - A)),
          mPlan(plans[id]),
          button(new QPushButton(this)),
          box(new QLineEdit(this)),
          other(new QLineEdit(this)) {
        ++living;
        box->move(0, 40);
        other->move(0, 80);
        onClick(button, [this] { step("click", mPlan.click); });
        onEnter(box, [this] { step("enter", {}); });
        onLostFocus(box, [this] { step("lost", mPlan.lost); });
        timer.onTick = handler([this] { step("tick", mPlan.tick); });
    }
    ~Probe() override { --living; }

    void Form_Load() override { step("load", mPlan.load); }
    void Form_Activate() override { step("activate", mPlan.activate); }
    void Form_Unload() override { step("unload", mPlan.unload); }
    bool Form_QueryUnload() override { return !mPlan.queryUnload || mPlan.queryUnload(*this); }

  private:
    void step(const char *what, const std::function<void(Probe &)> &more) {
        journal.push_back(mName + '.' + what);
        if (!more)
            return;
        more(*this);
        journal.push_back(mName + '.' + what + "-end"); // also shows that the instance still lives
    }
    std::string mName;
    Plan mPlan;

  public:
    QPushButton *button;
    QLineEdit *box, *other;
    Timer timer{100};
};

inline Probe &probe(int id) {
    return static_cast<Probe &>(platform::screenWithId(id));
}

inline void deliver() {
    for (int i = 0; i < 10; ++i)
        QCoreApplication::processEvents();
}

class Activation : public testing::Test {
  protected:
    Activation() {
        plans.clear();
        for (int id = A; id <= D; ++id)
            platform::registerScreen(id, [id] { return std::make_unique<Probe>(id); });
    }
    ~Activation() override {
        platform::setUncaughtReporter({});
        platform::closeAllScreens();
        deliver();
        EXPECT_EQ(living, 0);
    }
    /// The journal since the last question.
    static std::string told() {
        deliver();
        std::string all;
        for (const std::string &entry : std::exchange(journal, {}))
            all += (all.empty() ? "" : " ") + entry;
        return all;
    }
    /// Shows them one above the other and forgets about it.
    static void lay(std::initializer_list<int> ids) {
        for (const int id : ids)
            probe(id).show();
        told();
    }
    static int front() {
        for (int id = A; id <= D; ++id) {
            if (platform::loadedScreen(id) && platform::frontScreen() == platform::loadedScreen(id))
                return id;
        }
        return 0;
    }

    support::TestClock &clock = support::TestClock::install();
};
