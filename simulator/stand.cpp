#include "stand.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <limits>

namespace simulator {

namespace {

constexpr double Never = std::numeric_limits<double>::infinity();
constexpr double EchoLatency = 5;        // ms
constexpr double AnswerLatency = 5;      // ms
constexpr double ResetTime = 1000;       // ms
constexpr double BabbleGap = 3;          // ms
constexpr double DigitsPerRpm = 35;      // of the set speed in a frame
constexpr std::size_t LongestFrame = 16; // anything longer is a frame whose end got lost
constexpr std::size_t LongestLine = 32;
constexpr char LeverModeByte = 7;
constexpr char NormalModeByte = 1;

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

/// A number of digits only, at most `limit`; none when the text is anything else.
std::optional<int> digits(std::string_view text, int limit) {
    if (text.empty() || !std::all_of(text.begin(), text.end(), isDigit))
        return std::nullopt;
    int value = limit;
    const auto read = std::from_chars(text.data(), text.data() + text.size(), value);
    return read.ec == std::errc() ? std::min(value, limit) : limit;
}

unsigned bigEndian(std::string_view bytes) {
    unsigned value = 0;
    for (const char byte : bytes)
        value = value << 8 | static_cast<unsigned char>(byte);
    return value;
}

} // namespace

Stand::Stand(unsigned seed) : mRandom(seed), mBabble(seed) {}

void Stand::receive(std::string_view bytes, double now) {
    advance(now);
    mWire += bytes;
    for (const char byte : bytes)
        handle(byte);
}

void Stand::receiveSecond(std::string_view bytes, double now) {
    advance(now);
    mSecondWire += bytes;
    for (const char byte : bytes) {
        if (byte == '\r') {
            ergometerLine();
            mErgometerLine.clear();
        } else if (mErgometerLine.size() < LongestLine) {
            mErgometerLine += byte;
        }
    }
}

void Stand::advance(double now) {
    for (;;) {
        const Upcoming next = upcoming();
        if (next.at > now || next.at == Never)
            break;
        mNow = std::max(mNow, next.at);
        std::string bytes;
        switch (next.source) {
        case Source::Reply:
            bytes = std::move(mReplies.front().bytes);
            mReplies.erase(mReplies.begin());
            break;
        case Source::Record:
            bytes = record();
            break;
        case Source::Babble:
            bytes = static_cast<char>(mBabble() & 0xFF);
            mNextBabble = next.at + BabbleGap;
            break;
        }
        if (!mFaults.silent)
            mOut.put(bytes, next.at, next.arrival);
    }
    mNow = std::max(mNow, now);
}

Stand::Upcoming Stand::upcoming() const {
    Upcoming next{Source::Babble, mNextBabble.value_or(Never), 1, Arrival::ByteByByte};
    if (mStream != Stream::None && mNextRecord <= next.at)
        next = {Source::Record, mNextRecord, recordSize(), mRecordArrival};
    if (!mReplies.empty() && mReplies.front().at <= next.at)
        next = {Source::Reply, mReplies.front().at, mReplies.front().bytes.size(),
                Arrival::ByteByByte};
    return next;
}

std::string Stand::take(double now) {
    advance(now);
    return mOut.take(now);
}

std::string Stand::takeSecond(double now) {
    advance(now);
    return mSecondOut.take(now);
}

std::optional<double> Stand::nextEvent() const {
    const Upcoming first = upcoming();
    double next = mSecondOut.due().value_or(Never);
    if (const auto due = mOut.due())
        next = std::min(next, *due);
    else if (!mFaults.silent && first.at != Never)
        next = std::min(next, mOut.firstDue(first.size, first.at, first.arrival));
    return next == Never ? std::nullopt : std::optional(next);
}

void Stand::handle(char byte) {
    if (mStream != Stream::None) {
        if (byte == '-')
            mStream = Stream::None;
        return;
    }
    switch (mState) {
    case State::Command:
        command(byte);
        break;
    case State::Frame:
        // "-" is the sign in here. A second "*" means that the end of the first frame got lost.
        if (byte == '*')
            mCollected.clear();
        else if (byte == '+')
            frameEnded();
        else if (mCollected.size() < LongestFrame)
            mCollected += byte;
        else
            mState = State::Command;
        break;
    case State::Confirm:
        if (byte != '>') {
            mState = State::Command;
            command(byte);
        } else if (++mConfirmations == 3) {
            mState = State::Command;
            frameConfirmed();
        }
        break;
    case State::Offset:
    case State::Factor:
        argument(byte);
        break;
    }
}

void Stand::command(char byte) {
    mCollected.clear();
    switch (byte) {
    case '*':
        mState = State::Frame;
        break;
    case 'p':
        mState = State::Offset;
        break;
    case 'w':
        mState = State::Factor;
        break;
    case 'g':
        startStream(Stream::Frequency);
        break;
    case 'f':
        startStream(Stream::Offset);
        break;
    case 't':
        startStream(Stream::Gain);
        break;
    case '6':
        startStream(Stream::SixRounds);
        break;
    case 'c':
        startStream(Stream::Dynamic);
        break;
    case '#':
        reply(std::string(1, mLeverMode && !mFaults.wrongMode ? LeverModeByte : NormalModeByte),
              AnswerLatency);
        break;
    case 'r':
        reply("Ok1", ResetTime);
        break;
    case 'N':
        reply(mSerialNumber, AnswerLatency);
        break;
    default:
        break;
    }
}

void Stand::argument(char byte) {
    mCollected += byte;
    if (mState == State::Offset && mCollected.size() == 3) {
        mOffsetWritten = bigEndian(mCollected) / 10.0;
        mState = State::Command;
    } else if (mState == State::Factor && mCollected.size() == 2) {
        mFactorWritten = bigEndian(mCollected) / 10000.0;
        mState = State::Command;
    }
}

void Stand::frameEnded() {
    if (mFaults.deafFrames > 0) {
        --mFaults.deafFrames;
        mState = State::Command;
        return;
    }
    mState = State::Confirm;
    mConfirmations = 0;
    std::string echo = mCollected;
    if (mFaults.lostBytes > 0 && !echo.empty())
        echo.erase(1, static_cast<std::size_t>(mFaults.lostBytes));
    if (mFaults.extraBytes > 0)
        echo.insert(0, static_cast<std::size_t>(mFaults.extraBytes), '\x55');
    reply(std::move(echo), EchoLatency + mFaults.echoDelay);
}

void Stand::frameConfirmed() {
    if (mCollected.size() < 3)
        return;
    const std::string_view frame = mCollected;
    const auto value = digits(frame.substr(2), 99999);
    if (!value || (frame[0] != 'E' && frame[0] != 'A') || (frame[1] != '-' && frame[1] != ' '))
        return;
    mMotorOn = frame[0] == 'E';
    mDirection = frame[1] == '-' ? Direction::Right : Direction::Left;
    const double speed = mMotorOn ? std::min(*value / DigitsPerRpm, MaxSpeed) : 0;
    mDrive.setTarget(mDirection == Direction::Right ? speed : -speed, mNow);
}

void Stand::reply(std::string bytes, double latency) {
    if (bytes.empty())
        return;
    const double at = mNow + latency;
    const auto later = std::find_if(mReplies.begin(), mReplies.end(),
                                    [at](const Reply &other) { return other.at > at; });
    mReplies.insert(later, {std::move(bytes), at});
}

void Stand::ergometerLine() {
    const std::string_view line = mErgometerLine;
    if (line == "D" && !mFaults.silentErgometer) {
        mSecondOut.put(ergometerAnswer(), mNow + AnswerLatency + mFaults.answerDelay,
                       Arrival::ByteByByte);
    } else if (line.size() == 4 && line[0] == 'W') {
        if (const auto watts = digits(line.substr(1), 999)) {
            mLoad = *watts;
            mGivenLoad = *watts;
        }
    }
}

/// "n", three digits of the speed in 1/min, end of line.
std::string Stand::ergometerAnswer() const {
    const double shown = mCoupled ? speed() + mSpeedError : 0;
    char answer[8];
    std::snprintf(answer, sizeof answer, "n%03d\r",
                  static_cast<int>(std::lround(std::clamp(shown, 0.0, 999.0))));
    std::string bytes = answer;
    if (mFaults.wrongAnswer)
        bytes[0] = 'x';
    if (mFaults.letterAnswer)
        bytes.replace(1, 3, "abc");
    if (mFaults.answerLength > 0)
        bytes.resize(std::min(bytes.size(), static_cast<std::size_t>(mFaults.answerLength)));
    return bytes;
}

void Stand::setLoad(double watts) {
    mLoad = std::clamp(watts, 0.0, 999.0);
}

void Stand::setFaults(const Faults &faults) {
    mFaults = faults;
    if (!faults.babble)
        mNextBabble.reset();
    else if (!mNextBabble)
        mNextBabble = mNow + BabbleGap;
}

void Stand::clearWires() {
    mWire.clear();
    mSecondWire.clear();
}

double Stand::setSpeed() const {
    return std::abs(mDrive.target());
}
double Stand::speed() const {
    return std::abs(mDrive.speedAt(mNow));
}
double Stand::torque() const {
    return torqueAt(speed());
}

} // namespace simulator
