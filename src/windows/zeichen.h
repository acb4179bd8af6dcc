// What is told by a picture: the signs of a verdict, which differ in outline and need no colour,
// the arrow of a direction, and the widget that shows one of them beside the words.
#pragma once

#include <QIcon>
#include <QWidget>

#include <functional>

class QPainter;

namespace platform {

enum class Zeichen {
    Kein,     ///< nothing to judge yet: a dashed ring
    Gut,      ///< a disc with a tick
    Schlecht, ///< a square with a cross
    Offen,    ///< a triangle with a question mark: undecided
    Achtung,  ///< the same triangle with an exclamation mark
};
/// Within `rect`, as a square in its middle. Readable from 16 px on.
void zeichenMalen(QPainter &painter, const QRectF &rect, Zeichen zeichen);
QColor zeichenFarbe(Zeichen zeichen);
/// The tick of Gut or the cross of Schlecht alone, without its ground.
void strichMalen(QPainter &painter, const QRectF &rect, Zeichen zeichen, const QColor &farbe);

/// What a message box asks or tells: a disc with "?" or "i".
void hinweisMalen(QPainter &painter, const QRectF &rect, bool frage);

/// An arc of 280 degrees with a head: clockwise, or the other way.
void drehpfeilMalen(QPainter &painter, const QRectF &rect, bool rechtsherum, const QColor &farbe);

/// What goes on: a triangle that points to the right, with a word of three letters at most in it.
void weiterMalen(QPainter &painter, const QRectF &rect, const QString &wort);
/// What stands or is to stand: a filled square.
void haltMalen(QPainter &painter, const QRectF &rect, const QColor &farbe);
/// The same before the caption of a button, in the colours in force.
QIcon haltIcon();

/// A painted picture on a screen, named anz…: takes no keyboard, has its words for who cannot see
/// it.
class Bild : public QWidget {
  public:
    using Maler = std::function<void(QPainter &painter, const QRectF &rect)>;

    explicit Bild(QWidget *parent = nullptr) : QWidget(parent) {}

    /// Painted anew from now on by this, with antialiasing.
    void zeige(Maler maler, const QString &worte);
    void zeige(Zeichen zeichen, const QString &worte);

  protected:
    void paintEvent(QPaintEvent *event) override;

  private:
    Maler mMaler;
};

} // namespace platform
