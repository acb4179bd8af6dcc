// What is entered about a unit, and its row of the table. No widget.
#pragma once

#include <optional>

#include "platform/text.h"
#include "session/session.h"

struct Gerätedaten {
    QString typ;
    QString hersteller;
    QString serienNr;
    QString identNr;
};

struct Fehlendes {
    std::optional<int> erste; ///< the first of the four that is missing, from 0
    platform::Text text;      ///< what to complete, in words
};
/// A blank one is missing, unless it was blank before.
Fehlendes fehlendeAngaben(const Gerätedaten &gerät,
                          const std::optional<Gerätedaten> &vorher = std::nullopt);

/// Raises NoCurrentRecord when there is no such unit.
Gerätedaten gerätLesen(Schlüssel gerätID);

bool hatGeräte(Schlüssel kundenID);

/// True when a unit other than this one, of whichever customer, has the number.
bool identnummerVergeben(const QString &identNr, Schlüssel außer);

void gerätEinfügen(Schlüssel kundenID, const Gerätedaten &gerät);
void gerätÄndern(Schlüssel gerätID, const Gerätedaten &gerät);
