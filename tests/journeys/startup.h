// From the start to the desktop and back to the end.
#pragma once

#include "session.h"
#include "workplace.h"

namespace support {

class Startup : public Workplace {
  protected:
    void expectDesktopFailure(const QString &what) {
        boxes.expect("Fehler D_6002 -  " + what, "!! Achtung Fehler !!", platform::Critical);
    }
    void expectQuestion(int answer) {
        expectBox({"Wollen Sie das Programm wirklich beenden?",
                   "Do you really want to terminate the program?"},
                  platform::YesNo + platform::Question, {"Programmende", "End Of Program"}, answer);
    }
    Journey end() {
        expectQuestion(platform::Yes);
        press(frm::Desktop, "pbBeenden");
        co_await pass(100);
        EXPECT_FALSE(loaded(frm::Desktop));
        EXPECT_FALSE(gDesktopAktiv);
    }
    Journey motorRuns() {
        co_await chooseDirection();
        line.stand().clearWires();
        press(frm::Desktop, "pbMotein");
        EXPECT_EQ(line.stand().wire(), "-*E-2100+>>>");
    }
};

} // namespace support
