// The decoders of the controller line, on streams as the controller sends them.
#include <benchmark/benchmark.h>

#include <chrono>
#include <random>
#include <vector>

#include "counting.h"
#include "figures.h"
#include "link/frames.h"
#include "measure/dynamik.h"
#include "measure/sechsrunden.h"
#include "measure/statik.h"

namespace {

constexpr int framesInStream = 4096;
constexpr double framesPerSecond = 1e6;

using Bytes = std::vector<std::uint8_t>;

/// Frames of this head and `values` random bytes, none of which is the sync byte.
Bytes frames(const Bytes &head, int values) {
    std::mt19937 random(1);
    std::uniform_int_distribution<> byte(0, 0xFE);
    Bytes stream;
    for (int frame = 0; frame < framesInStream; ++frame) {
        stream.insert(stream.end(), head.begin(), head.end());
        for (int i = 0; i < values; ++i)
            stream.push_back(static_cast<std::uint8_t>(byte(random)));
    }
    return stream;
}

/// `feed` answers how many values the byte completed.
template <class Feed>
void decode(benchmark::State &state, const char *name, const Bytes &stream, Feed feed,
            double wanted = framesPerSecond) {
    long completed = 0;
    const long before = bench::allocations();
    const auto from = std::chrono::steady_clock::now();
    for (auto _ : state) {
        for (const std::uint8_t byte : stream)
            completed += feed(byte);
        benchmark::DoNotOptimize(completed);
    }
    const std::chrono::duration<double> took = std::chrono::steady_clock::now() - from;
    const auto total = static_cast<double>(state.iterations()) * framesInStream;
    const double allocated = static_cast<double>(bench::allocations() - before) / total;
    state.SetItemsProcessed(state.iterations() * framesInStream);
    state.counters["allocations_per_frame"] = allocated;
    state.counters["values_per_frame"] = static_cast<double>(completed) / total;
    if (completed == 0)
        state.SkipWithError("nothing was decoded");
    if (before == 0) // the streams alone took some
        state.SkipWithError("allocations are not counted");
    using bench::Wanted;
    bench::figure(std::string(name) + ", frames a second", total / took.count(), "1/s",
                  Wanted::AtLeast, wanted);
    bench::figure(std::string(name) + ", allocations a frame", allocated, "", Wanted::Below, 1e-6);
}

void frequenzDecoder(benchmark::State &state) {
    FrequenzDecoder decoder;
    int sum = 0;
    decode(state, "FrequenzDecoder", frames({0xFF, 0xFB}, 2), [&](std::uint8_t byte) {
        if (!decoder.feed(byte))
            return 0;
        sum += decoder.value();
        benchmark::DoNotOptimize(sum);
        decoder = {}; // a low value ends a reading
        return 1;
    });
}
BENCHMARK(frequenzDecoder)->Name("Decoder/Frequenz");

void statikDecoder(benchmark::State &state) {
    StatikDecoder decoder(codeOffset);
    double sum = 0;
    decode(state, "StatikDecoder", frames({0xFF, codeOffset}, 3), [&](std::uint8_t byte) {
        if (!decoder.feed(byte))
            return 0;
        sum += decoder.value();
        benchmark::DoNotOptimize(sum);
        return 1;
    });
}
BENCHMARK(statikDecoder)->Name("Decoder/Statik");

void sechsRundenDecoder(benchmark::State &state) {
    SechsRundenDecoder decoder;
    double sum = 0;
    decode(state, "SechsRundenDecoder", frames({0xFF, 0xFF}, 7), [&](std::uint8_t byte) {
        const auto event = decoder.feed(byte);
        if (event < SechsRundenDecoder::Ereignis::Drehzahl)
            return 0;
        sum += decoder.value();
        benchmark::DoNotOptimize(sum);
        return 1;
    });
}
BENCHMARK(sechsRundenDecoder)->Name("Decoder/SechsRunden");

void dynamikDecoder(benchmark::State &state) {
    DynamikDecoder decoder;
    double sum = 0;
    decode(
        state, "DynamikDecoder", frames({0xFF, 0xFE}, 4),
        [&](std::uint8_t byte) {
            if (!decoder.feed(byte))
                return 0;
            sum += decoder.drehzahl() + decoder.leistung();
            benchmark::DoNotOptimize(sum);
            return 1;
        },
        5 * framesPerSecond);
}
BENCHMARK(dynamikDecoder)->Name("Decoder/Dynamik");

} // namespace
