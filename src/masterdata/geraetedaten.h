// What is entered about a unit, and its row of the table. No widget.
#pragma once

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
Gerätedaten gerätLesen(int gerätID);

/// True when a unit other than this one, of whichever customer, has the number.
bool identnummerVergeben(const QString &identNr, int außer);

void gerätEinfügen(int kundenID, const Gerätedaten &gerät);
void gerätÄndern(int gerätID, const Gerätedaten &gerät);
