// What is entered about a unit, and its row of the table. No widget.
#pragma once

#include "session.h"
#include "text.h"

struct Gerätedaten {
    QString typ;
    QString hersteller;
    QString serienNr;
    QString identNr;
};

/// What to complete, in words; empty when all four are there. A blank one is missing.
platform::Text fehlendeAngaben(const Gerätedaten &gerät);

/// Raises NoCurrentRecord when there is no such unit.
Gerätedaten gerätLesen(Schlüssel gerätID);

/// True when a unit other than this one, of whichever customer, has the number.
bool identnummerVergeben(const QString &identNr, Schlüssel außer);

void gerätEinfügen(Schlüssel kundenID, const Gerätedaten &gerät);
void gerätÄndern(Schlüssel gerätID, const Gerätedaten &gerät);
