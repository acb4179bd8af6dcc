#include "records/kundendaten.h"

#include "records/satz.h"
#include "records/schluessel.h"
#include "records/spalte.h"
#include "store/database.h"

QStringList kundenorte() {
    return spalte(gDatenbank.open("select distinct Ort from Kunden"));
}

QStringList kundennamen(const QString &ort) {
    return spalte(ort.isEmpty() ? gDatenbank.open("select Name from Kunden")
                                : gDatenbank.open("select Name from Kunden where Ort = ?", {ort}));
}

QStringList kundenSuchen(const QString &muster) {
    return spalte(gDatenbank.open("select Name from Kunden where Muster(?, trim(Name))", {muster}));
}

Recordset kundenMitName(const QString &name, const QString &ort) {
    return ort.isEmpty()
               ? gDatenbank.open("select * from Kunden where Name = ?", {name})
               : gDatenbank.open("select * from Kunden where Name = ? and Ort = ?", {name, ort});
}

Kundendaten kundeAus(const Recordset &row) {
    return {row["Name"].text(), row["Straße"].text(), row["PLZ"].text(), row["Ort"].text(),
            schlüsselAus(row["KundenID"])};
}

Kundendaten kundeLesen(Schlüssel kundenID) {
    return kundeAus(gDatenbank.open("select * from Kunden where KundenID = ?", {kundenID}));
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

void kundeÄndern(const Kundendaten &kunde) {
    satzÄndern("update Kunden set Name = ?, Straße = ?, PLZ = ?, Ort = ? where KundenID = ?",
               {kunde.name, kunde.straße, kunde.plz, kunde.ort, kunde.kundenID});
}
