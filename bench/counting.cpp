// The functions here take the place of the system's: the linker finds these first.
#include "counting.h"

#include <atomic>
#include <chrono>
#include <cstdlib>
#include <new>

#include <sys/syscall.h>
#include <unistd.h>

namespace {

std::atomic<long> allocationCount = 0;
std::atomic<long> syncCount = 0;
std::atomic<long long> syncNanoseconds = 0;

void *allocate(std::size_t size) {
    allocationCount.fetch_add(1, std::memory_order_relaxed);
    return std::malloc(size == 0 ? 1 : size);
}

void *allocateAligned(std::size_t size, std::align_val_t alignment) {
    allocationCount.fetch_add(1, std::memory_order_relaxed);
    const auto step = static_cast<std::size_t>(alignment);
    return std::aligned_alloc(step, (size + step - 1) / step * step);
}

void *orThrow(void *memory) {
    if (!memory)
        throw std::bad_alloc();
    return memory;
}

int timedSync(long call, int descriptor) {
    using Clock = std::chrono::steady_clock;
    const auto from = Clock::now();
    const long result = ::syscall(call, descriptor);
    syncNanoseconds += std::chrono::nanoseconds(Clock::now() - from).count();
    ++syncCount;
    return static_cast<int>(result);
}

} // namespace

void *operator new(std::size_t size) {
    return orThrow(allocate(size));
}
void *operator new[](std::size_t size) {
    return orThrow(allocate(size));
}
void *operator new(std::size_t size, const std::nothrow_t &) noexcept {
    return allocate(size);
}
void *operator new[](std::size_t size, const std::nothrow_t &) noexcept {
    return allocate(size);
}
void *operator new(std::size_t size, std::align_val_t alignment) {
    return orThrow(allocateAligned(size, alignment));
}
void *operator new[](std::size_t size, std::align_val_t alignment) {
    return orThrow(allocateAligned(size, alignment));
}
void operator delete(void *memory) noexcept {
    std::free(memory);
}
void operator delete[](void *memory) noexcept {
    std::free(memory);
}
void operator delete(void *memory, std::size_t) noexcept {
    std::free(memory);
}
void operator delete[](void *memory, std::size_t) noexcept {
    std::free(memory);
}
void operator delete(void *memory, std::align_val_t) noexcept {
    std::free(memory);
}
void operator delete[](void *memory, std::align_val_t) noexcept {
    std::free(memory);
}
void operator delete(void *memory, std::size_t, std::align_val_t) noexcept {
    std::free(memory);
}
void operator delete[](void *memory, std::size_t, std::align_val_t) noexcept {
    std::free(memory);
}

extern "C" int fsync(int descriptor) {
    return timedSync(SYS_fsync, descriptor);
}
extern "C" int fdatasync(int descriptor) {
    return timedSync(SYS_fdatasync, descriptor);
}

namespace bench {

long allocations() {
    return allocationCount;
}

Syncs syncs() {
    return {syncCount, static_cast<double>(syncNanoseconds) / 1e9};
}

} // namespace bench
