#include "geraetedaten.h"

#include "database.h"

Text fehlendeAngaben(const Gerätedaten &gerät) {
    struct Angabe {
        const QString &wert;
        const char *alsErste;
        const char *weitere;
    };
    const Angabe angaben[] = {
        {gerät.typ, "Typ", ""},
        {gerät.hersteller, " Hersteller", ", Hersteller"},
        {gerät.serienNr, "Serien-Nr.", ", Serien-Nr."},
        {gerät.identNr, " Ident-Nr.", ", Ident-Nr."},
    };
    QString liste;
    for (const Angabe &angabe : angaben) {
        if (angabe.wert.trimmed().isEmpty())
            liste += liste.isEmpty() ? angabe.alsErste : angabe.weitere;
    }
    if (liste.isEmpty())
        return {};
    return {"Bitte ergänzen Sie " + liste, "Input is incomplete! Please complete!"};
}

Gerätedaten gerätLesen(Schlüssel gerätID) {
    const Recordset row = gDatenbank.open("select * from Ergometer where GerätID = ?", {gerätID});
    return {row[2].text(), row[3].text(), row[4].text(), row[5].text()};
}

bool identnummerVergeben(const QString &identNr, Schlüssel außer) {
    return !gDatenbank
                .open("select GerätID from Ergometer where Gleich(IdentNr, ?) and GerätID <> ?",
                      {identNr, außer})
                .empty();
}

void gerätEinfügen(Schlüssel kundenID, const Gerätedaten &gerät) {
    gDatenbank.execute("Insert into Ergometer (KundenID, Gerätetyp, Hersteller, SerienNr, IdentNr) "
                       "values (?, ?, ?, ?, ?)",
                       {kundenID, gerät.typ, gerät.hersteller, gerät.serienNr, gerät.identNr});
}

void gerätÄndern(Schlüssel gerätID, const Gerätedaten &gerät) {
    gDatenbank.execute("update Ergometer set Gerätetyp = ?, Hersteller = ?, SerienNr = ?, "
                       "IdentNr = ? where GerätID = ?",
                       {gerät.typ, gerät.hersteller, gerät.serienNr, gerät.identNr, gerätID});
}
