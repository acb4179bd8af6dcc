// What is entered about a customer, and its row of the table. No widget.
#pragma once

#include <QString>

#include "session/session.h"

struct Kundendaten {
    QString name;
    QString straße;
    QString plz;
    QString ort;
};

/// Raises NoCurrentRecord when there is no such customer.
Kundendaten kundeLesen(Schlüssel kundenID);

/// True when a customer other than this one bears the name, without regard to case.
bool kundennameVergeben(const QString &name, Schlüssel außer);

void kundeEinfügen(const Kundendaten &kunde);
void kundeÄndern(Schlüssel kundenID, const Kundendaten &kunde);
