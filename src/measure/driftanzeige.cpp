#include "measure/driftanzeige.h"

#include <QPainter>

#include <algorithm>

#include "platform/runtime.h"
#include "windows/stil.h"
#include "windows/zeichen.h"

using namespace platform;

namespace {

constexpr double beyond = 40; // mN m that the lane goes on past the limit
constexpr double sign = 18, tick = 6, gap = 4, leastBar = 4;

/// Where things lie, in pixels.
struct Skala {
    QRectF lane;
    double x(double mNm) const {
        const double end = statikGrenze + beyond;
        return lane.left() + (mNm + end) / (2 * end) * lane.width();
    }
    QRectF zone(double from, double to) const {
        return {QPointF(x(from), lane.top()), QPointF(x(to), lane.bottom())};
    }
};

void zonenMalen(QPainter &painter, const Skala &skala) {
    const Farben &f = farben();
    painter.fillRect(skala.lane, f.schlechtGrund);
    painter.fillRect(skala.zone(-statikGrenze, statikGrenze), f.offenGrund);
    painter.fillRect(skala.zone(-statikWarnung, statikWarnung), f.gutGrund);
    const auto over = [&](double mNm, Zeichen zeichen) {
        zeichenMalen(painter, QRectF(skala.x(mNm) - sign / 2, 0, sign, sign), zeichen);
    };
    over(0, Zeichen::Gut);
    for (const int side : {-1, 1}) {
        over(side * (statikWarnung + statikGrenze) / 2, Zeichen::Offen);
        over(side * (statikGrenze + beyond / 2), Zeichen::Schlecht);
    }
}

void balkenMalen(QPainter &painter, const Skala &skala, const DriftBalken &balken) {
    const auto at = [&](double units) { return skala.x((units - balkenMitte) / balkenJeMNm); };
    double left = at(balken.links), right = at(balken.links + balken.breite);
    const bool negative = balken.links < balkenMitte;
    (negative ? left : right) =
        negative ? std::min(left, right - leastBar) : std::max(right, left + leastBar);
    const double height = skala.lane.height() / 2;
    const QRectF bar(left, skala.lane.center().y() - height / 2, right - left, height);
    painter.fillRect(bar.intersected(skala.lane), balken.rot ? QColor(alarmRot) : farben().akzent);
}

/// The marks, in mN m and below in N m, as the deviation is shown.
void markenMalen(QPainter &painter, const Skala &skala) {
    const Farben &f = farben();
    const double row = painter.fontMetrics().height();
    const double below = skala.lane.bottom() + tick + 2;
    const auto number = [&](double at, double top, const QString &text, const QString &unit) {
        const double width = painter.fontMetrics().horizontalAdvance(text);
        painter.drawText(QRectF(at - width / 2, top, 4 * width + 100, row), Qt::AlignLeft,
                         text + unit);
    };
    for (const double mark : {-statikGrenze, -statikWarnung, 0.0, statikWarnung, statikGrenze}) {
        const double at = skala.x(mark);
        painter.setPen(QPen(f.text, mark == 0 ? 1 : 3));
        painter.drawLine(QPointF(at, skala.lane.top()), QPointF(at, skala.lane.bottom() + tick));
        const bool last = mark == statikGrenze;
        number(at, below, QString::number(mark), last ? " mN m" : "");
        painter.setPen(f.blass);
        number(at, below + row, Format(mark / 1000, "0.000"), last ? " N m" : "");
    }
}

} // namespace

void DriftAnzeige::setBalken(const DriftBalken &balken) {
    mBalken = balken;
    update();
}

void DriftAnzeige::paintEvent(QPaintEvent *) {
    QPainter painter(this);
    const QFontMetrics metrics = painter.fontMetrics();
    const double margin = metrics.horizontalAdvance("0.300 mN m") / 2.0;
    const double bottom = height() - 2.0 * metrics.height() - tick - 2;
    const Skala skala{QRectF(QPointF(margin, sign + gap), QPointF(width() - margin, bottom))};
    zonenMalen(painter, skala);
    if (mBalken)
        balkenMalen(painter, skala, *mBalken);
    painter.setPen(farben().kante);
    painter.drawRect(skala.lane);
    markenMalen(painter, skala);
}
