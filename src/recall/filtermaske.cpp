#include "recall/filtermaske.h"

#include <QHeaderView>
#include <QSignalBlocker>

#include "platform/clock.h"
#include "recall/beschaeftigt.h"
#include "session/mappe.h"
#include "session/sprache.h"

using namespace platform;

namespace {

constexpr Beschriftung english[] = {
    {"laBis", "&until:"},
    {"laSortierung", "So&rt by:"},
    {"pbAufsteigend", "&Ascending"},
    {"pbAbsteigend", "&Descending"},
    {"pbBack", "&Set Back"},
    {"pbBack#tip", "show all"},
    {"laÜberfällig", "overdue"},
    {"laFällig", "due this month"},
    {"pbExcel", "&Export"},
    {"pbBriefe", "&Letters"},
    {"pbDelete", "De&lete"},
    {"pbok", "Cl&ose"},
};

constexpr int zeilenhöhe = 30;

} // namespace

Filtermaske::Filtermaske(Art art) : mKette(art.filter), mArt(std::move(art)) {
    ui.setupUi(this);
    mListen = {{{ui.laListe0, ui.cmbListe0},
                {ui.laListe1, ui.cmbListe1},
                {ui.laListe2, ui.cmbListe2},
                {ui.laListe3, ui.cmbListe3},
                {ui.laListe4, ui.cmbListe4}}};
    for (size_t p = 0; p < mListen.size(); ++p) {
        const auto &[beschriftung, feld] = mListen[p];
        const QString &name = filterpositionen(mArt.filter)[p].liste;
        beschriftung->setVisible(!name.isEmpty());
        feld->setVisible(!name.isEmpty());
        feld->setModel(&mAuswahl[p]);
        if (!name.isEmpty())
            feld->setObjectName(name);
    }
    ui.DBGrid1->setModel(&dataSort);
    ui.DBGrid1->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    ui.DBGrid1->verticalHeader()->setDefaultSectionSize(zeilenhöhe);
    ui.anzFortschritt->hide();
    verdrahten();
}

void Filtermaske::verdrahten() {
    for (int p = 0; p < datumsfilter; ++p) {
        Filterfeld *feld = mListen[static_cast<size_t>(p)].feld;
        if (p == kundenfilter)
            on(feld, &QComboBox::activated, gefangen("B1_06 - ", [this] { cmbKunde_Click(); }));
        else
            on(feld, &QComboBox::activated, [this, p] { gewählt(p); });
    }
    for (QDateEdit *dtp : {ui.dtpVon, ui.dtpBis}) {
        onGotFocus(dtp, [this, dtp] { mAltDatum = dtp->date(); });
        on(dtp, &QDateEdit::dateChanged, [this, dtp] { dtp_Change(dtp); });
    }
    QHeaderView *kopf = ui.DBGrid1->horizontalHeader();
    kopf->setSectionsClickable(true);
    kopf->setSortIndicatorShown(true);
    connect(kopf, &QHeaderView::sectionClicked, this, [this, kopf](int spalte) {
        kopf->setSortIndicator(-1, Qt::AscendingOrder); // is not sorted by it yet
        ui.cmbSortierung->setCurrentIndex(spalte);
    });
    on(ui.cmbSortierung, &QComboBox::currentIndexChanged, [this] {
        mKette.mSortSpalte = static_cast<std::int16_t>(ui.cmbSortierung->currentIndex());
    });
    onClick(ui.pbAufsteigend, [this] { sortieren(true); });
    onClick(ui.pbAbsteigend, [this] { sortieren(false); });
    onClick(ui.pbBack, [this] { zurücksetzen(); });
    onClick(ui.pbok, [this] { unload(); });
    onEscape([this] { unload(); });
}

void Filtermaske::beschriften() {
    beschriftungenSetzen(ui, *this, english);
    setCaption(inSprache(mArt.titel));
    ui.laVon->setText(inSprache(mArt.von));
    QStringList köpfe;
    for (const Text &kopf : mArt.köpfe)
        köpfe += inSprache(kopf);
    dataSort.setKöpfe(köpfe);
    const QSignalBlocker still(ui.cmbSortierung);
    ui.cmbSortierung->clear();
    ui.cmbSortierung->addItems(köpfe);
    QHeaderView *kopf = ui.DBGrid1->horizontalHeader();
    for (int spalte = 0; spalte < köpfe.size(); ++spalte) {
        if (const int breite = mArt.breiten[static_cast<size_t>(spalte)])
            kopf->resizeSection(spalte, breite);
        else
            kopf->setSectionResizeMode(spalte, QHeaderView::Stretch);
    }
}

void Filtermaske::Form_Load() {
    beschriften();
    const QSignalBlocker vonStill(ui.dtpVon), bisStill(ui.dtpBis);
    ui.dtpVon->setDate(now().date());
    ui.dtpBis->setDate(now().date());
    ui.cmbListe2->setFocus();
    zurücksetzen();
}

bool Filtermaske::Form_QueryUnload() try {
    return fnc_ExcelFreigeben();
} catch (const Fehler &fehler) {
    fehlerBox("13005-", fehler);
    return false; // nothing is pending any more: the next way out is free
}

void Filtermaske::zurücksetzen() {
    mKette.zurücksetzen();
    const QSignalBlocker still(ui.cmbSortierung);
    ui.cmbSortierung->setCurrentIndex(0);
    fnc_FillCombos();
}

void Filtermaske::fnc_FillCombos() {
    const Beschäftigt warten;
    for (int p = 0; p < filteranzahl; ++p) {
        if (mKette.inGebrauch(p))
            continue;
        if (p == datumsfilter)
            gefangen(mArt.listenTag, [this] { fnc_SetDates(); })();
        else if (!filterpositionen(mArt.filter)[static_cast<size_t>(p)].liste.isEmpty())
            füllen(p);
    }
    abfragen();
}

void Filtermaske::listeFüllen(int position) {
    const auto platz = static_cast<size_t>(position);
    const Filterposition &art = filterpositionen(mArt.filter)[platz];
    const Bedingung anweisung = mKette.füllanweisung(position);
    Auswahlliste &auswahl = mAuswahl[platz];
    auswahl.setze(QStringList());
    mGewählt[platz] = -1;
    if (art.liste == "cmbID")
        auswahl.setze(protokollliste(anweisung));
    else
        auswahl.setze(filterliste(anweisung));
    const int anzahl = auswahl.rowCount();
    mGewählt[platz] = anzahl == 1 ? 0 : -1;
    mListen[platz].feld->setCurrentIndex(mGewählt[platz]);
    mListen[platz].beschriftung->setText(inSprache(art.beschriftung) + QString::number(anzahl) +
                                         ')');
}

void Filtermaske::fnc_SetDates() {
    auto [von, bis] = filterdaten(mKette.füllanweisung(datumsfilter));
    if (!von.isValid() || !bis.isValid())
        return;
    if (mArt.filter == Filterart::Wiedervorlage) {
        von = nächsteKalibrierung(von);
        bis = nächsteKalibrierung(bis);
    }
    const QSignalBlocker vonStill(ui.dtpVon), bisStill(ui.dtpBis);
    ui.dtpVon->setDate(von);
    ui.dtpBis->setDate(bis);
}

/// Of a list that offers nothing else there is nothing to choose. A choice that does not count
/// leaves what the rows were chosen by.
void Filtermaske::gewählt(int position) {
    const auto platz = static_cast<size_t>(position);
    Filterfeld &feld = *mListen[platz].feld;
    const int eintrag = feld.currentIndex();
    const QString text = feld.currentText();
    feld.setCurrentIndex(mGewählt[platz]);
    if (feld.count() < 2 || text.isEmpty())
        return;
    mKette.wählen(position, {.text = text});
    mGewählt[platz] = eintrag;
    feld.setCurrentIndex(eintrag);
    fnc_FillCombos();
}

void Filtermaske::cmbKunde_Click() {
    gewählt(kundenfilter);
}

void Filtermaske::dtp_Change(QDateEdit *dtp) {
    if (ui.dtpVon->date() < ui.dtpBis->date()) {
        mAltDatum = dtp->date();
        mKette.wählen(datumsfilter, {.von = ui.dtpVon->date(), .bis = ui.dtpBis->date()});
        fnc_FillCombos();
        return;
    }
    const QSignalBlocker still(dtp);
    dtp->setDate(mAltDatum);
}

void Filtermaske::abfragen() try {
    const Beschäftigt warten;
    fnc_Abfrage();
    ui.DBGrid1->horizontalHeader()->setSortIndicator(
        mKette.mSortSpalte, mKette.mAufsteigend ? Qt::AscendingOrder : Qt::DescendingOrder);
} catch (const Fehler &fehler) {
    fehlerBox(mArt.listenTag, fehler);
}

void Filtermaske::sortieren(bool aufsteigend) {
    mKette.mAufsteigend = aufsteigend;
    abfragen();
}

void Filtermaske::zeigen(int anzahl, Trefferliste::Leser leser) {
    dataSort.setze(anzahl, std::move(leser));
    ui.DBGrid1->scrollToTop();
    if (anzahl > 0)
        ui.DBGrid1->setCurrentIndex(dataSort.index(0, 0));
}
