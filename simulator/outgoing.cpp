#include "outgoing.h"

#include <algorithm>

namespace simulator {

double Outgoing::firstDue(std::size_t count, double at, Arrival arrival) const {
    const double bytes = arrival == Arrival::Together ? static_cast<double>(count) : 1;
    return std::max(at, mFreeAt.value_or(at)) + mByteTime * bytes;
}

void Outgoing::put(std::string_view bytes, double at, Arrival arrival) {
    if (bytes.empty())
        return;
    double due = firstDue(bytes.size(), at, arrival);
    for (const char byte : bytes) {
        mBytes.push_back({byte, due});
        mFreeAt = due;
        if (arrival == Arrival::ByteByByte)
            due += mByteTime;
    }
}

std::string Outgoing::take(double now) {
    std::string arrived;
    while (!mBytes.empty() && mBytes.front().due <= now) {
        arrived += mBytes.front().value;
        mBytes.pop_front();
    }
    return arrived;
}

std::optional<double> Outgoing::due() const {
    if (mBytes.empty())
        return std::nullopt;
    return mBytes.front().due;
}

} // namespace simulator
