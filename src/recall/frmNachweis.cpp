#include "recall/frmNachweis.h"

#include <QDir>
#include <QHeaderView>
#include <QItemSelectionModel>

#include "platform/clock.h"
#include "recall/beschaeftigt.h"
#include "recall/nachweisblatt.h"
#include "records/protokollnummer.h"
#include "session/mappe.h"
#include "session/sprache.h"

using namespace platform;

namespace {

constexpr Beschriftung english[] = {
    {"", "Audit Trail"},
    {"laHilfe", "The trail says who changed which row of the database when. What was changed past "
                "the program shows when it is checked. It prevents nothing and proves nobody's "
                "identity: the person is the name that was typed at the login, the time is that "
                "of the computer."},
    {"laProtokoll", "&Protocol number:"},
    {"chkTag", "&Day:"},
    {"laPerson", "Pe&rson:"},
    {"pbSuchen", "&Search"},
    {"pbBack", "Set &Back"},
    {"laÄnderung", "Chan&ge:"},
    {"pbÄltere", "O&lder Ones"},
    {"pbExcel", "&Export"},
    {"pbok", "&Close"},
};

constexpr int änderungsspalte = 6;
constexpr int breiten[] = {70, 150, 140, 130, 90, 80};

} // namespace

frmNachweis::frmNachweis() {
    ui.setupUi(this);
    ui.DBGrid1->setModel(&mZeilen);
    on(ui.DBGrid1->selectionModel(), &QItemSelectionModel::currentRowChanged,
       [this] { änderungZeigen(); });
    on(ui.chkTag, &QCheckBox::toggled, [this] { ui.dtpTag->setEnabled(ui.chkTag->isChecked()); });
    const auto suche = gefangen("B3_01 - ", [this] { suchen(); });
    onClick(ui.pbSuchen, suche);
    for (QWidget *feld : {static_cast<QWidget *>(ui.txtProtokoll),
                          static_cast<QWidget *>(ui.txtPerson), static_cast<QWidget *>(ui.dtpTag)})
        onEnter(feld, suche);
    onClick(ui.pbBack, gefangen("B3_01 - ", [this] { pbBack_Click(); }));
    onClick(ui.pbÄltere, gefangen("B3_01 - ", [this] { pbÄltere_Click(); }));
    onClick(ui.pbExcel, [this] { pbExcel_Click(); });
    onClick(ui.pbok, [this] { unload(); });
    onEscape([this] { unload(); });
}

void frmNachweis::beschriften() {
    beschriftungenSetzen(ui, *this, english);
    ui.dtpTag->setAccessibleName(inSprache({"Tag", "Day"}));
    const char *const spalten[] = {"Nr",      "Zeit",      "Person",  "Tabelle",
                                   "Vorgang", "Schlüssel", "Änderung"};
    std::vector<RecordsetModel::Spalte> alle;
    for (const char *spalte : spalten)
        alle.push_back({spalte, nachweiskopf(static_cast<int>(alle.size()))});
    alle[0].ausrichtung = Qt::AlignRight | Qt::AlignVCenter;
    mZeilen.setSpalten(std::move(alle));
    QHeaderView *kopf = ui.DBGrid1->horizontalHeader();
    int spalte = 0;
    for (const int breite : breiten)
        kopf->resizeSection(spalte++, breite);
    kopf->setSectionResizeMode(änderungsspalte, QHeaderView::Stretch);
}

void frmNachweis::Form_Load() try {
    beschriften();
    ui.txtProtokoll->setFocus();
    pbBack_Click();
} catch (const Fehler &fehler) {
    fehlerBox("B3_01 - ", fehler);
}

bool frmNachweis::Form_QueryUnload() try {
    return fnc_ExcelFreigeben();
} catch (const Fehler &fehler) {
    fehlerBox("13005-", fehler);
    return false; // nothing is pending any more: the next way out is free
}

void frmNachweis::suchen() {
    mFilter = {};
    const QString nummer = ui.txtProtokoll->text().trimmed();
    if (!nummer.isEmpty()) {
        mFilter.protokollID = protokollNrAus(nummer);
        if (mFilter.protokollID == 0)
            mFilter.protokollID = -1; // no number: that of no protocol
    }
    if (ui.chkTag->isChecked())
        mFilter.tag = ui.dtpTag->date();
    mFilter.person = ui.txtPerson->text().trimmed();
    mZeilen.setRecordset({}); // what cannot be read is not what the filters say
    mMehr = false;
    standZeigen();
    lesen();
}

void frmNachweis::pbBack_Click() {
    ui.txtProtokoll->clear();
    ui.txtPerson->clear();
    ui.dtpTag->setDate(now().date());
    ui.chkTag->setChecked(false);
    ui.dtpTag->setEnabled(false);
    suchen();
}

void frmNachweis::pbÄltere_Click() {
    const int zuletzt = mZeilen.rowCount();
    lesen();
    if (mZeilen.rowCount() > zuletzt)
        ui.DBGrid1->selectRow(zuletzt);
    if (!ui.pbÄltere->isEnabled())
        ui.DBGrid1->setFocus();
}

/// Behind those that are there.
void frmNachweis::lesen() {
    const Beschäftigt warten;
    ui.laDatei->clear();
    const Nachweisliste liste = nachweis(mFilter);
    std::vector<std::vector<QVariant>> zeilen;
    for (const Recordset &teil : {mZeilen.recordset(), liste.zeilen}) {
        for (int zeile = 0; zeile < teil.count(); ++zeile) {
            std::vector<QVariant> werte;
            for (int spalte = 0; spalte <= änderungsspalte; ++spalte)
                werte.push_back(teil.at(zeile, spalte));
            zeilen.push_back(std::move(werte));
        }
    }
    mZeilen.setRecordset(Recordset(liste.zeilen.columns(), std::move(zeilen)));
    mFilter.vor = liste.weiter;
    mMehr = liste.weiter > 0;
    if (mZeilen.rowCount() > 0 && !ui.DBGrid1->currentIndex().isValid())
        ui.DBGrid1->selectRow(0);
    standZeigen();
    änderungZeigen();
}

void frmNachweis::standZeigen() {
    QString stand = inSprache({"%1 Einträge", "%1 entries"}).arg(mZeilen.rowCount());
    if (mMehr)
        stand += inSprache({"; durchgesehen bis Nr. %1, davor gibt es ältere",
                            "; read back to no. %1, there are older ones before it"})
                     .arg(mFilter.vor);
    ui.laAnzahl->setText(stand);
    ui.pbÄltere->setEnabled(mMehr);
    ui.pbExcel->setEnabled(mZeilen.rowCount() > 0);
}

void frmNachweis::änderungZeigen() {
    const int zeile = ui.DBGrid1->currentIndex().row();
    const bool da = zeile >= 0 && zeile < mZeilen.rowCount();
    ui.txtÄnderung->setPlainText(
        da ? mZeilen.recordset().at(zeile, änderungsspalte).toString().replace("; ", "\n")
           : QString());
}

void frmNachweis::pbExcel_Click() {
    if (!spracheGewählt())
        return;
    const Beschäftigt warten;
    ui.laDatei->clear();
    try {
        nachweisExport(mZeilen.recordset());
        if (!gMappe)
            return;
        fnc_ExcelFreigeben();
        ui.laDatei->setText(
            inSprache({"Gespeichert: ", "Saved: "}) +
            QDir::toNativeSeparators(QDir::current().relativeFilePath(gMappenpfad)));
    } catch (const Fehler &fehler) {
        gMappe.reset(); // half of it is handed to nobody
        fehlerBox("B3_02 - ", fehler);
    }
}
