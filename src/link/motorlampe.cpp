#include "link/motorlampe.h"

#include <QPainter>

#include "session/session.h"
#include "session/sprache.h"
#include "windows/stil.h"

using namespace platform;

namespace {

constexpr std::int16_t links = 2;

void lampeMalen(QPainter &painter, const QRectF &rect) {
    const Farben &f = farben();
    const QRectF kreis = rect.adjusted(2, 2, -2, -2);
    painter.setPen(QPen(gMotorEin ? f.akzent : f.kante, 2));
    painter.setBrush(gMotorEin ? QBrush(f.akzent) : Qt::NoBrush);
    painter.drawEllipse(kreis);
    const double viertel = kreis.width() / 4;
    if (gMotorEin)
        drehpfeilMalen(painter, kreis.adjusted(4, 4, -4, -4), gDrehrichtung != links, f.feld);
    else
        haltMalen(painter,
                  kreis.adjusted(viertel, viertel, -viertel, -viertel).adjusted(2, 2, -2, -2),
                  f.kante);
}

} // namespace

void motorZeigen(Bild &lampe) {
    lampe.zeige(lampeMalen, inSprache(gMotorEin ? Text{"Motor ein", "Motor on"}
                                                : Text{"Motor aus", "Motor off"}));
}

void richtungZeigen(Bild &pfeil) {
    if (gDrehrichtung == 0) {
        pfeil.zeige([](QPainter &, const QRectF &) {}, {});
        return;
    }
    const bool rechts = gDrehrichtung != links;
    pfeil.zeige(
        [rechts](QPainter &painter, const QRectF &rect) {
            drehpfeilMalen(painter, rect, rechts, farben().text);
        },
        inSprache(rechts ? Text{"Rechtslauf", "Right"} : Text{"Linkslauf", "Left"}));
}
