// Which screen has the front, and which one gets a Form_Activate and when.

#include <QEvent>
#include <QTest>

#include <algorithm>
#include <stdexcept>

#include "boxes.h"
#include "fehler.h"
#include "msgbox.h"
#include "probe.h"

namespace {

using namespace platform;

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
        for (const QEvent::Type type : {QEvent::FocusIn, QEvent::FocusOut}) {
            QFocusEvent event(type, reason);
            QCoreApplication::sendEvent(probe(A).box, &event);
        }
        EXPECT_EQ(told(), expected) << reason;
    }
}

TEST_F(Activation, AButtonWorksUnlessTheFieldLeftTakesTheKeyboardBack) {
    bool refused = true;
    plans[A].lost = [&refused](Probe &left) { (refused ? left.box : left.other)->setFocus(); };
    lay({A});
    for (const bool takenBack : {true, false}) {
        refused = takenBack;
        probe(A).box->setFocus();
        told();
        probe(A).button->click();
        EXPECT_EQ(told(), takenBack ? "A.lost A.lost-end" : "A.lost A.lost-end A.click");
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

} // namespace
