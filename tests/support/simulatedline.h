// The simulated stand behind COM1, on virtual time.
#pragma once

#include <QByteArray>

#include "serial.h"
#include "stand.h"
#include "testclock.h"

namespace support {

class SimulatedLine {
  public:
    explicit SimulatedLine(TestClock &clock);
    ~SimulatedLine();
    SimulatedLine(const SimulatedLine &) = delete;
    SimulatedLine &operator=(const SimulatedLine &) = delete;

    /// The stand, brought up to the present.
    simulator::Stand &stand();
    /// A line that is unplugged while open is lost; plugged again, it can be opened anew.
    void unplug();
    void plug() { mPlugged = true; }
    /// Another program holds the port.
    void occupy(bool occupied) { mOccupied = occupied; }

  private:
    class Device;

    TestClock &mClock;
    simulator::Stand mStand;
    QByteArray mArrived;
    bool mPlugged = true;
    bool mOccupied = false;
    int mGeneration = 0;
};

} // namespace support
