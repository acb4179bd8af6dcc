// What is painted, as text: a swapped sign, a deviation to the wrong side and a missing zone are
// seen; type, sizes and the blends of edges are not.
#pragma once

#include <QImage>
#include <QPainter>
#include <QWidget>

#include <functional>

#include "windows/stil.h"

namespace support {

inline QImage painted(QSize size, const std::function<void(QPainter &, const QRectF &)> &paint) {
    QImage image(size, QImage::Format_RGB32);
    image.fill(platform::farben().fenster);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    paint(painter, QRectF(image.rect()));
    return image;
}
inline QImage painted(QWidget &widget, QSize size) {
    widget.resize(size);
    return widget.grab().toImage();
}

/// The colours along a row, its height and its ends as shares of the picture, each stretch of one
/// colour as a letter: "_" window, "." field, "T" text, "k" edge, "A" accent, "s" selection; "+"
/// "-" "?" verdicts, "p" "n" "u" their grounds; "!" alarm.
inline QString along(const QImage &image, double height, double from = 0, double to = 1) {
    const platform::Farben &f = platform::farben();
    const std::pair<QColor, char> letters[] = {{f.fenster, '_'},
                                               {f.feld, '.'},
                                               {f.text, 'T'},
                                               {f.kante, 'k'},
                                               {f.akzent, 'A'},
                                               {f.auswahl, 's'},
                                               {f.gut, '+'},
                                               {f.schlecht, '-'},
                                               {f.offen, '?'},
                                               {f.gutGrund, 'p'},
                                               {f.schlechtGrund, 'n'},
                                               {f.offenGrund, 'u'},
                                               {QColor(platform::alarmRot), '!'}};
    QString row;
    for (int x = int(from * image.width()); x < int(to * image.width()); ++x) {
        const QColor color = image.pixelColor(x, int(height * image.height()));
        for (const auto &[known, letter] : letters) {
            if (known == color && !row.endsWith(letter))
                row += letter;
        }
    }
    return row;
}

/// From above, the colours of which a row has more than the share, each stretch as its letter, "."
/// without: of charts, whose lines go across.
struct Line {
    QColor color;
    char letter;
    double share;
};
inline QString stripes(const QImage &image, const std::vector<Line> &lines) {
    QString column;
    for (int y = 0; y < image.height(); ++y) {
        QString row;
        for (const Line &line : lines) {
            int pixels = 0;
            for (int x = 0; x < image.width(); ++x)
                pixels += image.pixelColor(x, y) == line.color;
            if (pixels > line.share * image.width())
                row += line.letter;
        }
        if (row.isEmpty())
            row = ".";
        if (!column.endsWith(row))
            column += row;
    }
    return column;
}

} // namespace support
