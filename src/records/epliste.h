// All final tests, one row a head, with what became of their steps.
#pragma once

#include <QString>

#include <vector>

#include "session/session.h"

struct EPZeile {
    Schlüssel protokollID = 0;
    QString serienNr, prüfdatum, gerätetyp, kunde; ///< as they were typed
    int schritte = 0;                              ///< that have a row
    int inOrdnung = 0;                             ///< of these
    int unbeurteilt = 0;                           ///< of these

    int außerToleranz() const { return schritte - inOrdnung - unbeurteilt; }
};

/// The one entered last comes first. Raises what the store raises.
std::vector<EPZeile> epListe();
