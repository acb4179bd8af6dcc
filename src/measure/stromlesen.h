// How every stream of the controller is waited for.
#pragma once

#include <cstdint>
#include <functional>

/// Waits on MSComm1 and hands on each byte that comes, while `weiter` is true. That is asked after
/// each wait, before the line is looked at, since whoever ended the stream may have closed it, and
/// after each byte. `daten` is called before the bytes of each read. Pumps events; raises what the
/// line raises.
void stromLesen(
    const std::function<bool()> &weiter, const std::function<void(std::uint8_t)> &byte,
    const std::function<void()> &daten = [] {});
