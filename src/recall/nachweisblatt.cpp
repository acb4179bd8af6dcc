#include "recall/nachweisblatt.h"

#include "session/mappe.h"
#include "session/sprache.h"

using namespace platform;

namespace {

enum Format { Kopf, Rahmen };

constexpr qsizetype längsterText = 32'767; // of a cell

const Text köpfe[] = {{"Nr.", "No."},        {"Zeit", "Time"},      {"Person", "Person"},
                      {"Tabelle", "Table"},  {"Vorgang", "Action"}, {"Schlüssel", "Key"},
                      {"Änderung", "Change"}};

} // namespace

QString nachweiskopf(int spalte) {
    return inSprache(köpfe[spalte]);
}

void nachweisExport(const Recordset &zeilen) {
    if (zeilen.empty())
        return;
    Sheet blatt{.name = inSprache({"Nachweis", "Audit Trail"}),
                .widths = {10, 20, 20, 20, 12, 12, 100},
                .headRows = 1};
    const int spalten = static_cast<int>(std::size(köpfe));
    for (int spalte = 0; spalte < spalten; ++spalte)
        blatt.cell(0, spalte) = {nachweiskopf(spalte), Kopf};
    blatt.more = [zeilen, spalten](RowWriter &weitere) {
        for (int zeile = 0; zeile < zeilen.count(); ++zeile) {
            weitere.number(zeilen.at(zeile, 0).toDouble(), Rahmen);
            for (int spalte = 1; spalte < spalten; ++spalte)
                weitere.text(zeilen.at(zeile, spalte).toString().left(längsterText).toStdString(),
                             Rahmen);
            weitere.endRow();
        }
    };
    Workbook mappe;
    mappe.formats = {{.frame = true, .bold = true, .centred = true}, {.frame = true}};
    mappe.sheets.push_back(std::move(blatt));
    fnc_ExcelÖffnen(inSprache({"Nachweis", "AuditTrail"}), std::move(mappe));
}
