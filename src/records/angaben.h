// What is missing of an entry, as words for a sentence.
#pragma once

#include <optional>
#include <vector>

#include "platform/text.h"

struct Angabe {
    bool fehlt;
    platform::Text alsErste; ///< its words when nothing before it is missing
    platform::Text weitere;  ///< and behind another one
};

struct Fehlendes {
    std::optional<size_t> erste; ///< the first that is missing, from 0
    platform::Text text;         ///< the words of all
};
Fehlendes fehlendeAngaben(const std::vector<Angabe> &angaben);
