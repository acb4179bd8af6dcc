// Everything in which one editor of steps differs from another.
#pragma once

#include <vector>

#include "controls/schrittgitter.h"
#include "masterdata/pruefschritt.h"
#include "platform/text.h"
#include "records/angaben.h"
#include "records/schrittliste.h"
#include "session/session.h"

/// What is told about the value of a field.
struct Wertmeldungen {
    platform::Text keineZahl, außerhalb, titel;
};

struct Rezeptart {
    Schrittliste schritte;
    Schlüssel &rezeptID; ///< of the recipe at hand
    bool typ;            ///< a person picks how a step is judged; otherwise by its speed
    /// Steps are entered one after the other and stand in the list in their order: a value that is
    /// refused is emptied, points that part thousands are taken out. Otherwise a working copy is
    /// changed: only what differs is checked, and set back when it is refused.
    bool neu;
    Schrittgrenzen grenzen;
    std::vector<Schrittgitter::Spalte> spalten; ///< of the grid

    int wertsymbol, fehltsymbol; ///< of the boxes about values, and about what is missing
    Wertmeldungen drehzahl, leistung;
    platform::Text unvollständig; ///< what is missing stands in the place of %1
    /// Of a step, and of the words in the box of its type.
    std::vector<Angabe> (*angaben)(const Schritt &schritt, const QString &typ);
    platform::Text drehmoment; ///< it is beyond the limit

    struct Kennungen {
        const char *prüfen, *drehmoment, *vorhanden, *anlegen, *ändern;
    };
    Kennungen kennung; ///< of the failure boxes

    /// Further columns: how often a step is measured; the box has an exclamation mark.
    Wertmeldungen anzahl = {};
};

extern const Rezeptart neuesRezept, geändertesRezept;
