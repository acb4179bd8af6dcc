// Which screen has the front, which one gets a Form_Activate and when, and what unloading leaves
// alone.

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include <map>
#include <stdexcept>

#include "boxes.h"
#include "fehler.h"
#include "msgbox.h"
#include "screen.h"
#include "testclock.h"

namespace {

using namespace platform;

enum Id { A = 1000, B, C, D };

class Probe;

/// What the instances of one screen do besides being logged.
struct Plan {
    std::function<void(Probe &)> load, activate, unload, click, tick;
    std::function<bool(Probe &)> queryUnload;
};

std::map<int, Plan> plans;
std::vector<std::string> journal;
int living = 0;

class Probe : public Screen {
  public:
    explicit Probe(int id)
        : mName(1, static_cast<char>('A' + id - A)),
          mPlan(plans[id]),
          button(new QPushButton(this)),
          box(new QLineEdit(this)) {
        ++living;
        box->move(0, 40);
        onClick(button, [this] { step("click", mPlan.click); });
        onEnter(box, [this] { step("enter", {}); });
        onLostFocus(box, [this] { step("lost", {}); });
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
    QLineEdit *box;
    Timer timer{100};
};

Probe &probe(int id) {
    return static_cast<Probe &>(screenWithId(id));
}

void deliver() {
    for (int i = 0; i < 10; ++i)
        QCoreApplication::processEvents();
}

class Activation : public testing::Test {
  protected:
    Activation() {
        plans.clear();
        for (int id = A; id <= D; ++id)
            registerScreen(id, [id] { return std::make_unique<Probe>(id); });
    }
    ~Activation() override {
        setUncaughtReporter({});
        closeAllScreens();
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
            if (loadedScreen(id) && frontScreen() == loadedScreen(id))
                return id;
        }
        return 0;
    }

    support::TestClock &clock = support::TestClock::install();
};

TEST_F(Activation, ComesOnceAndNeverInsideTheCall) {
    probe(A).show();
    EXPECT_EQ(front(), A);
    EXPECT_EQ(journal, std::vector<std::string>{"A.load"});
    EXPECT_EQ(told(), "A.load A.activate");
    probe(A).show();
    EXPECT_EQ(told(), "") << "it had the front already";

    probe(B).show();
    probe(C).show();
    probe(B).show();
    EXPECT_EQ(told(), "B.load C.load B.activate") << "only the last one";
    probe(A).show();
    probe(B).show();
    EXPECT_EQ(told(), "B.activate") << "lost and got back";
    probe(B).hide();
    probe(B).show();
    EXPECT_EQ(told(), "B.activate");
    probe(A).hide();
    EXPECT_EQ(told(), "") << "a screen below went away";
}

TEST_F(Activation, FrontPassesToTheTopmostUsableScreen) {
    for (const bool unload : {false, true}) {
        lay({A, B, C, D});
        probe(C).disable();
        unload ? void(probe(D).unload()) : probe(D).hide();
        EXPECT_EQ(front(), B);
        EXPECT_EQ(told(), unload ? "D.unload B.activate" : "B.activate");
        probe(C).enable();
        EXPECT_EQ(told(), "") << "enabling alone moves nothing";
        EXPECT_EQ(front(), B);
        probe(B).disable();
        probe(B).enable();
        EXPECT_EQ(told(), "") << "a screen that disabled itself has not been away";
    }
}

TEST_F(Activation, WithNothingUsableLeftTheNextThatIsEnabledGetsTheFront) {
    lay({A, B, C});
    probe(A).disable();
    probe(B).disable();
    probe(C).unload();
    EXPECT_EQ(told(), "C.unload");
    EXPECT_EQ(frontScreen(), nullptr);
    probe(A).enable();
    probe(B).enable();
    EXPECT_EQ(front(), A);
    EXPECT_EQ(told(), "A.activate");
}

TEST_F(Activation, BoxesAndOtherProgramsMoveNothing) {
    lay({A, B});
    {
        support::Boxes boxes;
        boxes.expect("question", Yes, [&] {
            EXPECT_EQ(told(), "");
            probe(A).show();
            EXPECT_EQ(told(), "") << "held back under the box";
        });
        boxes.expect("nothing", OK);
        EXPECT_EQ(msgBox("nothing", 0, ""), OK);
        EXPECT_EQ(told(), "");
        EXPECT_EQ(msgBox("question", YesNo, ""), Yes);
    }
    EXPECT_EQ(told(), "A.activate");

    for (const auto type : {QEvent::WindowDeactivate, QEvent::WindowActivate}) {
        QEvent event(type);
        QCoreApplication::sendEvent(&probe(A), &event);
        QCoreApplication::sendEvent(qApp, &event);
    }
    EXPECT_EQ(told(), "");

    requestActivation(probe(A)); // by name it comes
    EXPECT_EQ(told(), "A.activate");
    probe(B).hide();
    requestActivation(probe(B));
    EXPECT_EQ(told(), "");
}

TEST_F(Activation, ModalScreensTakeTheOnesBelowOutOfUse) {
    const auto usable = [] {
        std::string names;
        for (int id = A; id <= D; ++id) {
            if (loadedScreen(id) && loadedScreen(id)->usable())
                names += static_cast<char>('A' + id - A);
        }
        return names;
    };
    lay({A, B});
    probe(B).disable();
    probe(C).showModal(); // returns at once
    EXPECT_EQ(usable(), "C");
    EXPECT_EQ(told(), "C.load C.activate");
    probe(D).showModal();
    EXPECT_EQ(usable(), "D");
    EXPECT_EQ(told(), "D.load D.activate");
    probe(C).unload(); // from below
    EXPECT_EQ(usable(), "D");
    EXPECT_EQ(told(), "C.unload");
    probe(D).hide();
    EXPECT_EQ(usable(), "AD");
    EXPECT_EQ(told(), "A.activate");

    probe(D).showModal();
    probe(A).unload(); // one that was taken out of use is gone before the modal screen
    probe(A).show();
    told();
    EXPECT_EQ(usable(), "AD");
    probe(D).unload();
    probe(B).enable();
    EXPECT_EQ(usable(), "AB");
    EXPECT_EQ(told(), "D.unload");
}

TEST_F(Activation, HeldBackUntilTheLastHoldEnds) {
    lay({A});
    {
        const HoldActivations outer;
        {
            const HoldActivations inner;
            probe(B).show();
            probe(C).show();
        }
        EXPECT_EQ(told(), "B.load C.load");
        probe(C).hide();
        EXPECT_EQ(told(), "");
    }
    EXPECT_TRUE(journal.empty()) << "not inside the call that ends the hold";
    EXPECT_EQ(told(), "B.activate");
}

TEST_F(Activation, HeldBackWhileAScreenLoadsOrUnloads) {
    lay({A});
    const auto showA = [](Probe &) {
        probe(A).hide();
        probe(A).show();
        deliver();
    };
    plans[B].load = showA;
    plans[B].unload = showA;
    plans[B].queryUnload = [&](Probe &b) {
        showA(b);
        return true;
    };
    probe(B);
    EXPECT_EQ(told(), "B.load B.load-end A.activate");
    probe(B).show();
    told();
    EXPECT_TRUE(probe(B).unload());
    EXPECT_EQ(told(), "B.unload B.unload-end A.activate");
}

TEST_F(Activation, AScreenMayRefuseToGo) {
    bool agrees = false;
    plans[B].queryUnload = [&agrees](Probe &) { return agrees; };
    lay({A, B});
    Screen *const first = &probe(B);
    EXPECT_FALSE(probe(B).unload());
    EXPECT_EQ(told(), "");
    EXPECT_EQ(front(), B);
    EXPECT_EQ(&probe(B), first);
    agrees = true;
    EXPECT_TRUE(probe(B).unload());
    EXPECT_EQ(told(), "B.unload A.activate");
}

TEST_F(Activation, ReachesAScreenInsideItsOwnForm_Activate) {
    int depth = 0;
    plans[A].activate = [&depth](Probe &) {
        if (++depth > 1)
            return;
        probe(B).show();
        probe(B).hide();
        deliver();
    };
    probe(A).show();
    EXPECT_EQ(told(), "A.load A.activate B.load A.activate A.activate-end A.activate-end");
}

TEST_F(Activation, UnloadingLeavesRunningCodeAlone) {
    const Screen *first = nullptr;
    plans[B].click = [&first](Probe &b) {
        first = &b;
        EXPECT_TRUE(b.unload());
        EXPECT_TRUE(b.unload()) << "once is enough";
        deliver(); // where it would be destroyed if it did not run
        EXPECT_TRUE(b.unloaded());
        EXPECT_EQ(loadedScreen(B), nullptr);
        b.show(); // too late
        EXPECT_FALSE(b.isVisible());
        EXPECT_NE(&probe(B), first);
        b.box->setText("still there");
        EXPECT_EQ(living, 3);
    };
    lay({A, B});
    probe(B).box->setText("old");
    probe(B).button->click();
    EXPECT_EQ(told(), "B.click B.unload A.activate B.load B.click-end");
    EXPECT_EQ(living, 2) << "the old instance goes when its code has ended";
    EXPECT_EQ(probe(B).box->text(), "") << "fresh controls";
}

TEST_F(Activation, AnUnloadedScreenHasNoMoreTicks) {
    plans[A].click = [this](Probe &a) {
        a.unload();
        clock.run(1000);
    };
    lay({A});
    probe(A).timer.setEnabled(true);
    clock.run(250);
    EXPECT_EQ(told(), "A.tick A.tick");
    probe(A).button->click();
    EXPECT_EQ(told(), "A.click A.unload A.click-end");
}

TEST_F(Activation, APersonsCloseDuringAHoldIsMadeUpFor) {
    lay({A, B});
    {
        const HoldActivations hold;
        probe(B).close();
        probe(B).close();
        EXPECT_EQ(told(), "");
        EXPECT_EQ(front(), B);
    }
    EXPECT_EQ(told(), "B.unload A.activate");

    probe(A).disable();
    probe(A).close();
    EXPECT_EQ(told(), "") << "a disabled screen cannot be closed";
    probe(A).enable();
    {
        const HoldActivations hold;
        probe(A).close();
        probe(A).unload(); // by the program, meanwhile
    }
    EXPECT_EQ(told(), "A.unload");
}

TEST_F(Activation, InputReachesUsableScreensOnlyAndMovesTheFront) {
    lay({A, B});
    QTest::mouseClick(probe(A).button, Qt::LeftButton);
    EXPECT_EQ(told(), "A.click A.activate");
    EXPECT_EQ(front(), A);

    probe(B).disable();
    QTest::mouseClick(probe(B).button, Qt::LeftButton);
    QTest::keyClicks(probe(B).box, "12");
    QTest::keyClick(probe(B).box, Qt::Key_Return);
    EXPECT_EQ(told(), "");
    EXPECT_EQ(front(), A);
    EXPECT_EQ(probe(B).box->text(), "");

    probe(B).enable();
    QTest::keyClicks(probe(B).box, "12");
    QTest::keyClick(probe(B).box, Qt::Key_Enter);
    EXPECT_EQ(probe(B).box->text(), "12");
    EXPECT_EQ(told(), "B.enter B.activate");
}

TEST_F(Activation, OnlyLeavingAFieldForAnotherOneIsLeavingIt) {
    lay({A});
    const std::pair<Qt::FocusReason, const char *> cases[] = {
        {Qt::TabFocusReason, "A.lost"}, {Qt::MouseFocusReason, "A.lost"},
        {Qt::PopupFocusReason, ""},     {Qt::ActiveWindowFocusReason, ""},
        {Qt::MenuBarFocusReason, ""},
    };
    for (const auto &[reason, expected] : cases) {
        QFocusEvent event(QEvent::FocusOut, reason);
        QCoreApplication::sendEvent(probe(A).box, &event);
        EXPECT_EQ(told(), expected) << reason;
    }
}

TEST_F(Activation, WhatNobodyCaughtIsReportedAndTheProgramGoesOn) {
    std::vector<std::string> reports;
    setUncaughtReporter([&](const std::exception &problem) { reports.push_back(problem.what()); });
    const auto raise = [](const char *what) {
        return [what](Probe &) { throw Fehler(13, {what, what}); };
    };
    plans[A] = {raise("load"),   raise("activate"),
                raise("unload"), raise("click"),
                raise("tick"),   [](Probe &) -> bool { throw std::runtime_error("query"); }};
    probe(A).show();
    deliver();
    probe(A).button->click();
    probe(A).timer.setEnabled(true);
    clock.run(250);
    EXPECT_TRUE(probe(A).unload()) << "a failing question refuses nothing";
    EXPECT_EQ(reports, (std::vector<std::string>{"13 load", "13 activate", "13 click", "13 tick",
                                                 "13 tick", "query", "13 unload"}));
    // A timer of no screen.
    Timer timer(100);
    timer.onTick = [] { throw Fehler(6, {"Überlauf", "overflow"}); };
    timer.setEnabled(true);
    clock.run(250);
    EXPECT_EQ(std::count(reports.begin(), reports.end(), "6 Überlauf"), 2);

    setUncaughtReporter({});
    support::Boxes boxes;
    boxes.expect("13 load", "torvena", Critical);
    plans[A] = {};
    plans[A].load = raise("load");
    probe(A);
}

// A notice (B) is on screen, the screen below it (A) is disabled until the notice closes by itself.
class Notice : public Activation {
  protected:
    Notice() {
        plans[B].unload = [](Probe &) { probe(A).enable(); };
        lay({D, A, B});
        probe(A).disable();
    }
    static void noticeCloses() {
        probe(B).unload();
        deliver();
    }
};

TEST_F(Notice, ClosingDuringAFailingCommand) {
    {
        support::Boxes boxes;
        boxes.expect("no answer");
        const HoldActivations command;
        noticeCloses();
        msgBox("no answer", Critical, "");
        deliver();
        EXPECT_EQ(journal, (std::vector<std::string>{"B.unload", "B.unload-end"}));
    }
    EXPECT_EQ(told(), "B.unload B.unload-end A.activate");
}

TEST_F(Notice, ClosingDuringAMessageBox) {
    support::Boxes boxes;
    boxes.expect("question", No, [] {
        noticeCloses();
        EXPECT_EQ(journal.back(), "B.unload-end");
    });
    msgBox("question", YesNo, "");
    EXPECT_EQ(told(), "B.unload B.unload-end A.activate");
    EXPECT_EQ(front(), A);
}

TEST_F(Notice, ClosingWhileTheScreenBelowUnloads) {
    probe(B).unload();
    probe(A).unload();
    told();
    plans[A].queryUnload = [](Probe &) {
        noticeCloses();
        return true;
    };
    lay({A, B});
    EXPECT_TRUE(probe(A).unload());
    EXPECT_EQ(told(), "B.unload B.unload-end A.unload D.activate");

    plans[A].queryUnload = {};
    plans[A].unload = [](Probe &) { noticeCloses(); };
    plans[B].unload = {};
    lay({A, B});
    EXPECT_TRUE(probe(A).unload());
    EXPECT_EQ(told(), "A.unload B.unload A.unload-end D.activate");
}

} // namespace
