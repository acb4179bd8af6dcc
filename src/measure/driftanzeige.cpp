#include "measure/driftanzeige.h"

#include <QPainter>

DriftAnzeige::DriftAnzeige(QWidget *parent) : QWidget(parent) {}

void DriftAnzeige::setBalken(const DriftBalken &balken) {
    mBalken = balken;
    update();
}

void DriftAnzeige::paintEvent(QPaintEvent *) {
    QPainter painter(this);
    constexpr int scaleEnd = 300; // mN m
    const QFontMetrics metrics = painter.fontMetrics();
    const int margin = metrics.horizontalAdvance("-300 ");
    const double perUnit = (width() - 2.0 * margin) / (2.0 * scaleEnd * balkenJeMNm);
    const auto x = [&](double units) {
        return margin + (units - balkenMitte) * perUnit + scaleEnd * balkenJeMNm * perUnit;
    };
    const QRectF lane(x(balkenMitte - scaleEnd * balkenJeMNm), 4,
                      2.0 * scaleEnd * balkenJeMNm * perUnit, height() - metrics.height() - 16.0);
    painter.fillRect(lane, palette().base());

    QRectF bar(x(mBalken.links), lane.top(), mBalken.breite * perUnit, lane.height());
    bar = bar.intersected(lane.adjusted(-margin / 2.0, 0, margin / 2.0, 0));
    painter.fillRect(bar, mBalken.rot ? QColor(255, 0, 0) : QColor(64, 128, 192));

    painter.setPen(palette().color(QPalette::Mid));
    painter.drawRect(lane);
    painter.setPen(palette().color(QPalette::WindowText));
    for (int mark = -scaleEnd; mark <= scaleEnd; mark += 150) {
        const double at = x(balkenMitte + mark * balkenJeMNm);
        painter.drawLine(QPointF(at, lane.top()), QPointF(at, lane.bottom() + 4));
        const QString text =
            mark == scaleEnd ? QString("%1 mN m").arg(mark) : QString::number(mark);
        const QRectF box(at - margin, lane.bottom() + 6, 2.0 * margin, metrics.height());
        painter.drawText(box, Qt::AlignHCenter | Qt::TextDontClip, text);
    }
}
