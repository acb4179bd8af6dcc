#include "records/toleranzklasse.h"

#include <algorithm>
#include <iterator>

#include "session/sprache.h"

namespace {

struct Klasse {
    const char *text;
    bool angeboten;
    Toleranzklasse klasse;
};

const Klasse klassen[] = {
    {"medizinische Geräte", true, {true, {0.05, 3, 2}}},
    {"stationäre Trainingsgeräte", true, {true, {0.10, 5, 5}}},
    {"ohne Toleranzen", true, {false, {}}},
    {"Toleranz 3%", true, {true, {0.03, 3, 0}}},
    {"Tolerance 3%", false, {true, {0.03, 3, 0}}},
    {"without Tolerances", false, {false, {}}},
};

} // namespace

std::optional<Toleranzklasse> toleranzklasse(const QString &text) {
    const auto *found =
        std::ranges::find(klassen, text, [](const Klasse &k) { return QString(k.text); });
    if (found == std::end(klassen))
        return std::nullopt;
    Toleranzklasse klasse = found->klasse;
    klasse.grenzen.bezeichnung = text;
    return klasse;
}

const QStringList &toleranzklassen() {
    static const QStringList list = [] {
        QStringList texts;
        for (const Klasse &klasse : klassen) {
            if (klasse.angeboten)
                texts += klasse.text;
        }
        return texts;
    }();
    return list;
}

QString klasseInSprache(const QString &text) {
    static const Text worte[] = {{"medizinische Geräte", "medical devices"},
                                 {"stationäre Trainingsgeräte", "stationary training devices"},
                                 {"ohne Toleranzen", "without Tolerances"},
                                 {"Toleranz 3%", "Tolerance 3%"}};
    for (const Text &wort : worte) {
        if (text == wort.german || text == wort.english)
            return inSprache(wort);
    }
    return text;
}
