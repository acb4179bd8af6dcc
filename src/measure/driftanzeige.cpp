#include "measure/driftanzeige.h"

#include <QPainter>

#include <algorithm>
#include <set>

#include "platform/runtime.h"
#include "windows/stil.h"
#include "windows/zeichen.h"

using namespace platform;

namespace {

constexpr double sign = 18, tick = 6, gap = 4, leastBar = 4;

/// Where things lie, in pixels.
struct Bahn {
    DriftAnzeige::Skala skala;
    QRectF lane;
    double x(double mNm) const {
        return lane.left() + (mNm + skala.ende) / (2 * skala.ende) * lane.width();
    }
    QRectF zone(double from, double to) const {
        return {QPointF(x(from), lane.top()), QPointF(x(to), lane.bottom())};
    }
};

void zonenMalen(QPainter &painter, const Bahn &bahn) {
    const Farben &f = farben();
    const auto &[warnung, grenze, ende] = bahn.skala;
    painter.fillRect(bahn.lane, f.schlechtGrund);
    painter.fillRect(bahn.zone(-grenze, grenze), f.offenGrund);
    painter.fillRect(bahn.zone(-warnung, warnung), f.gutGrund);
    const auto over = [&](double mNm, Zeichen zeichen) {
        zeichenMalen(painter, QRectF(bahn.x(mNm) - sign / 2, 0, sign, sign), zeichen);
    };
    over(0, Zeichen::Gut);
    for (const int side : {-1, 1}) {
        if (warnung < grenze)
            over(side * (warnung + grenze) / 2, Zeichen::Offen);
        over(side * (grenze + ende) / 2, Zeichen::Schlecht);
    }
}

void balkenMalen(QPainter &painter, const Bahn &bahn, const DriftBalken &balken) {
    const auto at = [&](double units) { return bahn.x((units - balkenMitte) / balkenJeMNm); };
    double left = at(balken.links), right = at(balken.links + balken.breite);
    const bool negative = balken.links < balkenMitte;
    (negative ? left : right) =
        negative ? std::min(left, right - leastBar) : std::max(right, left + leastBar);
    const double height = bahn.lane.height() / 2;
    const QRectF bar(left, bahn.lane.center().y() - height / 2, right - left, height);
    painter.fillRect(bar.intersected(bahn.lane), balken.rot ? QColor(alarmRot) : farben().akzent);
}

/// The marks, in mN m and below in N m, as the deviation is shown.
void markenMalen(QPainter &painter, const Bahn &bahn) {
    const Farben &f = farben();
    const double row = painter.fontMetrics().height();
    const double below = bahn.lane.bottom() + tick + 2;
    const auto number = [&](double at, double top, const QString &text, const QString &unit) {
        const double width = painter.fontMetrics().horizontalAdvance(text);
        painter.drawText(QRectF(at - width / 2, top, 4 * width + 100, row), Qt::AlignLeft,
                         text + unit);
    };
    const auto &[warnung, grenze, ende] = bahn.skala;
    for (const double mark : std::set<double>{-grenze, -warnung, 0.0, warnung, grenze}) {
        const double at = bahn.x(mark);
        painter.setPen(QPen(f.text, mark == 0 ? 1 : 3));
        painter.drawLine(QPointF(at, bahn.lane.top()), QPointF(at, bahn.lane.bottom() + tick));
        const bool last = mark == grenze;
        number(at, below, QString::number(mark), last ? " mN m" : "");
        painter.setPen(f.blass);
        number(at, below + row, Format(mark / 1000, "0.000"), last ? " N m" : "");
    }
}

} // namespace

void DriftAnzeige::setSkala(const Skala &skala) {
    mSkala = skala;
    update();
}

void DriftAnzeige::setBalken(const DriftBalken &balken) {
    mBalken = balken;
    update();
}

void DriftAnzeige::paintEvent(QPaintEvent *) {
    QPainter painter(this);
    const QFontMetrics metrics = painter.fontMetrics();
    const double margin = metrics.horizontalAdvance("0.300 mN m") / 2.0;
    const double bottom = height() - 2.0 * metrics.height() - tick - 2;
    const Bahn bahn{mSkala, QRectF(QPointF(margin, sign + gap), QPointF(width() - margin, bottom))};
    zonenMalen(painter, bahn);
    if (mBalken)
        balkenMalen(painter, bahn, *mBalken);
    painter.setPen(farben().kante);
    painter.drawRect(bahn.lane);
    markenMalen(painter, bahn);
}
