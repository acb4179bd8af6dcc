// What is entered about a unit, and its row of the table. No widget.
#pragma once

#include <optional>

#include "records/angaben.h"
#include "session/session.h"
#include "store/recordset.h"

struct Gerätedaten {
    QString typ;
    QString hersteller;
    QString serienNr;
    QString identNr;
    Schlüssel gerätID = 0; ///< 0 for one that is not stored yet
};

/// Which of the four are missing, in their order, and what to complete. A blank one is missing,
/// unless it was blank before.
Fehlendes fehlendeAngaben(const Gerätedaten &gerät,
                          const std::optional<Gerätedaten> &vorher = std::nullopt);

// Of the units of a customer, in no order
QStringList gerätetypen(Schlüssel kundenID);
QStringList identnummern(Schlüssel kundenID, const QString &typ); ///< of all types without one
Recordset gerätMitIdent(Schlüssel kundenID, const QString &identNr);
Recordset geräteVomTyp(Schlüssel kundenID, const QString &typ);

/// The unit on whose row the cursor stands. Raises NoCurrentRecord, and Overflow for a key that the
/// session cannot hold.
Gerätedaten gerätAus(const Recordset &row);
/// Raises NoCurrentRecord when there is no such unit.
Gerätedaten gerätLesen(Schlüssel gerätID);

bool hatGeräte(Schlüssel kundenID);

/// True when a unit other than this one, of whichever customer, has the number.
bool identnummerVergeben(const QString &identNr, Schlüssel außer);

void gerätEinfügen(Schlüssel kundenID, const Gerätedaten &gerät);
void gerätÄndern(const Gerätedaten &gerät);
