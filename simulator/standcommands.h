// The command channel of the stand: one line of text is one command.
#pragma once

#include "stand.h"

#include <functional>
#include <string>
#include <string_view>

namespace simulator {

/// A serial line of the stand, as commands name it.
enum class Line { Controller, Ergometer }; // com1, com4

/// What a command may ask of the program that runs the stand.
struct Host {
    /// Connects or disconnects a line; an empty text, or why it cannot.
    std::function<std::string(Line line, bool connected)> plug;
    std::function<void()> quit;
};

/// Carries the command out and answers it: lines that tell something, if it asks for any, then
/// "ok" or "error: " with the reason. Each line ends in a line feed. A blank line has no answer.
/// The stand must have been brought up to the present time.
std::string runCommand(std::string_view line, Stand &stand, const Host &host);

} // namespace simulator
