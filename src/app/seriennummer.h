// Finds the working standard in use by asking the instrument for its serial number.
#pragma once

#include <functional>

#include "platform/clock.h"

class Seriennummer {
  public:
    /// `info` shows a line on the desktop; `gefunden` is called when the data of the instrument
    /// are in the session.
    Seriennummer(std::function<void(const QString &)> info, std::function<void()> gefunden);

    /// Asks; the answer is read after two seconds. A missing port is told from the second try on.
    void Seriennummer_ermitteln();

  private:
    void Timer2_Timer();

    std::function<void(const QString &)> mInfo;
    std::function<void()> mGefunden;
    Timer mTimer2{2000};
    std::int16_t mSeriennrVersuche = 0;
};
