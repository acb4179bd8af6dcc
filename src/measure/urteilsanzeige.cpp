#include "measure/urteilsanzeige.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

#include "platform/runtime.h"
#include "session/sprache.h"
#include "windows/stil.h"

using namespace platform;

namespace {

constexpr int luft = 16;

/// With so many decimals at least, and as many as it takes to say all up to the sixth: a limit and
/// a deviation that differ never read alike.
QString number(double value, int decimals, int most = 6) {
    while (decimals < most && Round(value, decimals) != Round(value, 6))
        ++decimals;
    return Format(value, "0." + QString(decimals, '0'));
}

QString withSign(double value) {
    const QString sign = value > 0 ? "+" : value < 0 ? "−" : "±";
    return sign + number(std::fabs(value), 2);
}

QString limitText(const Vorschau::Vergleich &is) {
    return "± " + number(is.abstand.t, 1) + ' ' + is.einheit;
}

QString uncertaintyText(const Vorschau::Vergleich &is) {
    return "± " + number(is.abstand.u, 2, 3) + ' ' + is.einheit;
}

int widthOf(const QFont &font, const QString &text) {
    return QFontMetrics(font).horizontalAdvance(text);
}

void write(QPainter &painter, const QPointF &baseline, const QFont &font, const QColor &color,
           const QString &text) {
    painter.setFont(font);
    painter.setPen(color);
    painter.drawText(baseline, text);
}

const Text permissible{"zulässig", "permissible"}, uncertain{"Unsicherheit", "uncertainty"};

/// Caption, and the deviation with its unit below; answers where they end.
double drawDeviation(QPainter &painter, const QRectF &rect, const Vorschau::Vergleich &is) {
    const QFont large = schrift(40, true), unit = schrift(12, true);
    write(painter, {rect.left(), rect.top() + QFontMetrics(schrift(0)).ascent() + 4}, schrift(0),
          farben().blass, is.was);
    const double baseline = rect.bottom() - QFontMetrics(large).descent() + 2;
    const QString value = withSign(is.abstand.d);
    write(painter, {rect.left(), baseline}, large, farben().text, value);
    write(painter, {rect.left() + widthOf(large, value) + 8, baseline}, unit, farben().text,
          is.einheit);
    const int longest = std::max(widthOf(large, value), widthOf(large, "+88" + number(8, 2)));
    return rect.left() +
           std::max(longest + 8 + widthOf(unit, is.einheit), widthOf(schrift(0), is.was)) +
           2 * luft;
}

/// Limit and uncertainty, one below the other; answers where they end.
double drawLimits(QPainter &painter, const QRectF &rect, const Vorschau::Vergleich &is) {
    const QFont small = schrift(0), value = schrift(12, true);
    double y = rect.top() + 3, widest = widthOf(value, "± 88" + number(8, 1) + ' ' + is.einheit);
    for (const auto &[caption, text] :
         {std::pair{permissible, limitText(is)}, std::pair{uncertain, uncertaintyText(is)}}) {
        y += QFontMetrics(small).ascent();
        write(painter, {rect.left(), y}, small, farben().blass, inSprache(caption));
        y += QFontMetrics(value).height() - 2;
        write(painter, {rect.left(), y}, value, farben().text, text);
        y += 6;
        widest = std::max<double>(widest, widthOf(value, text));
    }
    return rect.left() + widest + 2 * luft;
}

/// From -1.6 T to 1.6 T, with posts at the limits, the band in which uncertainty leaves it open,
/// and the pointer with its own uncertainty. What lies beyond is pointed at outwards.
void drawScale(QPainter &painter, const QRectF &rect, const Vorschau::Vergleich &is) {
    const Farben &f = farben();
    const auto [d, u, t] = is.abstand;
    const double end = t > 0 ? 1.6 * t : 1.6 * std::max(std::fabs(d), 1.0);
    const double middle = rect.center().x(), half = rect.width() / 2;
    const auto x = [&](double value) { return middle + std::clamp(value / end, -1., 1.) * half; };
    const QFont small = schrift(0);
    const QRectF lane(rect.left(), rect.top() + 14, rect.width(),
                      rect.height() - 18 - QFontMetrics(small).height() - 4);

    const auto zone = [&](double from, double to, const QColor &color) {
        const QRectF part(x(from), lane.top(), x(to) - x(from), lane.height());
        painter.fillRect(part.toRect(), color);
    };
    const double open = std::min(u, t);
    zone(-end, end, f.schlechtGrund);
    zone(-t - u, t + u, f.offenGrund);
    zone(-t + open, t - open, f.gutGrund);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(f.kante, 1));
    painter.drawRect(lane);
    painter.drawLine(QPointF(middle, lane.top()), QPointF(middle, lane.bottom()));
    painter.setPen(QPen(f.text, 4, Qt::SolidLine, Qt::FlatCap));
    painter.setFont(small);
    const bool narrow = rect.width() < 170; // the unit stands beside the deviation as well
    for (const double mark : {-t, 0.0, t}) {
        if (mark != 0)
            painter.drawLine(QPointF(x(mark), lane.top() - 4), QPointF(x(mark), lane.bottom() + 4));
        const QString text = mark == 0  ? QString("0")
                             : mark < 0 ? "−" + number(t, 1)
                             : narrow   ? '+' + number(t, 1)
                                        : '+' + number(t, 1) + ' ' + is.einheit;
        painter.drawText(QRectF(x(mark) - 60, lane.bottom() + 5, 120, 20),
                         Qt::AlignHCenter | Qt::AlignTop, text);
    }

    painter.setPen(Qt::NoPen);
    painter.setBrush(f.text);
    const double at = x(d), y = lane.center().y();
    if (std::fabs(d) > end) {
        const double out = d < 0 ? -1 : 1;
        painter.drawPolygon(QPolygonF{{at, y - 14}, {at, y + 14}, {at + out * luft * 0.9, y}});
        painter.drawRect(QRectF(at - 3, lane.top(), 6, lane.height()));
        return;
    }
    painter.drawRect(QRectF(x(d - u), y - 3, std::max(4.0, x(d + u) - x(d - u)), 6));
    painter.drawRect(QRectF(at - 2.5, lane.top(), 5, lane.height()));
    painter.drawPolygon(
        QPolygonF{{at - 10, lane.top() - 12}, {at + 10, lane.top() - 12}, {at, lane.top() + 7}});
}

int widthOfWords(const std::vector<Vorschau::Urteilswort> &words) {
    int widest = 0;
    for (const auto &word : words)
        widest = std::max(widest, widthOf(schrift(0), word.kopf + ": ") +
                                      widthOf(schrift(0, true), längstesWort(word.wort)));
    return words.empty() ? 0 : widest + 28 + 2 * luft;
}

void drawWords(QPainter &painter, const QRectF &rect,
               const std::vector<Vorschau::Urteilswort> &words) {
    constexpr double sign = 20, step = 30;
    double y = rect.center().y() - step * double(words.size() - 1) / 2;
    for (const auto &word : words) {
        zeichenMalen(painter, {rect.left(), y - sign / 2, sign, sign}, zeichenZu(word.spruch));
        const double x = rect.left() + sign + 8, baseline = y + 5;
        write(painter, {x, baseline}, schrift(0), farben().text, word.kopf + ':');
        write(painter, {x + widthOf(schrift(0), word.kopf + ": "), baseline}, schrift(0, true),
              farben().text, word.wort);
        y += step;
    }
}

} // namespace

Zeichen zeichenZu(std::optional<Spruch> spruch) {
    return !spruch                    ? Zeichen::Kein
           : *spruch == Spruch::Ja    ? Zeichen::Gut
           : *spruch == Spruch::Offen ? Zeichen::Offen
                                      : Zeichen::Schlecht;
}

void taktMalen(QPainter &painter, const QRectF &rect, const Taktstand &stand) {
    const Farben &f = farben();
    const double width = std::max(2.0, rect.width() * 0.1);
    const QRectF ring = rect.adjusted(width, width, -width, -width);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(stand.überfällig ? f.schlecht : f.kante, width / 2));
    painter.drawEllipse(ring);
    if (stand.überfällig) {
        QFont font = schrift(0, true);
        font.setPixelSize(std::max(9, int(rect.height() * 0.6)));
        painter.setFont(font);
        painter.drawText(rect, Qt::AlignCenter, "?");
    } else {
        painter.setPen(QPen(f.akzent, width, Qt::SolidLine, Qt::FlatCap));
        painter.drawArc(ring, 90 * 16, -int(stand.anteil * 360 * 16));
    }
    painter.restore();
}

void Urteilsanzeige::zeige(const Vorschau &vorschau) {
    QStringList worte;
    for (const auto &is : vorschau.vergleiche) {
        worte += is.was + ' ' + withSign(is.abstand.d) + ' ' + is.einheit;
        worte += inSprache(permissible) + ' ' + limitText(is);
        worte += inSprache(uncertain) + ' ' + uncertaintyText(is);
    }
    for (const auto &word : vorschau.wörter)
        worte += word.kopf + ": " + word.wort;
    setInhalt({vorschau.spruch, {}, vorschau}, worte.join(", "));
}

void Urteilsanzeige::zeige(std::optional<Spruch> spruch, const QString &worte) {
    setInhalt({spruch, worte, {}}, worte);
}

void Urteilsanzeige::setInhalt(const Inhalt &inhalt, const QString &worte) {
    if (inhalt == mInhalt)
        return;
    mInhalt = inhalt;
    setAccessibleName(worte);
    update();
}

void Urteilsanzeige::zeigeTakt(std::optional<Taktstand> stand) {
    mTakt = stand;
    if (!mInhalt.spruch)
        update(zeichenPlatz().toAlignedRect());
}

QRectF Urteilsanzeige::zeichenPlatz() const {
    constexpr double seite = 60;
    return {double(luft), (height() - seite) / 2, seite, seite};
}

void Urteilsanzeige::paintEvent(QPaintEvent *) {
    const Farben &f = farben();
    QPainter painter(this);
    painter.fillRect(rect(), f.linie); // round corners would cost as much as all the rest
    painter.fillRect(rect().adjusted(1, 1, -1, -1), f.feld);
    painter.setRenderHint(QPainter::Antialiasing);
    if (!mInhalt.spruch && mTakt)
        taktMalen(painter, zeichenPlatz(), *mTakt);
    else
        zeichenMalen(painter, zeichenPlatz(), zeichenZu(mInhalt.spruch));

    QRectF rest = QRectF(rect()).adjusted(zeichenPlatz().right() + luft, 0, -luft, 0);
    const auto &vergleiche = mInhalt.vorschau.vergleiche;
    if (vergleiche.empty()) {
        painter.setFont(schrift(20, true));
        painter.setPen(f.text);
        painter.drawText(rest, Qt::AlignLeft | Qt::AlignVCenter, mInhalt.worte);
        return;
    }
    const int words = widthOfWords(mInhalt.vorschau.wörter);
    drawWords(painter, QRectF(rest.right() - words + 2 * luft, 0, words, height()),
              mInhalt.vorschau.wörter);
    rest.setRight(rest.right() - words);
    const double width = rest.width() / double(vergleiche.size());
    for (const auto &is : vergleiche) {
        QRectF cell(rest.left(), 0, width, height());
        cell.setLeft(drawDeviation(painter, cell, is));
        if (vergleiche.size() == 1)
            cell.setLeft(drawLimits(painter, cell, is)); // else the scale says it alone
        drawScale(painter, cell.adjusted(0, 0, -2 * luft, 0), is);
        rest.setLeft(rest.left() + width);
    }
}
