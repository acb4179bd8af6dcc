// Lines to the ergometer by hand.
#include "link/ergometer.h"
#include "workplace.h"

namespace {

using namespace support;

struct InterfaceTest : Workplace {
    InterfaceTest() {
        roads["test"] = [](const QString &) -> Journey {
            form(frm::Test).show();
            co_await arrive(frm::Test);
        };
    }
};

JOURNEY_P(InterfaceTest, ByHand) {
    co_await logIn();
    co_await go(R"(
        stand speederror 83 ; test ; pbSend == &send ; pbLeistung == &Leistung 200 senden
        pbNullLeistung == &Nulleistung senden ; focus txtSSCode
        pbLeistung ; load == 200 ; pbNullLeistung ; load == 0 ; wire4 ~ ^W200.W000.$
        ? noAnswer ; pbSave ; txtSSCode = W123 ; pbSend ; load == 123 ; txtSSCode = [87]0[56]5 ; pbSend ; load == 85
        txtSSCode = D ; pbSend ; pass 60 ; pbSave ; Label1 == 6E3038330D ; lbSSCode == Drehzahl angekommen
        txtSSCode ~ ^ 83$ ; pbok ; Label1 == 83
        stand fault answerwrong on ; txtSSCode = D ; pbSend ; pass 60 ; ? wrongAnswer ; pbSave
        txtSSCode ~ ^ 0$ ; Label1 == 783038330D
        stand fault answerwrong off ; stand fault answercut 1 ; txtSSCode = D ; pbSend ; pass 60 ; pbSave
        txtSSCode ~ ^ 0$ ; Label1 == 6E    # the last byte is not looked at
        stand fault answercut 0 ; stand fault answerletters on ; txtSSCode = D ; pbSend ; pass 60
        ? failed(mSI 1, 13) ; pbSave ; txtSSCode == D
        txtSSCode = 5] ; ? failed(1003, 13) ; pbSend
        line 4 out ; ? failed(mSI 1, 8020) ; pbLeistung ; ? failed(mSI 1, 8002) ; pbLeistung
        pbexit ; @Desktop ; ? failed(1002, 8002) ; test ; pbexit ; @Desktop
        line 4 in ; test ; pbLeistung ; key Escape ; @Desktop ; load == 200)");
    EXPECT_TRUE(MSComm2.PortOpen()); // and the load stays on
}

} // namespace
