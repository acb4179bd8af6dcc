#include "recall/listen.h"

#include <QKeyEvent>
#include <QListView>
#include <QWheelEvent>

#include "platform/fehler.h"

namespace {

constexpr int gemerkteZeilen = 400;

} // namespace

void Auswahlliste::setze(QStringList einträge) {
    beginResetModel();
    mEinträge = std::move(einträge);
    mProtokolle.clear();
    endResetModel();
}

void Auswahlliste::setze(std::vector<Schlüssel> protokolle) {
    beginResetModel();
    mEinträge.clear();
    mProtokolle = std::move(protokolle);
    endResetModel();
}

int Auswahlliste::rowCount(const QModelIndex &parent) const {
    if (parent.isValid())
        return 0;
    return static_cast<int>(mEinträge.size()) + static_cast<int>(mProtokolle.size());
}

QVariant Auswahlliste::data(const QModelIndex &index, int role) const {
    if (!index.isValid() || index.row() >= rowCount() ||
        (role != Qt::DisplayRole && role != Qt::EditRole))
        return {};
    if (mProtokolle.empty())
        return mEinträge[index.row()];
    try {
        return protokolleintrag(mProtokolle[static_cast<size_t>(index.row())]);
    } catch (const Fehler &) { // is told where it is chosen
        return QString::number(mProtokolle[static_cast<size_t>(index.row())]);
    }
}

QModelIndexList Auswahlliste::match(const QModelIndex &start, int role, const QVariant &value,
                                    int hits, Qt::MatchFlags flags) const {
    const int anzahl = rowCount();
    const QString anfang = value.toString();
    const bool beginn = (flags & Qt::MatchTypeMask) == Qt::MatchStartsWith;
    if (mProtokolle.empty() || hits != 1 || !beginn)
        return QAbstractListModel::match(start, role, value, hits, flags);
    for (int i = 0; i < anzahl; ++i) {
        const int zeile = (start.row() + i) % anzahl;
        if (QString::number(mProtokolle[static_cast<size_t>(zeile)]).startsWith(anfang))
            return {index(zeile, 0)};
    }
    return {};
}

Filterfeld::Filterfeld(QWidget *parent) : QComboBox(parent) {
    if (auto *liste = qobject_cast<QListView *>(view()))
        liste->setUniformItemSizes(true);
}

void Filterfeld::keyPressEvent(QKeyEvent *event) {
    const bool schreibt = !event->text().isEmpty() && event->text()[0].isPrint() &&
                          !(event->modifiers() & (Qt::ControlModifier | Qt::AltModifier));
    const bool bewegt = event->key() == Qt::Key_Up || event->key() == Qt::Key_Down ||
                        event->key() == Qt::Key_PageUp || event->key() == Qt::Key_PageDown ||
                        event->key() == Qt::Key_Home || event->key() == Qt::Key_End;
    if (!schreibt && !bewegt) {
        QComboBox::keyPressEvent(event);
        return;
    }
    if (count() > 0)
        showPopup();
    if (schreibt && event->key() != Qt::Key_Space && count() > 0)
        view()->keyboardSearch(event->text());
    event->accept();
}

void Filterfeld::wheelEvent(QWheelEvent *event) {
    event->ignore();
}

void Trefferliste::setKöpfe(const QStringList &köpfe) {
    beginResetModel();
    mKöpfe = köpfe;
    endResetModel();
}

void Trefferliste::setze(int anzahl, Leser leser) {
    beginResetModel();
    mAnzahl = anzahl;
    mLeser = std::move(leser);
    mGelesen.clear();
    endResetModel();
}

int Trefferliste::rowCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : mAnzahl;
}

int Trefferliste::columnCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : static_cast<int>(mKöpfe.size());
}

QVariant Trefferliste::data(const QModelIndex &index, int role) const {
    if (!index.isValid() || index.row() >= mAnzahl || index.column() >= columnCount())
        return {};
    auto zeile = mGelesen.constFind(index.row());
    if (zeile == mGelesen.constEnd()) {
        if (mGelesen.size() >= gemerkteZeilen)
            mGelesen.clear();
        zeile = mGelesen.insert(index.row(), mLeser(index.row()));
    }
    if (role == Qt::DisplayRole)
        return zeile->zellen.value(index.column());
    if (index.column() != zeile->markierteSpalte)
        return {};
    switch (role) {
    case Qt::DecorationRole:
        return zeile->zeichen;
    case Qt::BackgroundRole:
        return zeile->grund;
    case Qt::ToolTipRole:
        return zeile->worte;
    case Qt::AccessibleTextRole:
        return zeile->zellen.value(index.column()) + ' ' + zeile->worte;
    default:
        return {};
    }
}

QVariant Trefferliste::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    return mKöpfe.value(section);
}
