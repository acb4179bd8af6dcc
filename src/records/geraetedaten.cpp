#include "records/geraetedaten.h"

#include "records/satz.h"
#include "records/schluessel.h"
#include "records/spalte.h"
#include "store/database.h"

Fehlendes fehlendeAngaben(const Gerätedaten &gerät, const std::optional<Gerätedaten> &vorher) {
    const auto fehlt = [&](QString Gerätedaten::*wert) {
        const auto leer = [wert](const Gerätedaten &g) { return (g.*wert).trimmed().isEmpty(); };
        return leer(gerät) && !(vorher && leer(*vorher));
    };
    Fehlendes fehlendes = fehlendeAngaben({
        {fehlt(&Gerätedaten::typ), {"Typ", {}}, {}},
        {fehlt(&Gerätedaten::hersteller), {" Hersteller", {}}, {", Hersteller", {}}},
        {fehlt(&Gerätedaten::serienNr), {"Serien-Nr.", {}}, {", Serien-Nr.", {}}},
        {fehlt(&Gerätedaten::identNr), {" Ident-Nr.", {}}, {", Ident-Nr.", {}}},
    });
    fehlendes.text = {"Bitte ergänzen Sie " + fehlendes.text.german,
                      "Input is incomplete! Please complete!"};
    return fehlendes;
}

QStringList gerätetypen(Schlüssel kundenID) {
    return spalte(
        gDatenbank.open("select distinct Gerätetyp from Ergometer where KundenID = ?", {kundenID}));
}

QStringList identnummern(Schlüssel kundenID, const QString &typ) {
    const QString all = "select IdentNr from Ergometer where KundenID = ?";
    return spalte(typ.isEmpty() ? gDatenbank.open(all, {kundenID})
                                : gDatenbank.open(all + " and Gerätetyp = ?", {kundenID, typ}));
}

Recordset gerätMitIdent(Schlüssel kundenID, const QString &identNr) {
    return gDatenbank.open("select * from Ergometer where KundenID = ? and IdentNr = ?",
                           {kundenID, identNr});
}

Recordset geräteVomTyp(Schlüssel kundenID, const QString &typ) {
    return gDatenbank.open("select * from Ergometer where KundenID = ? and Gerätetyp = ?",
                           {kundenID, typ});
}

Gerätedaten gerätAus(const Recordset &row) {
    return {row["Gerätetyp"].text(), row["Hersteller"].text(), row["SerienNr"].text(),
            row["IdentNr"].text(), schlüsselAus(row["GerätID"])};
}

Gerätedaten gerätLesen(Schlüssel gerätID) {
    return gerätAus(gDatenbank.open("select * from Ergometer where GerätID = ?", {gerätID}));
}

bool hatGeräte(Schlüssel kundenID) {
    return !gDatenbank.open("SELECT 1 FROM Ergometer WHERE KundenID = ? LIMIT 1", {kundenID})
                .empty();
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

void gerätÄndern(const Gerätedaten &gerät) {
    satzÄndern("update Ergometer set Gerätetyp = ?, Hersteller = ?, SerienNr = ?, "
               "IdentNr = ? where GerätID = ?",
               {gerät.typ, gerät.hersteller, gerät.serienNr, gerät.identNr, gerät.gerätID});
}
