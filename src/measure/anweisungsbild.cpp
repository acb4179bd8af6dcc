#include "measure/anweisungsbild.h"

#include <QPainter>

#include <cmath>
#include <numbers>

#include "session/sprache.h"
#include "windows/stil.h"

using namespace platform;

namespace {

// Drawn on a sheet of 220 by 150; the axis of the shaft:
constexpr double axis = 64;
constexpr double left = 66, right = 154; // where the machines end

QPen line(double width, const QColor &color) {
    return {color, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin};
}

void machine(QPainter &painter, const QRectF &body, const QString &name) {
    painter.setPen(line(3, farben().text));
    painter.setBrush(farben().feld);
    painter.drawRoundedRect(body, 6, 6);
    painter.drawText(QRectF(body.left() - 20, body.bottom() + 6, body.width() + 40, 24),
                     Qt::AlignHCenter | Qt::AlignTop, name);
}

/// The standard with its torque on the left, the unit under test with its dial on the right.
void machines(QPainter &painter) {
    machine(painter, QRectF(2, axis - 46, left - 2, 92), inSprache({"Normal", "Normal"}));
    painter.drawEllipse(QPointF(34, axis), 17, 17);
    painter.drawArc(QRectF(24, axis - 10, 20, 20), 40 * 16, 280 * 16);
    machine(painter, QRectF(right, axis - 46, left - 2, 92), inSprache({"Gerät", "Unit"}));
    painter.drawEllipse(QPointF(186, axis), 20, 20);
    painter.drawLine(QPointF(186, axis), QPointF(198, axis - 10));
    painter.setPen(Qt::NoPen);
    painter.setBrush(farben().text);
    for (const double flange : {left, right - 8})
        painter.drawRect(QRectF(flange, axis - 10, 8, 20));
}

void shaft(QPainter &painter, const QPointF &from, const QPointF &to) {
    painter.setPen(line(9, farben().text));
    painter.drawLine(from, to);
    painter.setPen(Qt::NoPen);
    painter.setBrush(farben().text);
    for (const QPointF &joint : {from, to})
        painter.drawEllipse(joint, 9, 9);
}

void arrow(QPainter &painter, double from, double to, double y) {
    const double back = to > from ? -12 : 12;
    painter.setPen(line(5, farben().akzent));
    painter.setBrush(Qt::NoBrush);
    painter.drawLine(QPointF(from, y), QPointF(to, y));
    painter.drawPolyline(QPolygonF{{to + back, y - 10}, {to, y}, {to + back, y + 10}});
}

void apart(QPainter &painter) {
    machines(painter);
    shaft(painter, {right - 12, axis + 4}, {110, axis + 32});
    arrow(painter, 82, 132, axis - 30);
}

void joined(QPainter &painter) {
    machines(painter);
    shaft(painter, {left + 14, axis}, {right - 14, axis});
    arrow(painter, 138, 88, axis - 30);
}

/// `mirrored`: all but the word.
void leverArm(QPainter &painter, bool mirrored = false) {
    constexpr double x = 164, y = 62, sheet = 220;
    const QRectF body(116, y - 46, 96, 92);
    const QRectF there(sheet - body.right(), body.top(), body.width(), body.height());
    machine(painter, mirrored ? there : body, inSprache({"Normal", "Normal"}));
    if (mirrored) {
        painter.translate(sheet, 0);
        painter.scale(-1, 1);
    }
    painter.setPen(line(10, farben().text));
    painter.drawLine(QPointF(24, y), QPointF(x, y));
    painter.setPen(line(3, farben().text));
    painter.drawLine(QPointF(24, y), QPointF(24, y + 28));
    painter.setBrush(farben().text);
    painter.drawRoundedRect(QRectF(10, y + 28, 28, 34), 3, 3);
    QPolygonF hexagon;
    for (int corner = 0; corner < 6; ++corner) {
        const double angle = corner * std::numbers::pi / 3;
        hexagon += QPointF(x + 22 * std::cos(angle), y + 22 * std::sin(angle));
    }
    painter.setBrush(farben().feld);
    painter.drawPolygon(hexagon);
}

} // namespace

void anweisungZeigen(Bild &bild, Anweisung anweisung) {
    switch (anweisung) {
    case Anweisung::Abkoppeln:
        return bild.zeige([](QPainter &painter, const QRectF &) { apart(painter); },
                          inSprache({"Welle abgekoppelt", "Shaft uncoupled"}));
    case Anweisung::Ankoppeln:
        return bild.zeige([](QPainter &painter, const QRectF &) { joined(painter); },
                          inSprache({"Welle angekoppelt", "Shaft coupled"}));
    case Anweisung::Hebelarm:
        return bild.zeige([](QPainter &painter, const QRectF &) { leverArm(painter); },
                          inSprache({"Hebelarm waagerecht", "Lever arm level"}));
    case Anweisung::HebelarmRechts:
        return bild.zeige([](QPainter &painter, const QRectF &) { leverArm(painter, true); },
                          inSprache({"Hebelarm waagerecht, rechts", "Lever arm level, right"}));
    case Anweisung::Halt:
        return bild.zeige(
            [](QPainter &painter, const QRectF &rect) {
                zeichenMalen(painter, rect.adjusted(15, 15, -15, -15), Zeichen::Schlecht);
            },
            inSprache({"Nicht zulässig", "Not permissible"}));
    }
}
