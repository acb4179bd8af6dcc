// A text in the two languages of the program. Which one is shown is the session's business.
#pragma once

#include <QString>

namespace platform {

struct Text {
    QString german;
    QString english;
};

} // namespace platform
