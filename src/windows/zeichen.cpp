#include "windows/zeichen.h"

#include <QPainter>
#include <QPainterPath>
#include <QPixmap>

#include <cmath>
#include <numbers>

#include "windows/stil.h"

namespace platform {

namespace {

QRectF squareIn(const QRectF &rect) {
    const double side = std::min(rect.width(), rect.height());
    QRectF square(0, 0, side, side);
    square.moveCenter(rect.center());
    return square;
}

/// The triangle of 100 by 100 that stands on its base.
QPainterPath triangle() {
    QPainterPath path;
    path.addPolygon(QPolygonF{{50, 8}, {97, 92}, {3, 92}});
    path.closeSubpath();
    return path;
}

void mark(QPainter &painter, bool question) {
    if (question) {
        QPainterPath hook({36, 48});
        hook.cubicTo({36, 30}, {64, 30}, {64, 47});
        hook.cubicTo({64, 58}, {50, 58}, {50, 69});
        painter.drawPath(hook);
    } else {
        painter.drawLine(QPointF(50, 38), QPointF(50, 66));
    }
    painter.drawPoint(QPointF(50, 82));
}

void stroke(QPainter &painter, Zeichen zeichen) {
    if (zeichen == Zeichen::Gut) {
        painter.drawPolyline(QPolygonF{{27, 52}, {44, 69}, {74, 34}});
        return;
    }
    painter.drawLine(QPointF(30, 30), QPointF(70, 70));
    painter.drawLine(QPointF(70, 30), QPointF(30, 70));
}

QPixmap haltBild(const QColor &farbe, double dichte) {
    constexpr int side = 16;
    QPixmap pixmap(QSize(side, side) * dichte);
    pixmap.setDevicePixelRatio(dichte);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    haltMalen(painter, QRectF(1, 1, side - 2, side - 2), farbe);
    return pixmap;
}

} // namespace

QColor zeichenFarbe(Zeichen zeichen) {
    const Farben &f = farben();
    switch (zeichen) {
    case Zeichen::Gut:
        return f.gut;
    case Zeichen::Schlecht:
        return f.schlecht;
    case Zeichen::Offen:
    case Zeichen::Achtung:
        return f.offen;
    case Zeichen::Kein:
        break;
    }
    return f.kante;
}

void zeichenMalen(QPainter &painter, const QRectF &rect, Zeichen zeichen) {
    const QRectF square = squareIn(rect);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(square.topLeft());
    painter.scale(square.width() / 100, square.height() / 100); // drawn on a sheet of 100 by 100
    painter.setPen(Qt::NoPen);
    painter.setBrush(zeichenFarbe(zeichen));
    QPen line(farben().feld, 11, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
    switch (zeichen) {
    case Zeichen::Kein: {
        QPen ring(farben().kante, 7);
        ring.setDashPattern({2, 1.6});
        painter.setPen(ring);
        painter.setBrush(Qt::NoBrush);
        painter.drawEllipse(QRectF(6, 6, 88, 88));
        break;
    }
    case Zeichen::Gut:
        painter.drawEllipse(QRectF(2, 2, 96, 96));
        painter.setPen(line);
        painter.setBrush(Qt::NoBrush);
        stroke(painter, zeichen);
        break;
    case Zeichen::Schlecht:
        painter.drawRoundedRect(QRectF(4, 4, 92, 92), 6, 6);
        painter.setPen(line);
        stroke(painter, zeichen);
        break;
    case Zeichen::Offen:
    case Zeichen::Achtung:
        painter.setPen(QPen(zeichenFarbe(zeichen), 6, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter.drawPath(triangle());
        line.setWidth(10);
        painter.setPen(line);
        painter.setBrush(Qt::NoBrush);
        mark(painter, zeichen == Zeichen::Offen);
        break;
    }
    painter.restore();
}

void strichMalen(QPainter &painter, const QRectF &rect, Zeichen zeichen, const QColor &farbe) {
    const QRectF square = squareIn(rect);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(square.topLeft());
    painter.scale(square.width() / 60, square.height() / 60); // the middle of the sheet
    painter.translate(-20, -21);
    painter.setPen(QPen(farbe, 11, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    stroke(painter, zeichen);
    painter.restore();
}

void hinweisMalen(QPainter &painter, const QRectF &rect, bool frage) {
    const QRectF square = squareIn(rect);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(square.topLeft());
    painter.scale(square.width() / 100, square.height() / 100);
    painter.setPen(Qt::NoPen);
    painter.setBrush(farben().akzent);
    painter.drawEllipse(QRectF(2, 2, 96, 96));
    painter.setPen(QPen(farben().feld, 11, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
    if (frage) {
        painter.translate(0, -6);
        mark(painter, true);
    } else {
        painter.drawPoint(QPointF(50, 27));
        painter.drawLine(QPointF(50, 48), QPointF(50, 75));
    }
    painter.restore();
}

void drehpfeilMalen(QPainter &painter, const QRectF &rect, bool rechtsherum, const QColor &farbe) {
    const QRectF square = squareIn(rect);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(square.center());
    painter.scale(square.width() / 100 * (rechtsherum ? 1 : -1), square.height() / 100);
    constexpr double radius = 36, width = 11;
    // From below right around by the left to above right, clockwise; the head points along the arc.
    constexpr double end = 20; // degrees above the right, where the head stands
    const QRectF arc(-radius, -radius, 2 * radius, 2 * radius);
    painter.setPen(QPen(farbe, width, Qt::SolidLine, Qt::FlatCap));
    painter.setBrush(Qt::NoBrush);
    painter.drawArc(arc, qRound((end + 22) * 16), 258 * 16);
    constexpr double angle = (end + 22) * std::numbers::pi / 180;
    painter.translate(radius * std::cos(angle), -radius * std::sin(angle));
    painter.rotate(90 - (end + 22)); // along the arc
    painter.setPen(Qt::NoPen);
    painter.setBrush(farbe);
    painter.drawPolygon(QPolygonF{{-2, -18}, {-2, 18}, {24, 0}});
    painter.restore();
}

void weiterMalen(QPainter &painter, const QRectF &rect, const QString &wort) {
    const QRectF square = squareIn(rect);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(
        QPen(farben().akzent, square.width() / 20, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(farben().akzent);
    const double edge = square.width() / 30;
    painter.drawPolygon(QPolygonF{square.topLeft() + QPointF(edge, edge),
                                  QPointF(square.right() - edge, square.center().y()),
                                  square.bottomLeft() + QPointF(edge, -edge)});
    painter.setPen(farben().feld);
    QFont font = schrift(20, true);
    font.setPixelSize(std::max(1, int(square.height() * (wort.size() < 2 ? 0.45 : 0.34))));
    painter.setFont(font);
    painter.drawText(square.adjusted(edge, 0, -square.width() * 0.32, 0), Qt::AlignCenter, wort);
    painter.restore();
}

void haltMalen(QPainter &painter, const QRectF &rect, const QColor &farbe) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(farbe);
    painter.drawRoundedRect(squareIn(rect), 1, 1);
    painter.restore();
}

QIcon haltIcon() {
    QIcon icon;
    for (const double dichte : {1.0, 2.0}) {
        icon.addPixmap(haltBild(farben().text, dichte));
        icon.addPixmap(haltBild(farben().gesperrt, dichte), QIcon::Disabled);
    }
    return icon;
}

void Bild::zeige(Maler maler, const QString &worte) {
    mMaler = std::move(maler);
    setAccessibleName(worte);
    update();
}

void Bild::zeige(Zeichen zeichen, const QString &worte) {
    zeige(
        [zeichen](QPainter &painter, const QRectF &rect) { zeichenMalen(painter, rect, zeichen); },
        worte);
}

void Bild::paintEvent(QPaintEvent *) {
    if (!mMaler)
        return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    mMaler(painter, rect());
}

} // namespace platform
