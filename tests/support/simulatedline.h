// The line behind COM1, on virtual time; the simulated stand answers unless a test plays the bytes.
#pragma once

#include <QByteArray>

#include "farend.h"
#include "platform/serial.h"
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
    /// Another one answers instead of the stand.
    void connect(FarEnd &other) { mFarEnd = &other; }
    /// A line that is unplugged while open is lost; plugged again, it can be opened anew.
    void unplug();
    void plug() { mPlugged = true; }
    /// Another program holds the port.
    void occupy(bool occupied) { mOccupied = occupied; }

  private:
    class Device;

    TestClock &mClock;
    StandEnd mStand;
    FarEnd *mFarEnd = &mStand;
    QByteArray mArrived;
    bool mPlugged = true;
    bool mOccupied = false;
    int mGeneration = 0;
};

} // namespace support
