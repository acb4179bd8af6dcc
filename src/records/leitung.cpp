#include "records/leitung.h"

#include "store/database.h"

Leitungseinstellung leitungLesen(const QString &tabelle) {
    const Recordset row = gDatenbank.open("SELECT PortNr, Parameter FROM " + tabelle);
    return {row[0].whole(), row[1].text()};
}

void leitungSpeichern(const QString &tabelle, const Leitungseinstellung &einstellung) {
    gDatenbank.execute("UPDATE " + tabelle + " SET PortNr = ?, Parameter = ?",
                       {einstellung.port, einstellung.parameter});
}
