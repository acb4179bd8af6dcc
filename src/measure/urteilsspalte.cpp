#include "measure/urteilsspalte.h"

#include <QPainter>

#include <algorithm>

#include "measure/urteilsanzeige.h"
#include "windows/stil.h"

using namespace platform;

void Urteilsspalte::paint(QPainter *painter, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const {
    constexpr int sign = 16, gap = 8;
    const Farben &f = farben();
    const QString word = index.data().toString();
    const auto spruch = ausWort(word);
    if (!spruch) {
        QStyledItemDelegate::paint(painter, option, index);
        return;
    }
    const bool pass = spruch == Spruch::Ja;
    const bool chosen = option.state & QStyle::State_Selected;
    painter->save();
    if (!pass || chosen)
        painter->fillRect(option.rect, spruch == Spruch::Nein    ? f.schlechtGrund
                                       : spruch == Spruch::Offen ? f.offenGrund
                                                                 : f.auswahl);
    const QFont font = schrift(0, !pass);
    const int width = QFontMetrics(font).horizontalAdvance(word);
    // In the middle as if each word were the longest: the signs stand below one another.
    const int column =
        sign + gap + QFontMetrics(schrift(0, true)).horizontalAdvance(längstesWort(word));
    const int left = std::max(option.rect.left() + 4, option.rect.center().x() - column / 2);
    const int top = option.rect.center().y() - sign / 2 + 1;
    zeichenMalen(*painter, QRectF(left, top, sign, sign), zeichenZu(spruch));
    painter->setFont(font);
    painter->setPen(f.text);
    painter->drawText(QRect(left + sign + gap, option.rect.top(),
                            std::max(width, option.rect.right() - left - sign - gap),
                            option.rect.height()),
                      Qt::AlignLeft | Qt::AlignVCenter, word);
    painter->restore();
}
