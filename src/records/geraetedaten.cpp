#include "records/geraetedaten.h"

#include "records/satz.h"
#include "store/database.h"

Fehlendes fehlendeAngaben(const Gerätedaten &gerät, const std::optional<Gerätedaten> &vorher) {
    struct Angabe {
        QString Gerätedaten::*wert;
        const char *alsErste;
        const char *weitere;
    };
    static constexpr Angabe angaben[] = {
        {&Gerätedaten::typ, "Typ", ""},
        {&Gerätedaten::hersteller, " Hersteller", ", Hersteller"},
        {&Gerätedaten::serienNr, "Serien-Nr.", ", Serien-Nr."},
        {&Gerätedaten::identNr, " Ident-Nr.", ", Ident-Nr."},
    };
    const auto leer = [](const QString &wert) { return wert.trimmed().isEmpty(); };
    Fehlendes fehlendes{{}, {"Bitte ergänzen Sie ", "Input is incomplete! Please complete!"}};
    for (int i = 0; const Angabe &angabe : angaben) {
        if (leer(gerät.*angabe.wert) && !(vorher && leer((*vorher).*angabe.wert))) {
            fehlendes.text.german += fehlendes.erste ? angabe.weitere : angabe.alsErste;
            fehlendes.erste = fehlendes.erste.value_or(i);
        }
        ++i;
    }
    return fehlendes;
}

Gerätedaten gerätLesen(Schlüssel gerätID) {
    const Recordset row = gDatenbank.open("select * from Ergometer where GerätID = ?", {gerätID});
    return {row[2].text(), row[3].text(), row[4].text(), row[5].text()};
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

void gerätÄndern(Schlüssel gerätID, const Gerätedaten &gerät) {
    satzÄndern("update Ergometer set Gerätetyp = ?, Hersteller = ?, SerienNr = ?, "
               "IdentNr = ? where GerätID = ?",
               {gerät.typ, gerät.hersteller, gerät.serienNr, gerät.identNr, gerätID});
}
