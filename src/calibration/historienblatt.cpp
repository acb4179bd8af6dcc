#include "calibration/historienblatt.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "calibration/achse.h"
#include "records/hebelarm.h"
#include "session/mappe.h"
#include "session/sprache.h"
#include "store/sqltext.h"

using namespace platform;

namespace {

constexpr int ersteZeile = 2; // below the heads, from 0
constexpr int spalten = 6, betragSpalte = 6, diagrammSpalte = 7;
constexpr int zeilenhöhe = 20, diagrammbreite = 720; // pixels
constexpr int wenigsteZeilen = 18, meisteZeilen = 36;
constexpr int randTage = 30;

enum Format { Titel, Kopf, Datum, Drei, Vier };

struct Seite {
    Text blatt;
    Text titel;
    Text wert, betrag; ///< heads
    QString diagramm;
    const char *moment, *streuung; ///< columns of the history
};
const Seite seiten[] = {
    {{"Rechts", "Right"},
     {"Hebelarmkalibrierung rechts", "Lever Arm Calibration, Right"},
     {"Rechts in N m", "Right in N m"},
     {"Betrag rechts in N m", "Magnitude right in N m"},
     "Diagramm 2",
     "Nm_rechts",
     "Streu_R"},
    {{"Links", "Left"},
     {"Hebelarmkalibrierung links", "Lever Arm Calibration, Left"},
     {"Links in N m", "Left in N m"},
     {"Betrag links in N m", "Magnitude left in N m"},
     "Diagramm 1",
     "Nm_links",
     "Streu_L"},
};

Sheet vorlagenblatt(const Seite &seite) {
    Sheet blatt{.name = inSprache(seite.blatt),
                .widths = {12, 14, 14, 16, 14, 24, 14},
                .headRows = ersteZeile,
                .selectedRow = ersteZeile};
    blatt.cell(0, 0) = {inSprache(seite.titel), Titel};
    const Text köpfe[] = {{"Datum", "Date"},
                          seite.wert,
                          {"Streubreite in N m", "Spread in N m"},
                          {"Fallbeschleunigung in m/s²", "Gravity in m/s²"},
                          {"Hebelarm-Nr.", "Lever Arm No."},
                          {"Prüfer", "Inspector"}};
    for (int spalte = 0; spalte < spalten; ++spalte)
        blatt.cell(1, spalte) = {inSprache(köpfe[spalte]), Kopf};
    blatt.charts.push_back(
        {.name = seite.diagramm,
         .title = inSprache(seite.titel),
         .valueTitle = inSprache(seite.wert),
         .row = ersteZeile,
         .column = diagrammSpalte,
         .width = diagrammbreite,
         .height = wenigsteZeilen * zeilenhöhe,
         .series = {
             {.name = inSprache(seite.wert), .firstRow = ersteZeile, .lastRow = ersteZeile}}});
    return blatt;
}

/// The value as it is stored: a number, a text, or nothing.
Cell zelle(const QVariant &wert, int format = -1) {
    if (wert.isNull())
        return {{}, format};
    if (wert.typeId() == QMetaType::QString)
        return {wert.toString(), format};
    return {wert.toDouble(), format};
}

/// A date that is none stays as the text that it is.
Cell datumszelle(const QString &text) {
    const QDateTime zeitpunkt = zeitpunktAus(text);
    if (zeitpunkt.isValid())
        return {zeitpunkt, Datum};
    return {text, Datum};
}

struct Bereich {
    double kleinster = std::numeric_limits<double>::infinity();
    double größter = -kleinster;
    bool leer() const { return kleinster > größter; }
    void aufnehmen(double wert) {
        kleinster = std::min(kleinster, wert);
        größter = std::max(größter, wert);
    }
};

/// The first column, the same on both sides.
struct Tage {
    std::vector<Cell> zellen;
    QDate erster, letzter;
};

Tage tageLesen(const Recordset &historie) {
    const int spalte = historie.columnIndex("Prdatum");
    Tage tage;
    tage.zellen.reserve(static_cast<size_t>(historie.count()));
    for (int zeile = 0; zeile < historie.count(); ++zeile) {
        tage.zellen.push_back(datumszelle(historie.at(zeile, spalte).toString()));
        if (const auto *zeitpunkt = std::get_if<QDateTime>(&tage.zellen.back().value)) {
            const QDate tag = zeitpunkt->date();
            tage.erster = tage.erster.isValid() ? std::min(tage.erster, tag) : tag;
            tage.letzter = std::max(tage.letzter, tag);
        }
    }
    return tage;
}

/// The moments of a side, N m.
struct Momente {
    Bereich betrag;
    bool negativ = false;
};

Momente zeilenEintragen(const Recordset &historie, const Tage &tage, const Seite &seite) {
    const auto spalte = [&](const char *name) { return historie.columnIndex(name); };
    const int moment = spalte(seite.moment), streuung = spalte(seite.streuung),
              schwere = spalte("Erdschwere"), hebelarm = spalte("HebelarmNr"),
              prüfer = spalte("Prüfer");
    Momente momente;
    gBlatt->rows.reserve(static_cast<size_t>(ersteZeile) + static_cast<size_t>(historie.count()));
    for (int zeile = 0; zeile < historie.count(); ++zeile) {
        std::vector<Cell> &zellen = gBlatt->rows.emplace_back();
        zellen.reserve(spalten + 1);
        zellen.push_back(tage.zellen[static_cast<size_t>(zeile)]);
        zellen.push_back(zelle(historie.at(zeile, moment), Drei));
        zellen.push_back(zelle(historie.at(zeile, streuung), Vier));
        zellen.push_back(zelle(historie.at(zeile, schwere), Vier));
        zellen.push_back(zelle(historie.at(zeile, hebelarm)));
        zellen.push_back(zelle(historie.at(zeile, prüfer)));
        if (const auto *zahl = std::get_if<double>(&zellen[1].value)) {
            momente.betrag.aufnehmen(std::abs(*zahl));
            momente.negativ |= *zahl < 0;
        }
    }
    return momente;
}

ValueAxis wertachse(const Bereich &betrag) {
    const Achse grenzen = achsengrenzen(betrag.größter, betrag.kleinster);
    return {grenzen.unten, grenzen.oben};
}

/// The axis knows no sign: a side whose moments have one is drawn by its magnitudes, from a column
/// beside the table.
void beträgeEintragen(const Seite &seite, int letzteZeile) {
    DateChart &diagramm = gBlatt->charts[0];
    gBlatt->cell(1, betragSpalte) = {inSprache(seite.betrag), Kopf};
    for (int zeile = ersteZeile; zeile <= letzteZeile; ++zeile) {
        if (const auto *zahl = std::get_if<double>(&gBlatt->cell(zeile, 1).value))
            gBlatt->cell(zeile, betragSpalte) = {std::abs(*zahl), Drei};
    }
    diagramm.valueTitle = inSprache(seite.betrag);
    diagramm.series.push_back({.name = diagramm.valueTitle,
                               .values = betragSpalte,
                               .firstRow = ersteZeile,
                               .lastRow = letzteZeile});
}

/// Size and source of the chart from the rows in use.
void fnc_DiagrammAnpassen(int letzteZeile) {
    DateChart &diagramm = gBlatt->charts[0];
    diagramm.height = std::clamp(letzteZeile + 1, wenigsteZeilen, meisteZeilen) * zeilenhöhe;
    diagramm.series[0].lastRow = letzteZeile;
}

void seiteEintragen(const Recordset &historie, const Tage &tage, const Seite &seite) {
    gBlatt = gMappe->sheet(inSprache(seite.blatt));
    const int letzteZeile = ersteZeile + historie.count() - 1;
    const Momente momente = zeilenEintragen(historie, tage, seite);
    fnc_TabelleFormatieren(ersteZeile, letzteZeile, spalten);
    DateChart &diagramm = gBlatt->charts[0];
    if (!momente.betrag.leer())
        diagramm.axis = wertachse(momente.betrag);
    if (tage.erster.isValid())
        diagramm.dates = {tage.erster.addDays(-randTage), tage.letzter.addDays(randTage)};
    if (momente.negativ)
        beträgeEintragen(seite, letzteZeile);
    fnc_DiagrammAnpassen(letzteZeile);
}

} // namespace

Workbook historienvorlage() {
    Workbook mappe;
    mappe.formats = {{.bold = true},
                     {.frame = true, .bold = true, .centred = true},
                     {.number = "dd.mm.yyyy"},
                     {.number = "0.000"},
                     {.number = "0.0000"}};
    for (const Seite &seite : seiten)
        mappe.sheets.push_back(vorlagenblatt(seite));
    return mappe;
}

void historieEintragen(const Recordset &historie) {
    if (historie.empty())
        return;
    const Tage tage = tageLesen(historie);
    for (const Seite &seite : seiten)
        seiteEintragen(historie, tage, seite);
    gBlatt = gMappe->sheets.data();
}

void fnc_HistorieExport() {
    fnc_ExcelÖffnen(inSprache({"Hebelarmkalibrierung", "LeverArmCalibration"}), historienvorlage());
    historieEintragen(hebelarmHistorie());
}
