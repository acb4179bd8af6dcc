#include "finaltest/frmEPListe.h"

#include <QHeaderView>
#include <QKeyEvent>

#include <algorithm>

#include "finaltest/epbericht.h"
#include "finaltest/kopffelder.h"
#include "records/schluessel.h"
#include "session/sprache.h"

using namespace platform;

namespace {

constexpr Beschriftung english[] = {
    {"", "All Final Tests"},
    {"lbSuche", "&Search:"},
    {"pbBericht", "&Report ..."},
    {"pbexit", "&Close"},
};

/// Every word that was typed stands somewhere in the row.
bool passt(const std::vector<QVariant> &zeile, const QStringList &wörter) {
    return std::all_of(wörter.begin(), wörter.end(), [&zeile](const QString &wort) {
        return std::any_of(zeile.begin() + 1, zeile.end(), [&wort](const QVariant &zelle) {
            return zelle.toString().contains(wort, Qt::CaseInsensitive);
        });
    });
}

/// "12 Prüfungen", "3 von 12 Prüfungen".
QString anzahlText(int gezeigt, int alle) {
    if (alle == 0)
        return inSprache({"Es gibt noch keine Endprüfung.", "There is no final test yet."});
    const QString davon =
        gezeigt < alle ? QString::number(gezeigt) + inSprache({" von ", " of "}) : QString();
    return davon + QString::number(alle) +
           (alle == 1 ? inSprache({" Prüfung", " test"}) : inSprache({" Prüfungen", " tests"}));
}

} // namespace

QString epErgebnis(const EPZeile &zeile) {
    if (zeile.schritte == 0)
        return inSprache({"keine Messwerte", "no measured values"});
    const auto zahl = [](int n) { return QString::number(n); };
    const bool einer = zeile.schritte == 1;
    QString text = zahl(zeile.schritte) +
                   inSprache({einer ? " Schritt" : " Schritte", einer ? " step" : " steps"});
    text += ", " + zahl(zeile.inOrdnung) + " OK";
    if (zeile.außerToleranz() > 0)
        text += ", " + zahl(zeile.außerToleranz()) +
                inSprache({" außer Toleranz", " out of tolerance"});
    if (zeile.unbeurteilt > 0)
        text += ", " + zahl(zeile.unbeurteilt) + inSprache({" nicht beurteilt", " not judged"});
    return text;
}

frmEPListe::frmEPListe() {
    ui.setupUi(this);
    ui.dbgListe->setModel(&dataListe);
    ui.dbgListe->verticalHeader()->hide();
    on(ui.txtSuche, &QLineEdit::textChanged, [this] { filtern(); });
    on(ui.dbgListe->selectionModel(), &QItemSelectionModel::currentRowChanged,
       [this] { berichtFreigeben(); });
    on(ui.dbgListe, &QTableView::doubleClicked, [this] { pbBericht_Click(); });
    onKey(ui.txtSuche, [this](QKeyEvent &key) {
        if (key.key() != Qt::Key_Down && key.key() != Qt::Key_Up)
            return false;
        const int zeile = ui.dbgListe->currentIndex().row() + (key.key() == Qt::Key_Down ? 1 : -1);
        if (zeile >= 0 && zeile < dataListe.rowCount())
            ui.dbgListe->setCurrentIndex(dataListe.index(zeile, 0));
        return true;
    });
    for (QWidget *feld : {static_cast<QWidget *>(ui.txtSuche), static_cast<QWidget *>(ui.dbgListe)})
        onEnter(feld, [this] { pbBericht_Click(); });
    onClick(ui.pbBericht, [this] { pbBericht_Click(); });
    onClick(ui.pbexit, [this] { unload(); });
    onEscape([this] { unload(); });
}

void frmEPListe::Form_Load() try {
    beschriftungenSetzen(ui, *this, english);
    ui.txtSuche->setPlaceholderText(inSprache({"Serien-Nr., Datum, Typ, Kunde oder Ergebnis",
                                               "Serial no., date, type, customer or result"}));
    ui.txtSuche->setFocus();
    spaltenSetzen();
    lesen();
    filtern();
} catch (const Fehler &fehler) {
    fehlerBox("EPL_1 - ", fehler);
}

void frmEPListe::spaltenSetzen() {
    dataListe.setSpalten({{"SerienNr", inSprache({"Serien-Nr.", "Serial No."})},
                          {"Prüfdatum", inSprache({"Datum", "Date"})},
                          {"Gerätetyp", inSprache({"Gerätetyp", "Type"})},
                          {"Kunde", inSprache({"Kunde", "Customer"})},
                          {"Ergebnis", inSprache({"Ergebnis", "Result"})}});
    QHeaderView *kopf = ui.dbgListe->horizontalHeader();
    kopf->setHighlightSections(false);
    const int breiten[] = {140, 100, 150, 200};
    for (int spalte = 0; spalte < 4; ++spalte)
        ui.dbgListe->setColumnWidth(spalte, breiten[spalte]);
    kopf->setStretchLastSection(true);
}

/// By the date of the test, then by the order of their entry; a text that is no date comes last.
void frmEPListe::lesen() {
    mAlle = epListe();
    std::vector<std::pair<QDate, EPZeile>> datiert;
    for (EPZeile &zeile : mAlle)
        datiert.emplace_back(prüfdatumAus(zeile.prüfdatum), std::move(zeile));
    std::stable_sort(datiert.begin(), datiert.end(),
                     [](const auto &a, const auto &b) { return a.first > b.first; });
    std::transform(datiert.begin(), datiert.end(), mAlle.begin(),
                   [](auto &paar) { return std::move(paar.second); });
}

void frmEPListe::filtern() {
    const Schlüssel vorher = gewählt();
    const QStringList wörter = ui.txtSuche->text().split(' ', Qt::SkipEmptyParts);
    std::vector<std::vector<QVariant>> zeilen;
    int stelle = 0;
    for (const EPZeile &test : mAlle) {
        std::vector<QVariant> zeile{test.protokollID, test.serienNr, test.prüfdatum,
                                    test.gerätetyp,   test.kunde,    epErgebnis(test)};
        if (!passt(zeile, wörter))
            continue;
        if (test.protokollID == vorher)
            stelle = static_cast<int>(zeilen.size());
        zeilen.push_back(std::move(zeile));
    }
    dataListe.setRecordset(
        {{"EP_ID", "SerienNr", "Prüfdatum", "Gerätetyp", "Kunde", "Ergebnis"}, std::move(zeilen)});
    if (dataListe.rowCount() > 0)
        ui.dbgListe->setCurrentIndex(dataListe.index(stelle, 0));
    berichtFreigeben();
    ui.laAnzahl->setText(anzahlText(dataListe.rowCount(), static_cast<int>(mAlle.size())));
}

Schlüssel frmEPListe::gewählt() const {
    const int zeile = ui.dbgListe->currentIndex().row();
    return zeile < 0 || zeile >= dataListe.rowCount()
               ? 0
               : dataListe.recordset().at(zeile, 0).value<Schlüssel>();
}

void frmEPListe::berichtFreigeben() {
    const Schlüssel gemeint = gewählt();
    ui.pbBericht->setEnabled(
        std::any_of(mAlle.begin(), mAlle.end(), [gemeint](const EPZeile &test) {
            return test.protokollID == gemeint && test.schritte > 0;
        }));
}

void frmEPListe::pbBericht_Click() try {
    if (ui.pbBericht->isEnabled())
        epBerichtZeigen(gewählt());
} catch (const Fehler &fehler) {
    fehlerBox("EPL_2 - ", fehler);
}
