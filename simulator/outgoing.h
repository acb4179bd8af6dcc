// Bytes on their way to the workstation, each with the time of its arrival.
#pragma once

#include <cstddef>
#include <deque>
#include <optional>
#include <string>
#include <string_view>

namespace simulator {

/// How bytes reach the workstation: each by itself, or all together once the last one is through,
/// as the receive buffer of a serial card hands over a burst.
enum class Arrival { ByteByByte, Together };

class Outgoing {
  public:
    /// Ten bits make a byte on the wire.
    explicit Outgoing(double baud) : mByteTime(10000 / baud) {}

    /// Queues bytes that are handed to the line at `at`; they wait for what is still under way.
    void put(std::string_view bytes, double at, Arrival arrival);
    /// The bytes that have arrived by `now`, and removes them.
    std::string take(double now);
    /// When the next one arrives.
    std::optional<double> due() const;
    /// When the first of `count` bytes would arrive if they were put at `at`.
    double firstDue(std::size_t count, double at, Arrival arrival) const;

  private:
    struct Byte {
        char value;
        double due;
    };

    std::deque<Byte> mBytes;
    double mByteTime; // ms
    std::optional<double> mFreeAt;
};

} // namespace simulator
