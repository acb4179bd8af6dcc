// In which directory the program works: the current one, a named one, or the one that is
// remembered for this person, which is asked for on the first start and filled.
#pragma once

#include <QString>

#include <optional>

struct Aufruf {
    enum class Ort {
        Hier,    ///< in the current directory
        Genannt, ///< in `verzeichnis`
        Gemerkt, ///< in the remembered one
        Frage,   ///< in one that is asked for, and remembered from now on
    };
    Ort ort = Ort::Hier;
    QString verzeichnis = {};
};

/// What the command line wants. Ends the process where it asks for words, or is none.
Aufruf aufrufLesen();

/// Makes the directory the current one and holds it against a second start. Nothing when the
/// program may go on; the exit code when it may not, which was told: 1, or 0 when a person
/// cancelled the question for a directory.
std::optional<int> arbeitsplatzBetreten(const Aufruf &aufruf);

/// Lets the directory go, for the end of the process and of a test.
void arbeitsplatzVerlassen();
