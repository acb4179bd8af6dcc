// Lists of any length without a copy of them: the choices of a filter, and the rows that are left.
#pragma once

#include <QAbstractTableModel>
#include <QComboBox>
#include <QHash>
#include <QStringList>

#include <functional>

#include "records/archivfilter.h"

/// What a filter offers: texts, or archived protocols, whose names are read when they are shown.
class Auswahlliste : public QAbstractListModel {
  public:
    void setze(QStringList einträge);
    void setze(std::vector<Schlüssel> protokolle);

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    /// By the beginning of the text; of protocols by that of the number.
    QModelIndexList match(const QModelIndex &start, int role, const QVariant &value, int hits,
                          Qt::MatchFlags flags) const override;

  private:
    QStringList mEinträge;
    std::vector<Schlüssel> mProtokolle;
};

/// A box with a list that a choice acts upon at once. Keys and wheel therefore open the list and
/// move in it; Enter or a click chooses.
class Filterfeld : public QComboBox {
  public:
    explicit Filterfeld(QWidget *parent = nullptr);

  protected:
    void keyPressEvent(QKeyEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
};

/// Rows by number under heads; a row is read when it is shown.
class Trefferliste : public QAbstractTableModel {
  public:
    struct Zeile {
        QStringList zellen;
        /// Behind the text of one column, in words too.
        int markierteSpalte = -1;
        QVariant zeichen = {};
        QVariant grund = {};
        QString worte = {};
    };
    using Leser = std::function<Zeile(int zeile)>;

    void setKöpfe(const QStringList &köpfe);
    /// `leser` is asked for rows from 0 to `anzahl` - 1, and must not raise.
    void setze(int anzahl, Leser leser);

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

  private:
    QStringList mKöpfe;
    int mAnzahl = 0;
    Leser mLeser;
    mutable QHash<int, Zeile> mGelesen; ///< the rows around those shown last
};
