#include "records/blatt.h"

#include <algorithm>

#include "store/database.h"

namespace {

struct Form {
    QStringList gemeinsam; ///< columns that all rows share, the standard's first
    QStringList jeStufe;   ///< columns of a row's own
    int stufen;            ///< rows
};

const Form &form(Inhalt blatt) {
    static const Form blutdruck{
        {"NormalNr_BD", "KennNr_BD", "kalibriertVon_BD", "kalibriertBis_BD", "kalScheinNr_BD"},
        {"auf", "ab", "MU"},
        static_cast<int>(druckstufen.size())};
    static const Form sicherheit{{"NormalNr_STK", "KennNr_STK", "kalibriertVon_STK",
                                  "kalibriertBis_STK", "KalScheinNr_STK", "Messverfahren_STK",
                                  "SchutzleiterR", "IsolationsR", "GeräteableitI",
                                  "SchutzleiterR_GW", "IsolationsR_GW", "GeräteableitI_GW",
                                  "SchutzleiterR_MU", "IsolationsR_MU", "GeräteableitI_MU"},
                                 {},
                                 1};
    return blatt == Inhalt::Blutdruck ? blutdruck : sicherheit;
}

QString sortiert(Inhalt blatt) {
    return blatt == Inhalt::Blutdruck ? " ORDER BY Normalanzeige" : "";
}

/// Of the current row; below 0 for a pressure that is none of ours.
int stufeAus(Inhalt blatt, const Recordset &zeilen) {
    if (blatt != Inhalt::Blutdruck)
        return 0;
    const auto *stufe =
        std::find(druckstufen.begin(), druckstufen.end(), zeilen["Normalanzeige"].whole());
    return stufe == druckstufen.end() ? -1 : static_cast<int>(stufe - druckstufen.begin());
}

void übernehmen(Blatt &werte, const Recordset &zeile, int stufe, const QStringList &spalten) {
    for (const QString &spalte : spalten) {
        if (!zeile[spalte].isNull())
            werte[{stufe, spalte}] = zeile[spalte].text();
    }
}

[[noreturn]] void kopfFehlt() {
    throw Fehler(platform::fehlernummer::NoCurrentRecord,
                 {"Das Protokoll gibt es nicht mehr.", "The protocol does not exist any more."});
}

/// Over the row, or a new one.
void zeileSchreiben(Inhalt blatt, Schlüssel protokollID, int stufe, const Blatt &werte) {
    const Form &spalten = form(blatt);
    QStringList namen;
    Datenbank::Params params;
    const auto nehmen = [&](const QStringList &alle, int von) {
        for (const QString &spalte : alle) {
            const auto wert = werte.find({von, spalte});
            namen += spalte;
            params.emplace_back(wert == werte.end() ? QString("") : wert->second);
        }
    };
    nehmen(spalten.jeStufe, stufe);
    nehmen(spalten.gemeinsam, 0);
    QStringList schlüssel{"ProtokollID"};
    params.emplace_back(protokollID);
    if (blatt == Inhalt::Blutdruck) {
        schlüssel += "Normalanzeige";
        params.emplace_back(druckstufen[static_cast<size_t>(stufe)]);
    }
    const QString tabellenname = tabelle(Bestand::Arbeit, blatt);
    if (gDatenbank.execute("UPDATE " + tabellenname + " SET " + namen.join(" = ?, ") +
                               " = ? WHERE " + schlüssel.join(" = ? AND ") + " = ?",
                           params) > 0)
        return;
    namen += schlüssel;
    gDatenbank.execute("INSERT INTO " + tabellenname + " (" + namen.join(", ") + ") VALUES (" +
                           QStringList(namen.size(), "?").join(", ") + ")",
                       params);
}

Schlüssel neuestes(Bestand bestand, Inhalt blatt) {
    return gDatenbank.open("SELECT MAX(ProtokollID) FROM " + tabelle(bestand, blatt))[0].whole();
}

} // namespace

bool istMesswert(const QString &spalte) {
    static const QStringList gemessen{"auf", "ab", "SchutzleiterR", "IsolationsR", "GeräteableitI"};
    return gemessen.contains(spalte);
}

QStringList normalspalten(Inhalt blatt) {
    return form(blatt).gemeinsam.first(5);
}

Blatt blattLesen(Bestand bestand, Inhalt blatt, Schlüssel protokollID) {
    Recordset zeilen = gDatenbank.open("SELECT * FROM " + tabelle(bestand, blatt) +
                                           " WHERE ProtokollID = ?" + sortiert(blatt),
                                       {protokollID});
    Blatt werte;
    if (!zeilen.empty())
        übernehmen(werte, zeilen, 0, form(blatt).gemeinsam);
    for (; !zeilen.atEnd(); zeilen.moveNext()) {
        if (const int stufe = stufeAus(blatt, zeilen); stufe >= 0)
            übernehmen(werte, zeilen, stufe, form(blatt).jeStufe);
    }
    return werte;
}

Blatt vorschlagLesen(Inhalt blatt, Schlüssel nächste) {
    const Schlüssel offen = neuestes(Bestand::Arbeit, blatt);
    const Schlüssel archiviert = neuestes(Bestand::Archiv, blatt);
    if (nächste <= std::max(offen, archiviert))
        return {};
    Blatt werte = archiviert > offen ? blattLesen(Bestand::Archiv, blatt, archiviert)
                                     : blattLesen(Bestand::Arbeit, blatt, offen);
    std::erase_if(werte, [](const auto &wert) { return istMesswert(wert.first.second); });
    return werte;
}

void blattSpeichern(Inhalt blatt, Schlüssel protokollID, const Blatt &werte) {
    gDatenbank.together([&] {
        if (!kopfVorhanden(Bestand::Arbeit, protokollID))
            kopfFehlt();
        for (int stufe = 0; stufe < form(blatt).stufen; ++stufe)
            zeileSchreiben(blatt, protokollID, stufe, werte);
    });
}

void blattLöschen(Inhalt blatt, Schlüssel protokollID) {
    gDatenbank.together([&] {
        inhaltLöschen(Bestand::Arbeit, blatt, protokollID);
        if (inhaltslos(Bestand::Arbeit, protokollID))
            kopfzeileLöschen(Bestand::Arbeit, protokollID);
    });
    seitenOhneKopfAblegen(protokollID);
}

void sicherheitszeileAnlegen(Schlüssel protokollID) {
    if (gDatenbank.execute("INSERT INTO SecControl_temp (ProtokollID) SELECT ProtokollID "
                           "FROM Protokoll_temp WHERE ProtokollID = ?",
                           {protokollID}) == 0)
        kopfFehlt();
}

void leereSicherheitszeileLöschen(Schlüssel protokollID) {
    const Blatt werte = blattLesen(Bestand::Arbeit, Inhalt::SecControl, protokollID);
    if (std::all_of(werte.begin(), werte.end(),
                    [](const auto &wert) { return wert.second.isEmpty(); }))
        inhaltLöschen(Bestand::Arbeit, Inhalt::SecControl, protokollID);
}
