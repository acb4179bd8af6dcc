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
    Screen *const first = &probe(B);
    EXPECT_FALSE(probe(B).unload());
    EXPECT_EQ(told(), "");
    EXPECT_EQ(front(), B);
    EXPECT_EQ(&probe(B), first);
    agrees = true;
    EXPECT_TRUE(probe(B).unload());
    EXPECT_EQ(told(), "B.unload A.activate");
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

TEST_F(Unloading, APersonsCloseDuringAHoldIsMadeUpFor) {
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
