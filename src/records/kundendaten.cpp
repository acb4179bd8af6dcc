#include "records/kundendaten.h"

#include "records/satz.h"
#include "store/database.h"

Kundendaten kundeLesen(Schlüssel kundenID) {
    const Recordset row = gDatenbank.open("select * from Kunden where KundenID = ?", {kundenID});
    return {row[1].text(), row[2].text(), row[3].text(), row[4].text()};
}

bool kundennameVergeben(const QString &name, Schlüssel außer) {
    return !gDatenbank
                .open("select KundenID from Kunden where Gleich(Name, ?) and KundenID <> ?",
                      {name, außer})
                .empty();
}

void kundeEinfügen(const Kundendaten &kunde) {
    gDatenbank.execute("Insert into Kunden (Name, Straße, Ort, PLZ) values (?, ?, ?, ?)",
                       {kunde.name, kunde.straße, kunde.ort, kunde.plz});
}

void kundeÄndern(Schlüssel kundenID, const Kundendaten &kunde) {
    satzÄndern("update Kunden set Name = ?, Straße = ?, PLZ = ?, Ort = ? where KundenID = ?",
               {kunde.name, kunde.straße, kunde.plz, kunde.ort, kundenID});
}
