#include "recall/kundenblatt.h"

#include "platform/fehler.h"
#include "recall/faelligkeit.h"
#include "session/mappe.h"
#include "session/sprache.h"
#include "store/sqltext.h"

using namespace platform;

namespace {

enum Format { Kopf, Rahmen, Datum };

constexpr int spalten = 9;
constexpr size_t meisteZeilen = 1'048'575; // of a sheet, below its head

Workbook kundenvorlage() {
    Sheet blatt{.name = inSprache({"Kunden", "Customers"}),
                .widths = {32, 26, 8, 20, 14, 14, 20, 20, 16},
                .headRows = 1};
    const Text köpfe[spalten] = {{"Kunde", "Customer"},
                                 {"Straße", "Street"},
                                 {"PLZ", "ZIP Code"},
                                 {"Ort", "City/Town"},
                                 {"Kalibrierdatum", "Calibration Date"},
                                 {"Nächste Kalibrierung", "Next Calibration"},
                                 {"Hersteller", "Manufacturer"},
                                 {"Gerätetyp", "Type"},
                                 {"IdentNr", "Ident No."}};
    for (int spalte = 0; spalte < spalten; ++spalte)
        blatt.cell(0, spalte) = {inSprache(köpfe[spalte]), Kopf};
    Workbook mappe;
    mappe.formats = {{.frame = true, .bold = true, .centred = true},
                     {.frame = true},
                     {.number = "dd.mm.yyyy", .frame = true}};
    mappe.sheets.push_back(std::move(blatt));
    return mappe;
}

void schreiben(RowWriter &blatt, const Wiedervorlage &zeile, const Wiedervorlagezellen &zellen) {
    for (size_t spalte = 0; spalte < 4; ++spalte)
        blatt.text(zellen[spalte], Rahmen);
    const QDate kalibriert = datumAus(zeile.kalibriert);
    if (kalibriert.isValid())
        blatt.date(kalibriert, Datum);
    else
        blatt.text(zeile.kalibriert, Datum);
    blatt.text(fälligImMonat(kalibriert).toStdString(), Rahmen);
    for (size_t spalte = 4; spalte < zellen.size(); ++spalte)
        blatt.text(zellen[spalte], Rahmen);
    blatt.endRow();
}

} // namespace

void fnc_KundenExport(std::shared_ptr<const std::vector<Wiedervorlage>> zeilen) {
    if (zeilen->empty())
        return;
    if (zeilen->size() > meisteZeilen) {
        throw Fehler(fehlernummer::Overflow,
                     {"Überlauf: Die Liste hat mehr Zeilen, als eine Tabelle fasst. Bitte engen "
                      "Sie sie ein.",
                      "Overflow: The list has more rows than a spreadsheet holds. Please narrow "
                      "it."});
    }
    fnc_ExcelÖffnen(inSprache({"KundenSort", "CustomerOrder"}), kundenvorlage());
    gBlatt->more = [zeilen = std::move(zeilen)](RowWriter &blatt) {
        alleTexteLesen(*zeilen, [&](const Wiedervorlage &zeile, const Wiedervorlagezellen &zellen) {
            schreiben(blatt, zeile, zellen);
        });
    };
}
