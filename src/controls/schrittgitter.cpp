#include "controls/schrittgitter.h"

#include <QHeaderView>
#include <QScopedValueRollback>
#include <QTableView>

#include <algorithm>

#include "controls/recordsetmodel.h"
#include "session/sprache.h"

void Schrittgitter::verbinden(QTableView *gitter, std::vector<Spalte> spalten) {
    mGitter = gitter;
    mSpalten = std::move(spalten);
    mModell = new RecordsetModel;
    mModell->setParent(gitter);
    gitter->setModel(mModell);
    gitter->verticalHeader()->hide();
}

void Schrittgitter::beschriften() {
    std::vector<RecordsetModel::Spalte> columns;
    for (const auto &[name, head, alignment] : mSpalten)
        columns.push_back({name, inSprache(head), alignment});
    mModell->setSpalten(std::move(columns));
    QHeaderView *head = mGitter->horizontalHeader();
    head->setSectionResizeMode(QHeaderView::ResizeToContents);
    head->setStretchLastSection(true);
    head->setHighlightSections(false); // regular, whatever is chosen
}

void Schrittgitter::zeigen(const Recordset &schritte) {
    const QScopedValueRollback own(mSelbst, true);
    mModell->setRecordset(schritte);
}

const Recordset &Schrittgitter::schritte() const {
    return mModell->recordset();
}

int Schrittgitter::zeile() const {
    return mGitter->currentIndex().row();
}

void Schrittgitter::gehen(int zeile) {
    if (leer())
        return;
    const QScopedValueRollback own(mSelbst, true);
    const int row = std::clamp(zeile, 0, schritte().count() - 1);
    mGitter->setCurrentIndex(mModell->index(row, 0));
    mGitter->scrollTo(mGitter->currentIndex());
}

Recordset Schrittgitter::aktuell() const {
    Recordset rows = schritte();
    rows.moveTo(zeile());
    return rows;
}
