// A session of measuring that was cut off: by a crash, by the power, by the end of the process.
// Each session sets a mark when its protocol is settled, and its orderly end takes it away.
#pragma once

#include <optional>

#include "session/session.h"

struct Unterbrechung {
    Schlüssel protokollID = 0;
    QString name; ///< of the protocol
    Schlüssel kundenID = 0;
    QString kunde;
    Schlüssel gerätID = 0;
    QString gerätetyp, identNr;
    QString rezept;
    int schritte = 0;        ///< of the recipe, as it is now
    int gemessen = 0;        ///< of these, those that are stored
    QString erster;          ///< the first that is missing; empty when none is
    bool fortsetzbar = true; ///< by the dialog of the protocol number: empty, or the last, of today
};

/// The protocol on which the dialog of the protocol number is to stand, since a person asked for
/// the way back into it; 0 without one, and from the next choice on.
inline Schlüssel gWiederaufnahme = 0;

// A failure of these three is none of the measurement: it is kept in gFehlerText and not raised.

/// Under gProtokollID, with the recipe in force.
void sitzungMerken() noexcept;
/// Also when no session of this protocol is marked.
void sitzungVergessen(Schlüssel protokollID) noexcept;
/// Nothing when its protocol, customer, unit or recipe is not there any more.
std::optional<Unterbrechung> unterbrochen() noexcept;

/// Makes customer, unit and recipe those of the session, and its protocol gWiederaufnahme. Raises
/// as rezeptKopf(); then nothing is chosen.
void wiederaufnehmen(const Unterbrechung &sitzung);
