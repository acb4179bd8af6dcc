// The motor of the desktop: running-in, the ways out while it runs, a port that is missing.
#include "measuring.h"

namespace {

using namespace support;

using RunningIn = Measuring;

JOURNEY_P(RunningIn, EndWithTheMotorRunning) {
    co_await go(R"(
        login ; direction ; pbMotein ; wire == -*E-2100+>>> ; ? end no ; pbBeenden ; pass 5000
        wire == ; speed == 60 ; can pbMotaus
        ? end yes ; close ; pass 100 ; wire == -*E-0000+>>> ; shaft ~ ^set=0.00 ; process == over)");
}

// Told to end by the system: without a question, but not without stopping the motor.
JOURNEY_ROWS(RunningIn, EndsFromOutside,
             "direction ; after 30 terminated == now ; pbMotein ; shaft ~ ^set=60.00",
             "correct ; protocol Unterbrochen ; step 1 60 ; terminated == now") {
    co_await go("select");
    co_await go(givenRow);
    co_await go(R"(pass 1000 ; wire ~ \*E-2100\+>>>.*\*E-0000\+>>>-?$ ; shaft ~ ^set=0.00)");
    EXPECT_FALSE(gDesktopAktiv || gDatenbank.isOpen());
}

// The countdown goes on while a question is open, and its notice comes and goes underneath.
JOURNEY(RunningIn, EndsUnderTheQuestion) {
    change("UPDATE System SET Einlzeit2 = 0.03");
    co_await go("select ; direction ; pbMotein");
    expectKnown("notRunIn", platform::Yes, [this] {
        EXPECT_FALSE(gEingelaufen);
        clock.run(4'500);
        EXPECT_TRUE(gEingelaufen);
        EXPECT_NE(views["notice"](), "");
    });
    co_await go(R"(
        pbMessen ; @VorStatNPK ; pass 3000 ; notice == ; pbok ; until can StatMessen.pbWeiter
        speed == 0)");
}

JOURNEY_P(RunningIn, AMissingPortLeadsToTheSettings) {
    co_await go(R"(
        login ; direction ; line out ; ? noSettings ; pbMotein ; @Interface
        cannot Desktop.pbMotein ; line in ; pbok ; @Desktop    # it is modal
        pbMotein ; motor ~ ^on.* 60$)");
}

} // namespace
