// A person's way through the program, written down in order. The program waits deep inside its own
// loops, so a journey is a coroutine: co_await until(...) lets the program run, and the journey
// goes on, inside whatever pumps then, as soon as the condition holds.
//
// A trap of GCC 12: a temporary with a destructor, a lambda with captures say, that stands inside
// `co_await f(...)` may be destroyed twice. Bind the Until, or the Journey, to a name first.
#pragma once

#include <coroutine>
#include <exception>
#include <functional>
#include <string>
#include <utility>

namespace support {

class TestClock;

class Journey {
  public:
    struct promise_type;
    using Handle = std::coroutine_handle<promise_type>;

    struct promise_type {
        std::exception_ptr problem;
        std::coroutine_handle<> whoWaits;

        Journey get_return_object() { return Journey(Handle::from_promise(*this)); }
        std::suspend_always initial_suspend() noexcept { return {}; }
        auto final_suspend() noexcept {
            struct BackToWhoWaits {
                bool await_ready() noexcept { return false; }
                std::coroutine_handle<> await_suspend(Handle handle) noexcept {
                    const auto next = handle.promise().whoWaits;
                    return next ? next : std::noop_coroutine();
                }
                void await_resume() noexcept {}
            };
            return BackToWhoWaits{};
        }
        void return_void() {}
        void unhandled_exception() { problem = std::current_exception(); }
    };

    explicit Journey(Handle handle) : mHandle(handle) {}
    Journey(Journey &&other) noexcept : mHandle(std::exchange(other.mHandle, {})) {}
    Journey(const Journey &) = delete;
    Journey &operator=(const Journey &) = delete;
    ~Journey() {
        if (mHandle)
            mHandle.destroy();
    }

    Handle handle() const { return mHandle; }

    // A journey within a journey.
    bool await_ready() const noexcept { return false; }
    std::coroutine_handle<> await_suspend(std::coroutine_handle<> whoWaits) noexcept {
        mHandle.promise().whoWaits = whoWaits;
        return mHandle;
    }
    void await_resume() const {
        if (mHandle.promise().problem)
            std::rethrow_exception(mHandle.promise().problem);
    }

  private:
    Handle mHandle;
};

/// Awaited by a journey; raises when the condition does not come true within `milliseconds`.
struct Until {
    std::function<bool()> condition;
    std::string what;
    double milliseconds;
    bool await_ready() const { return condition(); }
    void await_suspend(std::coroutine_handle<> handle) const;
    void await_resume() const;
};

inline Until until(std::string what, std::function<bool()> condition,
                   double milliseconds = 180'000) {
    return {std::move(condition), std::move(what), milliseconds};
}
/// Lets so much time pass.
Until pass(double milliseconds);

/// Runs the journey to its end on the clock; what it raises fails the test. `leave` is called when
/// it has ended and the program still waits somewhere, and makes it leave.
void run(TestClock &clock, Journey journey, const std::function<void()> &leave = {});

} // namespace support
