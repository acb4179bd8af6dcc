#include "records/protokollinhalt.h"

#include <algorithm>
#include <exception>

#include "records/berichtsdateien.h"
#include "store/database.h"

namespace {

constexpr size_t köpfeJeSchub = 25; // that are written to the disk at once

QString endung(Bestand bestand) {
    return bestand == Bestand::Arbeit ? "_temp" : "";
}

bool hatZeilen(const QString &tabelle, Schlüssel protokollID) {
    return !gDatenbank
                .open("SELECT 1 FROM " + tabelle + " WHERE ProtokollID = ? LIMIT 1", {protokollID})
                .empty();
}

void zeilenLöschen(const QString &tabelle, Schlüssel protokollID) {
    gDatenbank.execute("DELETE FROM " + tabelle + " WHERE ProtokollID = ?", {protokollID});
}

} // namespace

QString kopftabelle(Bestand bestand) {
    return "Protokoll" + endung(bestand);
}

QString tabelle(Bestand bestand, Inhalt inhalt) {
    static const char *const namen[] = {"Messwerte", "SecControl", "Blutdruck"};
    return namen[static_cast<int>(inhalt)] + endung(bestand);
}

bool vorhanden(Bestand bestand, Inhalt inhalt, Schlüssel protokollID) {
    return hatZeilen(tabelle(bestand, inhalt), protokollID);
}

bool kopfVorhanden(Bestand bestand, Schlüssel protokollID) {
    return hatZeilen(kopftabelle(bestand), protokollID);
}

bool inhaltslos(Bestand bestand, Schlüssel protokollID) {
    return std::none_of(std::begin(alleInhalte), std::end(alleInhalte),
                        [&](Inhalt inhalt) { return vorhanden(bestand, inhalt, protokollID); });
}

void inhaltLöschen(Bestand bestand, Inhalt inhalt, Schlüssel protokollID) {
    zeilenLöschen(tabelle(bestand, inhalt), protokollID);
}

void kopfzeileLöschen(Bestand bestand, Schlüssel protokollID) {
    zeilenLöschen(kopftabelle(bestand), protokollID);
}

void seitenOhneKopfAblegen(Schlüssel protokollID) {
    if (std::none_of(std::begin(alleBestände), std::end(alleBestände),
                     [&](Bestand bestand) { return kopfVorhanden(bestand, protokollID); }))
        seitenAblegen(protokollID);
}

void kopfLöschen(Bestand bestand, Schlüssel protokollID) {
    kopfzeileLöschen(bestand, protokollID);
    seitenOhneKopfAblegen(protokollID);
}

void archivköpfeLöschen(std::span<const Schlüssel> protokolle,
                        const std::function<void(int gelöscht)> &zwischendurch) {
    for (size_t von = 0, bis = 0; von < protokolle.size(); von = bis) {
        std::exception_ptr gescheitert;
        gDatenbank.together([&] {
            try {
                for (; bis < std::min(von + köpfeJeSchub, protokolle.size()); ++bis)
                    kopfzeileLöschen(Bestand::Archiv, protokolle[bis]);
            } catch (const Fehler &) {
                gescheitert = std::current_exception(); // what went before it stays gone
            }
        });
        for (size_t weg = von; weg < bis; ++weg)
            seitenOhneKopfAblegen(protokolle[weg]);
        if (gescheitert)
            std::rethrow_exception(gescheitert);
        zwischendurch(static_cast<int>(bis));
    }
}
