// The line is pulled out: what is told, and how it goes on when it is back or not.
#include "measuring.h"

namespace {

using namespace support;

using LineGone = Measuring;

JOURNEY_P(LineGone, WithinAnExchange) {
    co_await go(R"(
        select ; direction ; after 30 line out
        ? lineFailed(5005, 8020) ; ? lineFailed(5006, 8018) ; ? noController ; ? motorNotOn ; pbMotein
        line in ; begin ; pbok ; pass 2000
        ? failed(4002, 8020) ; ? correctionOff ; line out ; until told == yes ; pass 100
        line in ; abort
        # The echo of a step's set-point, and then the stop
        correct ; obNeu ; after 30 line out
        ? lineFailed(5005, 8020) ; ? lineFailed(5006, 8018) ; ? noController ; ? motorOn ; ? refused ; ? noPort ; ? emptyProtocol ; pbok ; @Desktop
        line in ; whole Danach)");
}

JOURNEY_P(LineGone, WithinAStepAndBack) {
    co_await go(R"(
        measure ; ? lineLost ; line out ; pass 10000
        pass 30000 ; front == Messen ; line in ; pbMessen ; @Meldung ; step 1 60
        ? lineLost ; line out ; pass 10000
        pass 30000 ; front == Messen ; line in ; pbMessen ; @Meldung ; step 1 60
        # What was asked for goes on.
        line out ; ? failed(3014, 8020) ; pbFreieEing ; pass 1000
        laPrSchritt == FR ; line in ; pbMessen ; step 1 60
        pbSpeichern ; step 2 80 ; stored Prüfschritt == 1 ; leave ; idle == yes)");
}

JOURNEY_P(LineGone, ForGood) {
    co_await go(R"(
        # Nobody could tell the motor to stop.
        measure ; step 1 60 ; ? lineLost ; line out ; pass 10000
        ? noPort ; ? emptyProtocol ; close ; @Desktop
        motor == on Motaus 60 ; line in
        # Stored, and the next set-point cannot be sent: then it leaves by itself.
        correct ; protocol Noch einmal ; step 1 60 ; ? lineLost ; line out ; pass 10000
        ? noPort ; ? motorOn ; ? refused ; ? noPort ; pbSpeichern ; @Desktop
        motor ~ ^on.* 60$ ; line in ; whole Danach
        line out ; ? end yes ; pbBeenden ; pass 100 ; process == over)"); // it stands
}

} // namespace
