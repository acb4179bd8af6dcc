// The stream records of the controller, and the measured values in them.
#include "stand.h"

#include <algorithm>
#include <cmath>

namespace simulator {

namespace {

constexpr double FrequencyPeriod = 100; // ms
constexpr double StaticPeriod = 20;     // ms, 175 samples in 3.5 s
constexpr double DynamicPeriod = 50;    // ms

constexpr double Rounds = 6;
constexpr double StandstillPeriod = 6000; // ms between frames of a shaft at rest

constexpr double SettlingRaw = 40;     // by which the first sample after a change of channel is off
constexpr double SettlingSamples = 20; // in which that falls to 1/e
constexpr double SpeedNoise = 0.02;    // 1/min
constexpr double MeanSpeedNoise = 0.005;     // 1/min, over six rounds
constexpr double TorqueNoise = 0.05;         // N m
constexpr double MeanTorqueNoise = 0.005;    // N m, over six rounds
constexpr double SlowestBrakedSpeed = 10;    // 1/min, below it the brake does not hold
constexpr double StrongestBrakeTorque = 200; // N m

/// The nearest value that fits, in `size` bytes.
void append(std::string &record, double value, int size) {
    const double largest = std::ldexp(1, 8 * size) - 1;
    const auto number = static_cast<unsigned>(std::lround(std::clamp(value, 0.0, largest)));
    for (int shift = 8 * (size - 1); shift >= 0; shift -= 8)
        record += static_cast<char>(number >> shift & 0xFF);
}

} // namespace

void Stand::startStream(Stream stream) {
    mStream = stream;
    mRecords = 0;
    mRecordFrom = mNow;
    mNextRecord = recordAfter(mNow);
}

/// The drive keeps its target while a stream runs, so the time of the next record is certain.
double Stand::recordAfter(double time) const {
    switch (mStream) {
    case Stream::Frequency:
        return time + FrequencyPeriod;
    case Stream::Dynamic:
        return time + DynamicPeriod;
    case Stream::SixRounds:
        return mDrive.timeOf(Rounds, time)
            .value_or(std::max(time, mDrive.settledAt()) + StandstillPeriod);
    default:
        return time + StaticPeriod;
    }
}

std::size_t Stand::recordSize() const {
    switch (mStream) {
    case Stream::Frequency:
        return 4;
    case Stream::Dynamic:
        return 6;
    case Stream::SixRounds:
        return mFaults.cutEvery > 0 && (mRecords + 1) % mFaults.cutEvery == 0 ? 5 : 9;
    default:
        return 5;
    }
}

std::string Stand::record() {
    const bool turning = speed() > 0;
    std::string bytes = "\xFF";
    switch (mStream) {
    case Stream::Frequency:
        bytes += '\xFB';
        append(bytes, turning ? (speed() + noise(SpeedNoise)) / 60 * 1000 : 0, 2);
        break;
    case Stream::Dynamic:
        bytes += '\xFE';
        append(bytes, turning ? (speed() + noise(SpeedNoise)) * 10 : 0, 2);
        append(bytes, turning ? (torque() + noise(TorqueNoise)) * 10 : 0, 2);
        break;
    case Stream::SixRounds:
        bytes = sixRounds();
        break;
    default:
        bytes += mStream == Stream::Gain ? '\xFD' : '\xFA';
        append(bytes, rawReading() * 10, 3);
        break;
    }
    bytes.resize(recordSize());
    ++mRecords;
    mRecordFrom = mNextRecord;
    mNextRecord = recordAfter(mNextRecord);
    return bytes;
}

std::string Stand::sixRounds() {
    double meanSpeed = 0;
    double meanTorque = 0;
    if (mDrive.timeOf(Rounds, mRecordFrom)) {
        meanSpeed = Rounds / ((mNextRecord - mRecordFrom) / 60000) + noise(MeanSpeedNoise);
        meanTorque = std::max(0.0, torqueAt(meanSpeed) + noise(MeanTorqueNoise));
    }
    std::string bytes = "\xFF\xFF";
    append(bytes, meanSpeed * 100, 2);
    append(bytes, meanTorque * 100, 2);
    append(bytes, meanTorque * angularVelocity(meanSpeed) * 100, 3);
    return bytes;
}

double Stand::rawReading() {
    double load = RawPerNm * torque();
    if (mLeverArm != LeverArm::None)
        load += RawPerNm * (mLeverArm == LeverArm::Right ? mLeverMoment : -mLeverMoment);
    const double gain = mStream == Stream::Gain ? GainRaw + mGainDrift : 0;
    // In the lever-arm mode the channel stays switched through, there is nothing to settle.
    const double settling = mLeverMode ? 0 : SettlingRaw * std::exp(-mRecords / SettlingSamples);
    return CentreRaw + mOffsetDrift + load + gain - settling + noise(mReadingNoise);
}

double Stand::torqueAt(double speed) const {
    if (!mCoupled || speed < SlowestBrakedSpeed)
        return 0;
    return std::min(mLoad / angularVelocity(speed), StrongestBrakeTorque) + mTorqueError;
}

double Stand::noise(double deviation) {
    return std::normal_distribution<double>(0, deviation)(mRandom);
}

double Stand::power() const {
    return torque() * angularVelocity(speed());
}

} // namespace simulator
