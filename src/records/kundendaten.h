// What is entered about a customer, and its row of the table. No widget.
#pragma once

#include <QString>

#include "session/session.h"
#include "store/recordset.h"

struct Kundendaten {
    QString name;
    QString straße;
    QString plz;
    QString ort;
    Schlüssel kundenID = 0; ///< 0 for one that is not stored yet
};

// Of all customers, in no order
QStringList kundenorte();
QStringList kundennamen(const QString &ort); ///< of all towns without one

/// The names that fit as a whole, `*` for any run of letters and `?` for one.
QStringList kundenSuchen(const QString &muster);

/// The customers of this name, of all towns without one.
Recordset kundenMitName(const QString &name, const QString &ort);
/// The customer on whose row the cursor stands. Raises NoCurrentRecord, and Overflow for a key that
/// the session cannot hold.
Kundendaten kundeAus(const Recordset &row);
/// Raises NoCurrentRecord when there is no such customer.
Kundendaten kundeLesen(Schlüssel kundenID);

/// True when a customer other than this one bears the name, without regard to case.
bool kundennameVergeben(const QString &name, Schlüssel außer);

void kundeEinfügen(const Kundendaten &kunde);
void kundeÄndern(const Kundendaten &kunde);
