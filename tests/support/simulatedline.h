// The lines behind COM1 and COM4, on virtual time; the simulated stand answers unless a test plays
// the bytes.
#pragma once

#include <QByteArray>

#include "farend.h"
#include "platform/serial.h"
#include "testclock.h"

namespace support {

using SerialLine = simulator::Line;

class SimulatedLine {
  public:
    explicit SimulatedLine(TestClock &clock);
    ~SimulatedLine();
    SimulatedLine(const SimulatedLine &) = delete;
    SimulatedLine &operator=(const SimulatedLine &) = delete;

    /// The stand, brought up to the present.
    simulator::Stand &stand();
    /// Another one answers instead of the stand.
    void connect(FarEnd &other, SerialLine line = SerialLine::Controller) {
        end(line).farEnd = &other;
    }
    /// A line that is unplugged while open is lost; plugged again, it can be opened anew.
    void unplug(SerialLine line = SerialLine::Controller);
    void plug(SerialLine line = SerialLine::Controller) { end(line).plugged = true; }
    /// Another program holds the port.
    void occupy(bool occupied, SerialLine line = SerialLine::Controller) {
        end(line).occupied = occupied;
    }

  private:
    class Device;
    struct End {
        FarEnd *farEnd;
        QByteArray arrived = {};
        bool plugged = true;
        bool occupied = false;
        int generation = 0;
    };
    End &end(SerialLine line) { return mEnds[line == SerialLine::Controller ? 0 : 1]; }

    TestClock &mClock;
    simulator::Stand mStand;
    StandEnd mController{mStand, SerialLine::Controller};
    StandEnd mErgometer{mStand, SerialLine::Ergometer};
    End mEnds[2]{{&mController}, {&mErgometer}};
};

} // namespace support
