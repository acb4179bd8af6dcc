// What answers at the far end of a line: the simulated stand, or bytes that a test plays.
#pragma once

#include <QByteArray>

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "standcommands.h"

namespace support {

/// Times are those of the test's clock, in milliseconds.
class FarEnd {
  public:
    virtual ~FarEnd() = default;
    virtual void receive(std::string_view bytes, double now) = 0;
    /// What has arrived by now and was not taken yet.
    virtual std::string take(double now) = 0;
    virtual std::optional<double> nextEvent() const = 0;
};

/// One of the lines of the stand.
class StandEnd final : public FarEnd {
  public:
    StandEnd(simulator::Stand &stand, simulator::Line line) : mStand(stand), mLine(line) {}
    void receive(std::string_view bytes, double now) override {
        first() ? mStand.receive(bytes, now) : mStand.receiveSecond(bytes, now);
    }
    std::string take(double now) override {
        return first() ? mStand.take(now) : mStand.takeSecond(now);
    }
    std::optional<double> nextEvent() const override { return mStand.nextEvent(); }

  private:
    bool first() const { return mLine == simulator::Line::Controller; }

    simulator::Stand &mStand;
    simulator::Line mLine;
};

class ByteScript final : public FarEnd {
  public:
    /// The pieces arrive one by one, the first so many milliseconds from `now`.
    void arrive(double now, const std::vector<QByteArray> &pieces, double milliseconds = 1) {
        for (const QByteArray &piece : pieces)
            mUnderWay.emplace(now += milliseconds, piece.toStdString());
    }
    std::function<void(const QByteArray &)> onWrite;
    QByteArray written;

    void receive(std::string_view bytes, double) override {
        const QByteArray piece(bytes.data(), qsizetype(bytes.size()));
        written += piece;
        if (onWrite)
            onWrite(piece);
    }
    std::string take(double now) override {
        std::string arrived;
        while (!mUnderWay.empty() && mUnderWay.begin()->first <= now)
            arrived += mUnderWay.extract(mUnderWay.begin()).mapped();
        return arrived;
    }
    std::optional<double> nextEvent() const override {
        return mUnderWay.empty() ? std::nullopt : std::optional(mUnderWay.begin()->first);
    }

  private:
    std::multimap<double, std::string> mUnderWay;
};

} // namespace support
