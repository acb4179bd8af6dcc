// The calibration stand as its two serial lines show it: controller with motor and working
// standard on the first, the coupled ergometer on the second.
#pragma once

#include "drive.h"
#include "faults.h"
#include "outgoing.h"

#include <cstddef>
#include <optional>
#include <random>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace simulator {

enum class LeverArm { None, Left, Right };
enum class Direction { Right, Left }; // Rechtslauf, Linkslauf

/// Has no clock and no port: whoever runs it says what time it is, in ms from any start >= 0, never
/// backwards. Calls with a time first bring the stand up to it; setters act at the time reached
/// last. The same calls give the same bytes.
class Stand {
  public:
    static constexpr double CentreRaw = 10000; // offset reading without load or drift
    static constexpr double GainRaw = 12500;   // gain reading above the offset reading
    static constexpr double RawPerNm = 50;
    static constexpr double MaxSpeed = 300; // 1/min, where the drive limits itself

    explicit Stand(unsigned seed = 1);

    /// What the workstation wrote to the controller (19200 baud) and the ergometer (4800 baud).
    void receive(std::string_view bytes, double now);
    void receiveSecond(std::string_view bytes, double now);
    void advance(double now);
    /// What has arrived at the workstation by `now`, and removes it.
    std::string take(double now);
    std::string takeSecond(double now);
    /// When the next byte arrives on either line; none while nothing is under way.
    std::optional<double> nextEvent() const;

    void setCoupled(bool coupled) { mCoupled = coupled; }
    void setLeverArm(LeverArm side) { mLeverArm = side; }
    void setLeverMoment(double moment) { mLeverMoment = moment; } // N m, either side
    void setLeverMode(bool on) { mLeverMode = on; }
    void setLoad(double watts); // 0 to 999
    void setOffsetDrift(double raw) { mOffsetDrift = raw; }
    void setGainDrift(double raw) { mGainDrift = raw; }
    /// Standard deviation of the static readings.
    void setReadingNoise(double raw) { mReadingNoise = raw; }
    void setErgometerSpeedError(double speed) { mSpeedError = speed; } // 1/min
    void setTorqueError(double torque) { mTorqueError = torque; }      // N m, of the standard
    void setSerialNumber(std::string number) { mSerialNumber = std::move(number); }
    /// Whether stream records arrive together. Echoes and texts of the controller, and the answers
    /// of the ergometer, always come byte by byte.
    void setWholeRecords(bool whole) {
        mRecordArrival = whole ? Arrival::Together : Arrival::ByteByByte;
    }
    void setFaults(const Faults &faults);
    const Faults &faults() const { return mFaults; }

    double setSpeed() const; // 1/min
    double speed() const;    // 1/min, of the shaft
    /// Of the last frame that took effect.
    Direction direction() const { return mDirection; }
    bool motorOn() const { return mMotorOn; } // from a speed frame until the drive is switched off
    bool coupled() const { return mCoupled; }
    LeverArm leverArm() const { return mLeverArm; }
    bool leverMode() const { return mLeverMode; }
    double load() const { return mLoad; } // W, as set on the ergometer
    /// W, the latest one that the ergometer was given over its line.
    std::optional<int> givenLoad() const { return mGivenLoad; }
    double torque() const; // N m, as the standard measures it
    double power() const;  // W, likewise
    std::optional<double> offsetWritten() const { return mOffsetWritten; } // raw
    std::optional<double> factorWritten() const { return mFactorWritten; }
    /// All that came in on either line.
    const std::string &wire() const { return mWire; }
    const std::string &secondWire() const { return mSecondWire; }
    void clearWires();

  private:
    enum class State { Command, Frame, Confirm, Offset, Factor };
    enum class Stream { None, Frequency, Offset, Gain, SixRounds, Dynamic };
    struct Reply {
        std::string bytes;
        double at;
    };
    enum class Source { Reply, Record, Babble };
    /// What is handed to the controller's line next.
    struct Upcoming {
        Source source;
        double at;
        std::size_t size;
        Arrival arrival;
    };

    Upcoming upcoming() const;
    void handle(char byte);
    void command(char byte);
    void argument(char byte);
    void frameEnded();
    void frameConfirmed();
    void reply(std::string bytes, double latency);
    void ergometerLine();
    std::string ergometerAnswer() const;

    void startStream(Stream stream);
    std::string record();
    std::string sixRounds();
    std::size_t recordSize() const;
    double recordAfter(double time) const;
    double rawReading();
    double torqueAt(double speed) const;
    double noise(double deviation);

    Drive mDrive;
    Outgoing mOut{19200};
    Outgoing mSecondOut{4800};
    std::vector<Reply> mReplies; // not yet handed to the line, in the order of their times
    Faults mFaults;
    std::mt19937 mRandom;
    std::mt19937 mBabble; // its own, so that babble changes no measured value
    double mNow = 0;
    std::optional<double> mNextBabble;

    State mState = State::Command;
    std::string mCollected; // frame or argument under way
    int mConfirmations = 0;
    Stream mStream = Stream::None;
    int mRecords = 0; // sent since the stream began
    double mRecordFrom = 0;
    double mNextRecord = 0;
    std::string mErgometerLine;

    Direction mDirection = Direction::Left;
    bool mMotorOn = false;
    bool mCoupled = true;
    LeverArm mLeverArm = LeverArm::None;
    bool mLeverMode = false;
    Arrival mRecordArrival = Arrival::Together;
    double mLeverMoment = 30;
    double mLoad = 0;
    std::optional<int> mGivenLoad;
    double mOffsetDrift = 0.2;
    double mGainDrift = -0.15;
    double mReadingNoise = 0.15;
    double mSpeedError = 0;
    double mTorqueError = 0.02;
    std::string mSerialNumber = "TN-1001";
    std::optional<double> mOffsetWritten;
    std::optional<double> mFactorWritten;
    std::string mWire;
    std::string mSecondWire;
};

} // namespace simulator
