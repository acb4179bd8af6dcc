// The net under all input: what no handler took ends no process.
#pragma once

#include <exception>
#include <functional>

namespace platform {

/// What is done with an exception that no handler of a screen or timer took: normally a box.
/// Without a reporter it goes to the standard error output.
void setUncaughtReporter(std::function<void(const std::exception &)> reporter);
/// Runs `body` and hands what it throws to the reporter, so that no input ends the process.
void guarded(const std::function<void()> &body);

} // namespace platform
