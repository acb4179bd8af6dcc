// A column of verdicts: its sign before the unchanged word; bold on a tint where it is no pass.
#pragma once

#include <QStyledItemDelegate>

class Urteilsspalte : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;
    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
};
