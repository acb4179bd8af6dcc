#include "calibration/frmHistory.h"

#include <QDir>
#include <QHeaderView>

#include <algorithm>
#include <cmath>

#include "calibration/historienblatt.h"
#include "calibration/moment.h"
#include "platform/clock.h"
#include "platform/runtime.h"
#include "records/hebelarm.h"
#include "records/schluessel.h"
#include "session/mappe.h"
#include "session/sprache.h"
#include "store/sqltext.h"
#include "windows/msgbox.h"
#include "windows/stil.h"

using namespace platform;

namespace {

constexpr Beschriftung english[] = {
    {"", "Calibration History"},
    {"pbDSLöschen", "&Delete"},
    {"pbExcel", "&Export"},
    {"pbexit", "&Close"},
};

const Text rechts{"Rechts", "Right"}, links{"Links", "Left"};
constexpr double grenze = momentGrenze / 1000; // N m
constexpr double tag = 86'400;                 // s
constexpr double höhe = 1.25;                  // of the largest value shown, and of the limits

} // namespace

frmHistory::frmHistory() {
    ui.setupUi(this);
    ui.dbgHistory->setModel(&dataHistory);
    ui.dbgHistory->verticalHeader()->hide();
    ui.anzVerlauf->toolTipOf = [this](int kurve, int wert) { return punkttext(kurve, wert); };
    on(ui.dbgHistory->selectionModel(), &QItemSelectionModel::currentRowChanged,
       [this] { zeileMarkieren(); });
    onClick(ui.pbDSLöschen, gefangen("5010 - ", [this] { pbDSLöschen_Click(); }));
    onClick(ui.pbExcel, [this] { pbExcel_Click(); });
    onClick(ui.pbexit, [this] { unload(); });
    onEscape([this] { unload(); });
}

void frmHistory::Form_Load() try {
    beschriftungenSetzen(ui, *this, english);
    spaltenSetzen();
    kurvenAnlegen();
    ui.dbgHistory->setFocus();
    aktualisieren();
} catch (const Fehler &fehler) {
    fehlerBox("5010 - ", fehler);
}

void frmHistory::spaltenSetzen() {
    const auto zahl = Qt::AlignRight | Qt::AlignVCenter;
    const auto text = Qt::AlignLeft | Qt::AlignVCenter;
    const auto kopf = [](const Text &beide) { return inSprache(beide); };
    dataHistory.setSpalten({
        {"Prüfer", kopf({"Prüfer", "Inspector"}), text},
        {"PrDatum", kopf({"Datum", "Date"}), text, "General Date"},
        {"Erdschwere", kopf({"Fallbeschleunigung in m/s²", "Gravity in m/s²"}), zahl, "0.0000"},
        {"Nm_rechts", kopf({"      Rechts       in N m", "      Right       in N m"}), zahl,
         "0.000"},
        {"Streu_R", kopf({"Streubreite in N m", "Spread in N m"}), zahl, "0.0000"},
        {"Nm_links", kopf({"      Links        in N m", "      Left        in N m"}), zahl,
         "0.000"},
        {"Streu_L", kopf({"Streubreite in N m", "Spread in N m"}), zahl, "0.0000"},
    });
    QHeaderView *head = ui.dbgHistory->horizontalHeader();
    head->setSectionResizeMode(QHeaderView::ResizeToContents);
    head->setSectionResizeMode(0, QHeaderView::Stretch);
    head->setHighlightSections(false);
}

void frmHistory::kurvenAnlegen() {
    const Farben &f = farben();
    Plot &plot = *ui.anzVerlauf;
    const QString wert = Format(grenze, "0.000") + " N m";
    plot.addCurve(inSprache(rechts), QPen(f.akzent, 1));
    plot.addCurve(inSprache(links), QPen(f.text, 1));
    plot.addCurve(inSprache({"Grenze ±", "Limit ±"}) + wert, QPen(f.blass, 1, Qt::DashLine));
    plot.addCurve({}, QPen(f.blass, 1, Qt::DashLine));
    plot.addCurve({}, QPen(f.text, 1, Qt::DotLine));
    plot.setDots(Rechts, Plot::Dots::Discs);
    plot.setDots(Links, Plot::Dots::Squares);
    plot.setDots(Marke, Plot::Dots::Ring);
    plot.setAccessibleName(inSprache({"Verlauf der Abweichungen", "Differences over time"}));
    plot.setLegendAbove(); // it would hide the newest values
    plot.showDates("dd.MM.yyyy");
    plot.setAxisLabel(Plot::Y, inSprache({"Abweichung von der Referenz in N m",
                                          "Difference to the reference in N m"}));
}

/// The rows as they are stored now; the current one stays, or the one that takes its place.
void frmHistory::aktualisieren() {
    const int zeile = std::max(ui.dbgHistory->currentIndex().row(), 0);
    dataHistory.setRecordset(hebelarmHistorie());
    verlaufZeigen();
    if (const int letzte = dataHistory.rowCount() - 1; letzte >= 0)
        ui.dbgHistory->setCurrentIndex(dataHistory.index(std::min(zeile, letzte), 0));
}

void frmHistory::verlaufZeigen() {
    Plot &plot = *ui.anzVerlauf;
    mVerlauf[Rechts] = verlauf(dataHistory.recordset(), "Nm_rechts");
    mVerlauf[Links] = verlauf(dataHistory.recordset(), "Nm_links");
    const auto jetzt = static_cast<double>(now().toSecsSinceEpoch());
    double von = jetzt, bis = jetzt, höchster = grenze;
    for (const Kurve seite : {Rechts, Links}) {
        const auto &[zeit, wert, zeile] = mVerlauf[seite];
        plot.setData(seite, zeit, wert);
        if (!zeit.empty())
            von = std::min(von, zeit.front());
        for (const double w : wert)
            höchster = std::max(höchster, std::abs(w));
    }
    const double luft = std::max(30 * tag, (bis - von) / 20);
    von -= luft;
    bis += luft;
    plot.setData(Oben, {von, bis}, {grenze, grenze});
    plot.setData(Unten, {von, bis}, {-grenze, -grenze});
    plot.setRange(Plot::X, {von, bis});
    plot.setRange(Plot::Y, {-höchster * höhe, höchster * höhe});
    zeileMarkieren();
}

/// A ring around the values of the current row.
void frmHistory::zeileMarkieren() {
    const int zeile = ui.dbgHistory->currentIndex().row();
    std::vector<double> zeit, wert;
    for (const Verlauf &seite : mVerlauf) {
        const auto da = std::find(seite.zeile.begin(), seite.zeile.end(), zeile);
        if (da == seite.zeile.end())
            continue;
        const auto punkt = static_cast<size_t>(da - seite.zeile.begin());
        zeit.push_back(seite.zeit[punkt]);
        wert.push_back(seite.wert[punkt]);
    }
    ui.anzVerlauf->setData(Marke, zeit, wert);
    ui.anzVerlauf->repaintSoon();
}

/// Date, inspector and value; nothing for what is no calibration.
QString frmHistory::punkttext(int kurve, int wert) const {
    if (kurve > Links)
        return {};
    const auto punkt = static_cast<size_t>(wert);
    Recordset historie = dataHistory.recordset();
    historie.moveTo(mVerlauf[kurve].zeile[punkt]);
    return QString("%1\n%2\n%3: %4 N m")
        .arg(zeitpunktText(zeitpunktAus(historie["Prdatum"].text())), historie["Prüfer"].text(),
             inSprache(kurve == Rechts ? rechts : links),
             Format(mVerlauf[kurve].wert[punkt], "0.000"));
}

void frmHistory::pbDSLöschen_Click() {
    Recordset historie = dataHistory.recordset();
    historie.moveTo(ui.dbgHistory->currentIndex().row());
    const Schlüssel nummer = schlüsselAus(historie[0]);
    if (nummer == hebelarmReferenz) {
        meldung({"Die Referenzdaten können nicht gelöscht werden!",
                 "The reference data can not be deleted!"},
                Exclamation, {"Achtung!", "Attention!"});
        return;
    }
    const int antwort =
        meldung({"Wollen Sie den Datensatz wirklich löschen?",
                 "Do you really want to delete this data record?"},
                OKCancel + Question + SecondButtonDefault, {"Datensatz löschen", "Delete Record"});
    if (antwort != OK)
        return;
    hebelarmLöschen(nummer);
    aktualisieren();
    fnc_HebelarmDatumLesen();
}

void frmHistory::pbExcel_Click() {
    ui.pbExcel->setEnabled(false);
    ui.laDatei->clear();
    bool begonnen = false;
    try {
        fnc_HistorieExport();
        begonnen = true;
        fnc_ExcelFreigeben();
        ui.laDatei->setText(
            inSprache({"Gespeichert: ", "Saved: "}) +
            QDir::toNativeSeparators(QDir::current().relativeFilePath(gMappenpfad)));
    } catch (const Fehler &fehler) {
        begonnen |= gMappe.has_value();
        gMappe.reset(); // half of it is handed to nobody
        fehlerBox("5010 - ", fehler);
    }
    ui.pbExcel->setEnabled(begonnen); // without a beginning not before the screen is opened anew
    if (begonnen)
        ui.pbExcel->setFocus();
}

bool frmHistory::Form_QueryUnload() try {
    return fnc_ExcelFreigeben();
} catch (const Fehler &fehler) {
    fehlerBox("13005-", fehler);
    return false; // nothing is pending any more: the next way out is free
}
