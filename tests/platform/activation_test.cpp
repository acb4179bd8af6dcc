// Which screen has the front, and which one gets a Form_Activate and when.

#include <QEvent>
#include <QGuiApplication>
#include <QScreen>
#include <QWheelEvent>

#include <algorithm>
#include <stdexcept>

#include "boxes.h"
#include "fehler.h"
#include "msgbox.h"
#include "probe.h"

namespace {

using namespace platform;

TEST_F(Activation, ComesOnceToTheFrontAndNeverInsideTheCall) {
    rows("A+ >> A.load =A | > A.activate | A+ > =A | B+ C+ B+ > B.load C.load B.activate =B | "
         "A+ B+ > B.activate | B- B+ > B.activate | A- > =B");
    // To the topmost usable one; enabling moves nothing, nor has one that disabled itself been
    // away.
    rows("A+ B+ C+ D+ > ... | C~ D- > B.activate =B | C^ > =B | B~ B^ > =B | "
         "A+ B+ C+ D+ > ... | C~ D! > D.unload B.activate =B | C^ > =B | B~ B^ > =B");
    // With none left, to the next that is enabled.
    rows("A+ B+ C+ > ... | A~ B~ C! > C.unload =0 | A^ B^ > A.activate =A");
    // A notice has neither front nor place.
    rows("Cn > C.load =A | C@ > C.click =A | C! > C.unload =A");
}

TEST_F(Activation, ModalScreensTakeTheOnesBelowOutOfUse) {
    rows("A+ B+ > ... | B~ C* > C.load C.activate %C | D* > D.load D.activate %D | "
         "C! > C.unload %D | D- > A.activate %AD | "
         "D* A! A+ > ... %AD | D! B^ > D.unload %AB"); // A was gone before the modal one
}

TEST_F(Activation, HeldBackUntilTheLastHoldEnds) {
    rows("A+ > ... | { { B+ C+ } > B.load C.load | C- > | } >> | > B.activate");
    // A person's close is made up for, once, unless the program came first.
    rows("{ Bx Bx > =B | } > B.unload A.activate | A~ Ax > | A^ { Ax A! } > A.unload");
}

TEST_F(Activation, BoxesAndOtherProgramsMoveNothing) {
    lay({A, B});
    {
        support::Boxes boxes;
        boxes.expect("nothing");
        msgBox("nothing", 0, "");
        EXPECT_EQ(told(), "");
        boxes.expect("question", Yes, [&] {
            EXPECT_EQ(told(), "");
            probe(A).show();
            EXPECT_EQ(told(), "") << "held back under the box";
        });
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
    rows("A+ B+ > ... | A@ > A.click A.activate =A | B~ B@ > =A");
    for (const bool inUse : {false, true}) {
        probe(B).setInUse(inUse);
        QTest::keyClicks(probe(B).box, "12");
        QTest::keyClick(probe(B).box, Qt::Key_Enter);
        EXPECT_EQ(probe(B).box->text(), QString(inUse ? "12" : ""));
        rows(inUse ? "> B.enter B.activate =B" : "> =A");
    }
    // The wheel picks nothing unseen.
    QWheelEvent wheel({5, 5}, {5, 5}, {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(probe(B).list, &wheel);
    EXPECT_EQ(probe(B).list->currentIndex(), 0);
    // Enter in a field without use for it presses the default button, if that can be pressed,
    // also when the keyboard has been there.
    const auto enter = [](Qt::Key key) { QTest::keyClick(probe(C).other, key); };
    probe(C).button->setDefault(true);
    rows("C+ > ...");
    probe(C).button->setFocus();
    probe(C).other->setFocus();
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Escape}) {
        enter(key);
        rows(key == Qt::Key_Escape ? "> =C" : "> C.click");
    }
    probe(C).button->setEnabled(false);
    enter(Qt::Key_Return);
    probe(C).button->setEnabled(true);
    probe(C).button->hide();
    enter(Qt::Key_Return);
    probe(C).button->show();
    probe(C).button->setDefault(false);
    enter(Qt::Key_Return);
    rows("> =C");
}

TEST_F(Activation, WindowsStandWholeOnTheDisplay) {
    const QRect display = QGuiApplication::primaryScreen()->availableGeometry();
    for (const QPoint corner : {display.topLeft(), display.bottomRight()}) {
        rows("A+ > ...");
        probe(A).move(corner); // the next one is to come over it
        rows("B+ > ...");
        EXPECT_TRUE(display.contains(probe(B).geometry()));
        EXPECT_LT((probe(B).geometry().center() - corner).manhattanLength(),
                  (display.center() - corner).manhattanLength());
        rows("B! A! > ...");
    }
}

TEST_F(Activation, OnlyLeavingAFieldForAnotherOneIsLeavingIt) {
    lay({A});
    for (const auto &[reason, left] : {std::pair{Qt::TabFocusReason, true},
                                       {Qt::MouseFocusReason, true},
                                       {Qt::PopupFocusReason, false},
                                       {Qt::ActiveWindowFocusReason, false},
                                       {Qt::MenuBarFocusReason, false}}) {
        for (const QEvent::Type type : {QEvent::FocusIn, QEvent::FocusOut}) {
            QFocusEvent event(type, reason);
            QCoreApplication::sendEvent(probe(A).box, &event);
        }
        EXPECT_EQ(told(), left ? "A.lost" : "") << reason;
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
