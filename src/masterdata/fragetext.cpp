#include "masterdata/fragetext.h"

#include <QPainter>
#include <QRegularExpression>
#include <QtMath>

QList<QTextLayout::FormatRange> mengen(const QString &frage) {
    static const QRegularExpression menge(
        R"(\b(ein|a|one|\d+) (Geräte?|Protokolle?|units?|protocols?)\b)",
        QRegularExpression::UseUnicodePropertiesOption);
    QTextLayout::FormatRange fett;
    fett.format.setFontWeight(QFont::Bold);
    QList<QTextLayout::FormatRange> ranges;
    auto found = menge.globalMatch(frage, frage.lastIndexOf('\'') + 1);
    while (found.hasNext()) {
        const QRegularExpressionMatch match = found.next();
        fett.start = static_cast<int>(match.capturedStart());
        fett.length = static_cast<int>(match.capturedLength());
        ranges += fett;
    }
    return ranges;
}

/// Lays the text out; answers its height.
double Fragetext::setzen(QTextLayout &satz, int breite) const {
    QString shown = text().replace('\n', QChar::LineSeparator);
    const auto ranges = mengen(shown);
    for (const auto &range : ranges) // a number stays with what it counts
        shown.replace(shown.indexOf(' ', range.start), 1, QChar::Nbsp);
    satz.setText(shown);
    satz.setFont(font());
    satz.setFormats(ranges);
    double height = 0;
    satz.beginLayout();
    for (QTextLine line = satz.createLine(); line.isValid(); line = satz.createLine()) {
        line.setLineWidth(breite);
        line.setPosition({0, height});
        height += line.height();
    }
    satz.endLayout();
    return height;
}

int Fragetext::heightForWidth(int width) const {
    QTextLayout satz;
    return qCeil(setzen(satz, width));
}

void Fragetext::paintEvent(QPaintEvent *) {
    QTextLayout satz;
    const double used = setzen(satz, width());
    QPainter painter(this);
    painter.setPen(palette().color(foregroundRole()));
    satz.draw(&painter, {0, (height() - used) / 2});
}
