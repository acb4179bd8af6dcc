#include "session/mappe.h"

#include <QDir>

#include <algorithm>
#include <utility>

#include "platform/export.h"
#include "session/sprache.h"
#include "windows/msgbox.h"

using namespace platform;

void fnc_ExcelÖffnen(const QString &name, Workbook vorlage) {
    const QDir ordner("Export");
    if (!ordner.mkpath(".") || !QFileInfo(ordner.path()).isWritable())
        refuseExport(ordner.absolutePath());
    gMappe = std::move(vorlage);
    gMappenname = name;
    gBlatt = gMappe->sheets.data();
}

bool fnc_ExcelFreigeben() {
    if (!gMappe)
        return true;
    const Workbook mappe = *std::exchange(gMappe, {});
    gBlatt = nullptr;
    gMappenpfad =
        exportFile(gMappenname, "xlsx", [&](const QString &pfad) { writeWorkbook(mappe, pfad); });
    if (!openFile(gMappenpfad)) {
        const QString pfad = QDir::toNativeSeparators(gMappenpfad);
        meldung(
            {"Die Tabelle wurde gespeichert. Hier gibt es kein Programm, das sie öffnet:\r" + pfad,
             "The spreadsheet has been saved. There is no program here that opens it:\r" + pfad},
            Information, {"Export", "Export"});
    }
    return true;
}

void fnc_TabelleFormatieren(int ersteZeile, int letzteZeile, int spalten) {
    std::vector<CellFormat> &formate = gMappe->formats;
    const auto gerahmt = [&](int format) {
        CellFormat wunsch = format < 0 ? CellFormat{} : formate[static_cast<size_t>(format)];
        wunsch.frame = true;
        const auto da = std::find(formate.begin(), formate.end(), wunsch);
        const auto platz = static_cast<int>(da - formate.begin());
        if (da == formate.end())
            formate.push_back(wunsch);
        return platz;
    };
    std::vector<int> neu; // by the format before, none first
    for (int format = -1, alle = static_cast<int>(formate.size()); format < alle; ++format)
        neu.push_back(gerahmt(format));
    for (int zeile = ersteZeile; zeile <= letzteZeile; ++zeile) {
        for (int spalte = 0; spalte < spalten; ++spalte) {
            Cell &zelle = gBlatt->cell(zeile, spalte);
            zelle.format = neu[static_cast<size_t>(zelle.format + 1)];
        }
    }
}
