#include "records/epkopf.h"

#include <QStringList>

#include "records/satz.h"
#include "records/schluessel.h"
#include "store/database.h"

namespace {

/// The columns by name, and their values as parameters.
std::pair<QStringList, Datenbank::Params> zerlegt(const EPKopf &kopf) {
    std::pair<QStringList, Datenbank::Params> teile;
    for (const auto &[spalte, wert] : kopf) {
        teile.first += spalte;
        teile.second.push_back(wert);
    }
    return teile;
}

} // namespace

std::optional<Schlüssel> epMitSeriennummer(const QString &serienNr) {
    const Recordset row = gDatenbank.open("SELECT EP_ID FROM EP WHERE SerienNr = ?", {serienNr});
    if (row.empty() || serienNr.isEmpty())
        return std::nullopt;
    return schlüsselAus(row["EP_ID"]);
}

Schlüssel epEinfügen(const EPKopf &kopf) {
    const auto [spalten, werte] = zerlegt(kopf);
    Schlüssel key = 0;
    gDatenbank.together([&, &namen = spalten, &params = werte] {
        key = schlüsselAus(
            Feld(gDatenbank.insert("INSERT INTO EP (" + namen.join(", ") + ") VALUES (" +
                                       QStringList(namen.size(), "?").join(", ") + ")",
                                   params)));
    });
    return key;
}

void epÄndern(const QString &serienNr, const EPKopf &kopf) {
    auto [spalten, werte] = zerlegt(kopf);
    werte.emplace_back(serienNr);
    satzÄndern("UPDATE EP SET " + spalten.join(" = ?, ") + " = ? WHERE SerienNr = ?", werte);
}

QString letzterEPGerätetyp() {
    const Recordset row =
        gDatenbank.open("SELECT Gerätetyp FROM EP WHERE EP_ID = (SELECT MAX(EP_ID) FROM EP)");
    return row.empty() ? QString() : row["Gerätetyp"].text();
}

void epRezeptBenutzt(Schlüssel neu, Schlüssel alt) {
    gDatenbank.together([&] {
        gDatenbank.execute("UPDATE EP_Rezeptnamen SET LetzterAufruf = -1 WHERE RezeptID = ?",
                           {neu});
        gDatenbank.execute("UPDATE EP_Rezeptnamen SET LetzterAufruf = 0 WHERE RezeptID = ?", {alt});
    });
}
