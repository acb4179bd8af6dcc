// What is entered about a customer, and its row of the table. No widget.
#pragma once

#include <QString>

struct Kundendaten {
    QString name;
    QString straße;
    QString plz;
    QString ort;
};

/// Raises NoCurrentRecord when there is no such customer.
Kundendaten kundeLesen(int kundenID);

/// True when a customer other than this one bears the name, without regard to case.
bool kundennameVergeben(const QString &name, int außer);

void kundeEinfügen(const Kundendaten &kunde);
void kundeÄndern(int kundenID, const Kundendaten &kunde);
