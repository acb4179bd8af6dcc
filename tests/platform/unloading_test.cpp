// Screens that go away: what they may refuse, what they leave alone, and notices that close by
// themselves in the middle of something else.

#include "boxes.h"
#include "msgbox.h"
#include "probe.h"

namespace {

using namespace platform;

using Unloading = Activation;

TEST_F(Unloading, AScreenMayRefuseToGo) {
    bool agrees = false;
    plans[B].queryUnload = [&agrees](Probe &) { return agrees; };
    lay({A, B});
    EXPECT_FALSE(probe(B).unload());
    rows("> =B | B+ > =B"); // the same instance
    agrees = true;
    EXPECT_TRUE(probe(B).unload());
    rows("> B.unload A.activate =A");
}

TEST_F(Unloading, UnloadingLeavesRunningCodeAlone) {
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

TEST_F(Unloading, AnUnloadedScreenHasNoMoreTicks) {
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

TEST_F(Notice, ClosingDuringAFailingCommandOrABox) {
    for (const bool command : {true, false}) {
        support::Boxes boxes;
        boxes.expect("?", OK, [] {
            noticeCloses();
            EXPECT_EQ(told(), "B.unload B.unload-end");
        });
        if (command)
            rows("{ >");
        msgBox("?", Critical, "");
        rows(command ? "> | } > A.activate =A" : "> A.activate =A");
        lay({D, A, B});
        probe(A).disable();
    }
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
