#include "records/grundbestand.h"

#include "store/database.h"

Grundbestand grundbestandLesen() {
    const Recordset row = gDatenbank.open(
        "SELECT EXISTS (SELECT 1 FROM Normalkalibrierdaten), EXISTS (SELECT 1 FROM Kunden), "
        "EXISTS (SELECT 1 FROM Ergometer), EXISTS (SELECT 1 FROM Toleranzen), "
        "EXISTS (SELECT 1 FROM Rezeptnamen)");
    const auto da = [&row](int spalte) { return row.at(0, spalte).toInt() != 0; };
    return {da(0), da(1), da(2), da(3), da(4)};
}
