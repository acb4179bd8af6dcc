// Which screen has the front, which one gets a Form_Activate and when; screens that go away, and
// notices that close by themselves in the middle of something else.
#include <QGuiApplication>
#include <QScreen>
#include <QWheelEvent>

#include "boxes.h"
#include "platform/fehler.h"
#include "probe.h"
#include "windows/msgbox.h"

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
    rows("A+ B+ C+ > ... | A~ B~ C! > C.unload = | A^ B^ > A.activate =A");
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

TEST_F(Activation, HeldBackWhileAScreenLoadsOrUnloads) {
    for (const char *when : {"B.load", "B.query", "B.unload"})
        plans[when] = [this](Probe &) {
            act(A, '-');
            act(A, '+');
            deliver();
        };
    rows("A+ > ... | B. > B.load B.load-end A.activate | B+ > ... | "
         "B! > B.unload B.unload-end A.activate");
    plans["A.activate"] = [this](Probe &) { // inside which it comes all the same
        plans.clear();
        act(C, '+');
        act(C, '-');
        deliver();
    };
    rows("A- A+ > A.activate C.load A.activate A.activate-end");
}

TEST_F(Activation, BoxesAndOtherProgramsMoveNothing) {
    rows("A+ B+ > ...");
    {
        support::Boxes boxes;
        boxes.expect("nothing", {}, -1);
        msgBox("nothing", 0, "");
        boxes.expect("question", {}, -1, Yes,
                     [this] { rows("> | A+ >"); }); // held back under the box
        EXPECT_EQ(msgBox("question", YesNo, ""), Yes);
    }
    rows("> A.activate");
    for (const auto type : {QEvent::WindowDeactivate, QEvent::WindowActivate}) {
        QEvent event(type);
        QCoreApplication::sendEvent(&probe(A), &event);
        QCoreApplication::sendEvent(qApp, &event);
    }
    rows(">");
    requestActivation(probe(A)); // by name it comes
    rows("> A.activate | B- >");
    requestActivation(probe(B));
    rows(">");
}

TEST_F(Activation, InputReachesUsableScreensOnlyAndMovesTheFront) {
    rows("A+ B+ > ... | A@ > A.click A.activate =A | B~ B@ > =A");
    for (const bool inUse : {false, true}) {
        probe(B).setInUse(inUse);
        QTest::keyClicks(probe(B).box, "12");
        QTest::keyClick(probe(B).box, Qt::Key_Enter);
        EXPECT_EQ(probe(B).box->text(), inUse ? "12" : "");
        rows(inUse ? "> B.enter B.activate =B" : "> =A");
    }
    // The wheel picks nothing unseen.
    QWheelEvent wheel({5, 5}, {5, 5}, {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(probe(B).list, &wheel);
    EXPECT_EQ(probe(B).list->currentIndex(), 0);
    // Enter in a field without use for it presses the default button, if that can be pressed,
    // also when the keyboard has been there.
    QPushButton *button = probe(C).button;
    button->setDefault(true);
    rows("C+ > ...");
    button->setFocus();
    probe(C).other->setFocus();
    const auto type = [this](Qt::Key key, const char *told) {
        QTest::keyClick(probe(C).other, key);
        rows(told);
    };
    type(Qt::Key_Return, "> C.click");
    type(Qt::Key_Enter, "> C.click");
    type(Qt::Key_Escape, "> =C");
    for (const char *lacking : {"enabled", "visible", "default"}) {
        button->setProperty(lacking, false);
        type(Qt::Key_Return, ">");
        button->setProperty(lacking, true);
    }
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
    rows("A+ > ...");
    for (const auto reason : {Qt::TabFocusReason, Qt::MouseFocusReason, Qt::PopupFocusReason,
                              Qt::ActiveWindowFocusReason, Qt::MenuBarFocusReason}) {
        const bool left = reason == Qt::TabFocusReason || reason == Qt::MouseFocusReason;
        for (const QEvent::Type type : {QEvent::FocusIn, QEvent::FocusOut}) {
            QFocusEvent event(type, reason);
            QCoreApplication::sendEvent(probe(A).box, &event);
        }
        EXPECT_EQ(told(), left ? "A.lost" : "") << reason;
    }
    // A button works unless the field left takes the keyboard back.
    for (const bool takenBack : {true, false}) {
        plans["A.lost"] = [=](Probe &left) { (takenBack ? left.box : left.other)->setFocus(); };
        probe(A).box->setFocus();
        told();
        probe(A).button->click();
        EXPECT_EQ(told(), takenBack ? "A.lost A.lost-end" : "A.lost A.lost-end A.click");
    }
}

TEST_F(Activation, WhatNobodyCaughtIsReportedAndTheProgramGoesOn) {
    QStringList reports;
    setUncaughtReporter([&](const std::exception &problem) { reports += problem.what(); });
    for (const char *what : {"load", "activate", "click", "tick", "query", "unload"})
        plans[QString("A.") + what] = [what](Probe &) { throw Fehler(13, {what, what}); };
    rows("A+ > ... | A@ > ...");
    probe(A).timer.setEnabled(true);
    Timer timer(100); // of no screen
    timer.onTick = [] { throw std::runtime_error("6"); };
    timer.setEnabled(true);
    clock.run(150);
    EXPECT_TRUE(probe(A).unload()) << "a failing question refuses nothing";
    clock.run(100);
    reports.sort();
    EXPECT_EQ(reports.join(' '), "13 activate 13 click 13 load 13 query 13 tick 13 unload 6 6");
}

using Unloading = Activation;

TEST_F(Unloading, AScreenMayRefuseToGo) {
    rows("A+ B+ > ...");
    probe(B).agrees = false;
    EXPECT_FALSE(probe(B).unload());
    rows("> =B | B+ > =B"); // the same instance
    probe(B).agrees = true;
    EXPECT_TRUE(probe(B).unload());
    rows("> B.unload A.activate =A");
}

TEST_F(Unloading, LeavesRunningCodeAlone) {
    plans["B.click"] = [](Probe &b) {
        EXPECT_TRUE(b.unload());
        EXPECT_TRUE(b.unload()) << "once is enough";
        deliver(); // where it would be destroyed if it did not run
        EXPECT_TRUE(b.unloaded());
        EXPECT_EQ(loadedScreen(B), nullptr);
        b.show(); // too late
        EXPECT_FALSE(b.isVisible());
        EXPECT_NE(&probe(B), &b);
        b.box->setText("still there");
        EXPECT_EQ(living, 3);
    };
    rows("A+ B+ > ...");
    probe(B).box->setText("old");
    probe(B).button->click();
    rows("> B.click B.unload A.activate B.load B.click-end");
    EXPECT_EQ(living, 2) << "the old instance goes when its code has ended";
    EXPECT_EQ(probe(B).box->text(), "") << "fresh controls";

    plans["A.click"] = [this](Probe &a) { // no more ticks
        a.unload();
        clock.run(1000);
    };
    probe(A).timer.setEnabled(true);
    clock.run(250);
    rows("> A.tick A.tick | A@ > A.click A.unload A.click-end");
}

// A notice (B) is on screen, the screen below it (A) is disabled until the notice closes by itself.
TEST_F(Unloading, OfANoticeInTheMiddleOfSomethingElse) {
    plans["B.unload"] = [this](Probe &) { act(A, '^'); };
    for (const bool command : {true, false}) { // one that fails, or a box
        support::Boxes boxes;
        boxes.expect("?", {}, -1, OK, [this] { rows("B! > B.unload B.unload-end"); });
        rows(command ? "D+ A+ B+ A~ > ... | { >" : "D+ A+ B+ A~ > ...");
        msgBox("?", Critical, "");
        rows(command ? "> | } > A.activate =A" : "> A.activate =A");
    }
    // While the screen below unloads.
    const auto noticeCloses = [this](Probe &) {
        act(B, '!');
        deliver();
    };
    plans["A.query"] = noticeCloses;
    rows("B+ A~ > ... | A! > B.unload B.unload-end A.unload D.activate");
    plans = {{"A.unload", noticeCloses}};
    rows("A+ B+ > ... | A! > A.unload B.unload A.unload-end D.activate");
}

// One held down would walk on from button to button.
TEST_F(Unloading, EnterPressesAButtonOnceHoweverLongItIsHeld) {
    rows("A+ > ...");
    probe(A).button->setAutoDefault(true);
    probe(A).button->setFocus();
    for (const bool held : {false, true, true}) {
        QKeyEvent key(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, "\r", held);
        QCoreApplication::sendEvent(probe(A).button, &key);
    }
    rows("> A.click");
}

} // namespace
