// Told to end from outside: an orderly way out like any other.
#pragma once

#include <functional>

namespace platform {

/// From now on SIGTERM, SIGINT and SIGHUP run the handler inside the event loop, the first of them
/// only. Called once a process, with an application in place. False when the system denies it.
bool onEnding(std::function<void()> handler);

} // namespace platform
