#include "records/angaben.h"

Fehlendes fehlendeAngaben(const std::vector<Angabe> &angaben) {
    Fehlendes missing;
    for (size_t i = 0; i < angaben.size(); ++i) {
        if (!angaben[i].fehlt)
            continue;
        const platform::Text &words = missing.erste ? angaben[i].weitere : angaben[i].alsErste;
        missing.text.german += words.german;
        missing.text.english += words.english;
        missing.erste = missing.erste.value_or(i);
    }
    return missing;
}
